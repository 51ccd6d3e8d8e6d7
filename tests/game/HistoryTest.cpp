// SPDX-License-Identifier: MIT
// The steps of a game, without files and windows: back and forth, and what they cost.
#include "game/History.h"

#include "support/GameFixture.h"

#include <functional>
#include <random>
#include <vector>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace {

class HistoryTest : public GameTest {
protected:
    using Change = std::function<void(Game&)>;

    void Do(const QString& name, const Change& change) {
        Edit edit{name, game};
        change(edit.after);
        history.Do(game, edit);
    }
    void Rename(const QString& text) {
        Do(text, [&](Game& after) { after.spaces[4].SetText(text); });
    }

    /// One change of each kind of record, each different at each call.
    std::vector<Change> Changes() {
        const QString word = QString::number(++m_calls);
        const auto number = qint16(m_calls);
        const QString photo = WriteFile(QStringLiteral("photo%1.bmp").arg(m_calls), "x");
        return {
            [=](Game& after) { after.spaces[27].SetText(QStringLiteral("Elm\r\n") + word); },
            [=](Game& after) { after.spaces[4].SetImagePath(photo); },
            [=](Game& after) { after.spaces[4].Image.Let_Zoom(number); },
            [=](Game& after) { after.corners[1].SetText(0, QStringLiteral("Lose ") + word); },
            [=](Game& after) { after.titles.Text(1).SetText(word); },
            [=](Game& after) { after.titles.Text(5).SetText(word); },
            [=](Game& after) { after.news[1][11].Let_Text(word); },
            [=](Game& after) { after.news[0][0].FontHead.Size = float(number); },
            [=](Game& after) { after.money[3].Let_Text(1, word); },
            [=](Game& after) { after.money[0].FaceImage.Let_FullPath(photo); },
            [=](Game& after) { after.tokens[5].SetText(word); },
            [=](Game& after) {
                for (C_Space& space : after.spaces) {
                    space.Font.Size = float(number);
                    space.SetText(TextLines::kUseExisting);
                }
            },
        };
    }

    Game game;
    History history;

private:
    int m_calls = 0;
};

TEST_F(HistoryTest, EachChangeIsTakenBackAndBroughtAgain) {
    std::vector<Game> states{game};
    for (const Change& change : Changes()) {
        Do(QStringLiteral("Change"), change);
        EXPECT_NE(game, states.back());
        states.push_back(game);
    }
    for (size_t i = states.size() - 1; i-- > 0;) {
        ASSERT_TRUE(history.CanUndo());
        history.Undo(game);
        EXPECT_EQ(game, states[i]) << i;
    }
    EXPECT_FALSE(history.CanUndo());
    for (size_t i = 1; i < states.size(); ++i) {
        ASSERT_TRUE(history.CanRedo());
        history.Redo(game);
        EXPECT_EQ(game, states[i]) << i;
    }
    EXPECT_FALSE(history.CanRedo());
}

TEST_F(HistoryTest, ALookThatWasFittedComesBackToo) {
    Rename(QStringLiteral("Oak"));
    const float fitted = game.spaces[4].TextSize();
    Rename(QStringLiteral("A street with a long name"));
    ASSERT_NE(game.spaces[4].TextSize(), fitted);
    history.Undo(game);
    EXPECT_EQ(game.spaces[4].TextSize(), fitted);
}

TEST_F(HistoryTest, StepsAreKnownByTheirNames) {
    EXPECT_EQ(history.UndoName(), QString());
    EXPECT_EQ(history.RedoName(), QString());
    Rename(QStringLiteral("Oak"));
    Rename(QStringLiteral("Elm"));
    EXPECT_EQ(history.UndoName(), QStringLiteral("Elm"));
    EXPECT_EQ(history.RedoName(), QString());
    history.Undo(game);
    EXPECT_EQ(history.UndoName(), QStringLiteral("Oak"));
    EXPECT_EQ(history.RedoName(), QStringLiteral("Elm"));
}

