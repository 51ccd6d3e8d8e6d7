// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "app/OpeningNote.h"
#include "app/RecentGames.h"
#include "app/StartArguments.h"
#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "document/Locale.h"
#include "drawing/basBMP.h"
#include "drawing/basDraw.h"
#include "game/SampleGames.h"
#include "kit/GameKit.h"
#include "platform/files/ProfileFile.h"
#include "platform/files/Temporaries.h"
#include "platform/paint/Units.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/ProgramSettings.h"
#include "windowing/basAPI_screen.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/side/GuideTab.h"

namespace {

constexpr qint64 kLogLimit = 60000;
constexpr int kFewestColorBits = 9;
constexpr int kSplashMilliseconds = 3000;
constexpr qint32 kBoardFace = 0xE0FFE0;

} // namespace

// Each part on its own: whatever the disk refuses, a window with a game stands in the end.
void frmTAVL::Form_Load() {
    PrepareStart();
    ReadSideSettings();
    StartWithGame();
    HideSplash();
}

void frmTAVL::PrepareStart() try {
    const QString& programName = Settings().sProgramName;
    basErrLog::ErrInit(kLogLimit, QString(), true);
    basCommon::InitIniPath();
    Temporaries::ClearLeftoversOnce(basCommon::GetMyGamesDirectory());
    basTAVL::CopySampleGames();
    WarnOfFewColors();
    basErrLog::ErrLogToFile(QStringLiteral("Starting Tavlora Version 6 running as ") + GameKit::ExeName(programName),
                            true);
    // The first start writes back many defaults.
    const ProfileFile::Together together;
    GameKit::SetUp(programName);
    basTAVL::g_vCurrencySign() = QString::fromLatin1(Locale::kCurrencySign);
    SizeMainWindow();
    basTAVL::g_lMagicColor() = basDraw::Draw_ReverseColor(Color::FromValue(kBoardFace));
    GameKit::ReadGameVersion();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Load");
}

void frmTAVL::ReadSideSettings() try {
    m_side.Panel().SetTabShown(GuideTab::kName, GuideTab::IsWanted());
    m_side.ReadSettings();
    frmBrowse::ReadSettings();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Load");
}

void frmTAVL::StartWithGame() try {
    ShowSplash();
    basCommon::ShowEntireForm(*this);
    Init();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Load");
}

void frmTAVL::EndStart() try {
    OpeningNote::Remove();
    m_requests.EndLoading();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Load");
}

void frmTAVL::WarnOfFewColors() {
    const int bits = basAPI::ScreenBitsPerPixel();
    if (bits >= kFewestColorBits) return;
    MsgBox(QStringLiteral("Your system is currently set to display only ") + QString::number(1LL << bits) +
           QStringLiteral(" colors. ") +
           QStringLiteral("Please use a display properties setting that shows more than 256 colors. ") +
           QStringLiteral("If this is not possible, please select only monochrome images for your game. ") +
           QStringLiteral("Even then, your printed output might be unsatisfactory."));
}

void frmTAVL::SizeMainWindow() try {
    if (isMinimized()) return;
    const int side = MainWindowSizeWanted(Screen::Size().height() * kTwipsPerPixel, kTwipsPerPixel);
    const QSize wanted = side > 0 ? QSize(side, side) / kTwipsPerPixel : size();
    Screen::PlaceWindow(*this, QRect(pos(), wanted));
    Screen::PlaceAtFraction(*this, 1.0 / 2, 1.0 / 2);
} catch (...) {
    ErrTail("frmTAVL!", "SizeMainWindow");
}

void frmTAVL::ShowSplash() {
    const QString show = basCommon::GetIniStringWithDefault(QStringLiteral("ShowSplash"), QStringLiteral("True"));
    m_bSplash = show.toLower() == QStringLiteral("false");
    if (!m_bSplash) {
        frmPrintManual().ShowForm(true);
        return;
    }
    m_about->ShowAsSplash();
    DoEvents();
    Sleep(kSplashMilliseconds);
}

void frmTAVL::HideSplash() {
    m_view.SetNoRedraw(true);
    if (m_bSplash) m_about->EndSplash();
    m_view.SetNoRedraw(false);
}

void frmTAVL::Init() try {
    m_view.ForgetZoom();
    InitColors();
    m_toolBar.InitButtonPositions();
    basPosit::PosInit();
    basDraw::Draw_SetHdc(&m_view.Board().hDC());
    basBMP::BMP_SetHDC(&m_view.Board().hDC());
    basBMP::BMP_SetBackColor(basTAVL::g_lMagicColor());
    basBMP::BMP_SetMagicColor(basTAVL::g_lMagicColor());
    TakeUp(m_requests.Take());
} catch (...) {
    ErrTail("frmTAVL!", "Init");
}

// A new game comes when the window stands with the last one, whose changes it asks about.
void frmTAVL::TakeUp(const QString& sRequest) {
    const bool isNew = sRequest == QLatin1String(StartArguments::kNew);
    const bool recent = sRequest == QLatin1String(StartArguments::kRecent);
    const QString game = recent ? RecentGames::List().value(0) : sRequest;
    if (!m_commands.TakeUpGame(isNew ? QString() : game) || isNew) m_requests.PutBack(sRequest);
}

void frmTAVL::InitColors() {
    // Nothing reads this table; it documents the window's colours.
    m_lColor = {Color::Rgb(0, 128, 0),   Color::Rgb(255, 0, 128), Color::Rgb(255, 128, 0),   Color::Rgb(0, 0, 255),
                Color::Rgb(255, 255, 0), Color::Rgb(255, 0, 255), Color::Rgb(128, 128, 255), Color::Rgb(255, 0, 0)};
}
