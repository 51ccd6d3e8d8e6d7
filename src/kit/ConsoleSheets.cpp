// SPDX-License-Identifier: MIT
#include "kit/ConsoleSheets.h"

#include "platform/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ConsoleSheets {
namespace {

constexpr int kFirstMoney = 7;
constexpr int kLastMoney = 10;
constexpr double kBytesPerMegabyte = 1'048'576;
// What the width of a hair may lack.
constexpr double kToleranceInches = 0.02;
constexpr QSizeF kPortraitInches(8.0, 10.5);

struct Row {
    int iFrame;
    const char* sCaption;
    /// Of the other kits; nothing where it is the same.
    const char* sOtherCaption;
    const char* sToolTip;
};

constexpr std::array<Row, kButtons> kRows = {{
    {1, "&Box Top && Token Stickers", "&Green  Box && Board Labels #1", ""},
    {1, "&West, South && Corner Board Stickers", "Green Game &Board Labels #2", ""},
    {1, "Game Box &Light Green Sheet", nullptr, ""},
    {1, "&East, North && Title Board Stickers", "Game  Box &Red Sheet", ""},
    {2, "Deed Card &Label Sheet", nullptr, "Click to print Deel Card Lable Sheet"},
    {3, "&Good News Cards", nullptr, ""},
    {3, "&Bad News Cards", nullptr, ""},
    {4, "$ &100", nullptr, ""},
    {4, "$ &500", nullptr, ""},
    {4, "$ 1,00&0", nullptr, ""},
    {4, "$ 5&,000", nullptr, ""},
    {5, "Game &Play Instruction Sheet", nullptr,
     "Once you have created your game, this gives you the rules for playing it."},
    {2, "Property Deed Sheet #&1", nullptr, "Click to begin printing Deed Card Sheet #1"},
    {2, "Property Deed Sheet #&2", nullptr, "Click to begin printing Deed Card Sheet #2"},
}};

constexpr int kObsolete = 2;
constexpr int kLastLabelSheet = 3;
constexpr int kDeedLabels = 4;
constexpr int kDeedSheetOne = 12;
constexpr int kDeedSheetTwo = 13;

const QString kTail = QStringLiteral("and click 'Print' to begin printing.");
constexpr const char* kLabelPaper = "Position white peel && stick label paper in your printer.  Make sure the printing "
                                    "side is faced properly ";
constexpr const char* kColoredCard = "Please position a sheet of colored card stock in the printer ";
constexpr const char* kWhitePaper = "Please load white paper into the printer ";
constexpr const char* kWhiteCard = "Please load white card stock into the printer ";

constexpr std::array<const char*, kPrompts> kPrompts8 = {
    kLabelPaper, kLabelPaper, nullptr,     kLabelPaper, "",         kColoredCard, kColoredCard, kWhitePaper,
    kWhitePaper, kWhitePaper, kWhitePaper, kWhitePaper, kWhiteCard, kWhiteCard,   kWhitePaper,
};

constexpr const char* kLightGreen = "Please position a sheet of light green label stock in the printer ";

constexpr std::array<const char*, kPrompts> kPrompts2 = {
    kLightGreen,
    kLightGreen,
    nullptr,
    "Please position a sheet of red label stock in the printer ",
    "Please position a sheet of white label stock in the printer ",
    "Please position a sheet of pink card stock in the printer ",
    "Please position a sheet of green  card stock in the printer ",
    "Please load pink paper into the printer ",
    "Please load light blue paper into the printer ",
    "Please load light green paper into the printer ",
    "Please load mustard paper into the printer ",
    kWhitePaper,
    nullptr,
    nullptr,
    nullptr,
};

constexpr std::array<const char*, 6> kFrameLabels = {
    "Please select the part of the game you would like to print:",
    " Click below to print a label sheet:",
    "Select the sheet of cards you would like to print:",
    "Select the sheet of cards\nyou would like to print.",
    "Please select the currency\nyou would like to print.\nClick again for additional sheets.",
    "Click the button below\nto print instructions for playing the game",
};

constexpr std::array<std::array<const char*, 2>, 6> kBoxLabels = {{
    {"BoxTopTitle", "4.78x0.78"},
    {"BoxTop2ndSubtitle", "4.46x0.195"},
    {"BoxSideTitle", "3.337x0.66"},
    {"BoxSide2ndSub", "1.74x0.53"},
    {"BoxTopSubTitleRed", "5.91x0.36"},
    {"BoxTop2ndSubTitleRed", "1.83x0.59"},
}};

bool IsKit8(const QString& sVariant) { return sVariant == QStringLiteral("8"); }
bool OnColoredStock(const QString& sVariant) {
    return sVariant == QStringLiteral("2") || sVariant == QStringLiteral("2A");
}
QString Inches(double value) { return QString::number(value, 'f', 2); }
QString Inches(QSizeF size) { return Inches(size.width()) + QStringLiteral(" by ") + Inches(size.height()); }

bool IsButton(int iIndex) { return iIndex >= 0 && iIndex < kButtons; }

} // namespace

QString Caption(int iIndex, const QString& sVariant) {
    if (!IsButton(iIndex)) return {};
    const Row& row = kRows[size_t(iIndex)];
    const bool other = !IsKit8(sVariant) && row.sOtherCaption;
    return QString::fromLatin1(other ? row.sOtherCaption : row.sCaption);
}

