// SPDX-License-Identifier: MIT
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"
#include "support/Waiting.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/frmImagePosition.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <QWheelEvent>

namespace {

/// A preview 400 pixels wide, and pictures whose four quarters are red, green, blue and white.
class ImagePositionTest : public TavloraTest {
protected:
    ImagePositionTest() {
        frmBrowse::ResetForTest();
        frmImagePosition::ResetForTest();
    }
    ~ImagePositionTest() override { ForgetPictures(); }

    C_Image ImageOf(const QString& sName, int width, int height) {
        C_Image image;
        image.Init(WriteFile(sName, PictureFiles::Encoded(PictureFiles::Quarters(width, height), "png")), QString(), 0);
        return image;
    }
    /// Centred in the middle already, as an image that was painted before.
    C_Image CenteredImage(int width = 200, int height = 200) {
        C_Image image = ImageOf(QStringLiteral("picture.png"), width, height);
        image.Let_XCenter(float(width / 2));
        image.Let_YCenter(float(height / 2));
        return image;
    }

    void Position(C_Image& image, ModalSteps::Step step, double dblHeightToWidth = 1.0, bool bRound = false) {
        ModalSteps steps;
        steps.In("frmImagePosition", std::move(step));
        frmImagePosition form;
        form.SetPreviewWidth(kWidth);
        form.ShowForm(image, dblHeightToWidth, bRound);
    }

    static PictureBox& Preview(QWidget& window) { return Find<PictureBox>(window, "picZoomed"); }
    static Color ColorAt(QWidget& window, int x, int y) { return Preview(window).hDC().GetPixel(x, y); }

    static void Drag(QWidget& window, QPoint from, QPoint to) {
        QTest::mousePress(&Preview(window), Qt::LeftButton, {}, from);
        QTest::mouseMove(&Preview(window), to);
        QTest::mouseRelease(&Preview(window), Qt::LeftButton, {}, to);
    }

    static constexpr int kWidth = 400;
    const Color red = Color::Rgb(255, 0, 0);
    const Color green = Color::Rgb(0, 255, 0);
    const Color blue = Color::Rgb(0, 0, 255);
};

} // namespace

TEST_F(ImagePositionTest, ControlsHaveTheirNamesCaptionsAndRanges) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        auto& slider = Find<QSlider>(window, "sldZoom");
        EXPECT_EQ(slider.orientation(), Qt::Vertical);
        EXPECT_EQ(slider.minimum(), 0);
        EXPECT_EQ(slider.maximum(), 100);
        EXPECT_EQ(slider.value(), 90);
        EXPECT_EQ(Find<QPushButton>(window, "cmdSelectImage").text().remove(u'&'),
                  QStringLiteral("Select Different Image"));
        EXPECT_EQ(Find<QPushButton>(window, "cmdCancel").text().remove(u'&'), QStringLiteral("Cancel"));
        QStringList labels;
        for (const QLabel* label : window.findChildren<QLabel*>())
            labels.append(label->text());
        for (const char* told :
             {"Left click mouse and drag \nto move the image.\n",
              "Right click to center the \nimage on the point clicked.\n", "Use slider at left to zoom \nthe image.\n"})
            EXPECT_TRUE(labels.contains(QString::fromLatin1(told))) << told;
        EXPECT_EQ(labels.filter(QStringLiteral("Zoom")).value(0).remove(u'&'), QStringLiteral("Zoom"));
        Click(window, "cmdOK");
    });
}

TEST_F(ImagePositionTest, TheBoxHasTheShapeOfWhatIsFilled) {
    C_Image image = CenteredImage();
    Position(
        image,
        [](QWidget& window) {
            EXPECT_EQ(Preview(window).width(), kWidth);
            EXPECT_EQ(Preview(window).height(), CLng(kWidth * 190.0 / 164.0));
            Click(window, "cmdOK");
        },
        190.0 / 164.0);
}

