// SPDX-License-Identifier: MIT
#include "windows/editors/TypedText.h"

#include "platform/text/TextColumns.h"
#include "windowing/Clipboard.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <utility>

using basEditTextArray::KeyResult;

namespace TypedText {
namespace {

constexpr QChar kTab = u'\t';
constexpr int kLongestLine = 40;

struct KeyCodeRow {
    int qtKey;
    int iKeyCode;
};

constexpr KeyCodeRow kKeyCodes[] = {
    {Qt::Key_Left, basEditTextArray::vbKeyLeft},     {Qt::Key_Up, basEditTextArray::vbKeyUp},
    {Qt::Key_Right, basEditTextArray::vbKeyRight},   {Qt::Key_Down, basEditTextArray::vbKeyDown},
    {Qt::Key_Delete, basEditTextArray::vbKeyDelete},
};

bool IsLineBreak(char32_t character) {
    return character == U'\r' || character == U'\n' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

bool IsControl(char32_t character) { return QChar::category(character) == QChar::Other_Control; }

// AltGr arrives as Ctrl and Alt together on some desktops and still gives a character.
bool GivesCharacters(const QKeyEvent& event) {
    const Qt::KeyboardModifiers commands =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool altGr = commands == (Qt::ControlModifier | Qt::AltModifier);
    const auto characters = event.text().toUcs4();
    return !characters.isEmpty() && !IsControl(characters[0]) && (!commands || altGr);
}

// The code of a character as ETA_KeyPress takes it; 0 for one that it never gets.
int KeyAsciiOf(char32_t character) {
    if (IsLineBreak(character)) return basEditTextArray::vbKeyReturn;
    if (character == basEditTextArray::vbKeyBack) return basEditTextArray::vbKeyBack;
    if (character == kTab.unicode()) return ' ';
    return IsControl(character) ? 0 : int(character);
}

} // namespace

Key KeyOf(const QKeyEvent& event) {
    // First, as Shift makes no difference to them, while the toolkit takes Shift+Delete for a way to cut.
    for (const KeyCodeRow& row : kKeyCodes) {
        if (event.key() == row.qtKey) return {Key::Kind::Down, row.iKeyCode, {}};
    }
    if (event.matches(QKeySequence::Copy)) return {Key::Kind::Copy, 0, {}};
    if (event.matches(QKeySequence::Cut)) return {Key::Kind::Cut, 0, {}};
    if (event.matches(QKeySequence::Paste)) return {Key::Kind::Paste, 0, {}};
    if (event.key() == Qt::Key_Backspace) return {Key::Kind::Press, 0, QChar(basEditTextArray::vbKeyBack)};
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return {Key::Kind::Press, 0, QChar(basEditTextArray::vbKeyReturn)};
    if (GivesCharacters(event)) return {Key::Kind::Press, 0, event.text()};
    return {};
}

KeyResult Apply(QStringList& sTextLines, TextSelection& selection, int iKeyCode) {
    return basEditTextArray::ETA_KeyDown(sTextLines, iKeyCode, selection.m_iCol, selection.m_iRow, selection.m_iColEnd,
                                         selection.m_iRowEnd);
}

KeyResult Feed(QStringList& sTextLines, TextSelection& selection, const QString& sText) {
    QString text = sText;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    KeyResult result = KeyResult::Nothing;
    for (const char32_t character : text.toUcs4()) {
        int iKeyAscii = KeyAsciiOf(character);
        if (iKeyAscii == 0) continue;
        const bool enter = iKeyAscii == basEditTextArray::vbKeyReturn;
        const KeyResult one = basEditTextArray::ETA_KeyPress(sTextLines, iKeyAscii, selection.m_iCol, selection.m_iRow,
                                                             selection.m_iColEnd, selection.m_iRowEnd);
        result = std::max(result, one);
        // What follows belongs on a line that there is no room for.
        if (enter && one == KeyResult::Nothing) break;
    }
    return result;
}

KeyResult Take(const Key& key, QStringList& sTextLines, TextSelection& selection) {
    switch (key.kind) {
        case Key::Kind::Down:
            return Apply(sTextLines, selection, key.iKeyCode);
        case Key::Kind::Press:
            return Feed(sTextLines, selection, key.sText);
        case Key::Kind::Paste:
            return Feed(sTextLines, selection, Clipboard::Text());
        case Key::Kind::Copy:
        case Key::Kind::Cut:
            if (selection.HasText()) Clipboard::SetText(Selected(sTextLines, selection));
            return key.kind == Key::Kind::Cut ? Remove(sTextLines, selection) : KeyResult::Nothing;
        case Key::Kind::None:
            break;
    }
    return KeyResult::Nothing;
}

QString Joined(const QStringList& sTextLines) {
    QStringList lines;
    for (const QString& line : sTextLines)
        lines.append(TextColumns::LeftCharacters(line, kLongestLine));
    return lines.join(QStringLiteral("\r\n"));
}

QString Selected(const QStringList& sTextLines, const TextSelection& selection) {
    TextSelection from = selection;
    if (from.m_iRow > from.m_iRowEnd || (from.m_iRow == from.m_iRowEnd && from.m_iCol > from.m_iColEnd)) {
        std::swap(from.m_iRow, from.m_iRowEnd);
        std::swap(from.m_iCol, from.m_iColEnd);
    }
    QStringList lines = sTextLines.mid(from.m_iRow, from.m_iRowEnd - from.m_iRow + 1);
    if (lines.isEmpty()) return {};
    // The end first: on a single line the start moves it.
    lines.last().truncate(from.m_iColEnd);
    lines.first().remove(0, from.m_iCol);
    return lines.join(u'\n');
}

KeyResult Remove(QStringList& sTextLines, TextSelection& selection) {
    if (!selection.HasText()) return KeyResult::Nothing;
    basEditTextArray::ETA_DeleteSelection(sTextLines, selection.m_iCol, selection.m_iRow, selection.m_iColEnd,
                                          selection.m_iRowEnd);
    return KeyResult::TextChanged;
}

} // namespace TypedText
