// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditMoney.h"

#include "pieces/frmBMP.h"
#include "platform/pictures/LoadPicture.h"
#include "windowing/PictureBox.h"
#include "windows/EditWindowFixture.h"
#include "windows/pictures/frmImagePosition.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>

namespace {

const QString kBreak = QStringLiteral("\r\n");

// Pixels of the note shown.
constexpr QPoint kMiddleOfOval(177, 95);
constexpr QRect kLeftText(40, 72, 84, 48);
constexpr QRect kRightText(230, 72, 84, 48);

class EditMoneyTest : public EditWindowTest {
protected:
    EditMoneyTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        frmImagePosition::ResetForTest();
        for (int i = 0; i < basTAVL::kMoney; ++i) {
            C_Money& money = basTAVL::g_oMoney(i);
            money.BackColor = Color::Rgb(200, 220, 240 - i);
            money.FaceImage.Init(QString(), QStringLiteral("Money"), qint16(i));
            money.Let_Text(0, QStringLiteral("left %1").arg(i));
            money.Let_Text(1, QStringLiteral("right %1").arg(i));
        }
    }

    bool Edit(const std::function<void()>& doIt) {
        window = &form;
        InWindow(doIt);
        return form.ShowForm();
    }
    void Choose(int note) { Click(qPrintable(QStringLiteral("optMoney_%1").arg(note))); }
    QPlainTextEdit& Box(int text) { return *Find<QPlainTextEdit>(qPrintable(QStringLiteral("txtSpace_%1").arg(text))); }
    void TypeInto(int text, const QString& sWords) {
        Box(text).setFocus();
        Type(sWords);
    }
    void FindImage(const QString& sName) {
        InBrowser([sName](frmBrowse& browser) { EditWindowTest::Choose(browser, sName); });
        Click("cmdBitmap");
    }
    void InPosition(const std::function<void(QDialog&)>& doIt) {
        QTimer::singleShot(0, window, [doIt] {
            auto* position = qobject_cast<frmImagePosition*>(QApplication::activeModalWidget());
            ASSERT_NE(position, nullptr);
            doIt(*position);
            if (position->isVisible()) position->hide();
        });
    }
    bool IsOn(const char* control) { return Find<QWidget>(control)->isEnabled(); }
    bool IncludesImage() { return Find<QCheckBox>("chkIncludeImage")->isChecked(); }
    QString PathShown() { return Find<QLabel>("txtBitmapPath")->text(); }
    QImage NoteShown() { return Find<PictureBox>("picNote")->Image().copy(); }
    static C_Money& Note(int i) { return basTAVL::g_oMoney(i); }
    static void HavePicture(int note, const QString& sPath) {
        Note(note).FaceImage.Init(sPath, QStringLiteral("Money"), qint16(note));
    }

    frmEditMoney form{session};
};

TEST_F(EditMoneyTest, Edge_AllFourNotesKeepTheirOwnTextsAndPicturesWhileTheWindowIsOpen) {
    const QString cat = MakePicture(QStringLiteral("cat.bmp"));
    const QString dog = MakePicture(QStringLiteral("dog.bmp"));
    EXPECT_TRUE(Edit([&] {
        for (int i = 0; i < basTAVL::kMoney; ++i) {
            Choose(i);
            TypeInto(0, QStringLiteral("!"));
            TypeInto(1, QStringLiteral("?"));
        }
        Choose(1);
        FindImage(QStringLiteral("cat.bmp"));
        Choose(3);
        FindImage(QStringLiteral("dog.bmp"));
        for (int i = 0; i < basTAVL::kMoney; ++i) {
            Choose(i);
            EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("left %1!").arg(i));
            EXPECT_EQ(Box(1).toPlainText(), QStringLiteral("right %1?").arg(i));
            EXPECT_EQ(PathShown(), i == 1 ? cat : i == 3 ? dog : QString());
            EXPECT_EQ(IncludesImage(), i % 2 == 1);
        }
        Click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    }));
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        EXPECT_EQ(Note(i).Text(0), QStringLiteral("left %1!").arg(i));
        EXPECT_EQ(Note(i).Text(1), QStringLiteral("right %1?").arg(i));
    }
    EXPECT_EQ(Note(1).FaceImage.FullPath(), cat);
    EXPECT_EQ(Note(3).FaceImage.FullPath(), dog);
    EXPECT_TRUE(Note(0).FaceImage.FullPath().isEmpty());
}

