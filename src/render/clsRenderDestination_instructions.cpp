// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

namespace {

constexpr double kPointsPerInch = 72;

// Where each block starts, in inches from the printable origin.
struct BlockPlace {
    double dblX;
    double dblY;
    double dblWidth;
};

BlockPlace PlaceOf(RulesBlock block) {
    switch (block) {
        case RulesBlock::Head:
            return {1.0, 0.75, 6.0};
        case RulesBlock::Column1:
            return {1.0, 1.375, 2.75};
        default:
            return {4.25, 1.375, 2.75};
    }
}

QString InstructionFile() {
    const QString own = basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("GamePlay.dat"));
    if (basCommon::DoesFileExist(own)) return own;
    return basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("GamePlay_US.dat"));
}

void TellMissing(const QString& sFile, const QString& sError) {
    MsgBox(QStringLiteral("Unable to open the file named '") + sFile + QStringLiteral(".") +
               QStringLiteral("The following error was reported: ") + QStringLiteral("\r\n\r\n") + sError +
               QStringLiteral("\r\n\r\n") +
               QStringLiteral("The instruction sheet cannot be printed without this file."),
           vbInformation);
}

void TellBadLine() {
    MsgBox(QStringLiteral("An error occurred processing one of the lines in the GamePlay.dat file."));
}

QString BadLineText(const QString& sFile, const RulesReading& rules) {
    constexpr qsizetype kMost = 60;
    const QString line = rules.sBadLine.simplified();
    return QStringLiteral("Line %1 of the file named '%2' is in no form that rules have: %3")
        .arg(rules.iBadLine)
        .arg(sFile, line.size() > kMost ? line.left(kMost) + QStringLiteral("...") : line);
}

} // namespace

QString clsRenderDestination::MakeSubstitutions(const QString& sLine, const QString& sTag, const QString& sValue) {
    return WithTagReplaced(sLine, sTag, sValue);
}

void clsRenderDestination::ParseGamePlayLine(QString& sLine, QString& sFontName, int& lSize, QString& sAlign,
                                             bool& bBold, bool& bItalic, int& iResult) try {
    RulesLine line;
    const bool good = ReadRulesLine(sLine, line);
    sLine = line.sText;
    sFontName = line.sFont;
    lSize = line.lSize;
    sAlign = line.sAlign;
    bBold = line.bBold;
    bItalic = line.bItalic;
    iResult = good ? 0 : -1;
    if (!good) TellBadLine();
} catch (...) {
    ErrTail("clsRenderDestination!", "ParseGamePlayLine", sLine, sFontName, lSize, sAlign, bBold, bItalic, iResult);
}

void clsRenderDestination::PrintInstructionLine(const RulesLine& line, Cursor& cursor) {
    const int lLine = CLng(line.lSize * dblDPI / kPointsPerInch);
    QString text = line.sText;
    TextBlock(text, cursor.lX, cursor.lY, cursor.lWidth, line.sFont, lLine, line.bBold, line.bItalic, line.sAlign);
}

bool clsRenderDestination::InstructionSheet(const InstructionNames& names, QString& sWhy) try {
    const QString sFile = InstructionFile();
    QString error;
    const std::optional<QByteArray> bytes = Files::ReadAll(sFile, error);
    if (!bytes) {
        TellMissing(sFile, error);
        sWhy = QStringLiteral("The file named '%1' could not be read: %2").arg(sFile, error);
        return false;
    }
    const RulesReading rules = ReadRules(*bytes, names);
    Cursor cursor;
    for (const auto& item : rules.items) {
        if (const auto* line = std::get_if<RulesLine>(&item)) {
            PrintInstructionLine(*line, cursor);
        } else {
            const BlockPlace place = PlaceOf(std::get<RulesBlock>(item));
            cursor = {Pixels(place.dblX), Pixels(place.dblY), Pixels(place.dblWidth)};
        }
    }
    if (rules.bWhole) return true;
    TellBadLine();
    sWhy = BadLineText(sFile, rules);
    return false;
} catch (...) {
    ErrTail("clsRenderDestination!", "InstructionSheet");
}
