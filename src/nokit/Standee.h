// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/PageCanvas.h"

#include <vector>

/// A figure that is cut out as a strip and folded over its head, so that it stands on two feet. Lengths are inches from
/// the strip's top left.
struct Standee {
    static constexpr double kWidth = 1.02;
    /// The square with the picture, and under it a band of the token's colour.
    static constexpr double kPicture = kWidth;
    static constexpr double kBand = 0.28;
    static constexpr double kFoot = 0.42;
    static constexpr double kHeight = kPicture + kBand;

    static QSizeF Size() { return {kWidth, 2 * (kHeight + kFoot)}; }
    /// From the top of the strip: the foot of the back, the back upside down, the front, its foot.
    static QRectF BackFoot() { return {0, 0, kWidth, kFoot}; }
    static QRectF BackBand() { return {0, kFoot, kWidth, kBand}; }
    static QRectF BackPicture() { return {0, kFoot + kBand, kWidth, kPicture}; }
    static QRectF FrontPicture() { return {0, kFoot + kHeight, kWidth, kPicture}; }
    static QRectF FrontBand() { return {0, kFoot + kHeight + kPicture, kWidth, kBand}; }
    static QRectF FrontFoot() { return {0, kFoot + 2 * kHeight, kWidth, kFoot}; }

    /// Where it is folded: at the back's foot, over the head, at the front's foot.
    static std::vector<QLineF> Folds();
    /// Where a point of the strip lies behind the front when the head is folded.
    static QPointF FoldedOver(const QPointF& point) { return {point.x(), 2 * (kFoot + kHeight) - point.y()}; }
};
