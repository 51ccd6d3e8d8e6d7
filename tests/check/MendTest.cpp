// SPDX-License-Identifier: MIT
// What one click mends: the finding is gone afterwards, and nothing else is worse.
#include "CheckFixture.h"

#include <QDir>

namespace {

class MendTest : public CheckTest {
protected:
    MendTest() {
        desktop.boxes.clear();
        basPosit::PosSethDC(&form.hDC());
    }
    /// Mends the one finding of a kind.
    std::optional<Edit> MendOf(const char* sCheck, const QString& sPicture = {}) {
        const std::vector<Finding> found = Of(sCheck);
        EXPECT_EQ(found.size(), 1) << sCheck;
        basPosit::PosSethDC(&form.hDC());
        return found.empty() ? std::nullopt : Mend(game, found.front(), sPicture);
    }
    /// That a click mends it and leaves a game without anything to tell of.
    void ExpectMended(const char* sCheck, const char* sEdit) {
        const std::optional<Edit> edit = MendOf(sCheck);
        ASSERT_TRUE(edit) << sCheck;
        EXPECT_EQ(edit->sName, QString::fromUtf8(sEdit));
        game = edit->after;
        for (const Finding& finding : Findings())
            ADD_FAILURE() << finding.sCheck.toStdString() << ' ' << finding.sText.toStdString();
    }
    void Crop(int iSpace, int iZoom, int iX, int iY) {
        C_Image& image = game.spaces[size_t(iSpace)].Image;
        image.Let_Zoom(qint16(iZoom));
        image.Let_XCenter(float(iX));
        image.Let_YCenter(float(iY));
    }

    ScratchForm form{QSize(1, 1)};
};

} // namespace

TEST_F(MendTest, ACoarsePictureShowsMoreOfItselfAroundItsMiddle) {
    ShowOnSpace(4, Photo({1000, 1000}));
    Crop(4, 35, 400, 600);
    ExpectMended("picture-coarse", "Crop of Place 5");
    const C_Image& image = game.spaces[4].Image;
    EXPECT_LT(image.Zoom(), 35);
    EXPECT_GT(image.Zoom(), 0) << "no more than it takes";
    EXPECT_EQ(image.XCenter(), 400);
    EXPECT_EQ(image.YCenter(), 600);
}

TEST_F(MendTest, APictureWithTooFewDotsIsMendedByNoClick) {
    ShowOnSpace(4, Photo({60, 60}));
    EXPECT_FALSE(MendOf("picture-coarse"));
}

TEST_F(MendTest, BarsGoByACropThatStaysInThePicture) {
    ShowOnSpace(4, Photo({2000, 1000}));
    ExpectMended("picture-bars", "Crop of Place 5");
    EXPECT_EQ(game.spaces[4].Image.XCenter(), 1000);
}

TEST_F(MendTest, ALongNameIsBrokenIntoLines) {
    game.spaces[4].SetText(QStringLiteral("The old lane behind the mill of Ada"));
    ExpectMended("text-small", "Name of The old lane behind the mill of Ada");
    EXPECT_GT(game.spaces[4].TextArray().size(), 1);
}

TEST_F(MendTest, ASentenceInOneLineIsBrokenIntoLinesOnItsCard) {
    game.news[1][3].Let_Text(
        QStringLiteral("You have eaten all of the cake that was meant for the whole family, and so "
                       "you pay $500 and go back to the start at once."));
    ExpectMended("text-small", "Text of Bad News Card 4");
}

TEST_F(MendTest, WordsOverTheEdgeOfATokenGetOtherLines) {
    game.tokens[2].SetText(QStringList(6, QStringLiteral("MMMM")).join(QStringLiteral("\r\n")));
    const std::optional<Edit> edit = MendOf("text-edge");
    ASSERT_TRUE(edit);
    game = edit->after;
    ExpectNone("text-edge");
}

TEST_F(MendTest, OneLongWordIsMendedByNoClick) {
    game.spaces[4].SetText(QString(40, u'W'));
    EXPECT_FALSE(MendOf("text-small"));
}

TEST_F(MendTest, AFontThatIsAwayIsReplacedByWhatStandsInEverywhere) {
    for (const size_t space : {4, 9}) {
        game.spaces[space].Font.Family = QStringLiteral("No Such Font");
        game.spaces[space].SetText(QStringLiteral("Old mill %1").arg(space));
    }
    game.news[0][2].FontBody.Family = QStringLiteral("No Such Font");
    const std::optional<Edit> edit = MendOf("font-away");
    ASSERT_TRUE(edit);
    game = edit->after;
    EXPECT_EQ(Findings(), std::vector<Finding>());
    EXPECT_NE(game.spaces[9].Font.Family, QStringLiteral("No Such Font"));
    EXPECT_EQ(game.news[0][2].FontBody.Family, game.spaces[9].Font.Family);
    EXPECT_EQ(game.spaces[0].Font.Family, QStringLiteral("Arial"));
}

TEST_F(MendTest, AGoodPictureInPlaceOfABadOneKeepsItsPartWhereItIsTheSame) {
    ShowOnSpace(4, WriteFile(QStringLiteral("letter.png"), "Dear Grandma, thank you for the dog."));
    Crop(4, 10, 700, 800);
    QDir(folder.path()).mkdir(QStringLiteral("backup"));
    const QString copy = Photo({2000, 2000}, QStringLiteral("backup/letter.png"));
    std::optional<Edit> edit = MendOf("picture-unreadable", copy);
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->after.spaces[4].Image.Ref(), (PictureRef{copy, 10, 700, 800}));
    const QString other = Photo({2000, 2000}, QStringLiteral("other.png"));
    edit = MendOf("picture-unreadable", other);
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->after.spaces[4].Image.Ref(), (PictureRef{other})) << "another picture shows its middle";
    EXPECT_FALSE(MendOf("picture-unreadable")) << "nobody has found one";
}

TEST_F(MendTest, WhatIsAwayIsFoundInTheWindowForAll) {
    ShowOnSpace(4, PathOf(QStringLiteral("moved/photo.png")));
    EXPECT_EQ(MendingOf(Of("picture-missing")[0]), Mending::BySearch);
}

TEST_F(MendTest, WhatWantsAPersonIsMendedByHand) {
    game.spaces[4].SetText(QString());
    EXPECT_FALSE(MendOf("piece-empty"));
    EXPECT_EQ(MendingOf(Of("piece-empty")[0]), Mending::ByHand);
}
