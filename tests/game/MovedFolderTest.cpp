// SPDX-License-Identifier: MIT
// A game that lies in a folder with its photos: the folder is moved as a whole, and every kind of piece shows its part
// of its picture from the new place.
#include "game/MissingPictures.h"
#include "game/PieceImages.h"
#include "support/FileFixture.h"
#include "support/PictureFiles.h"

#include <QDir>

namespace {

using Kind = PictureOwner::Kind;

class MovedFolderTest : public GameFileTest {
protected:
    /// Saves a game with a photo on a piece of each kind: the first beside the game, the others in a folder below.
    void SaveIn(const QString& sFolder) {
        QDir().mkpath(sFolder + QStringLiteral("/Photos"));
        Load(WriteGame(PlainLines()));
        qint16 step = 0;
        for (const PictureOwner& piece : m_pieces) {
            const QString photo = sFolder + NameOf(piece);
            QFile file(photo);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(PictureFiles::Encoded(PictureFiles::Quarters(60 + step, 40), "png"));
            file.close();
            C_Image& image = PieceImages::Of(TheGame(), piece);
            image.Let_FullPath(photo);
            image.Let_Zoom(qint16(++step));
            image.Let_XCenter(float(20 + step));
            image.Let_YCenter(float(10 + step));
        }
        SaveAs(sFolder);
    }
    void SaveAs(const QString& sFolder) {
        session.SetGameName(sFolder + QStringLiteral("/Trip.gam"));
        ASSERT_TRUE(Save(session.GameName()));
    }
    /// Moves the folder, opens the game there, and looks at every piece.
    void ExpectWholeAfterMoving(const QString& sBefore, const QString& sNow) {
        const Game before = TheGame();
        QDir().mkpath(QFileInfo(sNow).path());
        ASSERT_TRUE(QDir().rename(sBefore, sNow));
        ASSERT_EQ(Load(QString(sNow + QStringLiteral("/Trip.gam"))), 0);
        EXPECT_TRUE(MissingPictures::Of(TheGame()).empty());
        for (const PictureOwner& piece : m_pieces) {
            PictureRef wanted = PieceImages::Of(before, piece).Ref();
            wanted.sPath = sNow + NameOf(piece);
            EXPECT_EQ(PieceImages::Of(TheGame(), piece).Ref(), wanted) << wanted.sPath.toStdString();
        }
        EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
    }
    static QString NameOf(const PictureOwner& piece) {
        const QString name = QStringLiteral("%1 %2.png").arg(int(piece.kind)).arg(piece.iNumber);
        return (piece.kind == Kind::Space ? QStringLiteral("/") : QStringLiteral("/Photos/")) + name;
    }

    const std::vector<PictureOwner> m_pieces{{Kind::Space, 4}, {Kind::Corner, 1}, {Kind::Money, 2}, {Kind::Token, 3}};
};

TEST_F(MovedFolderTest, AFolderOutsideOfMyGamesMayGoAnywhere) {
    SaveIn(PathOf(QStringLiteral("desk/Trip")));
    ExpectWholeAfterMoving(PathOf(QStringLiteral("desk/Trip")), PathOf(QStringLiteral("stick/Holiday 2026")));
}

TEST_F(MovedFolderTest, AFolderInMyGamesMayLeaveIt) {
    SaveIn(InGames(QStringLiteral("Trip")));
    ExpectWholeAfterMoving(InGames(QStringLiteral("Trip")), PathOf(QStringLiteral("stick/Trip")));
}

TEST_F(MovedFolderTest, AFolderInMyGamesMayBeRenamed) {
    SaveIn(InGames(QStringLiteral("Trip")));
    ExpectWholeAfterMoving(InGames(QStringLiteral("Trip")), InGames(QStringLiteral("Holiday 2026")));
}

TEST_F(MovedFolderTest, AFolderInMyGamesMayGoElsewhereUnderAnotherName) {
    SaveIn(InGames(QStringLiteral("Families/Trip")));
    ExpectWholeAfterMoving(InGames(QStringLiteral("Families/Trip")), PathOf(QStringLiteral("stick/Holiday 2026")));
}

TEST_F(MovedFolderTest, MyGamesMayBeAnotherFolderOnAnotherComputer) {
    SaveIn(InGames(QStringLiteral("Trip")));
    ASSERT_TRUE(QDir().rename(PathOf(QStringLiteral("games")), PathOf(QStringLiteral("My Games"))));
    Settings().sMyGamesDirectory = PathOf(QStringLiteral("My Games"));
    ExpectWholeAfterMoving(PathOf(QStringLiteral("My Games/Trip")), PathOf(QStringLiteral("My Games/Holiday")));
}

TEST_F(MovedFolderTest, SavedInItsNewPlaceItMayBeMovedOnceMore) {
    SaveIn(InGames(QStringLiteral("Trip")));
    ExpectWholeAfterMoving(InGames(QStringLiteral("Trip")), PathOf(QStringLiteral("stick/Trip")));
    SaveAs(PathOf(QStringLiteral("stick/Trip")));
    ExpectWholeAfterMoving(PathOf(QStringLiteral("stick/Trip")), PathOf(QStringLiteral("desk/Again")));
}

} // namespace
