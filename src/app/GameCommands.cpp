// SPDX-License-Identifier: MIT
#include "app/GameCommands.h"

#include "app/BoardView.h"
#include "app/OpeningNote.h"
#include "app/PackedGames.h"
#include "app/RecentGames.h"
#include "app/StartArguments.h"
#include "board/BoardPicture.h"
#include "document/basTAVL.h"
#include "game/Autosave.h"
#include "game/EarlierVersions.h"
#include "game/GameNames.h"
#include "game/PieceImages.h"
#include "game/Rescue.h"
#include "game/SampleGames.h"
#include "pictures/SeenPictures.h"
#include "platform/files/Files.h"
#include "platform/pictures/SavePicture.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/games/frmEarlierVersions.h"

namespace {

const QString kGameFilter = QStringLiteral("Tavlora games|*.gam|All files|*.*");
const QString kOpenFilter = QStringLiteral("Tavlora games|*.gam;*.tavlora|All files|*.*");
const QString kGameExtension = QStringLiteral("gam");
const QString kLastGameKey = QStringLiteral("GameName");

} // namespace

GameCommands::GameCommands(QWidget& window, BoardView& view) : m_window(window), m_view(view) {
    m_session.MeasureOn([this]() -> DeviceContext& { return m_view.Board().hDC(); });
    QObject::connect(&m_session, &Session::Changed, &m_window, [this] { ShowState(); });
}

void GameCommands::ShowState() {
    m_window.setWindowTitle(WidgetLook::WindowTitle(QStringLiteral("Tavlora: ") + m_session.GameName()));
    m_window.setWindowModified(m_session.IsUnsaved());
}

bool GameCommands::TakeUpGame(const QString& sAskedFor) try {
    m_sBrokenOff = OpeningNote::Left();
    const bool recovered =
        LoadAutosave(Autosave::DataPath(),
                     QStringLiteral("An Autosave version of a previous game has been found on your disk. ")) ||
        LoadAutosave(
            Autosave::BackupPath(),
            QStringLiteral("The backup of an autosave version of a previous game has been found on your disk. "));
    if (recovered) return sAskedFor.isEmpty() || sAskedFor == m_session.GameName();
    if (sAskedFor.isEmpty() || !LoadAskedFor(sAskedFor)) LoadLastGame();
    return true;
} catch (...) {
    // What was loaded by then is what the user sees.
    ShowState();
    throw;
}

bool GameCommands::LoadAutosave(const QString& sPath, const QString& sMessage) {
    // In this very spelling: what bears the name in another one isn't ours.
    if (!Files::Exists(sPath) || IsPutAside(sPath)) return false;
    MsgBox(sMessage + QStringLiteral("This game is being loaded."));
    OpeningNote::Write(sPath);
    m_iLoadResult = m_session.Recover(sPath);
    if (m_iLoadResult != 0) return false;
    ShowState();
    return true;
}

bool GameCommands::IsPutAside(const QString& sAutosave) {
    if (sAutosave != m_sBrokenOff) return false;
    const QString kept = Rescue::FreePathFor(sAutosave);
    if (WantsItAgain(QStringLiteral("what it had kept of your last game"),
                     QStringLiteral(" If not, it stays in My Games as '%1'.").arg(GameNames::FileNameOf(kept))))
        return false;
    QString error;
    if (!Files::Rename(sAutosave, kept, error)) Rescue::NoteUnread(sAutosave);
    return true;
}

bool GameCommands::WantsItAgain(const QString& sWhat, const QString& sElse) {
    const QString question =
        QStringLiteral("The last start of Tavlora broke off while it was opening %1. Open it again?").arg(sWhat);
    return MsgBox(question + sElse, vbYesNo | vbExclamation | vbDefaultButton2) == vbYes;
}

// As Open does it, except that there is no game yet that it could come in place of.
bool GameCommands::LoadAskedFor(const QString& sPath) {
    const QString game = PackedGames::Arrive(sPath);
    if (game.isEmpty()) return false;
    m_session.SetGameName(game);
    OpeningNote::Write(game);
    LoadUnderItsName();
    if (m_iLoadResult != 0) return false;
    basCommon::WriteIniString(kLastGameKey, m_session.GameName());
    ShowState();
    PackedGames::TellWhereItLies(sPath, game);
    return true;
}

void GameCommands::LoadLastGame() {
    QString name = basCommon::GetIniString(kLastGameKey);
    const bool found = !name.isEmpty() && basCommon::ResolveFullPath(name);
    m_session.SetGameName(name);
    if (found && MayOpenLastGame(name)) {
        OpeningNote::Write(name);
        LoadUnderItsName();
    } else {
        BeginNewGame(m_iLoadResult);
    }
    ShowState();
}

