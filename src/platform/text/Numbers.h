// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Rounds to the nearest whole number, halves to the even neighbour. Values beyond 32 bits stop at the
/// limits; not-a-number gives 0.
qint32 CLng(double value);

/// Rounds down (towards minus infinity), with the same limits as CLng.
qint32 Int(double value);

/// The first count UTF-16 units of text; all of it when it is shorter, nothing for a negative count.
QString LeftStr(const QString& text, int count);

/// The last count UTF-16 units of text.
QString RightStr(const QString& text, int count);

/// From the one-based position start on, count units at most (all that follows when count is negative).
QString MidStr(const QString& text, int start, int count = -1);

/// Reads a number as it stands in files, settings and boxes whatever the desktop's language: optional sign,
/// digits, point, exponent, or &H and hexadecimal digits; blanks around it are ignored. Nothing for a text
/// that isn't a number.
std::optional<double> ParseNumber(const QString& text);

inline bool IsNumeric(const QString& text) { return ParseNumber(text).has_value(); }

/// The shortest decimal form that reads back as the same 32-bit float, such as 12 or 10.5.
QString FloatToText(float value);

/// A whole number with a comma at each thousand, on every desktop.
QString WithThousands(qint64 value);
