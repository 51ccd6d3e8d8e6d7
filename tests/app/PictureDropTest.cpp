// SPDX-License-Identifier: MIT
// Pictures dragged from elsewhere onto the board, by the events that a desktop sends.
#include "MainWindowFixture.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "support/PictureFiles.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QRubberBand>
#include <QUrl>

namespace {

class PictureDropTest : public MainWindowTest {
protected:
    ~PictureDropTest() override { Folders::PretendVolumes({}); }

    QString Photo(const QString& sName, QColor color = Qt::red) const {
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(color);
        return WriteFile(sName, PictureFiles::Encoded(image, "png"));
    }
    QPoint InWindow(QPointF place) const {
        return window->View().Board().mapTo(window.get(), PointOnBoard(place.x(), place.y()));
    }
    static std::unique_ptr<QMimeData> Dragged(const QStringList& files) {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        data->setUrls(urls);
        return data;
    }
    bool Enter(const QMimeData& data) const {
        QDragEnterEvent event(InWindow({0.5, 0.5}), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }
    bool Move(const QMimeData& data, QPointF place) const {
        QDragMoveEvent event(InWindow(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }
    void Drop(const QMimeData& data, QPointF place) const {
        ASSERT_TRUE(Enter(data));
        QDropEvent event(QPointF(InWindow(place)), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &event);
        QCoreApplication::processEvents();
    }
    QWidget& Light() const { return Find<QRubberBand>("shpDrop"); }
    static const C_Space& Space(int iSpace) { return TheGame().spaces[size_t(iSpace)]; }
};

TEST_F(PictureDropTest, APhotoDroppedOnASpaceShowsThereAsOneEdit) {
    const QString photo = Photo(QStringLiteral("dog.png"));
    Drop(*Dragged({photo}), MiddleOf(5));
    EXPECT_EQ(Space(5).Image.FullPath(), photo);
    Session& session = window->Commands().InHand();
    EXPECT_TRUE(session.UndoName().startsWith(QStringLiteral("Picture of "))) << session.UndoName().toStdString();
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(HasAutosave());
    session.Undo();
    EXPECT_EQ(Space(5).Image.FullPath(), QString());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(PictureDropTest, SeveralFillTheFollowingFreeSpacesInOneStep) {
    Drop(*Dragged({Photo(QStringLiteral("a.png")), Photo(QStringLiteral("b.png")), Photo(QStringLiteral("c.png"))}),
         MiddleOf(11));
    EXPECT_TRUE(Space(11).Image.FullPath().endsWith(QStringLiteral("a.png")));
    EXPECT_EQ(window->Commands().InHand().UndoName(), QStringLiteral("3 Pictures"));
    window->Commands().InHand().Undo();
    EXPECT_FALSE(window->Commands().InHand().CanUndo());
}

TEST_F(PictureDropTest, ThePlaceUnderThePointerLightsUp) {
    const auto data = Dragged({Photo(QStringLiteral("dog.png"))});
    ASSERT_TRUE(Enter(*data));
    EXPECT_FALSE(Light().isVisible());
    for (const int space : {0, 8, 20, 27}) {
        EXPECT_TRUE(Move(*data, MiddleOf(space)));
        EXPECT_TRUE(Light().isVisible());
        const QPoint middle = PointOnBoard(MiddleOf(space).x(), MiddleOf(space).y());
        EXPECT_LT((Light().geometry().center() - middle).manhattanLength(), 4) << space;
    }
    EXPECT_TRUE(Move(*data, {kCornerMiddles[1].x, kCornerMiddles[1].y}));
    EXPECT_TRUE(Light().geometry().contains(PointOnBoard(0.05, 0.95)));
    EXPECT_TRUE(Move(*data, MiddleOfBox(basPosit::kTokensBox)));
    EXPECT_FALSE(Move(*data, MiddleOfBox(basPosit::kTitleBox))) << "no picture stands there";
    EXPECT_FALSE(Light().isVisible());
    EXPECT_FALSE(Move(*data, {kCornerMiddles[3].x, kCornerMiddles[3].y})) << "its face belongs to the kit";
    Move(*data, MiddleOf(5));
    QDragLeaveEvent leave;
    QApplication::sendEvent(window.get(), &leave);
    EXPECT_FALSE(Light().isVisible());
}

TEST_F(PictureDropTest, WhatIsNoPictureIsSaidPlainlyAndNothingChanges) {
    const Game before = TheGame();
    Drop(*Dragged({WriteFile(QStringLiteral("letter.jpg"), "Dear Grandma, thank you for the dog.")}), MiddleOf(5));
    EXPECT_EQ(desktop.Texts(),
              QStringList{
                  QStringLiteral("'letter' holds no picture that Tavlora can show. Photos as .jpg or .png are fine.")});
    EXPECT_EQ(TheGame(), before);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(PictureDropTest, APictureWithoutAFileIsKeptAmongTheGames) {
    QMimeData data;
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    data.setImageData(image);
    Drop(data, MiddleOf(5));
    Drop(data, MiddleOf(6));
    const QString first = Space(5).Image.FullPath();
    EXPECT_TRUE(first.startsWith(InGames(QStringLiteral("Pictures of ")))) << first.toStdString();
    EXPECT_EQ(QImage(first).pixelColor(1, 1), QColor(Qt::blue));
    EXPECT_NE(Space(6).Image.FullPath(), first);
}

TEST_F(PictureDropTest, APictureOfADiskThatMayGoAwayIsCopied) {
    QDir(folder.path()).mkdir(QStringLiteral("stick"));
    const QString photo = Photo(QStringLiteral("stick/Space5.bmp"));
    Folders::PretendVolumes(
        {{QStringLiteral("/"), QStringLiteral("debian")}, {PathOf(QStringLiteral("stick")), QStringLiteral("STICK")}});
    Drop(*Dragged({photo}), MiddleOf(5));
    EXPECT_EQ(Space(5).Image.FullPath(), InGames(QStringLiteral("Space5(1).bmp")));
    EXPECT_EQ(ReadFile(Space(5).Image.FullPath()), ReadFile(photo));
}

TEST_F(PictureDropTest, WhatAMailProgramLaysAmongTemporaryFilesIsCopied) {
    QDir(folder.path()).mkdir(QStringLiteral("gone tomorrow"));
    const QString photo = Photo(QStringLiteral("gone tomorrow/dog.png"));
    Drop(*Dragged({photo}), MiddleOf(5));
    EXPECT_EQ(Space(5).Image.FullPath(), InGames(QStringLiteral("dog.png")));
    EXPECT_EQ(ReadFile(Space(5).Image.FullPath()), ReadFile(photo));
}

TEST_F(PictureDropTest, WhatIsGoneTomorrowAndCantBeCopiedIsToldAndNotTaken) {
    QDir(folder.path()).mkdir(QStringLiteral("gone tomorrow"));
    const QStringList photos{Photo(QStringLiteral("gone tomorrow/dog.png")),
                             Photo(QStringLiteral("gone tomorrow/cat.png"))};
    const Game before = TheGame();
    Files::SetFaultHook([](Files::Operation operation, const QString&) {
        return operation == Files::Operation::Copy ? std::optional(QStringLiteral("The cable was pulled"))
                                                   : std::nullopt;
    });
    Drop(*Dragged({photos[0]}), MiddleOf(5));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("The following error occurred while \r\nattempting to copy the file \r\nnamed '") +
                  photos[0] + QStringLiteral("' to '") + InGames(QStringLiteral("dog.png")) +
                  QStringLiteral("'.\r\n\r\nThe cable was pulled\r\n\r\nPlease correct this problem and try again."));
    EXPECT_EQ(TheGame(), before);
    Folders::PretendFreeBytes(10);
    Drop(*Dragged(photos), MiddleOf(5));
    Folders::PretendFreeBytes(-1);
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[1].sText, QStringLiteral("We are unable to process files because your disk is full.\r\n"
                                                     "Please make some space on your disk and try again."));
    EXPECT_EQ(TheGame(), before);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(PictureDropTest, TheAddressOfAPageIsToldAndNothingChanges) {
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/dog.png"))});
    const Game before = TheGame();
    Drop(data, MiddleOf(5));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("This is the address of a page and no picture. Please save the picture as a "
                                         "file first, and take that.")});
    EXPECT_EQ(TheGame(), before);
}

TEST_F(PictureDropTest, TokensAndNotesFillFromTheFirstFreeOne) {
    for (C_Token& token : TheGame().tokens)
        token.SetImagePath(QString());
    TheGame().tokens[0].SetImagePath(Photo(QStringLiteral("dog.png")));
    Drop(*Dragged({Photo(QStringLiteral("cat.png"))}), MiddleOfBox(basPosit::kTokensBox));
    EXPECT_TRUE(TheGame().tokens[0].Image.FullPath().endsWith(QStringLiteral("dog.png")));
    EXPECT_TRUE(TheGame().tokens[1].Image.FullPath().endsWith(QStringLiteral("cat.png")));
    Drop(*Dragged({Photo(QStringLiteral("cow.png"))}), MiddleOfBox(basPosit::kMoneyBox));
    EXPECT_TRUE(TheGame().money[0].FaceImage.FullPath().endsWith(QStringLiteral("cow.png")));
}

TEST_F(PictureDropTest, WhereEveryTokenOrNoteHasAPictureNoneGives) {
    QDir(folder.path()).mkdir(QStringLiteral("gone tomorrow"));
    for (C_Token& token : TheGame().tokens)
        token.SetImagePath(Photo(QStringLiteral("dog.png")));
    for (C_Money& note : TheGame().money)
        note.FaceImage.Let_FullPath(Photo(QStringLiteral("cow.png")));
    const Game before = TheGame();
    const QStringList cats{Photo(QStringLiteral("gone tomorrow/cat.png")), Photo(QStringLiteral("cat2.png"))};
    Drop(*Dragged(cats.mid(0, 1)), MiddleOfBox(basPosit::kTokensBox));
    Drop(*Dragged(cats), MiddleOfBox(basPosit::kMoneyBox));
    EXPECT_EQ(desktop.Texts(), (QStringList{QStringLiteral("One picture found no free place."),
                                            QStringLiteral("2 pictures found no free place.")}));
    EXPECT_EQ(TheGame(), before);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_FALSE(QFile::exists(InGames(QStringLiteral("cat.png")))) << "nothing is kept that isn't used";
}

} // namespace