TEST_F(HistoryTest, AnEditForgetsWhatWasUndone) {
    Rename(QStringLiteral("Oak"));
    Rename(QStringLiteral("Elm"));
    history.Undo(game);
    Rename(QStringLiteral("Birch"));
    EXPECT_FALSE(history.CanRedo());
    history.Undo(game);
    EXPECT_EQ(game.spaces[4].TextAll(), QStringLiteral("Oak"));
}

TEST_F(HistoryTest, WithoutAStepNothingHappens) {
    const Game before = game;
    history.Undo(game);
    history.Redo(game);
    EXPECT_EQ(game, before);
}

TEST_F(HistoryTest, WhatChangesNothingForAFamilyIsNoStepButTakenOver) {
    Rename(QStringLiteral("Oak"));
    const quint64 state = history.State();
    Do(QStringLiteral("Fit"), [](Game& after) { after.spaces[4].Let_TextSize(0.001F); });
    EXPECT_EQ(history.UndoName(), QStringLiteral("Oak"));
    EXPECT_EQ(history.State(), state);
    EXPECT_EQ(game.spaces[4].TextSize(), 0.001F);
}

TEST_F(HistoryTest, AStateIsKnownAgainAndIsNeverAnothers) {
    const quint64 first = history.State();
    Rename(QStringLiteral("Oak"));
    const quint64 oak = history.State();
    EXPECT_NE(oak, first);
    history.Undo(game);
    EXPECT_EQ(history.State(), first);
    history.Redo(game);
    EXPECT_EQ(history.State(), oak);
    history.Undo(game);
    Rename(QStringLiteral("Elm"));
    EXPECT_NE(history.State(), oak) << "another game at the same step";
    history.Begin();
    EXPECT_NE(history.State(), first);
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
}

TEST_F(HistoryTest, RandomStepsGoTheWayOfAPlainListOfGames) {
    constexpr int kSteps = 3000;
    constexpr unsigned kSeed = 20261121;
    std::mt19937 random(kSeed);
    std::vector<Game> states{game};
    size_t at = 0;
    for (int i = 0; i < kSteps; ++i) {
        const unsigned dice = random() % 6;
        if (dice == 0 && at > 0) {
            history.Undo(game);
            --at;
        } else if (dice == 1 && at + 1 < states.size()) {
            history.Redo(game);
            ++at;
        } else {
            const std::vector<Change> changes = Changes();
            Do(QString::number(i), changes[random() % changes.size()]);
            states.resize(++at);
            states.push_back(game);
        }
        ASSERT_EQ(game, states[at]) << "step " << i << " of seed " << kSeed;
        ASSERT_EQ(history.CanUndo(), at > 0);
        ASSERT_EQ(history.CanRedo(), at + 1 < states.size());
    }
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
TEST_F(HistoryTest, AThousandStepsOfAGameFullOfPhotosTakeFewMegabytes) {
    const QString photo = WriteFile(QStringLiteral("photo.bmp"), "x");
    for (C_Space& space : game.spaces) {
        space.SetText(QStringLiteral("A street\r\nwith a name"));
        space.SetImagePath(photo);
    }
    const size_t before = mallinfo2().uordblks;
    for (int i = 0; i < 1000; ++i) {
        Do(QStringLiteral("Name of a Street"), [i](Game& after) {
            after.spaces[size_t(i % 28)].SetText(QStringLiteral("Street number\r\n%1 of\r\nmany").arg(i));
            if (i % 10 == 0) after.spaces[size_t(i % 28)].Image.Let_Zoom(qint16(1 + i / 10));
        });
    }
    const size_t used = mallinfo2().uordblks - before;
    ASSERT_TRUE(history.CanUndo());
    EXPECT_GT(used, 100000U) << "something was measured";
    EXPECT_LT(used, 4U << 20);
}
#endif

} // namespace
