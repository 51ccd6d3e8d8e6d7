// SPDX-License-Identifier: MIT
#include "support/TileReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr double kMarginInches = 0.25;
// Of a cut mark and of a mark where the next page begins.
constexpr double kCutMark = 0.14;
constexpr double kJoinMark = 0.16;
constexpr double kPixel = 1.0 / TileReader::kDpi;

bool IsTick(const PageMark& mark, double length) {
    return mark.kind == PageMark::Kind::Line && mark.points.size() == 2 &&
           std::abs(QLineF(mark.points[0], mark.points[1]).length() - length) < kPixel;
}

} // namespace

TileReader::TileReader(const QString& sPath, int iPage) : m_path(sPath), m_page(iPage) {
    std::vector<double> xs;
    std::vector<double> ys;
    QPointF join(-1, -1);
    for (const PageMark& mark : ReadPageMarks(sPath, iPage, 1)) {
        const bool cut = IsTick(mark, kCutMark) && mark.color == QColor(Qt::black);
        const bool joins = IsTick(mark, kJoinMark) && mark.color.blue() > mark.color.red();
        if (!cut && !joins) continue;
        const bool upright = std::abs(mark.points[0].x() - mark.points[1].x()) < kPixel;
        if (cut) (upright ? xs : ys).push_back(upright ? mark.points[0].x() : mark.points[0].y());
        if (joins && upright) join.setX(mark.points[0].x());
        if (joins && !upright) join.setY(mark.points[0].y());
    }
    if (xs.size() != 4 || ys.size() != 4) return;
    const auto [left, right] = std::minmax_element(xs.begin(), xs.end());
    const auto [top, bottom] = std::minmax_element(ys.begin(), ys.end());
    m_cut = QRectF(QPointF(*left, *top), QPointF(*right, *bottom));
    m_join = {join.x() < 0 ? *right : join.x(), join.y() < 0 ? *bottom : join.y()};
}

QImage TileReader::Cut() const {
    const QPointF start = (m_cut.topLeft() + QPointF(kMarginInches, kMarginInches)) * kDpi;
    const QRect pixels(qRound(start.x()), qRound(start.y()), qRound(m_cut.width() * kDpi),
                       qRound(m_cut.height() * kDpi));
    return PdfReader(m_path).Pixels(m_page, kDpi).copy(pixels).convertToFormat(QImage::Format_RGB32);
}

QSizeF TileReader::Step() const { return QSizeF(m_join.x() - m_cut.left(), m_join.y() - m_cut.top()) * kDpi; }

double UnlikePixels(const QImage& one, const QImage& other) {
    // Of a channel: edges are smoothed where they lie, which differs by parts of a pixel.
    constexpr int kTolerance = 48;
    qint64 unlike = 0;
    const QRect inside = one.rect() & other.rect();
    const auto channels = [](QRgb color) { return std::array{qRed(color), qGreen(color), qBlue(color)}; };
    for (int y = 0; y < inside.height(); ++y) {
        for (int x = 0; x < inside.width(); ++x) {
            std::array<int, 3> least{255, 255, 255};
            std::array<int, 3> most{0, 0, 0};
            for (int dy = std::max(y - 1, 0); dy <= std::min(y + 1, inside.height() - 1); ++dy) {
                const QRgb* row = reinterpret_cast<const QRgb*>(other.constScanLine(dy));
                for (int dx = std::max(x - 1, 0); dx <= std::min(x + 1, inside.width() - 1); ++dx) {
                    const auto near = channels(row[dx]);
                    for (size_t c = 0; c < 3; ++c) {
                        least[c] = std::min(least[c], near[c]);
                        most[c] = std::max(most[c], near[c]);
                    }
                }
            }
            const auto here = channels(reinterpret_cast<const QRgb*>(one.constScanLine(y))[x]);
            bool like = true;
            for (size_t c = 0; c < 3; ++c)
                like = like && here[c] >= least[c] - kTolerance && here[c] <= most[c] + kTolerance;
            if (!like) ++unlike;
        }
    }
    return double(unlike) / double(qint64(inside.width()) * inside.height());
}
