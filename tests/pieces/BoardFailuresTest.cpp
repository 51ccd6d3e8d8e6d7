// SPDX-License-Identifier: MIT
// A disk that refuses any single operation of painting a board with pictures, or all from there on.
#include "board/BoardPicture.h"
#include "pictures/ThumbnailStore.h"
#include "pieces/frmBMP.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basCommon.h"
#include "support/BoardFixture.h"
#include "support/PictureFiles.h"
#include "support/RefusedInTurn.h"

#include <QFile>

#include <iostream>

namespace {

class BoardFailuresTest : public BoardTest {
protected:
    BoardFailuresTest() {
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        basPosit::PosInit();
        // One is the user's own of the very name that a thumbnail would have.
        for (const char* name : {"dog.png", "Space6.bmp", "cat.bmp"})
            theirs[InGames(name)] =
                PictureFiles::Encoded(PictureFiles::Quarters(60, 60), QByteArray(name).endsWith("png") ? "png" : "bmp");
        Restore();
        basTAVL::g_oSpaces(5).Image.Init(InGames("dog.png"), QStringLiteral("Space"), 5);
        basTAVL::g_oSpaces(6).Image.Init(InGames("Space6.bmp"), QStringLiteral("Space"), 6);
        basTAVL::g_oCorners(1).Image.Init(InGames("cat.bmp"), QStringLiteral("Corner"), 1);
    }
    ~BoardFailuresTest() override { basCommon::ResetForTest(); }

    QString InGames(const char* name) const { return PathOf(QStringLiteral("games/") + QString::fromLatin1(name)); }
    void Restore() const {
        for (auto file = theirs.cbegin(); file != theirs.cend(); ++file)
            WriteFile(QStringLiteral("games/") + file.key().section(u'/', -1), file.value());
    }
    /// As in a program that has just been started, whose last run has left nothing.
    QImage PaintAnew() {
        ForgetPictures();
        ThumbnailStore::Instance().ForgetAll();
        QDir games(PathOf(QStringLiteral("games")));
        for (const QString& name : games.entryList(QDir::Files | QDir::Hidden)) {
            if (!theirs.contains(games.filePath(name))) games.remove(name);
        }
        return basPosit::BoardPicture(300).Image().copy();
    }

    QMap<QString, QByteArray> theirs;
};

TEST_F(BoardFailuresTest, TheBoardComesAndNoPictureOfTheUsersChanges) {
    const QImage whole = PaintAnew();
    QImage board;
    const auto check = [&](const RefusedInTurn::Case& now) {
        const std::string told = now.Told();
        ASSERT_EQ(board.size(), whole.size()) << told;
        if (!now.bReadsToo) {
            EXPECT_EQ(board, whole) << told;
        }
        for (auto file = theirs.cbegin(); file != theirs.cend(); ++file)
            EXPECT_EQ(ReadFile(file.key()), file.value()) << told;
    };
    const int runs = RefusedInTurn::Run([&] { board = PaintAnew(); }, check);
    std::cout << "[ MATRIX   ] " << runs << " failures injected\n";
    EXPECT_GT(runs, 12);
    desktop.boxes.clear();
    EXPECT_EQ(PaintAnew(), whole) << "all is well again";
}

} // namespace
