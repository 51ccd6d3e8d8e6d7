// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text form of a record's fields. The rest of basTAVL lies with the records; these stand below them, as
/// an image reference writes and reads itself too.
namespace basTAVL {

/// The text in double quotes, with backslashes, double quotes and CR LF escaped.
QString Quote(const QString& sText);

/// Takes the next field off the front of sLine and returns its value. Text in double quotes is unescaped;
/// a bare field ends at a comma and is trimmed. Never fails.
QString GetQuotedField(QString& sLine);

/// Rounds as CLng. Raises the overflow error outside 16 bits.
qint16 CInt(double dblValue);

/// The 16-bit whole number of a field, 0 for a text that isn't a number. Raises the overflow error.
qint16 IntegerOrZero(const QString& sField);

} // namespace basTAVL