bool GameCommands::MayOpenLastGame(const QString& sPath) const {
    if (sPath != m_sBrokenOff) return true;
    if (WantsItAgain(QStringLiteral("the game '%1'").arg(GameNames::FileNameOf(sPath)))) return true;
    // Nor does the start after this one open it unasked.
    basCommon::WriteIniString(kLastGameKey, QString());
    return false;
}

void GameCommands::LoadUnderItsName() {
    QString name = m_session.GameName();
    m_iLoadResult = m_session.Load(name);
    m_session.SetGameName(name);
    SeenPictures::Note(PieceImages::Files(m_session.InHand()));
}

bool GameCommands::SaveUnderItsName() {
    if (!m_session.Save()) return false;
    const QString game = m_session.GameName();
    RecentGames::Note(game);
    SeenPictures::Note(PieceImages::Files(m_session.InHand()));
    // No save waits for a picture.
    QMetaObject::invokeMethod(
        &m_window, [this, game] { KeepBoardOf(game); }, Qt::QueuedConnection);
    return true;
}

void GameCommands::KeepBoardOf(const QString& sGame) try {
    constexpr int kSideOfSmallBoard = 192;
    if (m_session.GameName() != sGame || m_session.IsUnsaved()) return;
    // Magnified, the window shows a part of it only.
    const bool whole = m_view.Zoom() == 1;
    const Picture board = whole ? m_view.Board().Reduced(kSideOfSmallBoard) : basPosit::BoardPicture(kSideOfSmallBoard);
    if (!whole) m_view.Redraw();
    QString error;
    if (const std::optional<QByteArray> png = EncodePicture(board, error)) EarlierVersions::KeepBoard(sGame, *png);
} catch (...) {
    ErrTop("frmTAVL!", "KeepBoardOf");
}

void GameCommands::BeginNewGame(int& iResult) try {
    BeginGameFrom(basTAVL::NewGameFile());
    iResult = m_iLoadResult;
} catch (...) {
    ErrTail("frmTAVL!", "BeginNewGame", iResult);
}

void GameCommands::BeginGameFrom(const QString& sFile) {
    QString name = sFile;
    m_iLoadResult = m_session.Load(name);
    GetNewGameName(name);
    m_session.SetGameName(name);
    ShowState();
    m_view.Redraw();
}

void GameCommands::GetNewGameName(QString& sName) try {
    sName = GameNames::FirstFreeName(basCommon::GetMyGamesDirectory());
} catch (...) {
    ErrTail("frmTAVL!", "GetNewGameName", sName);
}

void GameCommands::SetNewGameName(int& iResult) try {
    QString name;
    GetNewGameName(name);
    dlgCommon.sDialogTitle = QStringLiteral("Save Game Under New Name");
    dlgCommon.sInitDir = GameNames::FolderOf(name);
    dlgCommon.sFileName = GameNames::FileNameOf(name);
    dlgCommon.sFilter = kGameFilter;
    dlgCommon.sDefaultExt = kGameExtension;
    dlgCommon.bOverwritePrompt = true;
    dlgCommon.sError.clear();
    iResult = -1;
    if (!dlgCommon.ShowSave()) {
        ShowDialogError();
        return;
    }
    m_session.SetGameName(dlgCommon.sFileName);
    iResult = 0;
} catch (...) {
    ErrTail("frmTAVL!", "SetNewGameName", iResult);
}

void GameCommands::ShowDialogError() {
    if (dlgCommon.sError.isEmpty()) return;
    const QString blankLine = QStringLiteral("\r\n\r\n");
    MsgBox(QStringLiteral("The following error was encountered while processing the File Dialog: ") + blankLine +
           dlgCommon.sError + blankLine + QStringLiteral("The game was NOT saved."));
}

bool GameCommands::MayGo() {
    bool ok = false;
    OkToEndProgram(ok);
    return ok;
}

void GameCommands::New() {
    if (!MayGo()) return;
    BeginNewGame(m_iLoadResult);
    AutosaveWhatStays();
}

// After No to the question about changes nothing of them is left on the disk, and then no other game came: what is
// still being worked on must outlive a crash as before.
void GameCommands::AutosaveWhatStays() {
    if (m_session.IsUnsaved()) m_session.SetSomethingChanged(true);
}

void GameCommands::Open() {
    const QString name = m_session.GameName();
    OpenAskedFor(GameNames::FolderOf(name), GameNames::IsUnnamed(name) ? QString() : GameNames::FileNameOf(name));
}

bool GameCommands::OpenAskedFor(const QString& sFolder, const QString& sFile) {
    if (!MayGo()) return false;
    dlgCommon.sDialogTitle = QStringLiteral("Open Game");
    dlgCommon.sInitDir = sFolder;
    dlgCommon.sFileName = sFile;
    dlgCommon.sFilter = kOpenFilter;
    dlgCommon.sDefaultExt = kGameExtension;
    dlgCommon.sError.clear();
    if (!dlgCommon.ShowOpen()) {
        ShowDialogError();
        AutosaveWhatStays();
        return false;
    }
    LoadInstead(dlgCommon.sFileName);
    return m_iLoadResult == 0;
}