TEST_F(EditMoneyTest, Edge_UncheckingTheImageAndPressingOkDeletesThePicture) {
    HavePicture(0, MakePicture(QStringLiteral("cat.bmp")));
    EXPECT_TRUE(Edit([&] {
        EXPECT_TRUE(IncludesImage());
        Click("chkIncludeImage");
        EXPECT_EQ(PathShown(), QString());
        EXPECT_FALSE(IsOn("cmdBitmap"));
        EXPECT_FALSE(IsOn("cmdCropImage"));
        Click("cmdOK");
    }));
    EXPECT_TRUE(Note(0).FaceImage.FullPath().isEmpty());
    EXPECT_FALSE(Edit([&] { EXPECT_FALSE(IncludesImage()); }));
}

TEST_F(EditMoneyTest, Edge_AMetafileCanBeChosenAsAPictureButNotCropped) {
    const QString path = MakeMetafile(QStringLiteral("star.wmf"));
    EXPECT_TRUE(Edit([&] {
        FindImage(QStringLiteral("star.wmf"));
        EXPECT_EQ(PathShown(), path);
        EXPECT_EQ(NoteShown().pixelColor(kMiddleOfOval), QColor(Qt::red));
        EXPECT_TRUE(IsOn("cmdCropImage"));
        Click("cmdCropImage");
        Click("cmdOK");
    }));
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("This image is a 'Windows Metafile'. You are not allowed "
                                                          "to crop or zoom this type of image.")});
    EXPECT_EQ(Note(0).FaceImage.FullPath(), path);
}

TEST_F(EditMoneyTest, ControlsBearTheirCaptions) {
    EXPECT_FALSE(Edit([&] {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit Money"));
        const struct {
            const char* name;
            const char* caption;
        } rows[] = {{"optMoney_0", "100"},
                    {"optMoney_1", "500"},
                    {"optMoney_2", "1000"},
                    {"optMoney_3", "5000"},
                    {"chkIncludeImage", "&Include Image"},
                    {"cmdBitmap", "&Find Image"},
                    {"cmdCropImage", "C&rop Image"},
                    {"cmdCancel", "&Cancel"}};
        for (const auto& row : rows)
            EXPECT_EQ(Find<QAbstractButton>(row.name)->text(), QString::fromLatin1(row.caption));
        QStringList labels;
        for (const QLabel* label : form.findChildren<QLabel*>())
            labels.append(label->text());
        EXPECT_TRUE(labels.contains(QStringLiteral("&Edit text here:")));
        EXPECT_TRUE(labels.contains(QStringLiteral("Image File:")));
        EXPECT_TRUE(Find<QRadioButton>("optMoney_0")->isChecked());
        EXPECT_EQ(Find<QWidget>("fraBitmap")->property("title").toString(), QStringLiteral("Bitmap"));
        Choose(2);
        EXPECT_EQ(Find<QPushButton>("cmdIndex")->property("Tag").toInt(), 2);
        EXPECT_FALSE(Find<QPushButton>("cmdIndex")->isVisible());
    }));
}

TEST_F(EditMoneyTest, TypingShowsOnTheSideOfTheOvalItBelongsTo) {
    Edit([&] {
        const QImage before = NoteShown();
        TypeInto(0, QStringLiteral("MMM"));
        const QImage left = NoteShown();
        EXPECT_NE(left.copy(kLeftText), before.copy(kLeftText));
        EXPECT_EQ(left.copy(kRightText), before.copy(kRightText));
        TypeInto(1, QStringLiteral("MMM"));
        EXPECT_EQ(NoteShown().copy(kLeftText), left.copy(kLeftText));
        EXPECT_NE(NoteShown().copy(kRightText), left.copy(kRightText));
    });
}

