// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Caret or selection of a text that is typed in place: from (m_iCol, m_iRow) to (m_iColEnd, m_iRowEnd), in
/// either order. All -1 while no text is being edited.
struct TextSelection {
    qint16 m_iCol = -1;
    qint16 m_iRow = -1;
    qint16 m_iColEnd = -1;
    qint16 m_iRowEnd = -1;

    bool IsOn() const { return m_iRow >= 0 && m_iCol >= 0; }
    bool HasText() const { return m_iCol != m_iColEnd || m_iRow != m_iRowEnd; }
    void Clear() { *this = TextSelection{}; }
    void SetCaret(int iCol, int iRow) {
        m_iCol = m_iColEnd = qint16(iCol);
        m_iRow = m_iRowEnd = qint16(iRow);
    }
    /// The first end stays. False when nothing changes.
    bool SetEnd(int iCol, int iRow) {
        if (iCol == m_iColEnd && iRow == m_iRowEnd) return false;
        m_iColEnd = qint16(iCol);
        m_iRowEnd = qint16(iRow);
        return true;
    }

    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};
