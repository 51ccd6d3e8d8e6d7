// SPDX-License-Identifier: MIT
#include "EditSpaceFixture.h"

#include "pictures/PicturePart.h"
#include "support/PictureFiles.h"
#include "windowing/PictureBox.h"
#include "windows/editors/LikenessPicture.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>
#include <QRubberBand>
#include <QTreeWidget>
#include <QUrl>
#include <QWheelEvent>

namespace {

/// What is done to a picture straight on the likeness.
class LikenessPictureTest : public EditSpaceTest {
protected:
    QString Photo(const QString& name, int width = 600, int height = 400) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        return WriteFile(name, PictureFiles::Encoded(image, "png"));
    }
    PictureBox& Likeness() { return *form.findChild<PictureBox*>(QStringLiteral("picDest")); }
    void Drop(const QStringList& files) {
        QMimeData dragged;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        dragged.setUrls(urls);
        const auto* const light = Likeness().findChild<QRubberBand*>(QStringLiteral("shpDrop"));
        QDragEnterEvent enter(kMiddle, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&Likeness(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        EXPECT_TRUE(light->isVisible()) << "the place lights up";
        EXPECT_TRUE(light->geometry().contains(kMiddle));
        QDropEvent drop(kMiddle, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&Likeness(), &drop);
        EXPECT_FALSE(light->isVisible());
        QCoreApplication::processEvents();
    }
    /// In parts of a notch, of which a whole one has 120.
    static void Turn(QWidget& likeness, int parts, bool bTaken = true) {
        QWheelEvent turn(QPointF{kMiddle}, QPointF{kMiddle}, QPoint(), QPoint(0, parts), Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&likeness, &turn);
        EXPECT_EQ(turn.isAccepted(), bTaken);
    }
    static void Move(QWidget& likeness, QPoint by) {
        QTest::mousePress(&likeness, Qt::RightButton, {}, kMiddle);
        QMouseEvent move(QEvent::MouseMove, QPointF(kMiddle + by), QPointF(kMiddle), Qt::NoButton, Qt::RightButton, {});
        QApplication::sendEvent(&likeness, &move);
        QTest::mouseRelease(&likeness, Qt::RightButton, {}, kMiddle + by);
    }
    /// Five notches of the wheel, then 21 pixels to the right with the right button.
    void TurnAndMove(bool bThere = true) {
        Turn(Likeness(), 5 * 120, bThere);
        Move(Likeness(), QPoint(21, 0));
    }
    /// In the middle of where the picture stands.
    static constexpr QPoint kMiddle{104, 126};
};

TEST_F(LikenessPictureTest, ADroppedPhotoTakesThePlaceAndFillsIt) {
    GivePicture(QString());
    const QString photo = Photo(QStringLiteral("cat.png"));
    EXPECT_TRUE(Edit([&] {
        Drop({photo});
        EXPECT_TRUE(form.findChild<QCheckBox*>(QStringLiteral("chkIncludeImage"))->isChecked());
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.FullPath(), photo);
    EXPECT_EQ(Space().Image.Zoom(), ZoomThatFills(photo));
}

TEST_F(LikenessPictureTest, SeveralFillTheFreeSpacesBehind) {
    for (C_Space& space : TheGame().spaces)
        space.SetImagePath(QString());
    const QString cat = Photo(QStringLiteral("cat.png"));
    const QString dog = Photo(QStringLiteral("dog.png"));
    const size_t piece = size_t(&Space() - TheGame().spaces.data());
    Edit([&] {
        Drop({cat, dog});
        Click("cmdOK");
    });
    EXPECT_EQ(TheGame().spaces[piece].Image.FullPath(), cat);
    int others = 0;
    for (size_t i = 0; i < TheGame().spaces.size(); ++i)
        others += i != piece && TheGame().spaces[i].Image.FullPath() == dog;
    EXPECT_EQ(others, 1);
}

TEST_F(LikenessPictureTest, WhatIsNoPictureIsRefusedAndNothingChanges) {
    GivePicture(QString());
    const QString letter = WriteFile(QStringLiteral("letter.jpg"), "Dear Grandma");
    EXPECT_FALSE(Edit([&] {
        Drop({letter});
        Click("cmdOK");
    }));
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(LikenessPictureTest, TheWheelZoomsAndTheRightButtonMoves) {
    GivePicture(Photo(QStringLiteral("cat.png")));
    EXPECT_TRUE(Edit([&] {
        TurnAndMove();
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.Zoom(), 10);
    // 300 pixels of the picture stand in 126: it followed the mouse by 50 of them.
    EXPECT_EQ(Space().Image.XCenter(), 250);
    EXPECT_EQ(Space().Image.YCenter(), 200);
}

TEST_F(LikenessPictureTest, AWheelThatTurnsFinelyZoomsTwoStepsEachWholeNotch) {
    GivePicture(Photo(QStringLiteral("cat.png")));
    EXPECT_TRUE(Edit([&] {
        for (const int parts : {40, 40, 39, 1, 30, 29})
            Turn(Likeness(), parts);
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.Zoom(), 2) << "the third step is a part of a notch away";
    EXPECT_FALSE(Edit([&] {
        for (const int parts : {59, -59, -59, 59})
            Turn(Likeness(), parts);
        Click("cmdOK");
    })) << "what is turned back doesn't count";
}

// As long as nobody has painted it, which centres it.
TEST_F(LikenessPictureTest, APictureThatWasNeverCenteredMovesFromItsMiddle) {
    C_Image image;
    image.Init(Photo(QStringLiteral("cat.png")), QString(), 0);
    PictureBox box;
    box.resize(300, 300);
    const QRect place(40, 60, 126, 126);
    const LikenessPicture likeness(box, session,
                                   {[&]() -> C_Image& { return image; }, [=] { return place; }, [] {}, {}});
    Move(box, QPoint(21, -42));
    // All 600 pixels of its width stand in 126: it followed by 100 to the right and by 200 upwards.
    EXPECT_EQ(image.XCenter(), 300 - 100);
    EXPECT_EQ(image.YCenter(), 200 + 200);
}

TEST_F(LikenessPictureTest, APictureThatIsAwayOrUnreadableIsNeitherZoomedNorMovedUnseen) {
    for (const bool away : {true, false}) {
        GivePicture(away ? PathOf(QStringLiteral("away.png")) : WriteFile(QStringLiteral("bad.png"), "no picture"));
        Space().Image.Let_Zoom(12);
        Space().Image.Let_XCenter(111);
        Space().Image.Let_YCenter(99);
        const PictureRef before = Space().Image.Ref();
        EXPECT_FALSE(Edit([&] {
            TurnAndMove(false);
            Click("cmdOK");
        })) << away;
        EXPECT_EQ(Space().Image.Ref(), before);
    }
}

TEST_F(LikenessPictureTest, ClearedAndTickedAgainThePictureIsBackWithItsPart) {
    const QString photo = Photo(QStringLiteral("cat.png"));
    GivePicture(photo);
    Space().Image.Let_Zoom(12);
    Space().Image.Let_XCenter(111);
    Space().Image.Let_YCenter(99);
    EXPECT_FALSE(Edit([&] {
        Click("chkIncludeImage");
        InBrowser([&](frmBrowse& browser) { Cancel(browser); });
        Click("chkIncludeImage");
        Click("cmdOK");
    })) << "nothing has changed in the end";
    EXPECT_EQ(Space().Image.FullPath(), photo);
    EXPECT_EQ(Space().Image.Zoom(), 12);
}

TEST_F(LikenessPictureTest, TheSamePhotoChosenWhereItLiesNowKeepsItsPart) {
    const QString old = Photo(QStringLiteral("cat.png"));
    GivePicture(old);
    Space().Image.Let_Zoom(12);
    Space().Image.Let_XCenter(111);
    Space().Image.Let_YCenter(99);
    QDir(folder.path()).mkdir(QStringLiteral("moved"));
    const QString now = PathOf(QStringLiteral("moved/cat.png"));
    ASSERT_TRUE(QFile::rename(old, now));
    EXPECT_TRUE(Edit([&] {
        // It opens in the old folder.
        InBrowser([&](frmBrowse& browser) {
            auto& tree = *browser.findChild<QTreeWidget*>(QStringLiteral("dirList"));
            QTreeWidgetItem* const moved = tree.findItems(QStringLiteral("moved"), Qt::MatchRecursive).value(0);
            ASSERT_TRUE(moved);
            QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(moved).center());
            Choose(browser, QStringLiteral("cat.png"));
        });
        Click("cmdBitmap");
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().Image.FullPath(), now);
    EXPECT_EQ(Space().Image.Zoom(), 12);
    EXPECT_EQ(Space().Image.XCenter(), 111);
    EXPECT_EQ(Space().Image.YCenter(), 99);
}

} // namespace
