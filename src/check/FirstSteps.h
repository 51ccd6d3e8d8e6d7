// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"

#include <QByteArray>
#include <QSet>

#include <array>
#include <optional>

/// What a family does on its first evening to make a game its own, and how far it is.
namespace FirstSteps {

enum class Step { Name, Photos, Streets, News, Print };
constexpr int kSteps = 5;

/// What came with the program, and so isn't a family's own yet.
struct Shipped {
    QSet<QString> titles;
    QSet<QString> streets;
    QSet<QString> news;
    /// Complete path; its pictures came along.
    QString sFolder;

    /// Takes up the words of a game that came along. Of bytes that are no game, nothing.
    void Add(const QByteArray& game);
};

struct Progress {
    /// Pieces that the family has made its own, of so many.
    int iOwn = 0;
    int iAll = 1;
    bool bDone = false;
};

/// How far each step is. Whoever keeps some of the words that came along is done as well: when no piece is blank and
/// at least half of them are the family's own.
std::array<Progress, kSteps> Of(const Game& game, const Shipped& shipped, bool bPrinted);

/// Where a step goes on: its first piece that isn't the family's own yet, or else its first. Nothing for printing.
std::optional<GamePiece> PieceOf(Step step, const Game& game, const Shipped& shipped);

} // namespace FirstSteps