TEST_F(ImagePositionTest, TheBoxIs600PixelsWideButNoLargerThanTheScreenLeavesIt) {
    const QSize screen = Screen::FreeArea().size();
    // The sliders and texts take 280 pixels beside it, margins and a title bar 47 above and below.
    const int beside = screen.width() - 280;
    for (const double heightToWidth : {1.0, 190.0 / 164.0, 2.0, 10.0}) {
        SCOPED_TRACE(heightToWidth);
        const int byHeight = int((screen.height() - 47) / heightToWidth);
        C_Image image = CenteredImage();
        ModalSteps steps;
        steps.In("frmImagePosition", [&](QWidget& window) {
            const int width = Preview(window).width();
            EXPECT_LE(width, 600);
            EXPECT_LE(width, std::max(beside, 200));
            EXPECT_LE(width, std::max(byHeight, 200));
            EXPECT_TRUE(width == 600 || width == beside || width == byHeight || width == 200) << "and no smaller";
            Click(window, "cmdOK");
        });
        frmImagePosition form;
        form.ShowForm(image, heightToWidth, false);
    }
}

TEST_F(ImagePositionTest, ThePreviewShowsWhatTheZoomAndCenterShow) {
    C_Image image = CenteredImage();
    Position(image, [this](QWidget& window) {
        EXPECT_EQ(ColorAt(window, 100, 100), red);
        EXPECT_EQ(ColorAt(window, 300, 100), green);
        EXPECT_EQ(ColorAt(window, 100, 300), blue);
        Click(window, "cmdOK");
    });
}

TEST_F(ImagePositionTest, ThePictureFollowsTheMouse) {
    C_Image image = CenteredImage();
    Position(image, [this](QWidget& window) {
        QTest::mousePress(&Preview(window), Qt::LeftButton, {}, QPoint(200, 200));
        QTest::mouseMove(&Preview(window), QPoint(300, 200));
        EXPECT_EQ(ColorAt(window, 280, 100), red) << "while the button is down";
        EXPECT_EQ(ColorAt(window, 50, 100), Color::White()) << "nothing is left of the picture";
        QTest::mouseRelease(&Preview(window), Qt::LeftButton, {}, QPoint(300, 200));
        EXPECT_EQ(ColorAt(window, 280, 100), red) << "at rest";
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 50);
    EXPECT_EQ(image.YCenter(), 100);
}

TEST_F(ImagePositionTest, MovingWithoutTheLeftButtonDoesNothing) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        QTest::mouseMove(&Preview(window), QPoint(50, 60));
        QTest::mousePress(&Preview(window), Qt::MiddleButton, {}, QPoint(200, 200));
        QTest::mouseMove(&Preview(window), QPoint(300, 200));
        QTest::mouseRelease(&Preview(window), Qt::MiddleButton, {}, QPoint(300, 200));
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 100);
}

TEST_F(ImagePositionTest, ARightClickBringsThePointToTheMiddle) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        QTest::mouseClick(&Preview(window), Qt::RightButton, {}, QPoint(100, 300));
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 50);
    EXPECT_EQ(image.YCenter(), 150);
}

TEST_F(ImagePositionTest, TheSliderZoomsByKeysAndTheWheel) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        auto& slider = Find<QSlider>(window, "sldZoom");
        QTest::keyClick(&slider, Qt::Key_Up);
        EXPECT_EQ(slider.value(), 89) << "up is larger";
        QTest::keyClick(&slider, Qt::Key_PageUp);
        EXPECT_EQ(slider.value(), 79);
        const int before = slider.value();
        const QPointF at(50, 50);
        QWheelEvent wheel(at, Preview(window).mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Preview(window), &wheel);
        EXPECT_LT(slider.value(), before) << "the wheel turned away zooms in";
        slider.setValue(80);
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.Zoom(), 10);
}

TEST_F(ImagePositionTest, TheArrowKeysMoveThePicture) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &Preview(window));
        QTest::keyClick(&Preview(window), Qt::Key_Right);
        QTest::keyClick(&Preview(window), Qt::Key_Down);
        QTest::keyClick(&Preview(window), Qt::Key_Down);
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 95);
    EXPECT_EQ(image.YCenter(), 90);
}

TEST_F(ImagePositionTest, InMotionAndAtRestTheSamePlaceIsShown) {
    // A large enough picture that motion shows a halved copy.
    C_Image image = CenteredImage(2000, 1500);
    Position(image, [this](QWidget& window) {
        auto& slider = Find<QSlider>(window, "sldZoom");
        slider.setValue(83);
        const auto shown = [&] {
            return ColorAt(window, 190, 190) == red && ColorAt(window, 210, 210) == Color::White();
        };
        EXPECT_TRUE(shown()) << "in motion";
        auto& timer = Find<QTimer>(window, "timSharpen");
        EXPECT_TRUE(timer.isActive());
        EXPECT_TRUE(Comes([&timer] { return !timer.isActive(); }));
        EXPECT_TRUE(shown()) << "at rest";
        Click(window, "cmdOK");
    });
}

