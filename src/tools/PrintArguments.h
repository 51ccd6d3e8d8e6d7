// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitChoices.h"

#include <QPageSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What tavlora-print was asked to do.
struct PrintArguments {
    static constexpr int kDefaultDpi = 600;
    static constexpr int kDefaultBoardSize = 960;

    bool bHelp = false;
    bool bVersion = false;
    bool bList = false;
    QString sGame;
    /// PDF file to write; empty for none.
    QString sOutput;
    /// Names of sheets in the order wanted; none means the whole kit.
    QStringList sheets;
    /// PNG file of the board; empty for none.
    QString sBoard;
    /// Pixels of the board's sides, and of the longer side of a sheet's picture.
    int iBoardSize = kDefaultBoardSize;
    /// File for the game with its pictures; empty for none.
    QString sPack;
    /// The pictures go into it only as large as paper shows them.
    bool bSmallPictures = false;
    /// Folder for the made pictures; empty for none.
    QString sPieces;
    /// Word of a single piece and the file for its picture; empty for none.
    QString sPiece;
    QString sPieceFile;
    /// Folder for pictures of the sheets; empty for none.
    QString sPages;
    /// The kit's guide goes to the output, in place of a game.
    bool bGuide = false;
    /// The page that shows what a printer does to its pages goes to the output, in place of a game.
    bool bCheckPage = false;
    /// The printer whose correction is done to the pages; nothing for none, and empty for that of files.
    std::optional<QString> forPrinter;
    /// Look the game over, and warn of what is found where something is made, too.
    bool bCheck = false;
    /// Tell what was found in a form for scripts.
    bool bJson = false;
    bool bA4 = false;
    /// For plain paper and card: sheets are those that need no boxed kit.
    bool bNoKit = false;
    NoKitChoices noKit;
    /// Folder for the lines that a machine cuts and folds at; empty for none.
    QString sCutLines;
    /// Folder for pictures that a printing service takes; empty for none.
    QString sService;
    int iDpi = kDefaultDpi;
    /// Kit variant; empty for the one in the settings.
    QString sVariant;
    /// Folder of the program's own data files; empty for the usual one.
    QString sData;

    /// Reads the words behind the program's name. Nothing, and a sentence in sError, for wrong usage.
    static std::optional<PrintArguments> Parse(const QStringList& words, QString& sError);
    /// Whether any file is to be made.
    bool Makes() const {
        return !sOutput.isEmpty() || !sBoard.isEmpty() || !sPieces.isEmpty() || !sPiece.isEmpty() ||
               !sPages.isEmpty() || !sPack.isEmpty() || MakesWithoutKit();
    }
    /// Whether any is for plain paper, a cutting machine or a printing service.
    bool MakesWithoutKit() const {
        return (bNoKit && !sOutput.isEmpty()) || !sCutLines.isEmpty() || !sService.isEmpty();
    }
    QPageSize::PageSizeId Paper() const { return bA4 ? QPageSize::A4 : QPageSize::Letter; }
    /// Whether sheets of the boxed kit are to be printed.
    bool PrintsKit() const { return !sOutput.isEmpty() && !bNoKit; }
    static QString Usage();
};
