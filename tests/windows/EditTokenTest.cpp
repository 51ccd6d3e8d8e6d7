// SPDX-License-Identifier: MIT
#include "windowing/PictureBox.h"
#include "windows/EditTokenFixture.h"
#include "windows/pictures/frmImagePosition.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>

namespace {

TEST_F(EditTokenTest, Edge_NoToClearImageKeepsThePictureAndAnEmptyEntryBox) {
    GivePicture();
    const QString path = Token().Image.FullPath();
    desktop.answers = {vbNo};
    Edit([&] {
        ClickMiddle();
        Type(QStringLiteral("x"));
        EXPECT_EQ(form.Token().Image.FullPath(), path);
        EXPECT_EQ(EntryBox(), QString());
        EXPECT_EQ(WorkingText(), QString());
        EXPECT_TRUE(ShowsImage());
        EXPECT_EQ(Shown().pixelColor(120, 120), QColor(Qt::red));
        Click("cmdCancel");
    });
    ASSERT_EQ(desktop.boxes.size(), 1) << "there is nothing to save";
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Entering Text will clear the image from the token. Do you wish to use test instead of an "
                             "image?"));
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Clear Image"));
    EXPECT_EQ(desktop.boxes[0].iStyle & 7, vbYesNo);
}

TEST_F(EditTokenTest, Edge_SetAllFontsIsKeptUntilTheExitThoughTheEditIsCancelled) {
    desktop.answers = {vbYes, vbOK, vbNo};
    Edit([&] {
        Click("cmdSetAllFonts");
        ClickBehindText();
        Type(QStringLiteral("dy"));
        Click("cmdCancel");
    });
    EXPECT_TRUE(form.SetsAllFonts());
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Dad"));
    const QStringList told = desktop.Texts();
    ASSERT_EQ(told.size(), 3);
    EXPECT_EQ(told[0],
              QStringLiteral("Clicking 'Yes' below will force the font and max size\r\nin use on this token to be used "
                             "for all tokens.\r\n\r\nThis action CANNOT be undone. Do you wish to continue?"));
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Set All Fonts?"));
    EXPECT_EQ(desktop.boxes[0].iStyle & 7, vbYesNo);
    EXPECT_EQ(told[1], QStringLiteral("The font for all tokens will be changed as soon as you exit this form."));
    Edit([&] { Click("cmdCancel"); });
    EXPECT_FALSE(form.SetsAllFonts()) << "the next visit starts without it";
}

TEST_F(EditTokenTest, Edge_AMetafileTokenCannotBeCropped) {
    GivePicture(MakeMetafile(QStringLiteral("red.wmf")));
    Edit([&] {
        EXPECT_TRUE(IsEnabled("cmdCropImage"));
        Click("cmdCropImage");
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("This image is a 'Windows Metafile'. You are not allowed "
                                                              "to crop or zoom this type of image.")});
    });
}

TEST_F(EditTokenTest, WhatIsTypedReachesTheGameOnOkOnly) {
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("dy\n2"));
        EXPECT_EQ(EntryBox(), QStringLiteral("Daddy\n2")) << "the box mirrors the text";
        EXPECT_EQ(Token().TextAll(), QStringLiteral("Dad"));
        Click("cmdOK");
    });
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Daddy\r\n2"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(EditTokenTest, CancelAsksAboutChangesAndHasThreeWays) {
    desktop.answers = {vbCancel, vbNo};
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("dy"));
        Click("cmdCancel");
        EXPECT_TRUE(form.isVisible()) << "Cancel of the question";
        EXPECT_EQ(WorkingText(), QStringLiteral("Daddy"));
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Dad"));
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("There are unsaved changes. Do you want to save them?"));
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Save Changes"));
    EXPECT_EQ(desktop.boxes[0].iStyle & 7, vbYesNoCancel);

    desktop.answers = {vbYes};
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("dy"));
        Press(Qt::Key_Escape);
    });
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Daddy"));
}

