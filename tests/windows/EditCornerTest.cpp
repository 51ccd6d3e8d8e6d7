// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditCorner.h"

#include "board/basPosit.h"
#include "board/BoardPicture.h"
#include "windowing/PictureBox.h"
#include "windows/EditWindowFixture.h"

#include <QGroupBox>
#include <QLabel>

namespace {

constexpr QPoint kOnPicture(192, 130);
constexpr QPoint kOnText(192, 225);
constexpr QPoint kBehindText(286, 268);

class EditCornerTest : public EditWindowTest {
protected:
    bool Edit(const std::function<void()>& doIt, int iCorner = kCorner) {
        return EditWindowTest::Edit(form, iCorner, doIt);
    }
    C_Corner& Corner() { return basTAVL::g_oCorners(kCorner); }
    void ClickBehindText() { ClickPicture(kBehindText.x(), kBehindText.y()); }

    frmEditCorner form{session};
};

TEST_F(EditCornerTest, Edge_TheCornerOfFateTakesTextThatItsBoardNeverShows) {
    constexpr int kFate = 3;
    constexpr int kBoard = 600;
    for (const char* kit : {"8", "5"}) {
        basTAVL::Let_g_sGameVersion(QString::fromLatin1(kit));
        basPosit::PosInit();
        basTAVL::g_oCorners(kFate).LoadFromObject(C_Corner());
        const QImage before = basPosit::BoardPicture(kBoard).Image();
        const QString picture = basTAVL::g_oCorners(kFate).Image.FullPath();
        EXPECT_TRUE(Edit(
            [&] {
                ClickPicture(192, 225);
                Type(QStringLiteral("HHH"));
                Click("cmdOK");
            },
            kFate))
            << kit;
        EXPECT_EQ(basTAVL::g_oCorners(kFate).TextAll(0), QStringLiteral("HHH")) << kit;
        EXPECT_EQ(basPosit::BoardPicture(kBoard).Image(), before) << kit;
        EXPECT_EQ(basTAVL::g_oCorners(kFate).Image.FullPath(), picture) << kit;
        EXPECT_TRUE(picture.endsWith(QStringLiteral("fate.dat"))) << kit;
    }
}

TEST_F(EditCornerTest, Edge_TypingOnACornerIsNotCutAtFortyCharacters) {
    Corner().SetText(0, QString(39, u'i') + QStringLiteral("\r\nend"));
    EXPECT_TRUE(Edit([&] {
        ClickPicture(286, 221);
        Type(QStringLiteral("wxyz"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Corner().TextLine(0, 0), QString(39, u'i') + QStringLiteral("wxyz"));
    EXPECT_EQ(Corner().TextLine(0, 1), QStringLiteral("end"));
}

// Typing cuts no line of a corner; a record cuts the last one when it takes a text, of corners as of spaces.
TEST_F(EditCornerTest, TheLastLineOfACornerIsCutWhereItIsStored) {
    const QString almost(39, u'i');
    for (const QString& above : {QString(), QString(45, u'j') + QStringLiteral("\r\n")}) {
        Corner().SetText(0, above + almost);
        EXPECT_TRUE(Edit([&] {
            ClickBehindText();
            Type(QStringLiteral("wxyz"));
            EXPECT_EQ(Find<QLabel>("lblPaper")->text(), QStringLiteral("Only 40 letters fit on the last line."));
            Click("cmdOK");
        }));
        EXPECT_EQ(Corner().TextAll(0), above + almost + u'w');
    }
}

TEST_F(EditCornerTest, Edge_TheSecondBlocksTextSurvivesAnEditOfTheFirst) {
    EXPECT_TRUE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("!"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Corner().TextAll(0), QStringLiteral("Lose\r\nTurn!"));
    EXPECT_EQ(Corner().TextAll(1), QStringLiteral("Second\r\nblock"));
}

TEST_F(EditCornerTest, ACancelledEditWithMoreLinesLeavesNoTrace) {
    desktop.answers = {vbNo};
    EXPECT_FALSE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("\nthird\nfourth"));
        Click("cmdCancel");
    }));
    EXPECT_FALSE(Edit([&] {
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(EditCornerTest, AShorterTextLeavesNothingBehindItsLines) {
    EXPECT_TRUE(Edit([&] {
        DragPicture({98, 200}, {286, 200});
        DragPicture({98, 182}, {286, 268});
        Type(QStringLiteral("Jail"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Corner().TextAll(0), QStringLiteral("Jail"));
    EXPECT_FALSE(Edit([&] {
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(EditCornerTest, SetAllFontsTakesInEverySpaceAndThreeCorners) {
    Corner().Font.Load(QStringLiteral("Times New Roman"), true, false, 20);
    desktop.answers = {vbYes};
    EXPECT_TRUE(Edit([&] {
        Click("cmdSetAllFonts");
        EXPECT_TRUE(desktop.boxes.first().sText.contains(
            QStringLiteral("\r\nin use on this corner to be used for all spaces and corners.\r\n")));
    }));
    for (int space = 0; space < basTAVL::kSpaces; ++space)
        EXPECT_FALSE(basTAVL::g_oSpaces(space).Font.IsDifferentFrom(Corner().Font)) << space;
    for (int corner = 0; corner < 3; ++corner)
        EXPECT_FALSE(basTAVL::g_oCorners(corner).Font.IsDifferentFrom(Corner().Font)) << corner;
    EXPECT_TRUE(basTAVL::g_oCorners(3).Font.IsDifferentFrom(Corner().Font));
}

TEST_F(EditCornerTest, ACornerWithoutANameStaysOpen) {
    Edit([&] {
        DragPicture({98, 182}, {286, 268});
        Press(Qt::Key_Delete);
        Click("cmdOK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Please specify a name for the space.")});
    });
}

TEST_F(EditCornerTest, TipsAndCaptionsAreThoseOfACorner) {
    Corner().Image.Let_FullPath(MakePicture(QStringLiteral("quarters.bmp")));
    Edit([&] {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit Corner"));
        EXPECT_EQ(Find<QGroupBox>("fraBitmap")->title(), QStringLiteral("Bitmap"));
        EXPECT_EQ(Find<QLabel>("lblImageFile")->text(), QStringLiteral("Image File:"));
        MovePicture(kOnPicture.x(), kOnPicture.y());
        EXPECT_EQ(Tip(), QStringLiteral("Click on Image\nto Edit"));
        MovePicture(kOnText.x(), kOnText.y());
        EXPECT_EQ(Tip(), QStringLiteral("Click on Text\nto Edit"));
        MovePicture(20, 225);
        EXPECT_EQ(Tip(), QString()) << "beside the middle half";
        QTest::mouseMove(Find<QWidget>("cmdSetAllFonts"));
        QCoreApplication::processEvents();
        EXPECT_EQ(Tip(), QStringLiteral("Set font for all spaces"));
        EXPECT_EQ(Shown().pixelColor(150, 95), QColor(Qt::red));
    });
}

TEST_F(EditCornerTest, ADoubleClickOnTheWindowOpensNothing) {
    Edit([&] {
        QTest::mouseDClick(&form, Qt::LeftButton, {}, {form.width() - 3, 3});
        EXPECT_EQ(QApplication::activeModalWidget(), &form);
    });
}

} // namespace
