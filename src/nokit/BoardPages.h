// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/BoardJoins.h"
#include "nokit/NoKitChoices.h"

#include <memory>

class Recording;

/// How a board is spread over pages: every page shows a strip of columns in a strip of rows.
struct BoardGrid {
    std::vector<BoardJoins::Strip> columns;
    std::vector<BoardJoins::Strip> rows;
    QSizeF paperInches;

    size_t Pages() const { return columns.size() * rows.size(); }
    /// "C2": the third of the second row.
    static QString NameOf(size_t iColumn, size_t iRow);
    /// What a page shows, in inches of the board.
    QRectF ShownBy(size_t iColumn, size_t iRow) const;
    /// Where that lies on its page, from the printable origin.
    QRectF PlaceOf(size_t iColumn, size_t iRow) const;
};

/// By the words of the board, in its inches.
BoardGrid GridOf(const NoKitChoices& choices, const std::vector<QRectF>& words);

/// The board of the game in memory, as it is printed.
std::shared_ptr<const Recording> BoardForPages(const NoKitChoices& choices);
