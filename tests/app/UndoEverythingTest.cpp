// SPDX-License-Identifier: MIT
// Every kind of edit taken back and brought again: the game, the board's pixels and the thumbnails are those of
// before, each time.
#include "AppFixture.h"

#include "board/basTAVL_news.h"
#include "board/BoardPicture.h"
#include "support/PictureFiles.h"

#include <map>

namespace {

using namespace PictureFiles;
using Make = std::function<struct Edit(const Game&)>;

class UndoEverythingTest : public AppTest {
protected:
    struct State {
        Game game;
        QImage board;
        std::map<QString, QByteArray> thumbnails;
    };

    QString Photo(const char* name, const QImage& image) {
        return WriteFile(QString::fromLatin1(name), Encoded(image, "png"));
    }

    State StateNow() {
        State state{Hand().InHand(), basPosit::BoardPicture(600).Image().copy(), {}};
        for (int i = 0; i < basTAVL::kSpaces; ++i)
            AddThumbnail(state, basTAVL::g_oSpaces(i).Image);
        for (int i = 0; i < basTAVL::kCorners; ++i)
            AddThumbnail(state, basTAVL::g_oCorners(i).Image);
        for (int i = 0; i < basTAVL::kMoney; ++i)
            AddThumbnail(state, basTAVL::g_oMoney(i).FaceImage);
        for (int i = 0; i < basTAVL::kTokens; ++i)
            AddThumbnail(state, basTAVL::g_oTokens(i).Image);
        return state;
    }
    static void Compare(const State& is, const State& was, const std::string& sWhen) {
        EXPECT_EQ(is.game, was.game) << sWhen;
        EXPECT_EQ(is.board, was.board) << sWhen;
        EXPECT_EQ(is.thumbnails, was.thumbnails) << sWhen;
    }
    Session& Hand() const { return window->Commands().InHand(); }

    template <typename Record, typename Change>
    static Record Changed(Record record, const Change& change) {
        change(record);
        return record;
    }

    std::vector<Make> SpaceEdits() {
        const QString red = Photo("red.png", Quarters(60, 60));
        const QString tall = Photo("tall.png", Quarters(30, 90));
        const auto space = [](int i, auto change) {
            return Make(
                [=](const Game& game) { return Edits::OfSpace(game, i, Changed(game.spaces[size_t(i)], change)); });
        };
        return {
            space(3, [](C_Space& s) { s.SetText(QStringLiteral("Acorn\r\nLane")); }),
            space(3, [](C_Space& s) { s.Font.Bold = !s.Font.Bold; }),
            space(3, [=](C_Space& s) { s.SetImagePath(red); }),
            space(3, [](C_Space& s) { s.Image.Let_Zoom(170); }),
            space(3, [=](C_Space& s) { s.SetImagePath(tall); }),
            space(12, [=](C_Space& s) { s.SetImagePath(red); }),
            space(3, [](C_Space& s) { s.SetImagePath(QString()); }),
        };
    }
    std::vector<Make> OtherEdits() {
        const QString photo = Photo("wide.png", Quarters(90, 50));
        const auto corner = [](auto change) {
            return Make([=](const Game& game) { return Edits::OfCorner(game, 1, Changed(game.corners[1], change)); });
        };
        const auto token = [](auto change) {
            return Make([=](const Game& game) { return Edits::OfToken(game, 2, Changed(game.tokens[2], change)); });
        };
        const auto money = [](auto change) {
            return Make([=](const Game& game) { return Edits::OfMoney(game, Changed(game.money, change)); });
        };
        C_FontInfo font;
        font.Family = QStringLiteral("Courier New");
        font.Size = 11;
        return {
            corner([](C_Corner& c) { c.SetText(0, QStringLiteral("Lose a turn")); }),
            corner([=](C_Corner& c) { c.Image.Let_FullPath(photo); }),
            [](const Game& game) {
                return Edits::OfTitles(
                    game, Changed(game.titles, [](Titles& t) { t.Text(1).SetText(QStringLiteral("Oakville")); }));
            },
            [](const Game& game) {
                SpecialText head = game.titles.Text(basTAVL::NewsTitleRecord(1));
                head.SetText(QStringLiteral("Oh dear"));
                return Edits::OfCard(
                    game, 1, 4, Changed(game.news[1][4], [](C_News& n) { n.Let_Text(QStringLiteral("Pay 7")); }), head);
            },
            money([](auto& notes) { notes[1].Let_Text(0, QStringLiteral("Aunt")); }),
            money([=](auto& notes) { notes[1].FaceImage.Let_FullPath(photo); }),
            token([](C_Token& t) { t.SetImagePath(QString()), t.SetText(QStringLiteral("zap")); }),
            token([=](C_Token& t) { t.SetImagePath(photo); }),
            [=](const Game& game) { return Edits::OfBoardFont(game, font, Edits::kNoSpace, Edits::kNoCorner); },
            [=](const Game& game) {
                return Edits::OfNewsFonts(game, Changed(game.news[0][0], [&](C_News& n) { n.FontBody = font; }));
            },
            [=](const Game& game) { return Edits::OfTokenFont(game, font); },
        };
    }

private:
    static void AddThumbnail(State& state, C_Image& image) {
        if (image.FullPath().isEmpty()) return;
        image.GetThumbnail(false);
        state.thumbnails[image.Thumbname()] = ReadFile(image.Thumbname());
    }
};

TEST_F(UndoEverythingTest, GivesBackTheGameItsPixelsAndItsThumbnails) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("As saved"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    Start();
    std::vector<Make> edits = SpaceEdits();
    for (Make& edit : OtherEdits())
        edits.push_back(std::move(edit));
    std::vector<State> states{StateNow()};
    for (const Make& make : edits) {
        basDraw::Draw_SetHdc(&Hand().MeasuringDevice());
        Hand().Do(make(Hand().InHand()));
        basDraw::Draw_ReleaseObjects();
        states.push_back(StateNow());
        EXPECT_FALSE(states.back().game == states[states.size() - 2].game) << Hand().UndoName().toStdString();
    }
    EXPECT_GT(states[3].thumbnails.size(), states[0].thumbnails.size()) << "a picture has a thumbnail";
    EXPECT_NE(states[3].thumbnails, states[4].thumbnails) << "a crop shows in it";
    for (size_t i = states.size() - 1; i-- > 0;) {
        const std::string name = "undo " + Hand().UndoName().toStdString();
        Hand().Undo();
        Compare(StateNow(), states[i], name);
    }
    EXPECT_FALSE(Hand().IsUnsaved());
    for (size_t i = 1; i < states.size(); ++i) {
        const std::string name = "redo " + Hand().RedoName().toStdString();
        Hand().Redo();
        Compare(StateNow(), states[i], name);
    }
}

} // namespace
