// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"

#include <QRect>

/// A box on a piece, in inches from the piece's top left.
struct InchBox {
    double left;
    double top;
    double width;
    double height;
};

/// Where a piece lies on its sheet: turns inches from the piece's top left into pixels of the sheet.
class PiecePlace {
public:
    PiecePlace(const clsRenderDestination& destination, int lX, int lY) : m_dpi(destination.DPI()), m_x(lX), m_y(lY) {}

    int X(double inches) const { return CLng(inches * m_dpi) + m_x; }
    int Y(double inches) const { return CLng(inches * m_dpi) + m_y; }
    int Length(double inches) const { return CLng(inches * m_dpi); }
    QRect Box(const InchBox& box) const { return {X(box.left), Y(box.top), Length(box.width), Length(box.height)}; }

private:
    double m_dpi;
    int m_x;
    int m_y;
};
