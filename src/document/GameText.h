// SPDX-License-Identifier: MIT
#pragma once

#include "document/Game.h"
#include "pictures/PicturePlaces.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <optional>

class DeviceContext;

/// The text form of a game: one line a record. Lines go out and bytes come in; files and messages are others' work.

/// The first line of each part, counted from 0.
namespace GameLines {
constexpr int kTitles = 1;
constexpr int kNewsHeads = 2;
constexpr int kSpaces = 3;
constexpr int kCorners = kSpaces + basTAVL::kSpaces;
constexpr int kNews = kCorners + basTAVL::kCorners;
constexpr int kMoney = kNews + basTAVL::kNewsSets * basTAVL::kCards;
constexpr int kTokens = kMoney + basTAVL::kMoney;
constexpr int kAll = kTokens + basTAVL::kTokens;
} // namespace GameLines

/// All lines of a game; the header carries the name that it is edited by.
QStringList ComposeLines(const Game& game, const QString& sGameName);

/// What the first line says.
struct GameHeader {
    /// Whether the bytes are those of a game at all.
    bool bIsGame = false;
    /// The name that the game was edited by. Up to its first comma where the file is of a program that wrote no more.
    QString sGameName;
};
GameHeader ReadGameHeader(const QByteArray& bytes);
/// The same game under another name in its header.
QByteArray UnderName(const QByteArray& bytes, const QString& sGameName);

/// What reading a game needs to know of the program around it.
struct ReadingTools {
    /// Texts are fitted on it; it stays the drawing layer's context.
    DeviceContext& measuring;
    PicturePlaces::Finder findPicture;
    /// Fits the letters of a title, by its number.
    std::function<void(int iNumber, SpecialText& text)> fitTitle;
};

/// A game as it was read, and what is wrong with its bytes.
struct GameReading {
    struct Fault {
        QString sError;
        /// What was being done.
        QString sDuring;
    };

    /// What stood there before, with all that was read in its place. Of the record that is at fault, too, what was
    /// read ahead of the fault, unless it could never be edited.
    Game game;
    /// Lines that were read well. Fewer than there are with nothing at fault: the tokens behind them aren't in the
    /// file, and are as they are in a new game.
    int iLines = 0;
    /// Reading stops at the first.
    std::optional<Fault> fault;
    /// Whether a field was longer than GameBounds allows, and is cut.
    bool bCut = false;
};

/// Reads a game into a copy of another. Touches neither files nor settings nor the game in hand, and tells nobody.
GameReading ReadGame(const QByteArray& bytes, const Game& before, const ReadingTools& tools);
