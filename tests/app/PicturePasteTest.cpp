// SPDX-License-Identifier: MIT
// Pictures pasted onto the place that has the keyboard's frame.
#include "app/BoardWalk.h"
#include "MainWindowFixture.h"
#include "support/PictureFiles.h"
#include "support/Waiting.h"

#include <QClipboard>
#include <QFrame>
#include <QMimeData>
#include <QUrl>

namespace {

class PicturePasteTest : public MainWindowTest {
protected:
    PicturePasteTest() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->View().Board().setFocus();
        QGuiApplication::clipboard()->clear();
    }
    ~PicturePasteTest() override { QGuiApplication::clipboard()->clear(); }
    QString Photo(const QString& sName) const {
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::red);
        return WriteFile(sName, PictureFiles::Encoded(image, "png"));
    }
    static void CopyFiles(const QStringList& files) {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        data->setUrls(urls);
        QGuiApplication::clipboard()->setMimeData(data.release());
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// From the first corner, where the frame comes up, to a space of the first side.
    static void WalkToSpace(int iSpace) {
        for (int i = 0; i < iSpace + 2; ++i)
            Press(Qt::Key_Left);
    }
    static const C_Space& Space(int iSpace) { return TheGame().spaces[size_t(iSpace)]; }
};

TEST_F(PicturePasteTest, AFileCopiedElsewhereStandsWhereTheFrameIsAsOneStep) {
    const QString photo = Photo(QStringLiteral("dog.png"));
    CopyFiles({photo});
    WalkToSpace(4);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Space(4).Image.FullPath(), photo);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    Session& session = window->Commands().InHand();
    EXPECT_TRUE(session.UndoName().startsWith(QStringLiteral("Picture of "))) << session.UndoName().toStdString();
    session.Undo();
    EXPECT_FALSE(session.CanUndo());
    EXPECT_EQ(Space(4).Image.FullPath(), QString());
}

TEST_F(PicturePasteTest, ACopiedPictureIsKeptAsAFileAndStandsOnACorner) {
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QGuiApplication::clipboard()->setImage(image);
    Press(Qt::Key_Left);
    ChooseMenu("mnuEdit_42");
    const QString kept = TheGame().corners[0].Image.FullPath();
    EXPECT_TRUE(kept.startsWith(InGames(QStringLiteral("Pictures of ")))) << kept.toStdString();
    EXPECT_EQ(QImage(kept).pixelColor(1, 1), QColor(Qt::blue));
}

TEST_F(PicturePasteTest, TheFrameOutlivesTheMenuOpenedByItsKey) {
    WalkToSpace(4);
    Press(Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(Comes([] { return QApplication::activePopupWidget() != nullptr; }));
    CopyFiles({Photo(QStringLiteral("dog.png"))});
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_P);
    EXPECT_TRUE(Space(4).Image.FullPath().endsWith(QStringLiteral("dog.png")));
    EXPECT_TRUE(Find<QFrame>("frmWalk").isVisible());
}

TEST_F(PicturePasteTest, WhatCannotBePastedIsSaidAndNothingChanges) {
    const Game before = TheGame();
    const auto pasted = [this] {
        desktop.boxes.clear();
        Press(Qt::Key_V, Qt::ControlModifier);
        return desktop.Texts().join(u'|');
    };
    EXPECT_EQ(pasted(), QStringLiteral("There is nothing to paste. Please copy a picture first."));
    CopyFiles({Photo(QStringLiteral("dog.png"))});
    EXPECT_EQ(pasted(),
              QStringLiteral("Please choose a place for it first: the arrow keys move a frame over the board."));
    WalkToSpace(4);
    CopyFiles({WriteFile(QStringLiteral("letter.txt"), "Dear Grandma, thank you for the dog.")});
    EXPECT_EQ(pasted(),
              QStringLiteral("'letter' holds no picture that Tavlora can show. Photos as .jpg or .png are fine."));
    EXPECT_EQ(TheGame(), before);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(PicturePasteTest, WhereEveryNoteHasAPictureNoneGivesAndNoFileIsKept) {
    for (C_Money& note : TheGame().money)
        note.FaceImage.Let_FullPath(Photo(QStringLiteral("dog.png")));
    const Game before = TheGame();
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QGuiApplication::clipboard()->setImage(image);
    ASSERT_TRUE(BoardWays::Places().back().m_bOverMoney);
    for (size_t i = 0; i < BoardWays::Places().size(); ++i)
        Press(Qt::Key_Tab);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desktop.Texts(), Strings{QStringLiteral("One picture found no free place.")});
    EXPECT_EQ(TheGame(), before);
    EXPECT_TRUE(QDir(InGames(QString())).entryList({QStringLiteral("Pictures of *")}).isEmpty());
}

TEST_F(PicturePasteTest, PlacesWithFacesOfTheirOwnTakeNone) {
    CopyFiles({Photo(QStringLiteral("dog.png"))});
    const Game before = TheGame();
    // Behind the last space stand the boxes of the titles, the news, the money and the tokens.
    Press(Qt::Key_Tab);
    for (int i = 0; i < 32; ++i)
        Press(Qt::Key_Tab);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desktop.Texts(),
              Strings{QStringLiteral("No picture can stand there. Spaces, corners, notes and tokens take one.")});
    EXPECT_EQ(TheGame(), before);
}

} // namespace