void GameCommands::Carry(const QString& sRequest) {
    if (sRequest == QLatin1String(StartArguments::kNew)) return New();
    if (sRequest != QLatin1String(StartArguments::kRecent)) return OpenGame(sRequest);
    for (const QString& path : RecentGames::List()) {
        if (path != m_session.GameName()) return OpenRecent(path);
    }
}

void GameCommands::OpenGame(const QString& sPath) {
    if (MayGo()) LoadInstead(sPath);
}

void GameCommands::LoadInstead(const QString& sPath) {
    const QString game = PackedGames::Arrive(sPath);
    if (game.isEmpty()) return AutosaveWhatStays();
    m_session.SetGameName(game);
    LoadUnderItsName();
    ShowState();
    // A game that was read only in part isn't the file any more, nor is what an autosave holds the game that it was
    // edited as.
    m_session.SetSomethingChanged(m_iLoadResult != 0 || Autosave::IsOneOf(game));
    NoteInUse();
    m_view.Redraw();
    PackedGames::TellWhereItLies(sPath, game);
}

void GameCommands::NoteInUse() {
    basCommon::WriteIniString(kLastGameKey, m_session.GameName());
    if (m_iLoadResult == 0) RecentGames::Note(m_session.GameName());
}

void GameCommands::NewFrom(const QString& sSample) {
    if (!MayGo()) return;
    BeginGameFrom(sSample);
    AutosaveWhatStays();
}

void GameCommands::Duplicate() {
    QString name;
    GetNewGameName(name);
    m_session.SetGameName(name);
    m_session.SetSomethingChanged(true);
    ShowState();
}

void GameCommands::OpenEarlier() {
    const QString version = frmEarlierVersions(&m_window).ShowForm(m_session.GameName());
    if (version.isEmpty()) return;
    QString error;
    const std::optional<QByteArray> bytes = Files::ReadAll(version, error);
    if (!MayGo()) return;
    // The save of what was in hand may just have thinned it out.
    if (bytes && !basCommon::DoesFileExist(version)) Files::WriteWhole(version, *bytes, error);
    BeginGameFrom(version);
    // It lies under a name that the user never gave, and will be thinned out one day.
    m_session.SetSomethingChanged(true);
}

void GameCommands::OpenRecent(const QString& sPath) {
    if (basCommon::DoesFileExist(sPath)) {
        OpenGame(sPath);
        return;
    }
    const QString question = QStringLiteral("The game '%1' isn't in '%2' any more. Do you want to look for it?")
                                 .arg(GameNames::FileNameOf(sPath), GameNames::FolderOf(sPath));
    if (MsgBox(question, vbYesNo | vbQuestion) != vbYes) return;
    QString folder = GameNames::FolderOf(sPath);
    if (!Files::Exists(folder)) folder = basCommon::GetMyGamesDirectory();
    if (OpenAskedFor(folder, GameNames::FileNameOf(sPath))) RecentGames::Replace(sPath, m_session.GameName());
}

// The board paints itself from the game; nothing that is painted asks for the tokens.
void GameCommands::ShowStep() {
    m_view.Redraw();
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.GetThumbnail(false);
}

void GameCommands::Undo() {
    m_session.Undo();
    ShowStep();
}

void GameCommands::Redo() {
    m_session.Redo();
    ShowStep();
}

void GameCommands::Save() {
    if (GameNames::IsUnnamed(m_session.GameName())) {
        SaveAs();
        return;
    }
    SaveUnderItsName();
}

void GameCommands::SaveAs() {
    int iResult = 0;
    SetNewGameName(iResult);
    if (iResult < 0) return;
    SaveUnderItsName();
    ShowState();
}

void GameCommands::OkToEndProgram(bool& bOk) try {
    bOk = !m_session.IsUnsaved();
    if (bOk) return;
    const int answer = MsgBox(QStringLiteral("Do you want to save the changes pending on the current game.?"),
                              vbYesNoCancel | vbQuestion, QStringLiteral("Save Changes"));
    switch (answer) {
        case vbYes:
            bOk = m_session.Save();
            // One that worked has done so itself.
            if (!bOk) m_session.SetSomethingChanged(false);
            // The disk may refuse so late that the save counts as good all the same.
            bOk = bOk && !m_session.IsUnsaved();
            break;
        case vbNo:
            m_session.GiveUp();
            bOk = true;
            break;
        case vbCancel:
            bOk = false;
            break;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Response"), QStringLiteral("frmTAVL!OkToEndProgram"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "OkToEndProgram", bOk);
}
