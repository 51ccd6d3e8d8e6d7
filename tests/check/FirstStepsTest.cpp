// SPDX-License-Identifier: MIT
// How far a family is on its first evening.
#include "CheckFixture.h"

#include "check/FirstSteps.h"
#include "document/GameText.h"
#include "platform/files/Files.h"

namespace {

using FirstSteps::Step;

QByteArray Sample(const char* name) {
    QString error;
    const auto bytes = Files::ReadAll(QStringLiteral(TAVLORA_DATA_DIR "/") + QLatin1String(name), error);
    return bytes.value_or(QByteArray());
}

class FirstStepsTest : public CheckTest {
protected:
    FirstSteps::Progress Of(Step step, bool printed = false) const {
        return FirstSteps::Of(game, shipped, printed).at(size_t(step));
    }
    void Take(const char* sample) {
        DeviceContext& device = form.hDC();
        const auto nowhere = [](const QString& asked, const PictureOwner&) { return asked; };
        const ReadingTools tools{device, nowhere, [](int, SpecialText&) {}};
        game = ReadGame(Sample(sample), Game(), tools).game;
        shipped.Add(Sample(sample));
    }
    ScratchForm form{QSize(1, 1)};
    FirstSteps::Shipped shipped;
};

TEST_F(FirstStepsTest, OfAGameJustBegunNothingIsDone) {
    for (const char* sample : {"Blank_US.gam", "Town_US.gam"}) {
        Take(sample);
        for (const Step step : {Step::Name, Step::Streets, Step::News, Step::Print}) {
            EXPECT_FALSE(Of(step).bDone) << sample << int(step);
            EXPECT_EQ(Of(step).iOwn, 0) << sample << int(step);
        }
    }
}

TEST_F(FirstStepsTest, PicturesThatCameAlongAreNotTheFamilysOwn) {
    shipped.sFolder = QStringLiteral("/usr/share/tavlora");
    for (int i = 0; i < basTAVL::kSpaces; ++i)
        ShowOnSpace(i, QStringLiteral("/usr/share/tavlora/town/barn.png"));
    EXPECT_EQ(Of(Step::Photos).iOwn, 0);
    EXPECT_EQ(Of(Step::Photos).iAll, 24);
    ShowOnSpace(0, QStringLiteral("/usr/share/tavlora-of-ours/barn.png"));
    EXPECT_EQ(Of(Step::Photos).iOwn, 1);
}

TEST_F(FirstStepsTest, HalfOfThemAndNoneBlankIsDone) {
    Take("Town_US.gam");
    for (int i = 0; i < 13; ++i)
        game.spaces[size_t(i)].SetText(QStringLiteral("Ours %1").arg(i));
    EXPECT_EQ(Of(Step::Streets).iOwn, 11) << "the news and the lotto space are the kit's";
    EXPECT_FALSE(Of(Step::Streets).bDone);
    game.spaces[13].SetText(QStringLiteral("Ours 13"));
    EXPECT_TRUE(Of(Step::Streets).bDone);
    game.spaces[27].SetText(QStringLiteral(" "));
    EXPECT_FALSE(Of(Step::Streets).bDone);
}

TEST_F(FirstStepsTest, NameNewsAndPrintCount) {
    Take("Blank_US.gam");
    SetTitle(1, QStringLiteral("OURS"));
    EXPECT_TRUE(Of(Step::Name).bDone);
    for (auto& deck : game.news) {
        for (C_News& card : deck)
            card.Let_Text(QStringLiteral("We won"));
    }
    EXPECT_TRUE(Of(Step::News).bDone);
    EXPECT_EQ(Of(Step::News).iAll, 24);
    EXPECT_TRUE(Of(Step::Print, true).bDone);
}

TEST_F(FirstStepsTest, AStepGoesOnAtItsFirstPieceThatIsLeft) {
    Take("Town_US.gam");
    EXPECT_EQ(FirstSteps::PieceOf(Step::Name, game, shipped), GamePiece::Titles());
    game.spaces[0].SetText(QStringLiteral("Ours"));
    EXPECT_EQ(FirstSteps::PieceOf(Step::Streets, game, shipped), GamePiece::Space(1));
    for (C_News& card : game.news[0])
        card.Let_Text(QStringLiteral("We won"));
    EXPECT_EQ(FirstSteps::PieceOf(Step::News, game, shipped), GamePiece::Card(1, 0));
    EXPECT_FALSE(FirstSteps::PieceOf(Step::Print, game, shipped));
}

TEST_F(FirstStepsTest, BytesThatAreNoGameBringNoWords) {
    shipped.Add("OURS\r\nOURS\r\n");
    EXPECT_TRUE(shipped.titles.isEmpty());
}

} // namespace
