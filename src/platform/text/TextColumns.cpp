// SPDX-License-Identifier: MIT
#include "platform/text/TextColumns.h"

#include <QTextBoundaryFinder>

namespace TextColumns {
namespace {

// A line longer than this is looked at in the neighbourhood of the column only: no character that a person
// types is as long, and a whole line from a strange file would be walked at each key.
constexpr qsizetype kNeighbourhood = 256;

// Boundaries of the characters around a column.
class Boundaries {
public:
    Boundaries(const QString& sLine, int iCol)
        : m_from(FirstUnit(sLine, iCol)), m_text(sLine.mid(m_from, 2 * kNeighbourhood)),
          m_finder(QTextBoundaryFinder::Grapheme, m_text) {
        m_finder.setPosition(iCol - m_from);
    }
    bool IsAt() const { return m_finder.isAtBoundary(); }
    int Previous() { return Column(m_finder.toPreviousBoundary(), 0); }
    int Next() { return Column(m_finder.toNextBoundary(), m_text.size()); }

private:
    static qsizetype FirstUnit(const QString& sLine, int iCol) {
        qsizetype from = std::max<qsizetype>(0, iCol - kNeighbourhood);
        if (from > 0 && sLine[from].isLowSurrogate()) ++from;
        return from;
    }
    int Column(qsizetype found, qsizetype otherwise) const { return int(m_from + (found < 0 ? otherwise : found)); }

    qsizetype m_from;
    QString m_text;
    QTextBoundaryFinder m_finder;
};

bool IsWithin(const QString& sLine, int iCol) { return iCol > 0 && iCol < sLine.size(); }

} // namespace

int AtOrBefore(const QString& sLine, int iCol) {
    if (!IsWithin(sLine, iCol)) return iCol;
    Boundaries boundaries(sLine, iCol);
    return boundaries.IsAt() ? iCol : boundaries.Previous();
}

int AtOrBehind(const QString& sLine, int iCol) {
    if (!IsWithin(sLine, iCol)) return iCol;
    Boundaries boundaries(sLine, iCol);
    return boundaries.IsAt() ? iCol : boundaries.Next();
}

int Before(const QString& sLine, int iCol) {
    if (iCol <= 0) return 0;
    if (iCol > sLine.size()) return iCol - 1;
    return Boundaries(sLine, iCol).Previous();
}

int Behind(const QString& sLine, int iCol) {
    if (iCol >= sLine.size()) return int(sLine.size());
    return Boundaries(sLine, iCol).Next();
}

QString LeftCharacters(const QString& sLine, int iUnits) {
    if (sLine.size() <= iUnits) return sLine;
    int end = AtOrBefore(sLine, iUnits);
    if (end <= 0) end = sLine[iUnits - 1].isHighSurrogate() ? iUnits - 1 : iUnits;
    return sLine.left(end);
}

} // namespace TextColumns
