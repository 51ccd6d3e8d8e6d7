// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Reads comma-separated values one after the other, as the old platform's data files hold them. The end of
/// a line separates values as a comma does, so a row that is too short goes on in the next line.
class SequentialInput {
public:
    explicit SequentialInput(const QString& sText) : m_text(sText) {}

    bool AtEnd() const { return m_at >= m_text.size(); }
    /// The next value as a 16-bit whole number. False and a sentence in sError when there is none left, or
    /// it is no such number.
    bool Read(qint16& iValue, QString& sError);
    /// The next value as a text, which may stand in double quotes. False and a sentence in sError at the end.
    bool Read(QString& sValue, QString& sError);

private:
    void SkipBlanks();
    QString TakeUnquoted();
    void SkipSeparator();

    QString m_text;
    qsizetype m_at = 0;
};
