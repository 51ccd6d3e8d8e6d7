// SPDX-License-Identifier: MIT
#include "windows/pictures/ImagePlacing.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ImagePlacing {
namespace {

constexpr double kStepsPerDoubling = 10;
// Enough for boxes up to 482 pixels wide; wider ones take what they need.
constexpr int kUsualRingWidth = 100;

double WithinLimit(double value) {
    constexpr double kLeast = std::numeric_limits<qint16>::min();
    constexpr double kMost = std::numeric_limits<qint16>::max();
    return std::clamp(value, kLeast, kMost);
}

} // namespace

Scale Scale::Of(QSize picture, QSize preview, int iZoom) {
    if (picture.isEmpty() || preview.isEmpty()) return {};
    const double dblZoom = std::pow(2.0, iZoom / kStepsPerDoubling);
    const bool wide = picture.width() > picture.height();
    const int longer = wide ? picture.width() : picture.height();
    const int iSide = std::max(CLng(longer / dblZoom), 1);
    return {iSide, double(wide ? preview.width() : preview.height()) / iSide};
}

Center Dragged(Center start, QPointF down, QPointF now, double dblScale) {
    return {start.x - (now.x() - down.x()) / dblScale, start.y - (now.y() - down.y()) / dblScale};
}

Center CenteredOn(Center center, QPointF clicked, const Scale& scale) {
    const int xLeft = CLng(center.x - scale.iSide / 2.0);
    const int yTop = CLng(center.y - scale.iSide / 2.0);
    return {xLeft + clicked.x() / scale.dblScale, yTop + clicked.y() / scale.dblScale};
}

Center WithinLimits(Center center) { return {WithinLimit(center.x), WithinLimit(center.y)}; }

Ring Ring::For(int lW) {
    const double half = lW / 2.0;
    const int toCorner = int(std::ceil(half * std::sqrt(2.0) - half));
    const int width = std::max(kUsualRingWidth, toCorner);
    return {width, half + width / 2.0};
}

} // namespace ImagePlacing
