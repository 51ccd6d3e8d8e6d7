// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/basEditTextArray.h"
#include "windows/editors/TextSelection.h"

#include <QString>
#include <QStringList>

class QKeyEvent;

/// What keyboard, input method and clipboard give, brought to the routines that edit an array of lines. No
/// window is needed.
namespace TypedText {

/// A key that edits text, or the reason why it doesn't.
struct Key {
    enum class Kind { None, Down, Press, Copy, Cut, Paste };
    Kind kind = Kind::None;
    /// For Down: the platform's virtual key code.
    int iKeyCode = 0;
    /// For Press: the characters that the key gives.
    QString sText;
};

/// Which of these a key event of the toolkit is. Tab, Escape, shortcuts and all control characters but
/// Backspace and Enter are none of them.
Key KeyOf(const QKeyEvent& event);

/// Applies a key of kind Down.
basEditTextArray::KeyResult Apply(QStringList& sTextLines, TextSelection& selection, int iKeyCode);

/// Feeds characters one at a time. Any kind of line break is Enter; a tab becomes a blank; other control
/// characters but Backspace are passed over. Stops at an Enter for which there is no room.
basEditTextArray::KeyResult Feed(QStringList& sTextLines, TextSelection& selection, const QString& sText);

/// Does what a key asks for, Copy, Cut and Paste with the desktop's clipboard included.
basEditTextArray::KeyResult Take(const Key& key, QStringList& sTextLines, TextSelection& selection);

/// The lines as records keep them: each cut to its first 40 characters, joined with CR LF.
QString Joined(const QStringList& sTextLines);

/// The text between both ends, lines joined with a line feed.
QString Selected(const QStringList& sTextLines, const TextSelection& selection);

/// Removes the text between both ends.
basEditTextArray::KeyResult Remove(QStringList& sTextLines, TextSelection& selection);

} // namespace TypedText
