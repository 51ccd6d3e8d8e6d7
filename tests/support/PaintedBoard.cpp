// SPDX-License-Identifier: MIT
#include "support/PaintedBoard.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

Color FromPixel(QRgb pixel) { return Color::Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel)); }

int Distance(Color a, Color b) {
    return std::max({std::abs(a.Red() - b.Red()), std::abs(a.Green() - b.Green()), std::abs(a.Blue() - b.Blue())});
}

} // namespace

PaintedBoard::PaintedBoard(QImage image) : m_image(image.convertToFormat(QImage::Format_RGB32)) {}

QRect PaintedBoard::PixelsOf(const basPosit::BoardRect& part) const {
    const double size = m_image.width();
    const QRect pixels(QPoint(int(std::ceil(part.x1 * size)), int(std::ceil(part.y1 * size))),
                       QPoint(int(std::floor(part.x2 * size)) - 1, int(std::floor(part.y2 * size)) - 1));
    return pixels & m_image.rect();
}

Color PaintedBoard::PixelAt(QPoint pixel) const { return FromPixel(m_image.pixel(pixel)); }

Color PaintedBoard::ColorAt(double x, double y) const {
    return PixelAt(QPoint(int(x * m_image.width()), int(y * m_image.width())));
}

Color PaintedBoard::CommonColor(const basPosit::BoardRect& part) const {
    QHash<QRgb, int> counts;
    const QRect pixels = PixelsOf(part);
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            ++counts[m_image.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? Color::None() : FromPixel(most.key());
}

bool PaintedBoard::Has(const basPosit::BoardRect& part, Color color) const {
    const QRect pixels = PixelsOf(part);
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (Distance(PixelAt({x, y}), color) <= 24) return true;
        }
    }
    return false;
}

QRect PaintedBoard::InkBox(const basPosit::BoardRect& part, Color ground) const {
    constexpr int kClearly = 64;
    const QRect pixels = PixelsOf(part);
    QRect box;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (Distance(PixelAt({x, y}), ground) > kClearly) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

bool PaintedBoard::SameAs(const PaintedBoard& other, const basPosit::BoardRect& part) const {
    const QRect pixels = PixelsOf(part);
    return m_image.copy(pixels) == other.m_image.copy(pixels);
}

int PaintedBoard::RunOfColor(double x, double y, Color color) const {
    const int row = int(y * m_image.width());
    int left = int(x * m_image.width());
    int right = left;
    while (left > 0 && PixelAt({left - 1, row}) == color)
        --left;
    while (right < m_image.width() && PixelAt({right, row}) == color)
        ++right;
    return right - left;
}

double PaintedBoard::EdgeWidth(const basPosit::BoardRect& part, Color ground) const {
    const QRect pixels = PixelsOf(part);
    int between = 0;
    int edges = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        bool inked = false;
        int grey = 0;
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const Color color = PixelAt({x, y});
            const bool onGround = Distance(color, ground) < 8;
            const bool onInk = Distance(color, Color::Black()) < 8;
            if (!onGround && !onInk) {
                ++grey;
                continue;
            }
            if (onInk != inked) {
                between += grey;
                ++edges;
            }
            inked = onInk;
            grey = 0;
        }
    }
    return edges == 0 ? 0.0 : double(between) / edges;
}
