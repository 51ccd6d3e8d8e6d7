// SPDX-License-Identifier: MIT
#include "platform/files/SequentialInput.h"

#include "platform/text/Numbers.h"

#include <limits>

namespace {

bool EndsLine(QChar c) { return c == u'\r' || c == u'\n'; }
bool EndsValue(QChar c) { return c == u',' || EndsLine(c); }

} // namespace

void SequentialInput::SkipBlanks() {
    while (!AtEnd() && m_text[m_at].isSpace())
        ++m_at;
}

QString SequentialInput::TakeUnquoted() {
    const qsizetype from = m_at;
    while (!AtEnd() && !EndsValue(m_text[m_at]))
        ++m_at;
    return m_text.mid(from, m_at - from).trimmed();
}

// Past whatever stands between a value's end and the next value.
void SequentialInput::SkipSeparator() {
    while (!AtEnd() && !EndsValue(m_text[m_at]))
        ++m_at;
    if (AtEnd()) return;
    if (m_text[m_at] == u'\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\n') ++m_at;
    ++m_at;
}

bool SequentialInput::Read(qint16& iValue, QString& sError) {
    QString field;
    if (!Read(field, sError)) return false;
    const std::optional<double> number = ParseNumber(field);
    if (!number) {
        sError = QStringLiteral("Type mismatch");
        return false;
    }
    const qint32 whole = CLng(*number);
    if (whole < std::numeric_limits<qint16>::min() || whole > std::numeric_limits<qint16>::max()) {
        sError = QStringLiteral("Overflow");
        return false;
    }
    iValue = qint16(whole);
    return true;
}

bool SequentialInput::Read(QString& sValue, QString& sError) {
    SkipBlanks();
    if (AtEnd()) {
        sError = QStringLiteral("Input past end of file");
        return false;
    }
    if (m_text[m_at] != u'"') {
        sValue = TakeUnquoted();
    } else {
        const qsizetype close = m_text.indexOf(u'"', m_at + 1);
        const qsizetype end = close < 0 ? m_text.size() : close;
        sValue = m_text.mid(m_at + 1, end - m_at - 1);
        m_at = std::min(end + 1, m_text.size());
    }
    SkipSeparator();
    return true;
}
