// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "platform/paint/WrittenTexts.h"

#include <QSizeF>

#include <vector>

struct Game;

/// Words of a piece as they come out on one of the things that are printed.
struct PaperText {
    GamePiece piece;
    /// Behind what is told of them: "on its sticker".
    QString sWhere;
    QList<WrittenText> written;
    QSizeF inches;
    /// Words of the sheets that it stands on.
    QStringList sheets;
    /// Only what lies in the circle is cut out.
    bool bRound = false;
    /// Letters of it that paper won't show, once a check has asked for them.
    QStringList lacking = {};
};

/// Adds a part, of a piece or two, of all words of a game that a family has chosen, as its kit's sheets will show them:
/// drawn by the routines that print them, without their pictures. The rules aren't among them, as their letters never
/// shrink. Parts count from 0; false for one that there isn't.
bool AddPaperTexts(const Game& game, int iPart, std::vector<PaperText>& texts);

/// Those of one piece.
std::vector<PaperText> PaperTextsOf(const Game& game, const GamePiece& piece);
