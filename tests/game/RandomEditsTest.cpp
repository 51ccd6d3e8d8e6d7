// SPDX-License-Identifier: MIT
// Edits, undos and redos by chance against a plain list of game values. A few thousand in each run of the tests;
// TAVLORA_RANDOM_EDITS=100000 asks for as many, TAVLORA_RANDOM_SEED for others than always.
#include "board/basPosit.h"
#include "board/basTAVL_news.h"
#include "game/DealtPhotos.h"
#include "game/DroppedPictures.h"
#include "game/PieceContent.h"
#include "game/PieceImages.h"
#include "pictures/PicturePart.h"
#include "support/FileFixture.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

namespace {

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* const value = std::getenv(name);
    return value ? unsigned(std::strtoul(value, nullptr, 10)) : otherwise;
}

/// Whether a look at the pieces tells no difference: what is fitted, too.
bool LookTheSame(const Game& one, const Game& other) {
    const auto same = [](const auto& a, const auto& b) {
        for (size_t i = 0; i < a.size(); ++i) {
            if (a[i].IsDifferentFrom(b[i])) return false;
        }
        return true;
    };
    for (int i = Titles::kFirst; i <= Titles::kLast; ++i) {
        if (one.titles.Text(i).fFontWidth != other.titles.Text(i).fFontWidth) return false;
    }
    return one == other && same(one.spaces, other.spaces) && same(one.corners, other.corners) &&
           same(one.news[0], other.news[0]) && same(one.news[1], other.news[1]) && same(one.money, other.money) &&
           same(one.tokens, other.tokens);
}

/// Changes as the windows make them, chosen by chance.
class RandomEdits {
public:
    RandomEdits(unsigned seed, QStringList photos) : m_random(seed), m_photos(std::move(photos)) {}

    unsigned Below(size_t count) { return unsigned(m_random() % count); }

    Edit Next(const Game& game) {
        using Make = Edit (RandomEdits::*)(const Game&);
        static constexpr Make kKinds[] = {
            &RandomEdits::OfSpace,  &RandomEdits::OfSpace, &RandomEdits::OfCorner, &RandomEdits::OfTitles,
            &RandomEdits::OfCard,   &RandomEdits::OfMoney, &RandomEdits::OfToken,  &RandomEdits::OfFonts,
            &RandomEdits::OfPhotos, &RandomEdits::Dealt,   &RandomEdits::Copied,   &RandomEdits::Swapped,
        };
        return (this->*kKinds[Below(std::size(kKinds))])(game);
    }

private:
    QString Words() {
        static const char* const kWords[] = {"Oak",
                                             "Elm Street",
                                             "",
                                             " ",
                                             "Two\r\nlines",
                                             "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
                                             "e\xCC\x81t\xC3\xA9",
                                             "\xF0\x9F\x8C\xBB",
                                             "say \"hi\" \\n",
                                             "A very long name that goes on and on"};
        return QString::fromUtf8(kWords[Below(std::size(kWords))]) +
               (Below(2) ? QString::number(Below(50)) : QString());
    }
    QString Photo() { return Below(4) ? m_photos[Below(size_t(m_photos.size()))] : QString(); }
    void Change(C_FontInfo& font) {
        font.Load(Below(2) ? QStringLiteral("Arial") : QStringLiteral("Times New Roman"), Below(2), Below(2),
                  float(4 + Below(30)));
    }
    void Change(C_Image& image) {
        image.Let_XCenter(float(Below(300)));
        image.Let_YCenter(float(Below(300)));
        image.Let_Zoom(qint16(Below(30)));
    }
    template <typename Piece>
    void ChangeFontOrPicture(Piece& piece) {
        if (Below(2)) Change(piece.Font);
        if (Below(2)) Change(piece.Image);
    }
    PictureOwner Place() {
        const auto kind = Below(4) ? PictureOwner::Kind::Space : PictureOwner::Kind::Corner;
        PictureOwner piece;
        while (!PieceContents::Has(piece))
            piece = {kind, qint16(Below(size_t(PieceImages::CountOf(kind))))};
        return piece;
    }

