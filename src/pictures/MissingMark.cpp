// SPDX-License-Identifier: MIT
#include "pictures/MissingMark.h"

#include "pictures/PictureRef.h"
#include "platform/paint/Surface.h"
#include "services/basPath.h"

#include <algorithm>
#include <array>

namespace {

constexpr Color kPaper = Color::Rgb(0xF0, 0xF0, 0xF0);
constexpr Color kGrey = Color::Rgb(0x80, 0x80, 0x80);
constexpr Color kLight = Color::Rgb(0xC4, 0xC4, 0xC4);
// In parts of the box: the frame's inset, and lines' width.
constexpr double kInset = 0.06;
constexpr double kPen = 0.025;
constexpr double kSmallest = 10;

} // namespace

bool IsMissing(const PictureRef& picture) { return !picture.IsEmpty() && !basCommon::DoesFileExist(picture.sPath); }

void PaintMissingMark(Surface& picDest, const QRectF& box) {
    const double side = std::min(box.width(), box.height());
    if (side < kSmallest) return;
    DeviceContext& hDC = picDest.hDC();
    const int depth = hDC.SaveDC();
    const double inset = side * kInset;
    const QRectF frame = box.adjusted(inset, inset, -inset, -inset);
    const auto at = [&frame](double x, double y) {
        return QPointF(frame.x() + x * frame.width(), frame.y() + y * frame.height()).toPoint();
    };
    const int pen = std::max(int(side * kPen), 1);
    const QRect outline = frame.toRect();
    hDC.SelectPen(hDC.CreatePen(PenStyle::Solid, pen, kGrey));
    hDC.SelectBrush(hDC.CreateSolidBrush(kPaper));
    hDC.Rectangle(outline.left(), outline.top(), outline.left() + outline.width(), outline.top() + outline.height());
    hDC.SelectPen(hDC.CreatePen(PenStyle::Solid, 1, kLight));
    hDC.SelectBrush(hDC.CreateSolidBrush(kLight));
    const QPoint sunTop = at(0.62, 0.18);
    const QPoint sunEnd = at(0.82, 0.38);
    hDC.Ellipse(sunTop.x(), sunTop.y(), sunEnd.x(), sunEnd.y());
    const std::array<QPoint, 5> hills{at(0.12, 0.84), at(0.38, 0.42), at(0.56, 0.68), at(0.68, 0.54), at(0.88, 0.84)};
    hDC.Polygon(hills);
    hDC.SelectPen(hDC.CreatePen(PenStyle::Solid, pen, kGrey));
    for (const auto& [from, to] : {std::pair(at(0, 0), at(1, 1)), std::pair(at(0, 1), at(1, 0))}) {
        hDC.MoveTo(from.x(), from.y());
        hDC.LineTo(to.x(), to.y());
    }
    hDC.RestoreDC(depth);
}

QRectF MarkPlaceOnToken(QSize token) {
    constexpr double kOfToken = 0.5;
    const QSizeF size = QSizeF(token) * kOfToken;
    return {QPointF((token.width() - size.width()) / 2, (token.height() - size.height()) / 2), size};
}
