// SPDX-License-Identifier: MIT
#include "pieces/frmBMP_turning.h"

#include "services/basPath.h"

#include <algorithm>
#include <vector>

namespace Turning {
namespace {

constexpr int kSamples = 4;

/// Sums of samples, a cell each, for one colour after the other.
class Lattice {
public:
    explicit Lattice(int iSide) : m_side(iSide), m_sums(size_t(iSide) * size_t(iSide)) {}

    struct Sum {
        int red = 0;
        int green = 0;
        int blue = 0;
    };

    Sum& At(int c, int r) { return m_sums[size_t(r) * size_t(m_side) + size_t(c)]; }
    void Add(QPoint cell, QRgb color) {
        Sum& sum = At(cell.x(), cell.y());
        sum.red += qRed(color);
        sum.green += qGreen(color);
        sum.blue += qBlue(color);
    }
    // The same cell of all four triangles.
    void SetInCorners(int i, int j, Color color, int iSamples) {
        const Sum sum{color.Red() * iSamples, color.Green() * iSamples, color.Blue() * iSamples};
        const int m = m_side - 1;
        At(i, j) = sum;
        At(i, m - j) = sum;
        At(m - i, j) = sum;
        At(m - i, m - j) = sum;
    }
    Pixels Averages() {
        Pixels pixels(QSize(m_side, m_side));
        for (int r = 0; r < m_side; ++r) {
            const std::span<QRgb> row = pixels.WritableRow(r);
            for (int c = 0; c < m_side; ++c) {
                const Sum& sum = At(c, r);
                row[size_t(c)] = qRgb(Average(sum.red), Average(sum.green), Average(sum.blue));
            }
        }
        return pixels;
    }

private:
    // A quarter, rounded to nearest with halves to even.
    static int Average(int sum) {
        const int whole = sum / kSamples;
        const int rest = sum % kSamples;
        return rest > kSamples / 2 || (rest == kSamples / 2 && whole % 2 == 1) ? whole + 1 : whole;
    }

    int m_side;
    std::vector<Sum> m_sums;
};

// The triangles outside the diamond. Along its edge the picture's own pixels bring the other two samples.
void FillOutside(Lattice& lattice, int iSide, Color outside) {
    const int half = iSide / 2;
    for (int i = 0; i < half; ++i) {
        for (int j = 0; j < half - 1 - i; ++j)
            lattice.SetInCorners(i, j, outside, kSamples);
        lattice.SetInCorners(i, half - 1 - i, outside, kSamples / 2);
    }
}

} // namespace

QPoint CellOnSide(int iSide, int iBoardSide, int x, int y) {
    const int m = iSide - 1;
    switch (iBoardSide) {
        case 0:
            return {x, y};
        case 1:
            return {m - y, x};
        case 2:
            return {m - x, m - y};
        case 3:
            return {y, m - x};
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("CreateThumbRotatedTo90"));
            return {};
    }
}

std::array<QPoint, 2> CellsOnCorner(int iSide, int iCorner, int x, int y) {
    const int m = iSide - 1;
    // u runs across and v down the lattice, in half cells; one of them is always even and the other odd.
    const std::array<QPoint, 4> lattice{QPoint(x + y, m - x + y), QPoint(m + x - y, x + y),
                                        QPoint(2 * m - x - y, m + x - y), QPoint(m - x + y, 2 * m - x - y)};
    const QPoint uv = lattice[size_t(iCorner & 3)];
    return {QPoint(uv.x() / 2, uv.y() / 2), QPoint((uv.x() + 1) / 2, (uv.y() + 1) / 2)};
}

Pixels ForSide(const Pixels& square, int iBoardSide) {
    const int side = square.Width();
    Pixels turned(QSize(side, side));
    for (int y = 0; y < side; ++y) {
        const std::span<const QRgb> row = square.Row(y);
        for (int x = 0; x < side; ++x) {
            const QPoint cell = CellOnSide(side, iBoardSide, x, y);
            turned.WritableRow(cell.y())[size_t(cell.x())] = row[size_t(x)];
        }
    }
    return turned;
}

Pixels ForCorner(const Pixels& square, int iCorner, Color outside) {
    const int side = square.Width();
    Lattice lattice(side);
    FillOutside(lattice, side, outside);
    for (int y = 0; y < side; ++y) {
        const std::span<const QRgb> row = square.Row(y);
        for (int x = 0; x < side; ++x) {
            for (const QPoint cell : CellsOnCorner(side, iCorner, x, y))
                lattice.Add(cell, row[size_t(x)]);
        }
    }
    return lattice.Averages();
}

} // namespace Turning
