// SPDX-License-Identifier: MIT
#include "windows/editors/basEditTextArray.h"

#include "document/Subscript.h"
#include "platform/text/TextColumns.h"
#include "services/basErrLog.h"

#include <algorithm>
#include <utility>

namespace basEditTextArray {
namespace {

QString& LineAt(QStringList& sTextLines, int iRow) {
    return sTextLines[qsizetype(CheckedSubscript(iRow, int(sTextLines.size())))];
}

bool IsLastRow(const QStringList& sTextLines, int iRow) { return iRow >= sTextLines.size() - 1; }

bool MoveLeft(QStringList& sTextLines, qint16& iCol, qint16& iRow) {
    if (iCol >= 1) {
        iCol = qint16(TextColumns::Before(LineAt(sTextLines, iRow), iCol));
    } else if (iRow > 0) {
        --iRow;
        iCol = qint16(LineAt(sTextLines, iRow).size());
    } else {
        return false;
    }
    return true;
}

bool MoveRight(QStringList& sTextLines, qint16& iCol, qint16& iRow) {
    const QString& line = LineAt(sTextLines, iRow);
    if (iCol < line.size()) {
        iCol = qint16(TextColumns::Behind(line, iCol));
    } else if (!IsLastRow(sTextLines, iRow)) {
        iCol = 0;
        ++iRow;
    } else {
        return false;
    }
    return true;
}

void JoinWithNextLine(QStringList& sTextLines, int iRow) {
    LineAt(sTextLines, iRow) += LineAt(sTextLines, iRow + 1);
    sTextLines.removeAt(iRow + 1);
}

bool DeleteAtCaret(QStringList& sTextLines, int iCol, int iRow) {
    QString& line = LineAt(sTextLines, iRow);
    if (iCol < line.size()) {
        const int from = TextColumns::AtOrBefore(line, iCol);
        line.remove(from, TextColumns::Behind(line, iCol) - from);
        return true;
    }
    if (IsLastRow(sTextLines, iRow)) return false;
    JoinWithNextLine(sTextLines, iRow);
    return true;
}

void Backspace(QStringList& sTextLines, qint16& iCol, qint16& iRow) {
    if (iCol > 0) {
        QString& line = LineAt(sTextLines, iRow);
        const int from = TextColumns::Before(line, iCol);
        line.remove(from, iCol - from);
        iCol = qint16(from);
    } else if (iRow > 0) {
        --iRow;
        iCol = qint16(LineAt(sTextLines, iRow).size());
        JoinWithNextLine(sTextLines, iRow);
    }
}

bool SplitLine(QStringList& sTextLines, qint16& iCol, qint16& iRow) {
    if (sTextLines.size() >= kMaxLines) return false;
    QString& line = LineAt(sTextLines, iRow);
    const int column = TextColumns::AtOrBefore(line, iCol);
    const QString tail = line.mid(column);
    line.truncate(column);
    ++iRow;
    iCol = 0;
    sTextLines.insert(iRow, tail);
    return true;
}

// The caret may stand beyond a line that was cut when it was stored.
qsizetype PlaceToInsert(const QString& line, int iCol) { return std::clamp<qsizetype>(iCol, 0, line.size()); }

// A caret that typing has left within a character, as between the parts of a composed sign, stays there:
// moving it on would put the parts still to come in the wrong place.
void InsertCharacter(QStringList& sTextLines, char32_t character, qint16& iCol, int iRow) {
    if (iRow >= sTextLines.size()) return;
    const QString text = QString::fromUcs4(&character, 1);
    QString& line = LineAt(sTextLines, iRow);
    line.insert(PlaceToInsert(line, iCol), text);
    iCol = qint16(iCol + text.size());
}

// A lone half of a surrogate pair is put in as it is; its other half follows with the next call.
void InsertUnit(QStringList& sTextLines, QChar unit, qint16& iCol, int iRow) {
    if (iRow >= sTextLines.size()) return;
    QString& line = LineAt(sTextLines, iRow);
    line.insert(PlaceToInsert(line, iCol), unit);
    ++iCol;
}

void DeleteWithinLine(QString& line, qint16& iCol, int iColEnd) {
    iCol = qint16(TextColumns::AtOrBefore(line, iCol));
    line.remove(iCol, TextColumns::AtOrBehind(line, iColEnd) - iCol);
}

// The two remainders aren't joined; kept on purpose.
void DeleteAcrossLines(QStringList& sTextLines, qint16& iCol, int iRow, int iColEnd, int iRowEnd) {
    QString& first = LineAt(sTextLines, iRow);
    QString& last = LineAt(sTextLines, iRowEnd);
    iCol = qint16(TextColumns::AtOrBefore(first, iCol));
    first.truncate(iCol);
    last = last.mid(TextColumns::AtOrBehind(last, iColEnd));
    const int firstKept = first.isEmpty() && last.isEmpty() ? iRowEnd + 1 : iRowEnd;
    sTextLines.remove(iRow + 1, firstKept - iRow - 1);
}

} // namespace

KeyResult ETA_KeyDown(QStringList& sTextLines, int iKeyCode, qint16& iCol, qint16& iRow, qint16& iColEnd,
                      qint16& iRowEnd) try {
    KeyResult result = KeyResult::Nothing;
    switch (iKeyCode) {
        case vbKeyLeft:
        case vbKeyUp:
            if (MoveLeft(sTextLines, iCol, iRow)) result = KeyResult::CaretMoved;
            break;
        case vbKeyRight:
        case vbKeyDown:
            if (MoveRight(sTextLines, iCol, iRow)) result = KeyResult::CaretMoved;
            break;
        case vbKeyDelete:
            if (iCol != iColEnd || iRow != iRowEnd) {
                ETA_DeleteSelection(sTextLines, iCol, iRow, iColEnd, iRowEnd);
                result = KeyResult::TextChanged;
            } else if (DeleteAtCaret(sTextLines, iCol, iRow)) {
                result = KeyResult::TextChanged;
            }
            break;
        default:
            return KeyResult::Nothing;
    }
    iColEnd = iCol;
    iRowEnd = iRow;
    return result;
} catch (...) {
    ErrTail("basEditTextArray!", "ETA_KeyDown", sTextLines, iKeyCode, iCol, iRow, iColEnd, iRowEnd);
}

KeyResult ETA_KeyPress(QStringList& sTextLines, int& iKeyAscii, qint16& iCol, qint16& iRow, qint16& iColEnd,
                       qint16& iRowEnd) try {
    ETA_DeleteSelection(sTextLines, iCol, iRow, iColEnd, iRowEnd);
    KeyResult result = KeyResult::TextChanged;
    if (iKeyAscii == vbKeyBack) {
        // Also takes the character before a selection that was just removed; kept on purpose.
        Backspace(sTextLines, iCol, iRow);
    } else if (iKeyAscii == vbKeyReturn) {
        // With ten lines already the removal of the selection isn't reported; kept on purpose.
        if (!SplitLine(sTextLines, iCol, iRow)) result = KeyResult::Nothing;
    } else if (QChar::isSurrogate(char32_t(iKeyAscii))) {
        InsertUnit(sTextLines, QChar(iKeyAscii), iCol, iRow);
    } else {
        InsertCharacter(sTextLines, char32_t(iKeyAscii), iCol, iRow);
    }
    if (result == KeyResult::TextChanged) iKeyAscii = 0;
    iColEnd = iCol;
    iRowEnd = iRow;
    return result;
} catch (...) {
    ErrTail("basEditTextArray!", "ETA_KeyPress", sTextLines, iKeyAscii, iCol, iRow, iColEnd, iRowEnd);
}

void ETA_DeleteSelection(QStringList& sTextLines, qint16& iCol, qint16& iRow, qint16& iColEnd, qint16& iRowEnd) try {
    const bool inOrder = iRow < iRowEnd || (iRow == iRowEnd && iCol <= iColEnd);
    if (!inOrder) {
        std::swap(iCol, iColEnd);
        std::swap(iRow, iRowEnd);
    }
    if (iRow != iRowEnd) {
        DeleteAcrossLines(sTextLines, iCol, iRow, iColEnd, iRowEnd);
    } else if (iCol != iColEnd) {
        DeleteWithinLine(LineAt(sTextLines, iRow), iCol, iColEnd);
    }
    iColEnd = iCol;
    iRowEnd = iRow;
} catch (...) {
    ErrTail("basEditTextArray!", "ETA_DeleteSelection", sTextLines, iCol, iRow, iColEnd, iRowEnd);
}

} // namespace basEditTextArray
