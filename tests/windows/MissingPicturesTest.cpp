// SPDX-License-Identifier: MIT
#include "windows/missing/frmMissingPictures.h"

#include "check/GamePiece.h"
#include "game/Session.h"
#include "support/EditorFixture.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/Waiting.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace {

class MissingPicturesWindowTest : public EditorTest {
protected:
    QString Photo(const QString& name) const {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        return WriteFile(name, PictureFiles::Encoded(image, "png"));
    }
    void Show(int space, const QString& path) { TheGame().spaces[size_t(space)].Image.Let_FullPath(path); }
    template <typename Control>
    Control& In(const char* name) const {
        return *window.findChild<Control*>(QString::fromLatin1(name));
    }
    /// What is told, once there is nothing to wait for.
    QString Outcome() const {
        EXPECT_TRUE(Comes([this] { return !In<QPushButton>("cmdStop").isEnabled(); }));
        return In<QLabel>("lblState").text();
    }
    frmMissingPictures window{session};
};

TEST_F(MissingPicturesWindowTest, FindingOneFindsTheOthersInOneStep) {
    Show(1, PathOf(QStringLiteral("old/a.png")));
    Show(2, PathOf(QStringLiteral("old/b.png")));
    Show(3, PathOf(QStringLiteral("gone.png")));
    TheGame().spaces[2].Image.Let_Zoom(9);
    desktop.boxes.clear();
    Photo(QStringLiteral("new/a.png"));
    Photo(QStringLiteral("new/below/b.png"));
    desktop.onDialog = [this](CommonDialog& dialog) {
        EXPECT_EQ(dialog.sInitDir, folder.path()) << "the nearest that is still there";
        dialog.sFileName = PathOf(QStringLiteral("new/a.png"));
        return true;
    };
    int listed = 0;
    QString where, state, outcome;
    QTimer::singleShot(0, &window, [&] {
        const QTreeWidget& list = In<QTreeWidget>("lstMissing");
        listed = list.topLevelItemCount();
        where = list.topLevelItem(0)->text(1);
        state = list.topLevelItem(0)->text(2);
        QTest::mouseClick(&In<QPushButton>("cmdFind"), Qt::LeftButton);
        outcome = Outcome();
        EXPECT_EQ(list.topLevelItemCount(), 1);
        window.reject();
    });
    EXPECT_TRUE(window.ShowForm(GamePiece::Whole()));
    EXPECT_EQ(listed, 3);
    EXPECT_EQ(where, PathOf(QStringLiteral("old/a.png")));
    EXPECT_EQ(state, QStringLiteral("not found"));
    EXPECT_EQ(outcome, QStringLiteral("2 pictures found again, 1 still to find."));
    EXPECT_EQ(TheGame().spaces[2].Image.FullPath(), PathOf(QStringLiteral("new/below/b.png")));
    EXPECT_EQ(TheGame().spaces[2].Image.Zoom(), 9);
    EXPECT_EQ(session.UndoName(), QStringLiteral("2 Pictures Found Again"));
    session.Undo();
    EXPECT_EQ(TheGame().spaces[1].Image.FullPath(), PathOf(QStringLiteral("old/a.png")));
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(MissingPicturesWindowTest, WhatIsNoPictureIsRefusedAndNothingChanges) {
    Show(1, PathOf(QStringLiteral("old/a.png")));
    desktop.boxes.clear();
    desktop.onDialog = [this](CommonDialog& dialog) {
        dialog.sFileName = WriteFile(QStringLiteral("letter.txt"), "Dear Grandma");
        return true;
    };
    QTimer::singleShot(0, &window, [&] {
        QTest::mouseClick(&In<QPushButton>("cmdFind"), Qt::LeftButton);
        window.reject();
    });
    EXPECT_FALSE(window.ShowForm(GamePiece::Whole()));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(MissingPicturesWindowTest, WhereNoneIsMissingItSaysSo) {
    QTimer::singleShot(0, &window, [&] {
        EXPECT_EQ(Outcome(), QStringLiteral("All pictures are where they belong."));
        EXPECT_FALSE(In<QPushButton>("cmdFind").isEnabled());
        window.reject();
    });
    EXPECT_FALSE(window.ShowForm(GamePiece::Whole()));
}

} // namespace