TEST_F(EditTokenTest, AnAnswerThatTheQuestionHasntIsReported) {
    desktop.answers = {vbOK};
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("dy"));
        Click("cmdCancel");
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(desktop.Texts().join(u' ').contains(QStringLiteral("'lResponse' held the following value: '1'")));
    });
}

TEST_F(EditTokenTest, CancelWithoutAChangeAsksNothing) {
    GivePicture();
    Token().Image.Let_XCenter(0);
    Token().Image.Let_YCenter(0);
    Edit([&] {
        ClickMiddle();
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "painting has centred the picture, which is no change";
    EXPECT_TRUE(Token().Image.IsCentered());
}

TEST_F(EditTokenTest, YesToClearImageTypesOnInThePicturesPlace) {
    GivePicture();
    desktop.answers = {vbYes};
    Edit([&] {
        ClickMiddle();
        Type(QStringLiteral("Mom"));
        EXPECT_FALSE(ShowsImage());
        EXPECT_EQ(EntryBox(), QStringLiteral("Mom"));
        EXPECT_EQ(Shown().pixelColor(150, 20), kBlue);
        Click("cmdOK");
    });
    EXPECT_EQ(desktop.boxes.size(), 1) << "asked at the first character only";
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Mom"));
    EXPECT_EQ(Token().Image.FullPath(), QString());
}

TEST_F(EditTokenTest, TextPutIntoTheEntryBoxCountsAsTyped) {
    GivePicture();
    desktop.answers = {vbNo, vbYes};
    Edit([&] {
        Find<QPlainTextEdit>("txtToken")->setPlainText(QStringLiteral("Gran\nma"));
        EXPECT_EQ(EntryBox(), QString());
        EXPECT_TRUE(ShowsImage());
        Find<QPlainTextEdit>("txtToken")->setPlainText(QStringLiteral("Gran\nma"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Gran\r\nma"));
        EXPECT_FALSE(ShowsImage());
    });
    EXPECT_EQ(desktop.boxes.size(), 2);
}

TEST_F(EditTokenTest, SelectingAnImageAsksAboutTheText) {
    MakePicture(QStringLiteral("quarters.bmp"));
    desktop.answers = {vbNo, vbYes};
    Edit([&] {
        EXPECT_EQ(Caption("cmdBitmap"), QStringLiteral("&Select Image"));
        Click("cmdBitmap");
        EXPECT_FALSE(ShowsImage());
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad"));
        InBrowser([](frmBrowse& browser) { Choose(browser, QStringLiteral("quarters.bmp")); });
        Click("cmdBitmap");
        EXPECT_TRUE(ShowsImage());
        EXPECT_EQ(WorkingText(), QString());
        EXPECT_EQ(EntryBox(), QString());
        EXPECT_EQ(Shown().pixelColor(120, 120), QColor(Qt::red));
        Click("cmdOK");
    });
    EXPECT_EQ(browsersSeen, 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Selecting an image will clear the text from the token. Do you wish to use an image "
                             "instead of text?"));
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Clear Text"));
    EXPECT_EQ(desktop.boxes[0].iStyle & 7, vbYesNo);
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_TRUE(Token().Image.FullPath().endsWith(QStringLiteral("quarters.bmp")));
}

TEST_F(EditTokenTest, ABrowserThatIsCancelledGivesTheTextBack) {
    desktop.answers = {vbYes};
    Edit([&] {
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("cmdBitmap");
        EXPECT_FALSE(ShowsImage());
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad"));
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("optInclude_0");
        EXPECT_FALSE(ShowsImage());
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad"));
        EXPECT_EQ(EntryBox(), QStringLiteral("Dad"));
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(browsersSeen, 2);
    EXPECT_EQ(desktop.boxes.size(), 1) << "nothing is left to save";
}

TEST_F(EditTokenTest, TheOptionsSwitchBetweenImageAndText) {
    MakePicture(QStringLiteral("quarters.bmp"));
    Edit([&] {
        EXPECT_FALSE(IsEnabled("cmdCropImage"));
        EXPECT_TRUE(IsEnabled("cmdChangeFont"));
        EXPECT_TRUE(IsEnabled("cmdSetAllFonts"));
        InBrowser([](frmBrowse& browser) { Choose(browser, QStringLiteral("quarters.bmp")); });
        Click("optInclude_0");
        EXPECT_TRUE(desktop.boxes.isEmpty()) << "the option says it already";
        EXPECT_EQ(Caption("cmdBitmap"), QStringLiteral("Cha&nge Image"));
        EXPECT_TRUE(IsEnabled("cmdCropImage"));
        EXPECT_FALSE(IsEnabled("cmdChangeFont"));
        EXPECT_FALSE(IsEnabled("cmdSetAllFonts"));
        EXPECT_EQ(WorkingText(), QString());
        Click("optInclude_1");
        EXPECT_EQ(Caption("cmdBitmap"), QStringLiteral("&Select Image"));
        EXPECT_FALSE(IsEnabled("cmdCropImage"));
        EXPECT_EQ(form.Token().Image.FullPath(), QString());
        EXPECT_EQ(form.focusWidget()->objectName(), QStringLiteral("txtHoldFocus"));
    });
}

TEST_F(EditTokenTest, AnotherPictureTakesThePlaceWithoutAQuestion) {
    GivePicture();
    MakePicture(QStringLiteral("wide.bmp"), 90, 60);
    Edit([&] {
        InBrowser([](frmBrowse& browser) { Choose(browser, QStringLiteral("wide.bmp")); });
        Click("cmdBitmap");
        Click("cmdOK");
    });
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(Token().Image.FullPath().endsWith(QStringLiteral("wide.bmp")));
}

TEST_F(EditTokenTest, APictureIsCroppedBehindARoundHole) {
    GivePicture();
    Edit([&] {
        QTimer::singleShot(0, window, [] {
            auto* position = qobject_cast<frmImagePosition*>(QApplication::activeModalWidget());
            ASSERT_NE(position, nullptr);
            auto* preview = position->findChild<PictureBox*>(QStringLiteral("picZoomed"));
            EXPECT_EQ(preview->width(), preview->height());
            const QImage shown = preview->Image();
            EXPECT_NE(shown.pixelColor(3, 3), QColor(Qt::red)) << "outside the circle";
            EXPECT_EQ(shown.pixelColor(shown.width() / 3, shown.height() / 3), QColor(Qt::red));
            position->hide();
        });
        Click("cmdCropImage");
    });
}

TEST_F(EditTokenTest, BarsBesideACroppedPictureAreOfTheTokensColor) {
    const QColor ground(0, 128, 192);
    GivePicture(MakePicture(QStringLiteral("wide.bmp"), 90, 60));
    Token().BackColor = Color::Rgb(ground.red(), ground.green(), ground.blue());
    Edit([&] {
        QTimer::singleShot(0, window, [&] {
            auto* position = qobject_cast<frmImagePosition*>(QApplication::activeModalWidget());
            ASSERT_NE(position, nullptr);
            const QImage shown = position->findChild<PictureBox*>(QStringLiteral("picZoomed"))->Image();
            EXPECT_EQ(shown.pixelColor(shown.width() / 2, 3), ground);
            position->hide();
        });
        Click("cmdCropImage");
    });
}

TEST_F(EditTokenTest, LookingAtATokenWhosePictureIsAwayChangesNothing) {
    GivePicture();
    Token().Image.Let_Zoom(7);
    Token().Image.Let_XCenter(12);
    QFile::remove(Token().Image.FullPath());
    const C_Token before = Token();
    for (const char* button : {"cmdCancel", "cmdOK"}) {
        Edit([&] {
            EXPECT_TRUE(ShowsImage());
            EXPECT_EQ(desktop.boxes.size(), 1) << "told once";
            EXPECT_TRUE(desktop.Texts().join(u' ').contains(QStringLiteral("quarters.bmp")));
            Click(button);
        });
        EXPECT_FALSE(Token().IsDifferentFrom(before)) << button;
    }
    EXPECT_EQ(Token().Image.Zoom(), 7);
    EXPECT_FALSE(session.IsUnsaved());
}

// Games made by hand have such tokens, and a token's name is worth keeping.
TEST_F(EditTokenTest, ATokenWithBothShowsItsPictureAndKeepsTheTextBehindIt) {
    Token().SetImagePath(MakePicture(QStringLiteral("quarters.bmp")));
    Edit([&] {
        EXPECT_TRUE(ShowsImage());
        EXPECT_EQ(EntryBox(), QStringLiteral("Dad"));
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("cmdBitmap");
        Click("cmdCancel");
    });
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Dad"));
    Edit([&] {
        Click("optInclude_1");
        EXPECT_EQ(form.GetTextArray(), QStringList{QStringLiteral("Dad")});
        Click("cmdOK");
    });
    EXPECT_EQ(Token().Image.FullPath(), QString());
    EXPECT_EQ(Token().TextAll(), QStringLiteral("Dad"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(EditTokenTest, TheFontDialogSetsFontAndLargestSize) {
    desktop.onDialog = [](CommonDialog& dialog) {
        EXPECT_EQ(dialog.fFontSize, 48);
        dialog.sFontName = QStringLiteral("Times New Roman");
        dialog.bFontBold = true;
        dialog.fFontSize = 10;
        return true;
    };
    Edit([&] {
        const QImage before = Shown().copy();
        Click("cmdChangeFont");
        EXPECT_NE(Shown(), before);
        Click("cmdOK");
    });
    EXPECT_EQ(Token().Font.Family, QStringLiteral("Times New Roman"));
    EXPECT_TRUE(Token().Font.Bold);
    EXPECT_EQ(Token().Font.Size, 10);
    desktop.onDialog = nullptr;
    Edit([&] {
        Click("cmdChangeFont");
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible()) << "a dialog that is cancelled changes nothing";
    });
}

TEST_F(EditTokenTest, NoToSetAllFontsLeavesTheFlagDown) {
    desktop.answers = {vbNo};
    Edit([&] { Click("cmdSetAllFonts"); });
    EXPECT_FALSE(form.SetsAllFonts());
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(EditTokenTest, HelpTellsHowToType) {
    const QString help = QStringLiteral(
        "To insert text, simply click in the middle of the token and start typing. \r\n\r\nTo edit the text, use the "
        "mouse to select text or set the insert point and again, start typing. ");
    Edit([&] {
        Click("cmdHelp");
        EXPECT_EQ(desktop.Texts(), QStringList{help});
    });
}

TEST_F(EditTokenTest, KeysEditTheTextWhileACaretStands) {
    Edit([&] {
        Type(QStringLiteral("s"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Dads")) << "the caret stands in the text";
        Press(Qt::Key_Backspace);
        ClickPicture(kBesideText.x(), kBesideText.y());
        Type(QStringLiteral("nobody listens"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad"));
        ClickBehindText();
        Press(Qt::Key_Left);
        Press(Qt::Key_Delete);
        Type(QStringLiteral("y "));
        EXPECT_EQ(WorkingText(), QStringLiteral("Day "));
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(WorkingText(), QStringLiteral("Day\r\n"));
        ClickPicture(kBesideText.x(), kBesideText.y());
        Type(QStringLiteral("z"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Day\r\n")) << "a click beside the text ends the typing";
    });
}

TEST_F(EditTokenTest, TheMouseSelectsAndTheClipboardTakesIt) {
    Edit([&] {
        DragPicture({45, 150}, kBehindText);
        Press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Dad"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad"));
        Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(WorkingText(), QString());
        QGuiApplication::clipboard()->setText(QStringLiteral("Aunt\nJo"));
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(WorkingText(), QStringLiteral("Aunt\r\nJo"));
    });
}

TEST_F(EditTokenTest, PastingOnAPictureAsksOnce) {
    GivePicture();
    desktop.answers = {vbYes};
    QGuiApplication::clipboard()->setText(QStringLiteral("Aunt Jo"));
    Edit([&] {
        ClickMiddle();
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(WorkingText(), QStringLiteral("Aunt Jo"));
    });
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(EditTokenTest, AnInputMethodsTextComesWhole) {
    Edit([&] {
        ClickBehindText();
        auto* focus = Find<QWidget>("txtHoldFocus");
        QInputMethodEvent composing(QStringLiteral("´"), {});
        QApplication::sendEvent(focus, &composing);
        EXPECT_TRUE(Find<QWidget>("lblComposing")->isVisible());
        QInputMethodEvent ready;
        ready.setCommitString(QStringLiteral("é"));
        QApplication::sendEvent(focus, &ready);
        EXPECT_FALSE(Find<QWidget>("lblComposing")->isVisible());
        EXPECT_EQ(WorkingText(), QStringLiteral("Dadé"));
    });
}

TEST_F(EditTokenTest, TheTabKeyBringsTheCaretAndTakesItAway) {
    Edit([&] {
        Press(Qt::Key_Backtab);
        Press(Qt::Key_Tab);
        Type(QStringLiteral("!"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad!"));
        Press(Qt::Key_Tab);
        EXPECT_TRUE(Find<QRadioButton>("optInclude_1")->hasFocus() || Find<QRadioButton>("optInclude_0")->hasFocus());
        Type(QStringLiteral("?"));
        EXPECT_EQ(WorkingText(), QStringLiteral("Dad!"));
    });
}

TEST_F(EditTokenTest, ALineKeepsFortyCharacters) {
    Token().SetText(QString(39, u'i'));
    Edit([&] {
        ClickPicture(255, 150);
        Type(QStringLiteral("xy"));
        EXPECT_EQ(WorkingText(), QString(39, u'i') + u'x');
    });
}

TEST_F(EditTokenTest, ControlsCarryTheirTipsAndCaptions) {
    const struct {
        const char* control;
        const char* caption;
        const char* tip;
    } rows[] = {
        {"optInclude_0", "Use &Image", "Click to use an Image on the token"},
        {"optInclude_1", "Use &Text", "Click to use Text on the token"},
        {"cmdBitmap", "&Select Image", "Click to select or change the image"},
        {"cmdCropImage", "C&rop  Image", "Click to crop or reposition the image"},
        {"cmdChangeFont", "Change &Font", "Change font family, style and maximum size"},
        {"cmdSetAllFonts", "Set &All Fonts", "Click to set fonts for ALL tokens"},
    };
    Edit([&] {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit Token"));
        for (const auto& row : rows) {
            EXPECT_EQ(Caption(row.control), QString::fromLatin1(row.caption));
            EXPECT_TRUE(Find<QWidget>(row.control)->toolTip().contains(QString::fromLatin1(row.tip))) << row.control;
        }
        EXPECT_EQ(Find<QWidget>("cmdIndex")->property("Tag").toInt(), kToken);
        EXPECT_TRUE(Find<QWidget>("cmdIndex")->isHidden());
        EXPECT_TRUE(Find<QWidget>("txtToken")->isHidden());
        EXPECT_TRUE(
            Find<QWidget>("txtToken")->toolTip().contains(QStringLiteral("Enter or edit text for the token here")));
        EXPECT_TRUE(Find<QWidget>("txtHoldFocus")
                        ->toolTip()
                        .contains(QStringLiteral("Dummy text area needed to hold the focus")));
    });
}

TEST_F(EditTokenTest, TheTokenIsRoundOnItsColour) {
    Edit([&] {
        const QImage shown = Shown();
        EXPECT_EQ(shown.pixelColor(150, 6), kBlue);
        EXPECT_EQ(shown.pixelColor(6, 150), kBlue);
        EXPECT_NE(shown.pixelColor(30, 30), kBlue) << "beyond the circle";
        EXPECT_NE(shown.pixelColor(0, 0), kBlue);
    });
}

} // namespace
