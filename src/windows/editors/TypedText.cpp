// SPDX-License-Identifier: MIT
#include "windows/editors/TypedText.h"

#include "platform/text/TextColumns.h"
#include "windowing/Clipboard.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <utility>

using basEditTextArray::KeyResult;

namespace TypedText {
namespace {

constexpr QChar kTab = u'\t';

struct KeyCodeRow {
    int qtKey;
    int iKeyCode;
};

constexpr KeyCodeRow kKeyCodes[] = {
    {Qt::Key_Left, basEditTextArray::vbKeyLeft},     {Qt::Key_Up, basEditTextArray::vbKeyUp},
    {Qt::Key_Right, basEditTextArray::vbKeyRight},   {Qt::Key_Down, basEditTextArray::vbKeyDown},
    {Qt::Key_Delete, basEditTextArray::vbKeyDelete},
};

struct WayRow {
    int qtKey;
    TextMotion::Way way;
    TextMotion::Way withCtrl;
};

using TextMotion::Way;
constexpr WayRow kWays[] = {
    {Qt::Key_Left, Way::Left, Way::WordLeft},       {Qt::Key_Right, Way::Right, Way::WordRight},
    {Qt::Key_Up, Way::Up, Way::TextStart},          {Qt::Key_Down, Way::Down, Way::TextEnd},
    {Qt::Key_Home, Way::LineStart, Way::TextStart}, {Qt::Key_End, Way::LineEnd, Way::TextEnd},
};

// Plain arrows aren't among them: their way is the told one, by which up and down move by a letter.
Key WayOf(const QKeyEvent& event) {
    const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    for (const WayRow& row : kWays) {
        if (event.key() != row.qtKey) continue;
        const bool plainArrow = !ctrl && !shift && row.qtKey != Qt::Key_Home && row.qtKey != Qt::Key_End;
        if (plainArrow) break;
        return {.kind = Key::Kind::Go, .way = ctrl ? row.withCtrl : row.way, .bMark = shift};
    }
    return {};
}

Key CommandOf(const QKeyEvent& event) {
    constexpr std::pair<QKeySequence::StandardKey, Key::Kind> kCommands[] = {
        {QKeySequence::Copy, Key::Kind::Copy},   {QKeySequence::Cut, Key::Kind::Cut},
        {QKeySequence::Paste, Key::Kind::Paste}, {QKeySequence::Undo, Key::Kind::Undo},
        {QKeySequence::Redo, Key::Kind::Redo},   {QKeySequence::SelectAll, Key::Kind::MarkAll},
    };
    for (const auto& [sequence, kind] : kCommands) {
        if (event.matches(sequence)) return {.kind = kind};
    }
    // Not every desktop has it among its own.
    const bool ctrlY = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
    return {.kind = ctrlY ? Key::Kind::Redo : Key::Kind::None};
}

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

// Of the line with the caret. It won't be the last one when there is a break still to come, and a line for it.
int MostAtCaret(const QStringList& sTextLines, int iRow, bool bBreakToCome, LineRoom room) {
    const bool another = bBreakToCome && sTextLines.size() < basEditTextArray::kMaxLines;
    return iRow < sTextLines.size() - 1 || another ? room.iLine : room.iLastLine;
}

// At the caret; a marked text makes room first.
bool HasRoom(const QStringList& sTextLines, const TextSelection& selection, char32_t character, int iMost) {
    if (selection.HasText() || selection.m_iRow >= sTextLines.size()) return true;
    const QString line = sTextLines[selection.m_iRow] + QString::fromUcs4(&character, 1);
    return TextColumns::LeftCharacters(line, iMost).size() == line.size();
}

// As pieces without a name have in games: nobody sees the blanks.
bool IsNameOfBlanks(const QStringList& sTextLines) {
    return sTextLines.size() == 1 && !sTextLines[0].isEmpty() && sTextLines[0].trimmed().isEmpty();
}

bool TakesThePlaceOfBlanks(const QString& sEntered) {
    if (sEntered.isEmpty() || sEntered[0].isSpace()) return false;
    return sEntered[0].isSurrogate() || !IsControl(sEntered[0].unicode());
}

qsizetype Characters(const QStringList& sTextLines) {
    qsizetype count = 0;
    for (const QString& line : sTextLines)
        count += line.size();
    return count;
}

// Any kind of break is one character.
QString WithSingleBreaks(QString sText) { return sText.replace(QStringLiteral("\r\n"), QStringLiteral("\r")); }

qsizetype Breaks(const QString& sText) {
    const QString text = WithSingleBreaks(sText);
    return std::count_if(text.begin(), text.end(), [](QChar c) { return IsLineBreak(c.unicode()); });
}

// What of a text makes room for an entered one, taken away.
QStringList Remaining(const Entry& entry) {
    if (IsNameOfBlanks(entry.sTextLines) && TakesThePlaceOfBlanks(entry.sText)) return {QString()};
    QStringList lines = entry.sTextLines;
    TextSelection selection = entry.selection;
    Remove(lines, selection);
    return lines;
}

bool HasFullLine(const QStringList& sTextLines, LineRoom room) {
    const auto isFull = [](const QString& line, int iMost) { return line.size() >= iMost; };
    return std::any_of(sTextLines.begin(), sTextLines.end(),
                       [&](const QString& line) { return isFull(line, room.iLine); }) ||
           (!sTextLines.isEmpty() && isFull(sTextLines.last(), room.iLastLine));
}

} // namespace

Key KeyOf(const QKeyEvent& event) {
    if (const Key way = WayOf(event); way.kind != Key::Kind::None) return way;
    if (event.modifiers() == Qt::ControlModifier) {
        if (event.key() == Qt::Key_Backspace) return {.kind = Key::Kind::DeleteWord, .way = Way::WordLeft};
        if (event.key() == Qt::Key_Delete) return {.kind = Key::Kind::DeleteWord, .way = Way::WordRight};
    }
    // Ahead of the commands, as the toolkit takes Shift+Delete for a way to cut.
    for (const KeyCodeRow& row : kKeyCodes) {
        if (event.key() == row.qtKey) return {.kind = Key::Kind::Down, .iKeyCode = row.iKeyCode};
    }
    if (const Key command = CommandOf(event); command.kind != Key::Kind::None) return command;
    if (event.key() == Qt::Key_Backspace)
        return {.kind = Key::Kind::Press, .sText = QChar(basEditTextArray::vbKeyBack)};
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return {.kind = Key::Kind::Press, .sText = QChar(basEditTextArray::vbKeyReturn)};
    if (GivesCharacters(event)) return {.kind = Key::Kind::Press, .sText = event.text()};
    return {};
}

KeyResult Apply(QStringList& sTextLines, TextSelection& selection, int iKeyCode) {
    return basEditTextArray::ETA_KeyDown(sTextLines, iKeyCode, selection.m_iCol, selection.m_iRow, selection.m_iColEnd,
                                         selection.m_iRowEnd);
}

KeyResult Feed(QStringList& sTextLines, TextSelection& selection, const QString& sText, LineRoom room) {
    const QString text = WithSingleBreaks(sText);
    if (IsNameOfBlanks(sTextLines) && TakesThePlaceOfBlanks(text)) {
        sTextLines = {QString()};
        selection.SetCaret(0, 0);
    }
    KeyResult result = KeyResult::Nothing;
    const auto characters = text.toUcs4();
    qsizetype breaksToCome = Breaks(text);
    for (const char32_t character : characters) {
        int iKeyAscii = KeyAsciiOf(character);
        if (iKeyAscii == 0) continue;
        const bool enter = iKeyAscii == basEditTextArray::vbKeyReturn;
        const bool backspace = iKeyAscii == basEditTextArray::vbKeyBack;
        if (enter) --breaksToCome;
        const bool several = characters.size() > 1;
        const int most = MostAtCaret(sTextLines, selection.m_iRow, breaksToCome > 0, room);
        if (several && !enter && !backspace && !HasRoom(sTextLines, selection, char32_t(iKeyAscii), most)) continue;
        const KeyResult one = basEditTextArray::ETA_KeyPress(sTextLines, iKeyAscii, selection.m_iCol, selection.m_iRow,
                                                             selection.m_iColEnd, selection.m_iRowEnd);
        result = std::max(result, one);
        // What follows belongs on a line that there is no room for.
        if (enter && one == KeyResult::Nothing) break;
    }
    return result;
}

QString Entered(const Key& key) {
    if (key.kind == Key::Kind::Press) return key.sText;
    return key.kind == Key::Kind::Paste ? Clipboard::Text() : QString();
}

void KeepWithin(TextSelection& selection, const QStringList& sTextLines) {
    if (!selection.IsOn() || sTextLines.isEmpty()) return;
    const auto keep = [&sTextLines](qint16& iCol, qint16& iRow) {
        iRow = qint16(std::min<qsizetype>(iRow, sTextLines.size() - 1));
        iCol = qint16(std::min<qsizetype>(iCol, sTextLines[iRow].size()));
    };
    keep(selection.m_iCol, selection.m_iRow);
    keep(selection.m_iColEnd, selection.m_iRowEnd);
}

QString Letters(const QString& sEntered) {
    QString letters = sEntered;
    return letters.removeIf([](QChar c) { return IsLineBreak(c.unicode()) || (IsControl(c.unicode()) && c != kTab); });
}

QString Loss(const Entry& entry, const QStringList& sAfterKey, const QStringList& sStored, LineRoom room) {
    const qsizetype letters = Letters(entry.sText).size();
    const QStringList remaining = Remaining(entry);
    const qsizetype wanted = letters == 0 ? Characters(sAfterKey) : Characters(remaining) + letters;
    if (Characters(sStored) >= wanted) return {};
    // A line isn't always filled by what was cut off it: half of a sign can't stand.
    const bool tooManyLines = remaining.size() + Breaks(entry.sText) > basEditTextArray::kMaxLines;
    if (tooManyLines && !HasFullLine(sStored, room))
        return QStringLiteral("Only %1 lines fit here.").arg(basEditTextArray::kMaxLines);
    if (room.iLine > room.iLastLine) return QStringLiteral("Only %1 letters fit on the last line.").arg(room.iLastLine);
    return QStringLiteral("Only %1 letters fit on a line.").arg(room.iLine);
}

KeyResult Take(const Key& key, QStringList& sTextLines, TextSelection& selection, LineRoom room) {
    switch (key.kind) {
        case Key::Kind::Down:
            return Apply(sTextLines, selection, key.iKeyCode);
        case Key::Kind::Press:
            return Feed(sTextLines, selection, key.sText, room);
        case Key::Kind::Paste:
            return Feed(sTextLines, selection, Clipboard::Text(), room);
        case Key::Kind::Copy:
        case Key::Kind::Cut:
            if (selection.HasText()) Clipboard::SetText(Selected(sTextLines, selection));
            return key.kind == Key::Kind::Cut ? Remove(sTextLines, selection) : KeyResult::Nothing;
        case Key::Kind::Go:
            return TextMotion::Go(sTextLines, selection, key.way, key.bMark) ? KeyResult::CaretMoved
                                                                             : KeyResult::Nothing;
        case Key::Kind::MarkAll:
            TextMotion::MarkAll(sTextLines, selection);
            return KeyResult::CaretMoved;
        case Key::Kind::DeleteWord:
            if (!selection.HasText()) TextMotion::Go(sTextLines, selection, key.way, true);
            return Remove(sTextLines, selection);
        case Key::Kind::Undo:
        case Key::Kind::Redo:
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
