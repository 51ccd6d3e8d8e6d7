// SPDX-License-Identifier: MIT
#include "windowing/PictureBox.h"
#include "windows/EditSpaceFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>

namespace {

constexpr QPoint kBelowPicture(103, 240);
constexpr QPoint kOnPicture(100, 120);
constexpr QPoint kOutside(5, 5);

TEST_F(EditSpaceTest, Edge_OkWithoutANameStaysOpenAndCancelWithChangesOffersToSave) {
    desktop.answers = {vbOK, vbCancel};
    const bool changed = Edit([&] {
        ClickPicture(20, 66);
        DragPicture({20, 66}, {186, 272});
        Press(Qt::Key_Delete);
        Click("cmdOK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Please specify a name for the space."));
        Click("cmdCancel");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("There are unsaved changes. Do you want to save them?"));
        EXPECT_EQ(desktop.boxes.last().sTitle, QStringLiteral("Save Changes"));
        EXPECT_EQ(desktop.boxes.last().iStyle, int(vbYesNoCancel));
        desktop.answers = {vbNo};
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_FALSE(changed);
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet"));
}

TEST_F(EditSpaceTest, Edge_CancelKeepsTheChangesOnYesAndDropsThemOnNo) {
    desktop.answers = {vbNo, vbYes};
    EXPECT_FALSE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("s"));
        Click("cmdCancel");
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet"));
    EXPECT_TRUE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("s"));
        Click("cmdCancel");
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreets"));
    EXPECT_EQ(desktop.boxes.size(), 2);
}

TEST_F(EditSpaceTest, Edge_PressingTheMouseOnAPictureStartsTheBrowserAtOnce) {
    GivePicture(MakePicture(QStringLiteral("quarters.bmp")));
    Edit([&] {
        InBrowser([&](frmBrowse& browser) { Cancel(browser); });
        QTest::mousePress(Find<PictureBox>("picDest"), Qt::LeftButton, {}, kOnPicture);
        EXPECT_EQ(browsersSeen, 1);
    });
}

TEST_F(EditSpaceTest, Edge_WithAPictureTheTextBoxShrinksToTheLowerHalf) {
    Edit([&] {
        ClickPicture(103, 100);
        Type(QStringLiteral("a"));
        EXPECT_NE(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Street"));
    });
    Space().LoadFromObject(C_Space());
    Space().SetText(QStringLiteral("Elm"));
    GivePicture(MakePicture(QStringLiteral("quarters.bmp")));
    Edit([&] {
        ClickPicture(30, 70);
        Type(QStringLiteral("x"));
        EXPECT_EQ(form.GetTextArray(), QStringList{QStringLiteral("Elm")}) << "beside the picture";
        ClickPicture(103, 295);
        Type(QStringLiteral("x"));
        EXPECT_EQ(form.GetTextArray(), QStringList{QStringLiteral("Elm")}) << "below the text box";
        ClickPicture(186, 294);
        Type(QStringLiteral("x"));
        EXPECT_EQ(form.GetTextArray(), QStringList{QStringLiteral("Elmx")});
    });
}

TEST_F(EditSpaceTest, Edge_SetAllFontsLeavesTheFourthCornerAsItIs) {
    desktop.answers = {vbYes};
    Space().Font.Load(QStringLiteral("Times New Roman"), true, true, 18);
    EXPECT_TRUE(Edit([&] { Click("cmdSetAllFonts"); }));
    EXPECT_TRUE(form.ChangedAllFonts());
    for (int corner = 0; corner < 3; ++corner)
        EXPECT_FALSE(basTAVL::g_oCorners(corner).Font.IsDifferentFrom(Space().Font)) << corner;
    EXPECT_FALSE(basTAVL::g_oCorners(3).Font.IsDifferentFrom(C_FontInfo()));
    for (int space = 0; space < basTAVL::kSpaces; ++space)
        EXPECT_FALSE(basTAVL::g_oSpaces(space).Font.IsDifferentFrom(Space().Font)) << space;
}

TEST_F(EditSpaceTest, Edge_AMetafileIsShownButNotCropped) {
    GivePicture(MakeMetafile(QStringLiteral("red.wmf")));
    Edit([&] {
        EXPECT_EQ(Shown().pixelColor(kOnPicture), QColor(Qt::red));
        Click("cmdCropImage");
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("This image is a 'Windows Metafile'. You are not allowed to crop or zoom "
                                             "this type of image.")});
        EXPECT_EQ(desktop.boxes.last().iStyle, int(vbInformation));
    });
}

