// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "platform/files/Folders.h"
#include "platform/files/TextFile.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

namespace {

constexpr double kPointsPerInch = 72;

// Where each tag moves the cursor, in inches from the printable origin.
struct BlockPlace {
    const char* sTag;
    double dblX;
    double dblY;
    double dblWidth;
};
constexpr BlockPlace kBlockPlaces[] = {
    {"<Head>", 1.0, 0.75, 6.0},
    {"<Col1>", 1.0, 1.375, 2.75},
    {"<Col2>", 4.25, 1.375, 2.75},
};

struct Substitution {
    const char* sTag;
    QString InstructionNames::*name;
};
// In the order in which they are made.
constexpr Substitution kSubstitutions[] = {
    {"<TAVLORA>", &InstructionNames::sTavlora},     {"<GOOD NEWS>", &InstructionNames::sGoodNews},
    {"<BAD NEWS>", &InstructionNames::sBadNews},    {"<START>", &InstructionNames::sStart},
    {"<DETENTION>", &InstructionNames::sDetention}, {"<REST STOP>", &InstructionNames::sRestStop},
    {"<FATE>", &InstructionNames::sFate},
};

struct Style {
    const char* sName;
    bool bBold;
    bool bItalic;
};
constexpr Style kStyles[] = {{"R", false, false}, {"B", true, false}, {"I", false, true}, {"BI", true, true}};

// Takes the text ahead of the separator off the line; false and the whole line when there is none.
bool TakeField(QString& sLine, QChar separator, QString& sField) {
    const qsizetype at = sLine.indexOf(separator);
    sField = (at < 0 ? sLine : sLine.left(at)).trimmed();
    sLine = at < 0 ? QString() : sLine.mid(at + 1).trimmed();
    return at >= 0;
}

// The two names are crossed on purpose; every rules file was laid out with them so.
QString FontOfWord(const QString& sWord) {
    if (sWord.compare(QStringLiteral("times"), Qt::CaseInsensitive) == 0) return QStringLiteral("Arial");
    if (sWord.compare(QStringLiteral("arial"), Qt::CaseInsensitive) == 0) return QStringLiteral("Times New Roman");
    return sWord;
}

QString InstructionFile() {
    const QString own = basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("GamePlay.dat"));
    if (basCommon::DoesFileExist(own)) return own;
    return basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("GamePlay_US.dat"));
}

QString WithNames(QString sLine, const InstructionNames& names) {
    for (const Substitution& substitution : kSubstitutions) {
        sLine = clsRenderDestination::MakeSubstitutions(sLine, QString::fromLatin1(substitution.sTag),
                                                        names.*substitution.name);
    }
    return sLine;
}

} // namespace

QString clsRenderDestination::MakeSubstitutions(const QString& sLine, const QString& sTag, const QString& sValue) {
    QString line = sLine;
    return sTag.isEmpty() ? line : line.replace(sTag, sValue, Qt::CaseSensitive);
}

void clsRenderDestination::ParseGamePlayLine(QString& sLine, QString& sFontName, int& lSize, QString& sAlign,
                                             bool& bBold, bool& bItalic, int& iResult) try {
    bool bad = false;
    QString field;
    bad |= !TakeField(sLine, u',', field);
    sFontName = FontOfWord(field);
    bad |= !TakeField(sLine, u',', field);
    const std::optional<double> size = ParseNumber(field);
    bad |= !size;
    lSize = Int(size.value_or(0));
    bad |= !TakeField(sLine, u',', sAlign);
    bad |= sAlign != QStringLiteral("L") && sAlign != QStringLiteral("C") && sAlign != QStringLiteral("R");
    bad |= !TakeField(sLine, u':', field);
    bool known = false;
    for (const Style& style : kStyles) {
        if (field != QString::fromLatin1(style.sName)) continue;
        known = true;
        bBold = style.bBold;
        bItalic = style.bItalic;
    }
    bad |= !known;
    iResult = bad ? -1 : 0;
    if (bad) MsgBox(QStringLiteral("An error occurred processing one of the lines in the GamePlay.dat file."));
} catch (...) {
    ErrTail("clsRenderDestination!", "ParseGamePlayLine", sLine, sFontName, lSize, sAlign, bBold, bItalic, iResult);
}

bool clsRenderDestination::MoveToTag(const QString& sLine, Cursor& cursor) const {
    for (const BlockPlace& place : kBlockPlaces) {
        if (sLine != QString::fromLatin1(place.sTag)) continue;
        cursor = {Pixels(place.dblX), Pixels(place.dblY), Pixels(place.dblWidth)};
        return true;
    }
    return false;
}

bool clsRenderDestination::PrintInstructionLine(QString sLine, Cursor& cursor) {
    QString font;
    QString align;
    int size = 0;
    bool bold = false;
    bool italic = false;
    int result = 0;
    ParseGamePlayLine(sLine, font, size, align, bold, italic, result);
    if (result < 0) return false;
    const int lLine = CLng(size * dblDPI / kPointsPerInch);
    TextBlock(sLine, cursor.lX, cursor.lY, cursor.lWidth, font, lLine, bold, italic, align);
    return true;
}

bool clsRenderDestination::InstructionSheet(const InstructionNames& names) try {
    const QString sFile = InstructionFile();
    QString error;
    const std::optional<QStringList> lines = TextFile::ReadLines(sFile, error);
    if (!lines) {
        MsgBox(QStringLiteral("Unable to open the file named '") + sFile + QStringLiteral(".") +
                   QStringLiteral("The following error was reported: ") + QStringLiteral("\r\n\r\n") + error +
                   QStringLiteral("\r\n\r\n") +
                   QStringLiteral("The instruction sheet cannot be printed without this file."),
               vbInformation);
        return false;
    }
    Cursor cursor;
    for (const QString& raw : *lines) {
        const QString line = WithNames(raw, names);
        if (MoveToTag(line, cursor) || line.trimmed().isEmpty()) continue;
        if (!PrintInstructionLine(line, cursor)) return false;
    }
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "InstructionSheet");
}
