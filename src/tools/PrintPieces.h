// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <functional>

/// A made picture of the kit: what the sheets paste, by the name it bears while a sheet is printed. Where one
/// name serves several pieces, the piece's number follows it.
struct PrintPiece {
    QString sName;
    /// Writes the picture as a bitmap file and tells which; false when it can't be made.
    std::function<bool(QString& sFile)> make;
};

/// All made pictures of the game in memory.
QList<PrintPiece> PrintPieces();

/// Makes a picture and puts it into a folder as a PNG file. False and a sentence in sError on failure.
bool WritePiece(const PrintPiece& piece, const QString& sFolder, QString& sError);
