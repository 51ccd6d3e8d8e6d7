// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPositFit.h"
#include "check/Checks.h"
#include "support/PictureFiles.h"
#include "support/SheetFixture.h"
#include "support/Spelling.h"

/// A game without anything to tell of, and what is told of it once something was changed.
class CheckTest : public SheetTest {
protected:
    CheckTest() {
        for (int i = 0; i < basTAVL::kSpaces; ++i)
            game.spaces[size_t(i)].SetText(QStringLiteral("Place %1").arg(i + 1));
        for (int i = 0; i < basTAVL::kCorners; ++i)
            game.corners[size_t(i)].SetText(0, QStringLiteral("Edge %1").arg(i + 1));
        for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
            for (int i = 0; i < basTAVL::kCards; ++i)
                game.news[size_t(deck)][size_t(i)].Let_Text(QStringLiteral("Pay $%1.").arg(100 * (12 * deck + i + 1)));
        }
        for (C_Money& note : game.money) {
            note.BackColor = TheGame().money[size_t(note.Index)].BackColor;
            note.Let_Text(0, QStringLiteral("Bank"));
            note.Let_Text(1, QStringLiteral("of us"));
        }
        for (C_Token& token : game.tokens) {
            token.BackColor = TheGame().tokens[size_t(token.Index)].BackColor;
            token.Font.Size = 48;
            token.SetText(QStringLiteral("Tim %1").arg(token.Index + 1));
        }
        SetTitle(1, QStringLiteral("OURS"));
        SetTitle(2, QStringLiteral("A game of ours"));
        SetTitle(4, QStringLiteral("Good News"));
        SetTitle(5, QStringLiteral("Bad News"));
    }

    void SetTitle(int iTitle, const QString& sText) {
        basPosit::SetSpecialText(game.titles.Text(iTitle), iTitle, sText);
    }
    /// Writes a picture file of this size and gives its path.
    QString Photo(QSize size, const QString& sName = QStringLiteral("photo.png")) const {
        return WriteFile(sName, PictureFiles::Encoded(PictureFiles::Quarters(size.width(), size.height()), "png"));
    }
    void ShowOnSpace(int iSpace, const QString& sPath) { game.spaces[size_t(iSpace)].SetImagePath(sPath); }

    /// All of them; what they say is read for slips of a letter.
    std::vector<Finding> Findings() {
        std::vector<Finding> found = CheckGame(game, facts, options);
        for (const Finding& finding : found) {
            Spelling::ExpectKnown(finding.sText, Spelling::Names::Within);
            Spelling::ExpectKnown(finding.sAdvice, Spelling::Names::None);
        }
        return found;
    }
    /// Findings of one kind.
    std::vector<Finding> Of(const char* sCheck) {
        std::vector<Finding> found;
        for (const Finding& finding : Findings()) {
            if (finding.sCheck == QLatin1String(sCheck)) found.push_back(finding);
        }
        return found;
    }
    /// That there is just one finding of this kind, of this piece.
    void ExpectOnly(const char* sCheck, GamePiece piece) {
        const std::vector<Finding> found = Of(sCheck);
        ASSERT_EQ(found.size(), 1) << sCheck;
        EXPECT_EQ(found.front().piece.Word().toStdString(), piece.Word().toStdString());
    }
    void ExpectNone(const char* sCheck) {
        for (const Finding& finding : Of(sCheck))
            ADD_FAILURE() << sCheck << ' ' << finding.piece.Word().toStdString() << ' ' << finding.sText.toStdString();
    }

    Game game;
    PictureFacts facts;
    CheckOptions options;
};
