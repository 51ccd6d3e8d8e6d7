// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Words that no line takes, such as a file's path or a name without a blank.
namespace LongWords {
/// The text with places to break put into each word of more than so many letters, none within a letter. They have no
/// width and show as nothing.
QString MayBreak(const QString& sText, qsizetype most);
} // namespace LongWords
