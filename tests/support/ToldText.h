// SPDX-License-Identifier: MIT
#pragma once

#include "support/PageMarks.h"

#include <QColor>

#include <vector>

/// A font as a game asks for it and as a page then names it.
struct KnownFace {
    const char* family;
    bool bold;
    bool italic;
    /// With the free fonts that stand in for them, and with the originals.
    const char* onPage;
    const char* orOnPage;
    /// Average advance of a letter, weighted by how often each occurs in text, in parts of the em.
    double average;
};
const std::vector<KnownFace>& KnownFaces();

/// A text as it must stand on a page, in units of the page.
struct ToldText {
    QString sText = {};
    const KnownFace* face = nullptr;
    /// Where it is anchored: its top left, the middle of its top, or its top right.
    double x = 0;
    double y = 0;
    char align = 'C';
    double height = 0;
    /// What the height may be off; a face's own numbers in the file are rounded.
    double heightWithin = 0.05;
    /// Width of an average letter; 0 for the font's own.
    double letter = 0;
    int angle = 0;
    QColor color = Qt::black;
};

/// A font of the list.
const KnownFace& Face(const char* family, bool bold, bool italic);

/// The same colour, but for what a page rounds.
bool IsNear(QColor a, QColor b);

/// Fails unless the text stands on the page as told: of those that read the same, the nearest.
void ExpectText(const QList<PageMark>& marks, const ToldText& told);
