// SPDX-License-Identifier: MIT
#pragma once

#include "kit/PhotosAhead.h"
#include "platform/paint/Picture.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class Printer;

/// What a sheet works with while it is printed. The page's orientation is set by whoever makes the job; no
/// sheet ends the document.
struct SheetJob {
    /// As progress: the sheet is painted.
    static constexpr int kDone = -1;

    Printer& printer;
    /// Told how far the sheet is, in thousandths; negative when it is done. Events run inside.
    std::function<void(int)> Progress = [](int) {};
    /// Told what kind of piece comes next, and how many of how many it is; shown with the next progress.
    std::function<void(const char* sPiece, int iPiece, int nPieces)> Piece = [](const char*, int, int) {};
    /// Which copy this is, from 0, and of how many.
    int iCopy = 0;
    int nCopies = 1;
    /// What PrepareSheet has made, for all copies.
    Picture prepared = {};
    /// The photographs of a print of several sheets; nothing where this one is printed alone.
    PhotosAhead* ahead = nullptr;
    /// What the page lacks and why, a sentence for each piece.
    QStringList lacking = {};

    /// A piece has been drawn with a picture file.
    void Drawn(const QString& sPath) const;
    /// Keeps that a piece is lacking, and why; always false. In the words of a sentence's beginning: "The title".
    bool Lacks(const QString& sPiece, const QString& sWhy);
    /// The same for a piece whose picture could not be made.
    bool LacksPicture(const QString& sPiece);
};

/// Paints one page of a kind of sheet; iWhich is that of its row in the table. False when something is missing from
/// the page: the job then knows what it lacks, and whoever prints throws the page away. The file of the sheet defines
/// it for the class that the row names: no header has to know of a new sheet, and a row without its file doesn't link.
template <class Kind>
bool PaintSheet(SheetJob& job, int iWhich);

/// The photographs on it, in the order in which they are drawn; only of sheets whose row names it.
template <class Kind>
std::vector<SheetPhoto> PhotosOfSheet(int iWhich);

/// Makes what all copies are painted from, once before the first; only of sheets whose row names it. False, after it
/// has said so, when nothing may be printed.
template <class Kind>
bool PrepareSheet(SheetJob& job, int iWhich);
