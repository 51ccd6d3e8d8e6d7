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
    /// Only what lies in the circle is cut out.
    bool bRound = false;
};

/// All words of a game that a family has chosen, as its kit's sheets will show them: drawn by the routines that print
/// them, without their pictures. The rules aren't among them, as their letters never shrink.
std::vector<PaperText> PaperTextsOf(const Game& game);
