// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// How the cards of a sheet lie, edge to edge; in inches from the printable origin.
struct CardGrid {
    QPointF first;
    QSizeF card;
    int iColumns;
    int iRows;

    QRectF Box() const { return {first, QSizeF(card.width() * iColumns, card.height() * iRows)}; }
    /// By its number, row by row.
    QRectF CardBox(int iCard) const {
        const int iRow = iCard / iColumns;
        return {first + QPointF(iCard % iColumns * card.width(), iRow * card.height()), card};
    }
};
