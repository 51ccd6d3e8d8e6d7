// SPDX-License-Identifier: MIT
#include "services/ArgumentReader.h"

bool ArgumentReader::ReadWords() {
    while (m_at < m_words.size()) {
        if (!ReadWord(m_words.at(m_at++))) return false;
    }
    return true;
}

bool ArgumentReader::ReadWord(const QString& sWord) {
    const bool option = !m_onlyNames && sWord.size() > 1 && sWord.startsWith(u'-');
    if (!option) return TakeWord(sWord);
    if (sWord == QStringLiteral("--")) {
        m_onlyNames = true;
        return true;
    }
    const qsizetype equals = sWord.startsWith(QStringLiteral("--")) ? sWord.indexOf(u'=') : -1;
    m_option = equals < 0 ? sWord : sWord.left(equals);
    m_inline = equals < 0 ? std::optional<QString>() : sWord.mid(equals + 1);
    return ReadOption(m_option);
}

bool ArgumentReader::TakeWord(const QString& sWord) {
    return Fail(QStringLiteral("unexpected argument '%1'").arg(sWord));
}

bool ArgumentReader::Fail(const QString& sError) {
    m_error = sError;
    return false;
}

bool ArgumentReader::Flag(bool& bFlag) {
    if (m_inline) return Fail(QStringLiteral("option '%1' takes no value").arg(m_option));
    bFlag = true;
    return true;
}

bool ArgumentReader::Text(QString& sValue) {
    if (!m_inline && m_at < m_words.size()) m_inline = m_words.at(m_at++);
    if (!m_inline || m_inline->isEmpty()) return Fail(QStringLiteral("option '%1' needs a value").arg(m_option));
    sValue = *m_inline;
    return true;
}

bool ArgumentReader::Number(int& iValue, int iLeast, int iMost) {
    QString text;
    if (!Text(text)) return false;
    bool ok = false;
    iValue = text.toInt(&ok);
    if (ok && iValue >= iLeast && iValue <= iMost) return true;
    return Fail(QStringLiteral("option '%1' takes a whole number from %2 to %3, not '%4'")
                    .arg(m_option, QString::number(iLeast), QString::number(iMost), text));
}

bool ArgumentReader::OneOf(QString& sValue, const QStringList& allowed) {
    if (!Text(sValue)) return false;
    if (allowed.contains(sValue)) return true;
    return Fail(QStringLiteral("option '%1' takes one of %2, not '%3'")
                    .arg(m_option, allowed.join(QStringLiteral(", ")), sValue));
}

std::optional<QString> ArgumentReader::NextWord() const {
    return m_at < m_words.size() ? std::optional<QString>(m_words.at(m_at)) : std::nullopt;
}
