// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class Printer;

/// What a sheet works with while it is printed. The page's orientation is set by whoever makes the job; no
/// sheet ends the document.
struct SheetJob {
    Printer& printer;
    /// Told how far the sheet is, in thousandths; negative when it is done. Events run inside.
    std::function<void(int)> Progress = [](int) {};
    /// Told what kind of piece comes next, and how many of how many it is; shown with the next progress.
    std::function<void(const char* sPiece, int iPiece, int nPieces)> Piece = [](const char*, int, int) {};
};
