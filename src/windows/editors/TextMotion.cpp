// SPDX-License-Identifier: MIT
#include "windows/editors/TextMotion.h"

#include "platform/text/TextColumns.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace TextMotion {
namespace {

struct Place {
    int iCol;
    int iRow;
};

int LengthOf(const QStringList& sTextLines, int iRow) { return int(sTextLines[iRow].size()); }

// A word begins behind its last letter's neighbour that isn't a letter: blanks and signs are passed over.
int NextWord(const QString& sLine, int iCol) {
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, sLine);
    words.setPosition(iCol);
    for (qsizetype at = words.toNextBoundary(); at >= 0; at = words.toNextBoundary()) {
        if (words.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem)) return int(at);
    }
    return int(sLine.size());
}

int PreviousWord(const QString& sLine, int iCol) {
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, sLine);
    words.setPosition(iCol);
    for (qsizetype at = words.toPreviousBoundary(); at >= 0; at = words.toPreviousBoundary()) {
        if (words.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem)) return int(at);
    }
    return 0;
}

Place ToTheLeft(const QStringList& sTextLines, Place from, bool bWord) {
    if (from.iCol <= 0 && from.iRow > 0) return {LengthOf(sTextLines, from.iRow - 1), from.iRow - 1};
    const QString& line = sTextLines[from.iRow];
    return {bWord ? PreviousWord(line, from.iCol) : TextColumns::Before(line, from.iCol), from.iRow};
}

Place ToTheRight(const QStringList& sTextLines, Place from, bool bWord) {
    const bool last = from.iRow == sTextLines.size() - 1;
    if (from.iCol >= LengthOf(sTextLines, from.iRow) && !last) return {0, from.iRow + 1};
    const QString& line = sTextLines[from.iRow];
    return {bWord ? NextWord(line, from.iCol) : TextColumns::Behind(line, from.iCol), from.iRow};
}

Place ToRow(const QStringList& sTextLines, Place from, int iRow) {
    if (iRow < 0) return {0, 0};
    if (iRow >= sTextLines.size()) return {int(sTextLines.last().size()), int(sTextLines.size()) - 1};
    const QString& line = sTextLines[iRow];
    return {TextColumns::AtOrBefore(line, std::min(from.iCol, int(line.size()))), iRow};
}

Place Find(const QStringList& sTextLines, Place from, Way way) {
    switch (way) {
        case Way::Left:
        case Way::WordLeft:
            return ToTheLeft(sTextLines, from, way == Way::WordLeft);
        case Way::Right:
        case Way::WordRight:
            return ToTheRight(sTextLines, from, way == Way::WordRight);
        case Way::Up:
            return ToRow(sTextLines, from, from.iRow - 1);
        case Way::Down:
            return ToRow(sTextLines, from, from.iRow + 1);
        case Way::LineStart:
            return {0, from.iRow};
        case Way::LineEnd:
            return {LengthOf(sTextLines, from.iRow), from.iRow};
        case Way::TextStart:
            return {0, 0};
        case Way::TextEnd:
            break;
    }
    return {int(sTextLines.last().size()), int(sTextLines.size()) - 1};
}

} // namespace

bool Go(const QStringList& sTextLines, TextSelection& selection, Way way, bool bMark) {
    const TextSelection before = selection;
    const Place place = Find(sTextLines, {selection.m_iColEnd, selection.m_iRowEnd}, way);
    if (bMark) {
        selection.SetEnd(place.iCol, place.iRow);
    } else {
        selection.SetCaret(place.iCol, place.iRow);
    }
    return !(selection == before);
}

void MarkAll(const QStringList& sTextLines, TextSelection& selection) {
    selection.SetCaret(0, 0);
    Go(sTextLines, selection, Way::TextEnd, true);
}

void MarkWord(const QStringList& sTextLines, TextSelection& selection) {
    const QString& line = sTextLines[selection.m_iRowEnd];
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, line);
    // Behind the last letter it is still the last word that is meant.
    words.setPosition(std::min<qsizetype>(selection.m_iColEnd, line.size() - 1));
    if (line.isEmpty()) return;
    const qsizetype from = words.isAtBoundary() ? words.position() : words.toPreviousBoundary();
    const qsizetype to = words.toNextBoundary();
    const int row = selection.m_iRowEnd;
    selection.SetCaret(int(std::max<qsizetype>(from, 0)), row);
    selection.SetEnd(int(to < 0 ? line.size() : to), row);
}

void MarkLine(const QStringList& sTextLines, TextSelection& selection) {
    const int row = selection.m_iRowEnd;
    selection.SetCaret(0, row);
    selection.SetEnd(LengthOf(sTextLines, row), row);
}

} // namespace TextMotion
