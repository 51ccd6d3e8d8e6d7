// SPDX-License-Identifier: MIT
#include "document/GameBounds.h"

#include <QByteArrayView>

#include <algorithm>

namespace GameBounds {
namespace {

// Four bytes a letter at most, and the few texts of a record.
constexpr qsizetype kMostBytesOfField = qsizetype(4) * kMostLetters;
constexpr qsizetype kMostBytesOfLine = 5 * kMostBytesOfField;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
// In UTF-8 only the first byte of a letter counts. Elsewhere the limit of bytes holds.
bool BeginsLetter(char c) { return (uchar(c) & 0xC0) != 0x80; }

// Where what begins at a place ends: at the next such character, or with the line.
qsizetype EndOf(QByteArrayView line, qsizetype from, char c) {
    const qsizetype end = line.indexOf(c, from);
    return end < 0 ? line.size() : end;
}

/// Copies a line field by field, as they are told apart when they are read.
class LineCopy {
public:
    LineCopy(QByteArrayView line, QByteArray& to) : m_line(line), m_to(to), m_most(to.size() + kMostBytesOfLine) {}

    /// False when not all of it was copied.
    bool Run() {
        while (m_at < m_line.size() && m_to.size() < m_most)
            CopyField();
        return m_whole && m_at >= m_line.size();
    }

private:
    void CopyField() {
        qsizetype start = m_at;
        while (start < m_line.size() && IsBlank(m_line[start]))
            ++start;
        const bool quoted = start < m_line.size() && m_line[start] == '"';
        CopyUpTo(start);
        if (quoted) {
            CopyUpTo(start + 1);
            CopyUpTo(EndOf(m_line, m_at, '"'));
            CopyUpTo(std::min(m_at + 1, m_line.size()));
        }
        CopyUpTo(EndOf(m_line, m_at, ','));
        CopyUpTo(std::min(m_at + 1, m_line.size()));
    }
    void CopyUpTo(qsizetype end) {
        const qsizetype last = std::min(end, m_at + kMostBytesOfField);
        qsizetype stop = m_at;
        for (int letters = 0; stop < last; ++stop) {
            if (BeginsLetter(m_line[stop]) && ++letters > kMostLetters) break;
        }
        m_to.append(m_line.sliced(m_at, stop - m_at));
        m_whole = m_whole && stop == end;
        m_at = end;
    }

    QByteArrayView m_line;
    QByteArray& m_to;
    qsizetype m_most;
    qsizetype m_at = 0;
    bool m_whole = true;
};

} // namespace

QByteArray Within(const QByteArray& bytes, int iLines, bool& bCut) {
    bCut = false;
    if (bytes.size() <= kMostLetters) return bytes;
    const QByteArrayView all(bytes);
    QByteArray within;
    qsizetype at = 0;
    for (int line = 0; line < iLines && at < all.size(); ++line) {
        const qsizetype end = EndOf(all, at, '\n');
        const bool ends = end < all.size();
        if (!LineCopy(all.sliced(at, end - at), within).Run()) {
            bCut = true;
            // What ends the line went with the rest of it.
            if (ends && all[end - 1] == '\r' && !within.endsWith('\r')) within.append('\r');
        }
        if (ends) within.append('\n');
        at = end + 1;
    }
    return within;
}

} // namespace GameBounds
