// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// What a window says and offers, as lines of text: a change that nobody meant shows as a line that differs from
/// tests/data/windows.txt. Whoever means one writes the list anew, with TAVLORA_WRITE_WINDOWS=1 in the environment, and
/// reads what has changed.
namespace WindowList {

/// A line for the window and one for each of its named controls, in the order in which they were made: kind, name, and
/// all that differs from a plain control of its kind. Nothing of it depends on a font or a screen.
QStringList Of(const QWidget& window);

/// Fails the test, and tells the lines, where those of a window aren't the listed ones.
void ExpectListed(const QWidget& window);

} // namespace WindowList
