// SPDX-License-Identifier: MIT
#include "services/RecordText.h"

#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/TavloraError.h"

#include <limits>
#include <utility>

namespace basTAVL {
namespace {

// Takes so many characters off the front, and the blanks at both ends of what is left. In place: a line is
// shortened at each of its fields.
void DropFront(QString& sLine, qsizetype count) {
    const QStringView rest = QStringView(sLine).mid(count).trimmed();
    const qsizetype from = rest.isEmpty() ? sLine.size() : rest.data() - QStringView(sLine).data();
    sLine.truncate(from + rest.size());
    sLine.remove(0, from);
}

QString TakeBareField(QString& sLine) {
    const qsizetype comma = sLine.indexOf(u',');
    if (comma < 0) return std::exchange(sLine, QString());
    const QString field = QStringView(sLine).left(comma).trimmed().toString();
    DropFront(sLine, comma + 1);
    return field;
}

// What lies between the quotes, with the closing one taken off too; an unclosed field is all that is left.
QString TakeQuotedContent(QString& sLine) {
    const qsizetype close = sLine.indexOf(u'"', 1);
    const QString content = close < 0 ? sLine.mid(1) : sLine.mid(1, close - 1);
    DropFront(sLine, close < 0 ? sLine.size() : close + 1);
    return content;
}

} // namespace

QString Quote(const QString& sText) {
    QString text = sText;
    text.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
    text.replace(QStringLiteral("\""), QStringLiteral("\\q"));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\\n"));
    // Half a line break would end the record in the middle of the text.
    text.replace(u'\r', QStringLiteral("\\n")).replace(u'\n', QStringLiteral("\\n"));
    return u'"' + text + u'"';
}

QString GetQuotedField(QString& sLine) {
    DropFront(sLine, 0);
    if (sLine.isEmpty()) return {};
    if (!sLine.startsWith(u'"')) return TakeBareField(sLine);
    QString content = TakeQuotedContent(sLine);
    // Backslashes are halved here and again by InsertLineBreaks. So a path with "\n" in it comes back
    // changed, but files of all these years were written and read this way: the order is the format.
    content.replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
    const QString value = basCommon::InsertLineBreaks(content);
    // Stray text behind the closing quote goes with the comma that follows it, or stays if there is none.
    const qsizetype comma = sLine.indexOf(u',');
    DropFront(sLine, comma + 1);
    return value;
}

qint16 CInt(double dblValue) {
    const qint32 whole = CLng(dblValue);
    if (whole < std::numeric_limits<qint16>::min() || whole > std::numeric_limits<qint16>::max())
        ErrRaise(ErrNumber::kOverflow, QStringLiteral("Overflow"));
    return qint16(whole);
}

qint16 IntegerOrZero(const QString& sField) { return CInt(ParseNumber(sField).value_or(0)); }

} // namespace basTAVL
