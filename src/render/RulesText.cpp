// SPDX-License-Identifier: MIT
#include "render/RulesText.h"

#include "platform/files/TextFile.h"
#include "platform/text/Numbers.h"

#include <optional>

namespace {

struct Tag {
    const char* sTag;
    RulesBlock block;
};
constexpr Tag kTags[] = {
    {"<Head>", RulesBlock::Head}, {"<Col1>", RulesBlock::Column1}, {"<Col2>", RulesBlock::Column2}};

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

QString WithNames(QString sLine, const InstructionNames& names) {
    for (const Substitution& substitution : kSubstitutions) {
        sLine = WithTagReplaced(sLine, QString::fromLatin1(substitution.sTag), names.*substitution.name);
    }
    return sLine;
}

// Only a line that holds nothing else is a tag.
std::optional<RulesBlock> BlockOf(const QString& sLine) {
    for (const Tag& tag : kTags) {
        if (sLine == QLatin1String(tag.sTag)) return tag.block;
    }
    return std::nullopt;
}

bool ReadStyle(const QString& sField, RulesLine& line) {
    for (const Style& style : kStyles) {
        if (sField != QLatin1String(style.sName)) continue;
        line.bBold = style.bBold;
        line.bItalic = style.bItalic;
        return true;
    }
    return false;
}

} // namespace

QString WithTagReplaced(const QString& sLine, const QString& sTag, const QString& sValue) {
    QString line = sLine;
    return sTag.isEmpty() ? line : line.replace(sTag, sValue, Qt::CaseSensitive);
}

bool ReadRulesLine(const QString& sLine, RulesLine& line) {
    line.sText = sLine;
    QString field;
    bool bad = !TakeField(line.sText, u',', field);
    line.sFont = FontOfWord(field);
    bad |= !TakeField(line.sText, u',', field);
    const std::optional<double> size = ParseNumber(field);
    bad |= !size;
    line.lSize = Int(size.value_or(0));
    bad |= !TakeField(line.sText, u',', line.sAlign);
    bad |=
        line.sAlign != QStringLiteral("L") && line.sAlign != QStringLiteral("C") && line.sAlign != QStringLiteral("R");
    bad |= !TakeField(line.sText, u':', field);
    bad |= !ReadStyle(field, line);
    return !bad;
}

RulesReading ReadRules(const QByteArray& bytes, const InstructionNames& names) {
    RulesReading reading;
    int number = 0;
    for (const QString& raw : TextFile::SplitLines(TextFile::Decode(bytes))) {
        ++number;
        const QString text = WithNames(raw, names);
        if (const std::optional<RulesBlock> block = BlockOf(text)) {
            reading.items.emplace_back(*block);
            continue;
        }
        if (text.trimmed().isEmpty()) continue;
        RulesLine line;
        reading.bWhole = ReadRulesLine(text, line);
        if (!reading.bWhole) {
            reading.sBadLine = raw;
            reading.iBadLine = number;
            break;
        }
        reading.items.emplace_back(line);
    }
    return reading;
}