    Edit OfSpace(const Game& game) {
        const int i = int(Below(basTAVL::kSpaces));
        C_Space space = game.spaces[size_t(i)];
        ChangeFontOrPicture(space);
        if (Below(2)) space.SetImagePath(Photo());
        space.SetText(Below(3) ? Words() : TextLines::kUseExisting);
        return Edits::OfSpace(game, i, space);
    }
    Edit OfCorner(const Game& game) {
        const int i = int(Below(basTAVL::kCorners));
        C_Corner corner = game.corners[size_t(i)];
        ChangeFontOrPicture(corner);
        if (Below(2)) corner.Image.Let_FullPath(Photo());
        corner.SetText(0, Below(3) ? Words() : TextLines::kUseExisting);
        return Edits::OfCorner(game, i, corner);
    }
    Edit OfTitles(const Game& game) {
        Titles titles = game.titles;
        const int title = int(1 + Below(3));
        basPosit::SetSpecialText(titles.Text(title), title, Words());
        return Edits::OfTitles(game, titles);
    }
    Edit OfCard(const Game& game) {
        const int deck = int(Below(2));
        const int i = int(Below(basTAVL::kCards));
        C_News card = game.news[size_t(deck)][size_t(i)];
        const int record = basTAVL::NewsTitleRecord(deck);
        SpecialText head = game.titles.Text(record);
        if (Below(2)) card.Let_Text(Words());
        if (Below(4) == 0) Change(card.FontBody);
        if (Below(4) == 0) basPosit::SetSpecialText(head, record, Words());
        return Edits::OfCard(game, deck, i, card, head);
    }
    Edit OfMoney(const Game& game) {
        auto money = game.money;
        C_Money& note = money[Below(basTAVL::kMoney)];
        if (Below(2)) note.Let_Text(int(Below(2)), Words());
        if (Below(2)) note.FaceImage.Let_FullPath(Photo());
        return Edits::OfMoney(game, money);
    }
    Edit OfToken(const Game& game) {
        const int i = int(Below(basTAVL::kTokens));
        C_Token token = game.tokens[size_t(i)];
        ChangeFontOrPicture(token);
        const QString photo = Photo();
        token.SetText(photo.isEmpty() ? Words() : QString());
        token.SetImagePath(photo);
        return Edits::OfToken(game, i, token);
    }
    Edit OfFonts(const Game& game) {
        C_FontInfo font;
        Change(font);
        C_News card = game.news[0][0];
        Change(card.FontHead);
        const unsigned which = Below(3);
        if (which == 0) return Edits::OfNewsFonts(game, card);
        if (which == 1) return Edits::OfTokenFont(game, font);
        return Edits::OfBoardFont(game, font, int(Below(basTAVL::kSpaces)), Edits::kNoCorner);
    }
    Edit OfPhotos(const Game& game) {
        const auto all = [](const QString&) { return QString(); };
        return DroppedPictures::Onto(game, m_photos.mid(0, int(1 + Below(3))), Place(), all).edit.value();
    }
    Edit Dealt(const Game& game) {
        std::vector<DealtPhotos::Photo> photos;
        for (const QString& photo : std::as_const(m_photos))
            photos.push_back({photo, qint64(Below(1000)), Below(3) == 0});
        DealtPhotos::Sort(photos, DealtPhotos::Order::Shuffled, Below(1000));
        return DealtPhotos::Deal(game, photos, DealtPhotos::FreePlaces(game, Below(2)), Below(2));
    }
    Edit Copied(const Game& game) {
        const QByteArray bytes = PieceContents::Written(PieceContents::Of(game, Place()));
        return PieceContents::Copy(game, PieceContents::Read(bytes).value(), Place());
    }
    Edit Swapped(const Game& game) {
        const PictureOwner one = Place();
        PictureOwner other = Place();
        while (!PieceContents::CanSwap(one, other))
            other = Place();
        return PieceContents::Swap(game, one, other);
    }

    std::mt19937 m_random;
    QStringList m_photos;
};

class RandomEditsTest : public GameFileTest {
protected:
    RandomEditsTest() {
        WriteGame(PlainLines(), QStringLiteral("Trip.gam"));
        for (int i = 0; i < 4; ++i)
            photos.append(WriteFile(QStringLiteral("garden %1.bmp").arg(i), "x"));
    }

    static unsigned SeedOf(unsigned run) {
        const unsigned seed = FromEnvironment("TAVLORA_RANDOM_SEED", 20261122) + run;
        std::cout << "seed " << seed << std::endl;
        return seed;
    }

    QStringList photos;
};

/// The values that a history is held against, and where in them it stands.
struct PlainList {
    std::vector<Game> games;
    std::vector<QString> names;
    size_t at = 0;

    void Begin(const Game& game) {
        games = {game};
        names = {QString()};
        at = 0;
    }
    void Do(const Game& game, const QString& name) {
        games.resize(++at);
        names.resize(at);
        games.push_back(game);
        names.push_back(name);
    }
    bool CanRedo() const { return at + 1 < games.size(); }
};

