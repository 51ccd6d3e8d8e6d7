// SPDX-License-Identifier: MIT
// What an editor holds until its window is closed: a picture taken off and wanted back, and the name of a piece.
#include "windows/editors/frmEditSpace.h"
#include "windows/EditTokenFixture.h"

#include <QCheckBox>
#include <QLabel>

namespace {

class NothingForgottenTest : public EditWindowTest {
protected:
    NothingForgottenTest() {
        C_Image& image = Space().Image;
        image.Let_FullPath(MakePicture(QStringLiteral("quarters.bmp")));
        image.Let_Zoom(7);
        image.Let_XCenter(11);
        image.Let_YCenter(12);
        picture = image.Ref();
    }
    static C_Space& Space() { return basTAVL::g_oSpaces(kSpace); }
    bool EditSpace(const std::function<void()>& doIt) { return Edit(space, kSpace, doIt); }
    void Name(const QString& text) {
        Space().Image.Let_FullPath(QString());
        Space().SetText(text);
    }
    /// Every letter of the name is erased, and this one typed in its place.
    bool OkAfterTyping(const QString& text) {
        return EditSpace([&] {
            ClickPicture(185, 210);
            for (int i = 0; i < 60; ++i) {
                Press(Qt::Key_Backspace);
                Press(Qt::Key_Delete);
            }
            Type(text);
            Click("cmdOK");
            if (form().isVisible()) Click("cmdCancel");
        });
    }
    QDialog& form() { return space; }

    PictureRef picture;
    frmEditSpace space{session};
};

using EditTokenForgottenTest = EditTokenTest;

TEST_F(NothingForgottenTest, ThePictureTakenOffComesBackWithItsPart) {
    EXPECT_FALSE(EditSpace([&] {
        Click("chkIncludeImage");
        EXPECT_EQ(Find<QLabel>("txtBitmapPath")->text(), QString());
        InBrowser([&](frmBrowse& browser) { Cancel(browser); });
        Click("chkIncludeImage");
        EXPECT_EQ(browsersSeen, 1) << "to choose another all the same";
        EXPECT_TRUE(Find<QCheckBox>("chkIncludeImage")->isChecked());
        EXPECT_EQ(Find<QLabel>("txtBitmapPath")->text(), picture.sPath);
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.Ref(), picture);
}

TEST_F(NothingForgottenTest, AnotherPictureMayBeChosenInItsPlace) {
    const QString other = MakePicture(QStringLiteral("other.bmp"));
    EXPECT_TRUE(EditSpace([&] {
        Click("chkIncludeImage");
        InBrowser([&](frmBrowse& browser) { Choose(browser, QStringLiteral("other.bmp")); });
        Click("chkIncludeImage");
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.FullPath(), other);
    EXPECT_EQ(Space().Image.Zoom(), 0);
}

TEST_F(NothingForgottenTest, ANewOpeningRemembersNothing) {
    EXPECT_TRUE(EditSpace([&] {
        Click("chkIncludeImage");
        Click("cmdOK");
    }));
    EXPECT_FALSE(EditSpace([&] {
        InBrowser([&](frmBrowse& browser) { Cancel(browser); });
        Click("chkIncludeImage");
        EXPECT_FALSE(Find<QCheckBox>("chkIncludeImage")->isChecked());
        Click("cmdOK");
    }));
}

TEST_F(NothingForgottenTest, BlanksInThePlaceOfANameAreNoName) {
    for (const char* blanks : {" ", "\r", " \r "}) {
        Name(QStringLiteral("Elm"));
        desktop.boxes.clear();
        desktop.answers = {vbOK, vbNo};
        EXPECT_FALSE(OkAfterTyping(QString::fromLatin1(blanks)));
        ASSERT_EQ(desktop.boxes.size(), 2) << "and Cancel asks about the change";
        EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("Please specify a name for the space."));
        EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm"));
    }
}

TEST_F(NothingForgottenTest, BlanksThatStoodThereOrStandByAPictureMayBeMeant) {
    Name(QStringLiteral(" "));
    EXPECT_FALSE(EditSpace([&] { Click("cmdOK"); }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    Name(QStringLiteral("Elm"));
    basDraw::Draw_SetHdc(&context);
    Space().SetImagePath(picture.sPath);
    EXPECT_TRUE(EditSpace([&] {
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Tab);
        for (int i = 0; i < 3; ++i)
            Press(Qt::Key_Backspace);
        Type(QStringLiteral(" "));
        Click("cmdOK");
        EXPECT_FALSE(space.isVisible());
    }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(NothingForgottenTest, TheFirstLetterTypedTakesThePlaceOfBlanks) {
    Name(QStringLiteral(" "));
    EXPECT_TRUE(EditSpace([&] {
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Tab);
        Type(QStringLiteral("Oak Hill"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Oak Hill")) << "without a blank at its end";
}

TEST_F(NothingForgottenTest, APictureChosenAgainShowsItsPartAgain) {
    MakePicture(QStringLiteral("other.bmp"), 40, 60);
    MakePicture(QStringLiteral("third.bmp"), 50, 60);
    EXPECT_FALSE(EditSpace([&] {
        for (const char* name : {"other.bmp", "third.bmp", "quarters.bmp"}) {
            InBrowser([&](frmBrowse& browser) { Choose(browser, QString::fromLatin1(name)); });
            Click("cmdBitmap");
        }
        Click("cmdOK");
    })) << "nothing has changed in the end";
    EXPECT_EQ(browsersSeen, 3);
    EXPECT_EQ(Space().Image.Ref(), picture);
}

TEST_F(EditTokenForgottenTest, APictureChosenAgainShowsItsPartAgain) {
    const PictureRef picture = GiveCroppedPicture();
    MakePicture(QStringLiteral("other.bmp"), 40, 60);
    Edit([&] {
        for (const char* name : {"other.bmp", "quarters.bmp"}) {
            InBrowser([&](frmBrowse& browser) { Choose(browser, QString::fromLatin1(name)); });
            Click("cmdBitmap");
        }
        Click("cmdOK");
    });
    EXPECT_EQ(browsersSeen, 2);
    EXPECT_EQ(Token().Image.Ref(), picture);
}

TEST_F(EditTokenForgottenTest, ThePictureThatGaveWayToTheTextComesBackWithItsPart) {
    const PictureRef picture = GiveCroppedPicture();
    Edit([&] {
        Click("optInclude_1");
        EXPECT_TRUE(form.Token().Image.FullPath().isEmpty());
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("optInclude_0");
        EXPECT_TRUE(ShowsImage());
        Click("cmdOK");
    });
    EXPECT_EQ(Token().Image.Ref(), picture);
}

TEST_F(EditTokenForgottenTest, ATextTypedInThePicturesPlaceStaysWhenNoPictureIsChosen) {
    GivePicture();
    Token().Image.Let_Zoom(7);
    const PictureRef picture = Token().Image.Ref();
    Edit([&] {
        Click("optInclude_1");
        ClickMiddle();
        Type(QStringLiteral("Mom"));
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("optInclude_0");
        EXPECT_FALSE(ShowsImage());
        EXPECT_EQ(WorkingText(), QStringLiteral("Mom"));
        InBrowser([](frmBrowse& browser) { Choose(browser, QStringLiteral("quarters.bmp")); });
        Click("optInclude_0");
        EXPECT_EQ(form.Token().Image.Ref().iZoom, picture.iZoom) << "the same picture, the same part";
        Click("cmdOK");
    });
    EXPECT_EQ(browsersSeen, 2);
}

} // namespace
