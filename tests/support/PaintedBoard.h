// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPositTables.h"
#include "platform/paint/Color.h"

#include <QImage>
#include <QRect>

/// A picture of the board, asked as a person would look at it. Places are fractions of the picture's width,
/// answers in its pixels.
class PaintedBoard {
public:
    explicit PaintedBoard(QImage image);

    const QImage& Image() const { return m_image; }
    Color ColorAt(double x, double y) const;
    Color PixelAt(QPoint pixel) const;

    /// The colour that most pixels of a part have.
    Color CommonColor(const basPosit::BoardRect& part) const;
    bool Has(const basPosit::BoardRect& part, Color color) const;
    /// The box of all pixels that clearly differ from the ground; empty when there are none.
    QRect InkBox(const basPosit::BoardRect& part, Color ground) const;
    bool SameAs(const PaintedBoard& other, const basPosit::BoardRect& part) const;

    /// Length of the run of this colour that crosses the place from left to right.
    int RunOfColor(double x, double y, Color color) const;
    /// Mean number of pixels between the ground and full ink at the upright edges of a part.
    double EdgeWidth(const basPosit::BoardRect& part, Color ground) const;

private:
    QRect PixelsOf(const basPosit::BoardRect& part) const;

    QImage m_image;
};