TEST_F(RandomEditsTest, UndosAndRedosGoTheWayOfAPlainListOfGames) {
    constexpr unsigned kOfOneGame = 2000;
    const unsigned wanted = FromEnvironment("TAVLORA_RANDOM_EDITS", 3000);
    std::array<unsigned, 3> done{};
    for (unsigned run = 0; run * kOfOneGame < wanted; ++run) {
        const unsigned seed = SeedOf(run);
        RandomEdits random(seed, photos);
        Game game;
        History history;
        history.Begin();
        PlainList plain;
        plain.Begin(game);
        for (unsigned i = 0; i < std::min(kOfOneGame, wanted - run * kOfOneGame); ++i) {
            const unsigned dice = random.Below(4);
            if (dice == 0 && plain.at > 0) {
                history.Undo(game);
                --plain.at;
                ++done[1];
            } else if (dice == 1 && plain.CanRedo()) {
                history.Redo(game);
                ++plain.at;
                ++done[2];
            } else {
                const Edit edit = random.Next(game);
                const bool step = !(edit.after == game);
                history.Do(game, edit);
                if (step) plain.Do(edit.after, edit.sName);
                // What changes nothing for a family is taken over without a step.
                if (!step) plain.games[plain.at] = game;
                ++done[0];
            }
            ASSERT_EQ(game, plain.games[plain.at]) << "step " << i << " of seed " << seed;
            ASSERT_EQ(history.UndoName(), plain.names[plain.at]) << "step " << i << " of seed " << seed;
            ASSERT_EQ(history.RedoName(), plain.CanRedo() ? plain.names[plain.at + 1] : QString())
                << "step " << i << " of seed " << seed;
        }
        while (history.CanUndo())
            history.Undo(game);
        ASSERT_TRUE(game == plain.games.front()) << "back to the beginning, seed " << seed;
        while (history.CanRedo())
            history.Redo(game);
        ASSERT_TRUE(game == plain.games.back()) << "and to the end, seed " << seed;
    }
    std::cout << done[0] << " edits, " << done[1] << " undos, " << done[2] << " redos" << std::endl;
    EXPECT_GT(done[0] * done[1] * done[2], 0U);
}

TEST_F(RandomEditsTest, EachEditComesBackToTheVeryLook) {
    const unsigned wanted = FromEnvironment("TAVLORA_RANDOM_EDITS", 3000) / 10;
    const unsigned seed = SeedOf(0);
    RandomEdits random(seed, photos);
    Game game;
    History history;
    history.Begin();
    for (unsigned i = 0; i < wanted; ++i) {
        const Game before = game;
        const Edit edit = random.Next(game);
        if (edit.after == before) continue;
        EXPECT_FALSE(edit.sName.isEmpty());
        history.Do(game, edit);
        ASSERT_TRUE(LookTheSame(game, edit.after)) << "step " << i << " of seed " << seed;
        history.Undo(game);
        ASSERT_TRUE(LookTheSame(game, before)) << "step " << i << " of seed " << seed;
        history.Redo(game);
        ASSERT_TRUE(LookTheSame(game, edit.after)) << "step " << i << " of seed " << seed;
    }
}

// With the files: the star, the autosave, saves in between, and a game that is read again.
TEST_F(RandomEditsTest, ASessionKeepsStepsAndStarThroughSaves) {
    const unsigned wanted = FromEnvironment("TAVLORA_RANDOM_EDITS", 3000) / 40;
    const unsigned seed = SeedOf(0);
    RandomEdits random(seed, photos);
    QString name = InGames(QStringLiteral("Trip.gam"));
    session.SetGameName(name);
    ASSERT_EQ(session.Load(name), 0);
    PlainList plain;
    plain.Begin(session.InHand());
    constexpr size_t kNever = size_t(-1);
    size_t saved = 0;
    for (unsigned i = 0; i < wanted; ++i) {
        const unsigned dice = random.Below(10);
        if (dice < 3 && plain.at > 0) {
            session.Undo();
            --plain.at;
        } else if (dice < 5 && plain.CanRedo()) {
            session.Redo();
            ++plain.at;
        } else if (dice == 5) {
            ASSERT_TRUE(session.Save());
            saved = plain.at;
        } else {
            const Edit edit = random.Next(session.InHand());
            if (edit.after == session.InHand()) continue;
            session.Do(edit);
            plain.Do(edit.after, edit.sName);
            if (saved != kNever && saved >= plain.at) saved = kNever;
        }
        ASSERT_EQ(session.InHand(), plain.games[plain.at]) << "step " << i << " of seed " << seed;
        ASSERT_EQ(session.IsUnsaved(), saved != plain.at) << "step " << i << " of seed " << seed;
        ASSERT_EQ(QFile::exists(autosave), session.IsUnsaved()) << "step " << i << " of seed " << seed;
        ASSERT_EQ(session.UndoName(), plain.names[plain.at]) << "step " << i << " of seed " << seed;
        ASSERT_EQ(session.CanRedo(), plain.CanRedo()) << "step " << i << " of seed " << seed;
    }
    ASSERT_TRUE(session.Save());
    const Game kept = session.InHand();
    ASSERT_EQ(session.Load(name), 0);
    EXPECT_FALSE(session.CanUndo()) << "another history begins";
    EXPECT_EQ(session.InHand().spaces[5].Font, kept.spaces[5].Font);
}

} // namespace
