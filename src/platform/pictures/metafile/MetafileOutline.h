// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>

/// Paths cut to what can be seen: the painter's own way with coordinates far outside is slow, and a file may
/// hold thousands of them.
namespace MetafileOutline {

/// The closed parts of a path cut to a rectangle, edges running along its border where they were outside.
QPainterPath CutAreas(const QPainterPath& path, const QRectF& area);
/// The lines of a path cut to a rectangle, in pieces where they were outside in between.
QPainterPath CutLines(const QPainterPath& path, const QRectF& area);
/// How much of a path runs aslant or in curves, not along x or y: 0 to 1.
double SlantedShare(const QPainterPath& path);
/// A line without length: a round dot with a wide pen, nothing with a thin one.
void AddDot(QPainterPath& path, QPointF at, int penWidth);

} // namespace MetafileOutline
