// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/basEditTextArray.h"
#include "windows/editors/TextMotion.h"
#include "windows/editors/TextSelection.h"

#include <QString>
#include <QStringList>

class QKeyEvent;

/// What keyboard, input method and clipboard give, brought to the routines that edit an array of lines. No
/// window is needed.
namespace TypedText {

/// A key that edits text, or the reason why it doesn't.
struct Key {
    enum class Kind { None, Down, Press, Go, MarkAll, DeleteWord, Copy, Cut, Paste, Undo, Redo };
    Kind kind = Kind::None;
    /// For Down: the platform's virtual key code.
    int iKeyCode = 0;
    /// For Press: the characters that the key gives.
    QString sText = {};
    /// For Go and DeleteWord: where to, and whether what lies between is marked.
    TextMotion::Way way = TextMotion::Way::Left;
    bool bMark = false;
};

/// Which of these a key event of the toolkit is. Tab, Escape, shortcuts and all control characters but
/// Backspace and Enter are none of them.
Key KeyOf(const QKeyEvent& event);

/// Applies a key of kind Down.
basEditTextArray::KeyResult Apply(QStringList& sTextLines, TextSelection& selection, int iKeyCode);

/// Units that a line of most texts keeps when it is stored.
constexpr int kLongestLine = 40;
/// For lines that keep all; no more than a column can count to.
constexpr int kAnyLength = 10000;

/// Units that a text keeps of its lines, and of the last one.
struct LineRoom {
    int iLine = kLongestLine;
    int iLastLine = kLongestLine;
};

/// Feeds characters one at a time. Any kind of line break is Enter; a tab becomes a blank; other control
/// characters but Backspace are passed over. Stops at an Enter for which there is no room. Of several characters
/// those are left out that their line has no room for; one alone pushes another off the line's end.
basEditTextArray::KeyResult Feed(QStringList& sTextLines, TextSelection& selection, const QString& sText,
                                 LineRoom room = {});

/// Does what a key asks for, Copy, Cut and Paste with the desktop's clipboard included. Undo and Redo are for whoever
/// keeps the history.
basEditTextArray::KeyResult Take(const Key& key, QStringList& sTextLines, TextSelection& selection, LineRoom room = {});

/// What a key or a paste would enter; empty for the others.
QString Entered(const Key& key);

/// Brings both ends back to where the lines end that were stored.
void KeepWithin(TextSelection& selection, const QStringList& sTextLines);

/// What of an entered text is to stand in lines: neither breaks nor control characters, but tabs.
QString Letters(const QString& sEntered);

/// A text as it was, and what is entered into it.
struct Entry {
    QStringList sTextLines;
    TextSelection selection;
    QString sText;
};

/// What to say when the lines that were stored hold less than what was entered would have made of the text; where
/// nothing was, less than what the key has made of it. Empty when they hold all.
QString Loss(const Entry& entry, const QStringList& sAfterKey, const QStringList& sStored, LineRoom room = {});

/// The lines as records keep them: each cut to its first 40 characters, joined with CR LF.
QString Joined(const QStringList& sTextLines);

/// The text between both ends, lines joined with a line feed.
QString Selected(const QStringList& sTextLines, const TextSelection& selection);

/// Removes the text between both ends.
basEditTextArray::KeyResult Remove(QStringList& sTextLines, TextSelection& selection);

} // namespace TypedText
