// SPDX-License-Identifier: MIT
#include "check/TextLimits.h"

#include "check/PaperTexts.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace TextLimits {
namespace {

// Inches: nobody cuts more exactly, and slanted letters always reach a little over.
constexpr double kTolerance = 1.0 / 32;

double DistanceFromMiddle(QPointF point, QSizeF piece) {
    return std::hypot(point.x() - piece.width() / 2, point.y() - piece.height() / 2);
}

bool LeavesCircle(const QRectF& box, QSizeF piece) {
    const QPointF corners[] = {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
    return std::ranges::any_of(
        corners, [&](QPointF corner) { return DistanceFromMiddle(corner, piece) > piece.width() / 2 + kTolerance; });
}

bool LeavesBox(const QRectF& box, QSizeF piece) {
    const QRectF within = QRectF(QPointF(), piece).adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance);
    return !within.contains(box);
}

} // namespace

bool LeavesPiece(const PaperText& text) {
    return std::ranges::any_of(text.written, [&](const WrittenText& line) {
        if (line.box.isEmpty()) return false;
        return text.bRound ? LeavesCircle(line.box, text.inches) : LeavesBox(line.box, text.inches);
    });
}

} // namespace TextLimits
