// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/TextSelection.h"

#include <QStringList>

/// Ways of a caret through an array of lines, and what a second or third click marks. No window is needed.
namespace TextMotion {

enum class Way { Left, Right, Up, Down, WordLeft, WordRight, LineStart, LineEnd, TextStart, TextEnd };

/// Moves the second end of a selection; the first comes along, or stays where bMark holds it. Steps are whole letters
/// with their combining marks. False where nothing moves.
bool Go(const QStringList& sTextLines, TextSelection& selection, Way way, bool bMark);

void MarkAll(const QStringList& sTextLines, TextSelection& selection);
/// The word at the caret, or the blanks between two words.
void MarkWord(const QStringList& sTextLines, TextSelection& selection);
void MarkLine(const QStringList& sTextLines, TextSelection& selection);

} // namespace TextMotion
