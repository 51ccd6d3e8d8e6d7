// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;

/// The text of a box of lines as records keep it: to the letter, where the box's own plain text would turn
/// hard blanks into ordinary ones, and with a CR LF at every line's end.
QString BoxText(const QPlainTextEdit& box);

/// Whether what a box of lines holds can be kept. What was put in last goes, and the user is told, where it can't.
bool MayKeep(QPlainTextEdit& box);
/// The same for a box of one line, from now on.
void LimitText(QLineEdit& box);