TEST_F(ImagePositionTest, ARoundImageIsMaskedToItsCircle) {
    C_Image image = CenteredImage();
    Position(
        image,
        [this](QWidget& window) {
            const Color form = ColorAt(window, 2, 2);
            EXPECT_NE(form, red);
            EXPECT_EQ(ColorAt(window, kWidth - 3, kWidth - 3), form);
            EXPECT_EQ(ColorAt(window, 56, 56), form) << "just outside the circle";
            EXPECT_EQ(ColorAt(window, 62, 62), red) << "just inside it";
            EXPECT_EQ(ColorAt(window, 4, 195), red) << "at its left edge";
            Click(window, "cmdOK");
        },
        1.0, true);
}

TEST_F(ImagePositionTest, CancelAsksAboutChangesAndHeedsTheAnswer) {
    const QString question = QStringLiteral("There are unsaved changes. Do you want to save them?");
    const struct {
        int answer;
        float expected;
    } kCases[] = {{vbYes, 95}, {vbNo, 100}};
    for (const auto& each : kCases) {
        C_Image image = CenteredImage();
        desktop.boxes.clear();
        desktop.answers = {vbCancel, each.answer};
        Position(image, [this, &question](QWidget& window) {
            QTest::keyClick(&Preview(window), Qt::Key_Right);
            Click(window, "cmdCancel");
            EXPECT_TRUE(window.isVisible()) << "Cancel to the question";
            ASSERT_EQ(desktop.boxes.size(), 1);
            EXPECT_EQ(desktop.boxes[0].sText, question);
            EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Save Changes"));
            EXPECT_EQ(desktop.boxes[0].iStyle & 0xF, vbYesNoCancel);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        EXPECT_EQ(image.XCenter(), each.expected);
    }
}

TEST_F(ImagePositionTest, CancelWithoutAChangeAsksNothingEvenWhenTheImageWasNeverPainted) {
    C_Image image = ImageOf(QStringLiteral("fresh.png"), 300, 200);
    Position(image, [](QWidget& window) { window.close(); });
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(image.XCenter(), 150) << "centred as any painting would";
    EXPECT_EQ(image.YCenter(), 100);
}

TEST_F(ImagePositionTest, AnotherPictureStartsUnzoomedAndCentered) {
    C_Image image = CenteredImage();
    image.Let_Zoom(20);
    const QString other =
        WriteFile(QStringLiteral("other.bmp"), PictureFiles::Encoded(PictureFiles::Quarters(60, 40), "bmp"));
    ModalSteps steps;
    steps
        .In("frmImagePosition",
            [&](QWidget& window) {
                EXPECT_EQ(Find<QSlider>(window, "sldZoom").value(), 70);
                Click(window, "cmdSelectImage");
                EXPECT_EQ(Find<QSlider>(window, "sldZoom").value(), 90);
                Click(window, "cmdOK");
            })
        .In("frmBrowse", [](QWidget& window) {
            for (const QComboBox* kinds : window.findChildren<QComboBox*>()) {
                for (int i = 0; i < kinds->count(); ++i)
                    EXPECT_FALSE(kinds->itemText(i).contains(QStringLiteral("wmf"), Qt::CaseInsensitive));
            }
            QTest::keyClick(&Find<QWidget>(window, "filList"), Qt::Key_Home);
            QTest::keyClick(&Find<QWidget>(window, "filList"), Qt::Key_Return);
        });
    frmImagePosition form;
    form.ShowForm(image, 1.0, false);
    EXPECT_EQ(image.FullPath(), other);
    EXPECT_EQ(image.Zoom(), 0);
    EXPECT_EQ(image.XCenter(), 30);
}

TEST_F(ImagePositionTest, APictureChosenAgainShowsItsPartAgain) {
    C_Image image = CenteredImage();
    image.Let_Zoom(20);
    image.Let_XCenter(50);
    const PictureRef before = image.Ref();
    const QString other =
        WriteFile(QStringLiteral("other.bmp"), PictureFiles::Encoded(PictureFiles::Quarters(60, 40), "bmp"));
    const auto choose = [](Qt::Key key) {
        return [key](QWidget& window) {
            QTest::keyClick(&Find<QWidget>(window, "filList"), key);
            QTest::keyClick(&Find<QWidget>(window, "filList"), Qt::Key_Return);
        };
    };
    ModalSteps steps;
    steps
        .In("frmImagePosition",
            [](QWidget& window) {
                Click(window, "cmdSelectImage");
                EXPECT_EQ(Find<QSlider>(window, "sldZoom").value(), 90);
                Click(window, "cmdSelectImage");
                EXPECT_EQ(Find<QSlider>(window, "sldZoom").value(), 70);
                Click(window, "cmdOK");
            })
        .In("frmBrowse", choose(Qt::Key_Home))
        .In("frmBrowse", choose(Qt::Key_End));
    frmImagePosition form;
    form.ShowForm(image, 1.0, false);
    EXPECT_EQ(image.Ref(), before);
}

TEST_F(ImagePositionTest, AMissingPhotoFoundWhereItLiesNowKeepsItsPart) {
    C_Image image = CenteredImage();
    image.Let_Zoom(20);
    image.Let_XCenter(50);
    PictureRef expected = image.Ref();
    QDir(folder.path()).mkdir(QStringLiteral("moved"));
    expected.sPath = PathOf(QStringLiteral("moved/picture.png"));
    ASSERT_TRUE(QFile::rename(image.FullPath(), expected.sPath));
    ModalSteps steps;
    // The window opens the browser by itself.
    steps.In("frmImagePosition", [](QWidget&) {})
        .In("frmBrowse",
            [](QWidget& window) {
                auto& tree = Find<QTreeWidget>(window, "dirList");
                QTreeWidgetItem* const moved =
                    tree.findItems(QStringLiteral("moved"), Qt::MatchExactly | Qt::MatchRecursive).value(0);
                ASSERT_TRUE(moved);
                QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(moved).center());
                QTest::keyClick(&Find<QWidget>(window, "filList"), Qt::Key_Home);
                QTest::keyClick(&Find<QWidget>(window, "filList"), Qt::Key_Return);
            })
        .In("frmImagePosition", [](QWidget& window) {
            EXPECT_EQ(Find<QSlider>(window, "sldZoom").value(), 70);
            Click(window, "cmdOK");
        });
    frmImagePosition form;
    form.ShowForm(image, 1.0, false);
    EXPECT_EQ(image.Ref(), expected);
}

TEST_F(ImagePositionTest, AnUnreadablePictureIsToldAndAnotherIsOfferedAtOnce) {
    C_Image image;
    const QString bad = WriteFile(QStringLiteral("bad.bmp"), QByteArray("no picture"));
    image.Init(bad, QString(), 0);
    const auto cancel = [](QWidget& window) { Click(window, "cmdCancel"); };
    ModalSteps steps;
    // Who cancels that is out of it.
    steps.In("frmBrowse", cancel);
    frmImagePosition form;
    form.ShowForm(image, 1.0, false);
    EXPECT_TRUE(desktop.Texts().front().startsWith(
        QStringLiteral("The file named '") + bad +
        QStringLiteral("' could not be loaded.\r\nThe following error was reported:\r\n")));
    EXPECT_EQ(desktop.boxes.size(), 1) << "the browser shows the same picture first";
    EXPECT_EQ(image.FullPath(), bad);
}

TEST_F(ImagePositionTest, Edge_MovingTheSliderToTheBottomShrinksThePictureToHalfTheBox) {
    C_Image image = CenteredImage();
    Position(image, [this](QWidget& window) {
        auto& slider = Find<QSlider>(window, "sldZoom");
        EXPECT_EQ(slider.value(), 90);
        QTest::keyClick(&slider, Qt::Key_End);
        EXPECT_EQ(slider.value(), 100);
        EXPECT_EQ(ColorAt(window, 105, 105), red);
        EXPECT_EQ(ColorAt(window, 95, 200), Color::White());
        EXPECT_EQ(ColorAt(window, 305, 200), Color::White());
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.Zoom(), -10);
    EXPECT_EQ(ImagePlacing::Scale::Of(QSize(200, 200), QSize(kWidth, kWidth), -10).iSide, 400);
}

TEST_F(ImagePositionTest, Edge_DraggingTenPixelsRightAtScaleTwoLowersTheCenterByFive) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        Drag(window, QPoint(200, 200), QPoint(210, 200));
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 95);
    EXPECT_EQ(image.YCenter(), 100);
}

