// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// Text files of the program: lines that end in CR LF, in the old 8-bit code page where every character has
/// a place there, else in UTF-8 with its mark, so that no name ever turns into question marks and old files
/// stay readable by old programs.
namespace TextFile {

/// A UTF-8 mark, or bytes that are valid UTF-8 with a multi-byte character, mean UTF-8; anything else is
/// Windows-1252, whose five free bytes stand for the control characters of the same number.
QString Decode(const QByteArray& bytes);

/// Windows-1252 when each character has a place there and the bytes wouldn't be mistaken for UTF-8;
/// otherwise UTF-8 with the mark.
QByteArray Encode(const QString& sText);

/// The text in single bytes of Windows-1252, a question mark for what has no place there.
QByteArray ToAnsi(const QString& sText);

/// The lines of a file's bytes; CR LF or LF ends a line. A last line without an end counts.
QStringList SplitLines(const QString& sText);
QString JoinLines(const QStringList& lines);

/// Nothing and a sentence in sError when the file can't be read.
std::optional<QStringList> ReadLines(const QString& sPath, QString& sError);
/// Written as a whole or not at all.
bool WriteLines(const QString& sPath, const QStringList& lines, QString& sError);

} // namespace TextFile
