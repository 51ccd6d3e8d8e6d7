// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPlainTextEdit;

/// The text of a box of lines as records keep it: to the letter, where the box's own plain text would turn
/// hard blanks into ordinary ones, and with a CR LF at every line's end.
QString BoxText(const QPlainTextEdit& box);
