// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// Reads the words behind a program's name: options, with a value ("--size 9", "--size=9") or without, and other words;
/// behind "--" there are no options any more. Each program says which options it has.
class ArgumentReader {
public:
    ArgumentReader(const ArgumentReader&) = delete;
    ArgumentReader& operator=(const ArgumentReader&) = delete;

protected:
    /// sError is given the sentence that says what is wrong.
    ArgumentReader(const QStringList& words, QString& sError) : m_words(words), m_error(sError) {}
    virtual ~ArgumentReader() = default;

    /// False at the first word that is wrong, which has then been told.
    bool ReadWords();
    /// Takes what belongs to the option in hand by the routines below.
    virtual bool ReadOption(const QString& sOption) = 0;
    /// A word that is no option. One that nobody asked for unless this says otherwise.
    virtual bool TakeWord(const QString& sWord);

    bool Fail(const QString& sError);
    bool Flag(bool& bFlag);
    bool Text(QString& sValue);
    bool Number(int& iValue, int iLeast, int iMost);
    bool OneOf(QString& sValue, const QStringList& allowed);
    /// The next word, which is no option's yet; nothing behind the last.
    std::optional<QString> NextWord() const;
    void SkipWord() { ++m_at; }

private:
    bool ReadWord(const QString& sWord);

    const QStringList& m_words;
    QString& m_error;
    qsizetype m_at = 0;
    bool m_onlyNames = false;
    QString m_option;
    std::optional<QString> m_inline;
};
