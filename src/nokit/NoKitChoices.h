// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

enum class PaperSize { Letter, A4, Tabloid, A3 };

enum class BoardWay {
    Pages,    ///< On pages that are glued into one.
    Quarters, ///< Each quarter on pages of its own, so that the board folds.
    OnePage   ///< On a page as large as the board, for a copy shop.
};

/// What is chosen once for a game that is printed without the boxed kit.
struct NoKitChoices {
    static constexpr double kLeastBoardInches = 8;
    static constexpr double kMostBoardInches = 40;
    static constexpr double kUsualBoardInches = 16;
    /// Where no length is chosen, the board is as large as the one that the kit's stickers lie on.
    static constexpr double kAsTheKit = 0;

    PaperSize paper = PaperSize::Letter;
    /// Side of the board that is wanted; or kAsTheKit.
    double dblWantedInches = kUsualBoardInches;
    BoardWay way = BoardWay::Pages;
    int nPlayers = 4;
    /// White grounds with coloured edges, in place of the screen's colours.
    bool bSavesInk = false;
    /// The dice bear the game's own picture instead of dots on the side of the one.
    bool bPictureOnDice = false;
    /// Names of the sheets that are printed; none means all. The first page tells of these only.
    QStringList sheets = {};

    /// The whole paper, upright.
    QSizeF PaperInches() const;
    /// Side of the board. The kit's stickers must be known.
    double BoardInches() const;

    /// "letter", "a4", "tabloid", "a3".
    static std::optional<PaperSize> PaperOf(const QString& sWord);
    /// "pages", "quarters", "page".
    static std::optional<BoardWay> WayOf(const QString& sWord);
    /// "kit", or a length from 8 to 40 inches: "16in", "16", "40cm", "400mm".
    static std::optional<double> WantedInchesOf(const QString& sWord);
};