TEST_F(EditSpaceTest, LookingAtASpaceChangesNothingAndAsksNothing) {
    GivePicture(MakePicture(QStringLiteral("wide.bmp"), 90, 30));
    EXPECT_FALSE(Edit([&] {
        ClickBehindText();
        Press(Qt::Key_Left);
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(Space().Image.XCenter(), 45) << "the game's picture is centred like the copy";
    EXPECT_FALSE(form.ChangedAllFonts());
}

TEST_F(EditSpaceTest, EscapeAndTheCloseButtonDoWhatCancelDoes) {
    desktop.answers = {vbCancel, vbNo};
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("s"));
        Press(Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(desktop.boxes.size(), 1);
        form.close();
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(desktop.boxes.size(), 2);
    });
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet"));
}

TEST_F(EditSpaceTest, APictureFoundReachesTheGameAndHalvesTheText) {
    const QString path = MakePicture(QStringLiteral("quarters.bmp"));
    Space().SetText(QStringLiteral("No\r\n7"));
    const float alone = Space().m_fTextSize;
    EXPECT_TRUE(Edit([&] {
        EXPECT_FALSE(Find<QPushButton>("cmdBitmap")->isEnabled());
        EXPECT_FALSE(Find<QPushButton>("cmdCropImage")->isEnabled());
        InBrowser([&](frmBrowse& browser) { Choose(browser, QStringLiteral("quarters.bmp")); });
        Click("chkIncludeImage");
        EXPECT_EQ(browsersSeen, 1);
        EXPECT_TRUE(Find<QPushButton>("cmdCropImage")->isEnabled());
        EXPECT_EQ(Find<QLabel>("txtBitmapPath")->text(), path);
        EXPECT_EQ(Shown().pixelColor(60, 80), QColor(Qt::red));
        EXPECT_EQ(Shown().pixelColor(150, 170), QColor(Qt::white));
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.FullPath(), path);
    EXPECT_LT(Space().m_fTextSize, alone);
}

TEST_F(EditSpaceTest, ABrowserLeftWithoutAPictureEmptiesTheBox) {
    Edit([&] {
        InBrowser([&](frmBrowse& browser) { Cancel(browser); });
        Click("chkIncludeImage");
        EXPECT_EQ(browsersSeen, 1);
        EXPECT_FALSE(Find<QCheckBox>("chkIncludeImage")->isChecked());
        EXPECT_FALSE(Find<QPushButton>("cmdBitmap")->isEnabled());
    });
}

TEST_F(EditSpaceTest, ClearingTheBoxRemovesThePictureAndGivesTheTextItsRoomBack) {
    Space().SetText(QStringLiteral("No\r\n7"));
    const float alone = Space().m_fTextSize;
    GivePicture(MakePicture(QStringLiteral("quarters.bmp")));
    EXPECT_TRUE(Edit([&] {
        EXPECT_TRUE(Find<QCheckBox>("chkIncludeImage")->isChecked());
        Click("chkIncludeImage");
        Click("cmdOK");
    }));
    EXPECT_EQ(browsersSeen, 0);
    EXPECT_EQ(Space().Image.FullPath(), QString());
    EXPECT_EQ(Space().m_fTextSize, alone);
}

TEST_F(EditSpaceTest, TheFontDialogCapsTheSizeAndCancelDropsIt) {
    desktop.onDialog = [](CommonDialog& dialog) {
        EXPECT_EQ(dialog.iFlags, 1);
        EXPECT_EQ(dialog.sFontName, QStringLiteral("Arial"));
        EXPECT_EQ(dialog.fFontSize, 48);
        dialog.sFontName = QStringLiteral("Old Family Font");
        dialog.bFontItalic = true;
        dialog.fFontSize = 9;
        return true;
    };
    desktop.answers = {vbNo};
    Edit([&] {
        Click("cmdChangeFont");
        Click("cmdCancel");
    });
    EXPECT_EQ(Space().Font.Family, QStringLiteral("Arial"));
    EXPECT_TRUE(Edit([&] {
        Click("cmdChangeFont");
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Font.Family, QStringLiteral("Old Family Font")) << "kept by name although nobody has it";
    EXPECT_TRUE(Space().Font.Italic);
    EXPECT_FLOAT_EQ(Space().TextSize(), 0.009F);
}

TEST_F(EditSpaceTest, CancelGivesBackNameFontPictureAndCrop) {
    GivePicture(MakePicture(QStringLiteral("quarters.bmp")));
    MakePicture(QStringLiteral("other.bmp"));
    Edit([] {});
    C_Space before;
    before.LoadFromObject(Space());
    desktop.onDialog = [](CommonDialog& dialog) {
        dialog.sFontName = QStringLiteral("Times New Roman");
        dialog.bFontBold = true;
        dialog.fFontSize = 9;
        return true;
    };
    desktop.answers = {vbNo};
    EXPECT_FALSE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("s\nNo 7"));
        Click("cmdChangeFont");
        InBrowser([&](frmBrowse& browser) { Choose(browser, QStringLiteral("other.bmp")); });
        Click("cmdBitmap");
        EXPECT_TRUE(Find<QLabel>("txtBitmapPath")->text().endsWith(QStringLiteral("other.bmp")));
        QTimer::singleShot(0, &form, [] {
            auto* position = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_EQ(position->objectName(), QStringLiteral("frmImagePosition"));
            position->findChild<QSlider*>(QStringLiteral("sldZoom"))->setValue(60);
            QTest::mouseClick(position->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        Click("cmdCropImage");
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(browsersSeen, 1);
    EXPECT_FALSE(Space().IsDifferentFrom(before));
}

TEST_F(EditSpaceTest, AFontDialogThatIsCancelledChangesNothing) {
    EXPECT_FALSE(Edit([&] {
        Click("cmdChangeFont");
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
}

TEST_F(EditSpaceTest, SetAllFontsAsksAndRefits) {
    C_Space& other = basTAVL::g_oSpaces(20);
    other.SetText(QStringLiteral("Main Lane"));
    const float fitted = other.m_fTextSize;
    other.Let_TextSize(1);
    Space().Font.Bold = true;
    Space().SetText(TextLines::kUseExisting);
    desktop.answers = {vbNo, vbYes};
    EXPECT_FALSE(Edit([&] { Click("cmdSetAllFonts"); }));
    EXPECT_FALSE(other.Font.Bold);
    EXPECT_EQ(desktop.boxes.last().sTitle, QStringLiteral("Set All Fonts?"));
    EXPECT_EQ(desktop.boxes.last().iStyle, 51);
    EXPECT_EQ(desktop.boxes.last().sText,
              QStringLiteral("Clicking 'Yes' below will force the font and max size\r\nin use on this space to be used "
                             "for all spaces and corners.\r\n\r\nThis action CANNOT be undone. Do you wish to "
                             "continue?"));
    EXPECT_TRUE(Edit([&] {
        Click("cmdSetAllFonts");
        EXPECT_EQ(desktop.boxes.last().iStyle, int(vbInformation));
        EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("All fonts have been changed. The change will be visible "
                                                             "as soon as you exit the current form."));
    }));
    EXPECT_TRUE(other.Font.Bold);
    EXPECT_NEAR(other.m_fTextSize, fitted, fitted / 4);
}

TEST_F(EditSpaceTest, EveryTipIsShown) {
    GivePicture(MakePicture(QStringLiteral("quarters.bmp")));
    Edit([&] {
        MovePicture(kOnPicture.x(), kOnPicture.y());
        EXPECT_EQ(Tip(), QStringLiteral("Click on Image\nto Change"));
        EXPECT_EQ(Find<PictureBox>("picDest")->cursor().shape(), Qt::UpArrowCursor);
        MovePicture(kBelowPicture.x(), kBelowPicture.y());
        EXPECT_EQ(Tip(), QStringLiteral("Click on Text\nto Edit"));
        EXPECT_EQ(Find<PictureBox>("picDest")->cursor().shape(), Qt::IBeamCursor);
        MovePicture(kOutside.x(), kOutside.y());
        EXPECT_EQ(Tip(), QString());
        EXPECT_EQ(Find<PictureBox>("picDest")->cursor().shape(), Qt::ArrowCursor);
        const QList<std::pair<const char*, QString>> tips{
            {"cmdOK", QStringLiteral("Click to Save\nYour Changes")},
            {"cmdCancel", QStringLiteral("Click to Undo\nYour Changes")},
            {"cmdChangeFont", QStringLiteral("Change font and max size")},
            {"cmdSetAllFonts", QStringLiteral("Set font for all spaces")},
            {"cmdBitmap", QStringLiteral("Click to Change\nThe Image")},
            {"cmdCropImage", QStringLiteral("Click to Crop The Image")},
            {"chkIncludeImage", QStringLiteral("Click to\nRemove Image")},
        };
        for (const auto& [name, text] : tips) {
            QTest::mouseMove(Find<QWidget>(name));
            QCoreApplication::processEvents();
            EXPECT_EQ(Tip(), text) << name;
        }
        Click("chkIncludeImage");
        QTest::mouseMove(Find<QWidget>("cmdOK"));
        QTest::mouseMove(Find<QWidget>("chkIncludeImage"));
        QCoreApplication::processEvents();
        EXPECT_EQ(Tip(), QStringLiteral("Click to Add\nAn Image"));
    });
}

TEST_F(EditSpaceTest, ControlsHaveTheirCaptionsAndNoneIsPressedByDefault) {
    window = &form;
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit Space"));
    EXPECT_EQ(Find<QPushButton>("cmdCancel")->text(), QStringLiteral("&Cancel"));
    EXPECT_EQ(Find<QPushButton>("cmdChangeFont")->text(), QStringLiteral("Change &Font"));
    EXPECT_EQ(Find<QPushButton>("cmdSetAllFonts")->text(), QStringLiteral("Set &All Fonts"));
    EXPECT_EQ(Find<QPushButton>("cmdBitmap")->text(), QStringLiteral("&Find Image"));
    EXPECT_EQ(Find<QPushButton>("cmdCropImage")->text(), QStringLiteral("C&rop  Image"));
    EXPECT_EQ(Find<QCheckBox>("chkIncludeImage")->text(), QStringLiteral("&Include Image"));
    for (const QPushButton* button : form.findChildren<QPushButton*>())
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
}

TEST_F(EditSpaceTest, ThePathBoxTellsWhereToClick) {
    Edit([&] {
        QTest::mouseClick(Find<QLabel>("txtBitmapPath"), Qt::LeftButton);
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("To change the Bitmap, please click the 'Find Image' button.")});
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("txtHoldFocus"));
    });
}

TEST_F(EditSpaceTest, ADamagedPictureIsToldByTheBrowserAndByNobodyElse) {
    const QString bitmap = MakePicture(QStringLiteral("damaged.bmp"));
    const QString metafile = MakeMetafile(QStringLiteral("damaged.wmf"));
    EXPECT_TRUE(QFile::resize(bitmap, 2000));
    EXPECT_TRUE(QFile::resize(metafile, 10));
    for (const QString& path : {bitmap, metafile}) {
        SCOPED_TRACE(path.toStdString());
        desktop.boxes.clear();
        GivePicture(QString());
        Edit([&] {
            InBrowser([&](frmBrowse& browser) {
                Choose(browser, QFileInfo(path).fileName());
                EXPECT_TRUE(browser.isVisible()) << "a refused file can't be taken";
                Cancel(browser);
            });
            Click("chkIncludeImage");
            Click("cmdOK");
        });
        EXPECT_EQ(Space().Image.FullPath(), QString());
        EXPECT_EQ(desktop.boxes.size(), 1);
    }
    EXPECT_EQ(browsersSeen, 2);
}

TEST_F(EditSpaceTest, AMissingPictureIsToldOnceAndTheEditorGoesOn) {
    const QString path = MakePicture(QStringLiteral("gone.bmp"));
    GivePicture(path);
    QFile::remove(path);
    Edit([&] {
        EXPECT_EQ(desktop.boxes.size(), 1);
        ClickBehindText();
        Type(QStringLiteral("s"));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Streets"));
        EXPECT_EQ(desktop.boxes.size(), 1);
    });
}

} // namespace