TEST_F(ImagePositionTest, Edge_ARightClickInTheMiddleLeavesTheCenterButForRounding) {
    // What shows is 201 pixels wide at no zoom and 124 at step 7. Half of that less the center is rounded, and the
    // center again: 101 - 100.5 is 0, and 0 + 100.5 is 100.
    const struct {
        int zoom;
        QPoint before;
        QPoint after;
    } rows[] = {
        {0, {100, 66}, {100, 66}}, {0, {101, 67}, {100, 66}}, {7, {100, 66}, {100, 66}}, {7, {93, 71}, {93, 71}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.before.x());
        C_Image image = CenteredImage(201, 133);
        image.Let_Zoom(qint16(row.zoom));
        image.Let_XCenter(float(row.before.x()));
        image.Let_YCenter(float(row.before.y()));
        Position(image, [](QWidget& window) {
            QTest::mouseClick(&Preview(window), Qt::RightButton, {}, QPoint(kWidth / 2, kWidth / 2));
            Click(window, "cmdOK");
        });
        EXPECT_EQ(QPointF(image.XCenter(), image.YCenter()), QPointF(row.after));
    }
}

TEST_F(ImagePositionTest, Edge_NothingLimitsTheCenterToThePicture) {
    C_Image image = CenteredImage();
    Position(image, [](QWidget& window) {
        Drag(window, QPoint(10, 390), QPoint(390, 10));
        Drag(window, QPoint(10, 390), QPoint(390, 10));
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 100 - 380);
    EXPECT_EQ(image.YCenter(), 100 + 380);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ImagePositionTest, Edge_APictureWhoseFileHasGoneOpensAnEmptyBoxAndThenTheBrowser) {
    C_Image image = CenteredImage();
    QFile::remove(image.FullPath());
    bool browsed = false;
    ModalSteps steps;
    steps
        .In("frmImagePosition",
            [this](QWidget& window) {
                EXPECT_EQ(ColorAt(window, 200, 200), Color::White());
                EXPECT_TRUE(desktop.Texts().contains(QStringLiteral("The file named '") +
                                                     PathOf(QStringLiteral("picture.png")) +
                                                     QStringLiteral("' could not be found.\r\nNo image was loaded.")));
            })
        .In("frmBrowse",
            [&browsed](QWidget& window) {
                browsed = true;
                Click(window, "cmdCancel");
            })
        .In("frmImagePosition", [](QWidget& window) { Click(window, "cmdOK"); });
    frmImagePosition form;
    form.ShowForm(image, 1.0, false);
    EXPECT_TRUE(browsed);
    EXPECT_EQ(image.FullPath(), PathOf(QStringLiteral("picture.png")));
}

TEST_F(ImagePositionTest, Edge_BothCentersDraggedToZeroAreCenteredAtTheNextPaint) {
    C_Image image = CenteredImage();
    image.Let_XCenter(5);
    image.Let_YCenter(5);
    Position(image, [this](QWidget& window) {
        EXPECT_EQ(ColorAt(window, 100, 100), Color::White()) << "the picture hangs to the lower right";
        Drag(window, QPoint(200, 200), QPoint(210, 210));
        EXPECT_EQ(ColorAt(window, 100, 100), red) << "in the middle again";
        Click(window, "cmdOK");
    });
    EXPECT_EQ(image.XCenter(), 100);
    EXPECT_EQ(image.YCenter(), 100);
}

TEST_F(ImagePositionTest, Edge_OkWithoutAChangeLeavesTheImageUntouched) {
    C_Image image = CenteredImage();
    image.Init(image.FullPath(), QStringLiteral("Space"), 12);
    image.Let_Zoom(3);
    const C_Image before = image;
    const QString thumbnail = WriteFile(QStringLiteral("Space12.bmp"), QByteArray("thumbnail"));
    Position(image, [](QWidget& window) { Click(window, "cmdOK"); });
    EXPECT_FALSE(image.IsDifferentFrom(before));
    EXPECT_TRUE(Files::Exists(thumbnail)) << "not even its thumbnail is made anew";
}