TEST_F(EditMoneyTest, LinesEndWhereEnterWasPressedAndHardBlanksStay) {
    Note(0).Let_Text(1, QStringLiteral("a\u00A0b") + kBreak + QStringLiteral("c"));
    EXPECT_FALSE(Edit([&] { EXPECT_EQ(Box(1).blockCount(), 2); })) << "showing a text is no change";
    EXPECT_TRUE(Edit([&] {
        TypeInto(1, QStringLiteral("\nd"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Note(0).Text(1), QStringLiteral("a\u00A0b") + kBreak + QStringLiteral("c") + kBreak + u'd');
    EXPECT_EQ(Note(0).Text(0), QStringLiteral("left 0"));
}

TEST_F(EditMoneyTest, TextIsCopiedCutPastedAndComposed) {
    Edit([&] {
        Box(0).setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("left 0"));
        Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(Box(0).toPlainText(), QString());
        Box(1).setFocus();
        Press(Qt::Key_V, Qt::ControlModifier);
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("銭"));
        QApplication::sendEvent(&Box(1), &composed);
        Click("cmdOK");
    });
    EXPECT_EQ(Note(0).Text(0), QString());
    EXPECT_EQ(Note(0).Text(1), QStringLiteral("right 0left 0銭"));
}

TEST_F(EditMoneyTest, TheKeyboardReachesEverythingInTheOrderOfTheEye) {
    Edit([&] {
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            Press(Qt::Key_Tab);
        }
        EXPECT_EQ(order,
                  (QStringList{QStringLiteral("optMoney_0"), QStringLiteral("txtSpace_0"), QStringLiteral("txtSpace_1"),
                               QStringLiteral("chkIncludeImage"), QStringLiteral("cmdBitmap"), QStringLiteral("cmdOK"),
                               QStringLiteral("cmdCancel")}));
        Find<QRadioButton>("optMoney_0")->setFocus();
        Press(Qt::Key_Right);
        EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("left 1")) << "arrows choose the note";
    });
}

TEST_F(EditMoneyTest, CheckingTheImageOpensTheBrowserAndCancellingUnchecksIt) {
    EXPECT_FALSE(Edit([&] {
        InBrowser([](frmBrowse& browser) { Cancel(browser); });
        Click("chkIncludeImage");
        EXPECT_FALSE(IncludesImage());
        EXPECT_FALSE(IsOn("cmdBitmap"));
        EXPECT_FALSE(IsOn("cmdCropImage"));
        Choose(1);
        EXPECT_TRUE(IsOn("cmdBitmap")) << "each note offers it anew";
    }));
    EXPECT_EQ(browsersSeen, 1);
}

TEST_F(EditMoneyTest, APictureChosenAgainForANoteShowsItsPartAgain) {
    HavePicture(2, MakePicture(QStringLiteral("cat.bmp")));
    MakePicture(QStringLiteral("dog.bmp"), 40, 60);
    Note(2).FaceImage.Let_Zoom(5);
    Note(2).FaceImage.Let_XCenter(9);
    Note(2).FaceImage.Let_YCenter(8);
    EXPECT_FALSE(Edit([&] {
        Choose(2);
        for (const char* name : {"dog.bmp", "cat.bmp"}) {
            InBrowser([&](frmBrowse& browser) { EditWindowTest::Choose(browser, QString::fromLatin1(name)); });
            Click("cmdBitmap");
        }
        Click("cmdOK");
    }));
    EXPECT_EQ(browsersSeen, 2);
    EXPECT_EQ(Note(2).FaceImage.Zoom(), 5);
    EXPECT_EQ(Note(2).FaceImage.XCenter(), 9);
}

TEST_F(EditMoneyTest, APictureTakenOffANoteComesBackWithItsPartUntilTheWindowIsClosed) {
    const QString cat = MakePicture(QStringLiteral("cat.bmp"));
    for (const int note : {0, 2}) {
        HavePicture(note, cat);
        Note(note).FaceImage.Let_Zoom(qint16(5 + note));
        Note(note).FaceImage.Let_XCenter(9);
        Note(note).FaceImage.Let_YCenter(8);
    }
    EXPECT_FALSE(Edit([&] {
        for (const int note : {0, 2}) {
            Choose(note);
            Click("chkIncludeImage");
        }
        for (const int note : {0, 2}) {
            Choose(note);
            InBrowser([](frmBrowse& browser) { Cancel(browser); });
            Click("chkIncludeImage");
            EXPECT_TRUE(IncludesImage());
            EXPECT_EQ(PathShown(), cat);
        }
        Click("cmdOK");
    }));
    EXPECT_EQ(Note(2).FaceImage.Zoom(), 7);
}

TEST_F(EditMoneyTest, APageThatIsTooLongForATextGoesWithAWord) {
    EXPECT_FALSE(Edit([&] {
        Box(1).insertPlainText(QString(5001, u'x'));
        EXPECT_EQ(Box(1).toPlainText(), QStringLiteral("right 0"));
        Click("cmdOK");
    }));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("A text holds 5,000 letters at most."));
}