QString Title(int iIndex, const QString& sVariant) {
    const QChar kept(0x1);
    QString title = Caption(iIndex, sVariant);
    title.replace(QStringLiteral("&&"), kept).remove(u'&');
    return title.replace(kept, u'&');
}

QString ToolTip(int iIndex) {
    return IsButton(iIndex) ? QString::fromLatin1(kRows[size_t(iIndex)].sToolTip) : QString();
}

bool IsShown(int iIndex, const QString& sVariant) {
    if (iIndex == kObsolete) return false;
    if (iIndex == kDeedLabels) return OnColoredStock(sVariant);
    if (iIndex == kDeedSheetOne || iIndex == kDeedSheetTwo) return !OnColoredStock(sVariant);
    return IsButton(iIndex);
}

int FrameOf(int iIndex) { return IsButton(iIndex) ? kRows[size_t(iIndex)].iFrame : 0; }

QString FrameLabel(int iFrame, const QString& sVariant) {
    if (iFrame == FrameOf(kDeedLabels) && OnColoredStock(sVariant))
        return QStringLiteral("Click to Print Deed Card Label Sheet.");
    return QString::fromLatin1(kFrameLabels.at(size_t(iFrame)));
}

QString PaperPrompt(int iIndex, const QString& sVariant) {
    if (iIndex < 0 || iIndex >= kPrompts) return {};
    if (iIndex == kObsolete) return QStringLiteral("Obsolete");
    const char* const prompt = (OnColoredStock(sVariant) ? kPrompts2 : kPrompts8)[size_t(iIndex)];
    if (!prompt) return QStringLiteral("Not used for this version.");
    return *prompt ? QString::fromLatin1(prompt) + kTail : QString();
}

PageOrientation OrientationOf(int iIndex, const QString& sVariant) {
    const bool landscape = IsKit8(sVariant) ? iIndex <= kLastLabelSheet : iIndex == kLastLabelSheet;
    return landscape ? PageOrientation::Landscape : PageOrientation::Portrait;
}

bool IsMoney(int iIndex) { return iIndex >= kFirstMoney && iIndex <= kLastMoney; }

int MoneyOf(int iIndex) { return iIndex - kFirstMoney; }

int Copies(int iIndex, const QString& sNumberOfSheets) {
    if (!IsMoney(iIndex)) return 1;
    return std::clamp(CLng(ParseNumber(sNumberOfSheets).value_or(0)), 1, kMostCopies);
}

QString DoneMark(const QString& sAnswer) {
    return sAnswer == QStringLiteral("OK") ? QStringLiteral(" (DONE)") : QString();
}

QString LittleDiskMessage(double dblFree, int iMegabytes) {
    const QString megabytes = QString::number(qint64(std::trunc(dblFree / kBytesPerMegabyte)));
    return QStringLiteral("You have only ") + megabytes +
           QStringLiteral(" megabytes of free disk space on drive 'C'.\r\nYou must have at least ") +
           QString::number(iMegabytes) +
           QStringLiteral(" MB free disk space to print Tavlora.\r\nPlease free up some disk space and try again.");
}

QSizeF NeededInches(PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? kPortraitInches.transposed() : kPortraitInches;
}

bool Holds(const Printer& printer) {
    const QSizeF lacking = NeededInches(printer.Orientation()) - printer.PrintableInches();
    return lacking.width() <= kToleranceInches && lacking.height() <= kToleranceInches;
}

QString NoPrinterMessage(const Printer& printer) {
    return QStringLiteral("The printer '%1' doesn't answer. Please see that it is switched on and connected, then "
                          "print again.\r\n\r\nClick 'OK' to print nevertheless.")
        .arg(printer.DeviceName());
}

QString SmallPageMessage(const Printer& printer) {
    return QStringLiteral("The printer '%1' prints on only %2 inches of its paper. This sheet needs %3 inches, so "
                          "its edges would be missing.\r\n\r\nPlease choose US Letter paper or smaller margins in "
                          "the printer's settings. Click 'OK' to print nevertheless.")
        .arg(printer.DeviceName(), Inches(printer.PrintableInches()), Inches(NeededInches(printer.Orientation())));
}

QString PdfMessage(const QString& sPath) {
    return QStringLiteral("This sheet is now in the file\r\n\r\n%1\r\n\r\nPrint it at actual size (100 %), never "
                          "\"fit to page\": only then the pieces have their right size.")
        .arg(sPath);
}

QString DocumentName(const QString& sGame, const QString& sTitle) try {
    QString drive;
    QString dir;
    QString base;
    QString ext;
    basCommon::FileNameFactor(sGame, drive, dir, base, ext);
    return base + QStringLiteral(" - ") + sTitle;
} catch (...) {
    ErrTail("frmTavlPrint!", "DocumentName", sGame, sTitle);
}

void ReadBoxLabelSizes() try {
    for (const auto& label : kBoxLabels)
        basCommon::GetIniStringWithDefault(QString::fromLatin1(label[0]), QString::fromLatin1(label[1]));
} catch (...) {
    ErrTail("frmTavlPrint!", "ReadBoxLabelSizes");
}

} // namespace ConsoleSheets