TEST_F(EditMoneyTest, APictureFoundShowsItsPathInTheOvalAndMayBeCropped) {
    const QString path = MakePicture(QStringLiteral("cat.bmp"), 190, 190);
    EXPECT_TRUE(Edit([&] {
        FindImage(QStringLiteral("cat.bmp"));
        EXPECT_TRUE(IncludesImage());
        EXPECT_TRUE(IsOn("cmdCropImage"));
        EXPECT_EQ(PathShown(), path);
        EXPECT_EQ(NoteShown().pixelColor(kMiddleOfOval - QPoint(20, 20)), QColor(Qt::red));
        InPosition([](QDialog& position) {
            auto* slider = position.findChild<QSlider*>();
            ASSERT_NE(slider, nullptr);
            slider->setValue(slider->value() + 10);
            QTest::mouseClick(position.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        Click("cmdCropImage");
        Click("cmdOK");
    }));
    EXPECT_EQ(Note(0).FaceImage.FullPath(), path);
    EXPECT_NE(Note(0).FaceImage.Zoom(), 0);
}

TEST_F(EditMoneyTest, ThePathTellsHowToChangeIt) {
    Edit([&] { QTest::mouseClick(Find<QLabel>("txtBitmapPath"), Qt::LeftButton); });
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("To change the Bitmap, please click the 'Find Image' button.")});
}

TEST_F(EditMoneyTest, CancelAsksOnlyAfterAChangeAndDoesAsAnswered) {
    EXPECT_FALSE(Edit([&] { Click("cmdCancel"); }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    desktop.answers = {vbCancel, vbNo};
    EXPECT_FALSE(Edit([&] {
        TypeInto(0, QStringLiteral("!"));
        Choose(2);
        Click("cmdCancel");
        EXPECT_TRUE(form.isVisible());
        Press(Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    }));
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("There are unsaved changes. Do you want to save them?"));
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Save Changes"));
    EXPECT_EQ(desktop.boxes[0].iStyle, int(vbYesNoCancel));
    EXPECT_EQ(Note(0).Text(0), QStringLiteral("left 0"));
    desktop.answers = {vbYes};
    EXPECT_TRUE(Edit([&] {
        TypeInto(0, QStringLiteral("!"));
        form.close();
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(Note(0).Text(0), QStringLiteral("left 0!"));
}

TEST_F(EditMoneyTest, LookingAtAPictureIsNoChange) {
    HavePicture(0, MakePicture(QStringLiteral("cat.bmp")));
    EXPECT_FALSE(Edit([&] {
        Choose(1);
        Choose(0);
        Click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(Note(0).FaceImage.XCenter(), 30) << "the game's note is centred like the one shown";
}

TEST_F(EditMoneyTest, AfterAFailureNotesAreStillChosenAndTypedOn) {
    Note(1).BackImage.Init(WriteFile(QStringLiteral("blank.dat"), "no picture"), QString(), 0);
    EXPECT_TRUE(Edit([&] {
        desktop.onBox = [this] {
            desktop.onBox = nullptr;
            ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory"));
        };
        Choose(1); // its blank is told in a box, which fails
        EXPECT_FALSE(desktop.onBox);
        Choose(2);
        EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("left 2"));
        TypeInto(0, QStringLiteral("!"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Note(2).Text(0), QStringLiteral("left 2!"));
    EXPECT_EQ(Note(1).Text(0), QStringLiteral("left 1"));
}

TEST_F(EditMoneyTest, ABlankThatCannotBeReadIsToldOnceAndTheNoteIsShownWithoutIt) {
    const QString blank = WriteFile(QStringLiteral("blank.dat"), "no picture");
    Note(0).BackImage.Init(blank, QString(), 0);
    Edit([&] {
        TypeInto(0, QStringLiteral("abc"));
        EXPECT_EQ(NoteShown().pixelColor(20, 20), QColor(200, 220, 240));
    });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("Unable to process the bitmap named: ") + blank +
                                                  kBreak + QStringLiteral("The following error was reported: ")));
    EXPECT_TRUE(desktop.boxes[0].sText.endsWith(kBreak + QStringLiteral("The area will be left empty.")));
}

} // namespace
