// SPDX-License-Identifier: MIT
// What somebody sent is opened: by a start, the Open command, another start, and by dropping it on the window.
#include "AppFixture.h"

#include "pack/Packing.h"
#include "platform/files/TextFile.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace {

const QString kTold = QStringLiteral("The game and its pictures now lie in My Games, in the folder '%1'. From now on, "
                                     "open it there.");
const QString kDamaged = QStringLiteral("'%1' can't be opened: a part of it is missing or was changed on its way.");

class PackedGamesTest : public AppTest {
protected:
    PackedGamesTest() { QDir(folder.path()).mkdir(QStringLiteral("post")); }

    /// A game called Sent whose space 4 carries the text and shows a picture, as one file in the post.
    QString Packed(const QString& text = QStringLiteral("From Ann")) const {
        WriteGame(QStringLiteral("Sent.gam"), text);
        QImage photo(40, 30, QImage::Format_RGB32);
        photo.fill(Qt::red);
        photo.save(PathOf(QStringLiteral("post/photo.png")));
        QString error;
        QStringList lines = *TextFile::ReadLines(InGames(QStringLiteral("Sent.gam")), error);
        lines[7] = QStringLiteral("4, \"%1\", \"%2\",20,15,0, \"Arial\",B,14")
                       .arg(text, PathOf(QStringLiteral("post/photo.png")));
        QFile::remove(InGames(QStringLiteral("Sent.gam")));
        const auto contents = Packing::Gather(lines, QStringLiteral("Sent.gam"),
                                              [](const QString& name, const PictureOwner&) { return name; });
        const QString path = PathOf(QStringLiteral("post/Sent.tavlora"));
        EXPECT_TRUE(Packing::Write(contents, path, {}, error)) << error.toStdString();
        QFile::remove(PathOf(QStringLiteral("post/photo.png")));
        return path;
    }
    const QString unpacked = InGames(QStringLiteral("Sent/Sent.gam"));

    void ExpectOpened(const QString& game) {
        EXPECT_EQ(TextOfSpace4(), QStringLiteral("From Ann"));
        EXPECT_EQ(window->Commands().InHand().GameName(), game);
        EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
        EXPECT_EQ(Ini("GameName"), game);
        EXPECT_EQ(basTAVL::g_oSpaces(4).Image.FullPath(),
                  QFileInfo(game).path() + QStringLiteral("/Pictures/photo.png"));
        const QString told = QFileInfo(game).dir().dirName();
        EXPECT_EQ(desktop.Texts(), QStringList{kTold.arg(told)});
        desktop.boxes.clear();
    }
    void Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        accepted = enter.isAccepted();
        if (!accepted) return;
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &drop);
        QCoreApplication::processEvents();
    }
    bool accepted = false;
};

TEST_F(PackedGamesTest, AStartOpensWhatWasSentAsASavedGameAndTellsWhereItLies) {
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), Packed());
    ExpectOpened(unpacked);
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("From Ann")) << "the next start opens the game that it has become";
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(PackedGamesTest, TheOpenCommandOffersAndOpensIt) {
    Start();
    const QString packed = Packed();
    QString filter;
    desktop.onDialog = [&](CommonDialog& dialog) {
        filter = dialog.sFilter;
        dialog.sFileName = packed;
        return true;
    };
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(filter, QStringLiteral("Tavlora games|*.gam;*.tavlora|All files|*.*"));
    ExpectOpened(unpacked);
    ChooseMenu("mnuFile_2");
    ExpectOpened(InGames(QStringLiteral("Sent 2/Sent.gam")));
}

TEST_F(PackedGamesTest, AnotherStartAndADropOpenIt) {
    Start();
    window->CalledByAnotherStart(Packed());
    ExpectOpened(unpacked);
    Drop({QUrl(QStringLiteral("https://example.org/x.tavlora")), QUrl::fromLocalFile(PathOf(QStringLiteral("x.txt"))),
          QUrl::fromLocalFile(Packed())});
    EXPECT_TRUE(accepted);
    ExpectOpened(InGames(QStringLiteral("Sent 2/Sent.gam")));
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Mine"));
    Drop({QUrl::fromLocalFile(InGames(QStringLiteral("Mine.gam")))});
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Mine"));
    Drop({QUrl::fromLocalFile(PathOf(QStringLiteral("x.txt")))});
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Mine")) << "what is no game leaves the one in hand";
}

TEST_F(PackedGamesTest, UnsavedChangesAreAskedAboutFirst) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Mine"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    Start();
    Edit(QStringLiteral("Edited"));
    desktop.answers = {vbCancel};
    window->CalledByAnotherStart(Packed());
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Edited"));
    EXPECT_FALSE(HasFile(QStringLiteral("Sent"))) << "nothing is unpacked before the answer";
}

TEST_F(PackedGamesTest, WhatCannotBeUnpackedLeavesTheGameInHand) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Mine"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    const QString damaged = WriteFile(QStringLiteral("post/Bad.tavlora"), "PK\x03\x04 and no more");
    Start();
    Edit(QStringLiteral("Edited"));
    desktop.answers = {vbNo};
    window->CalledByAnotherStart(damaged);
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.Texts()[1], kDamaged.arg(QStringLiteral("Bad.tavlora")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Edited"));
    EXPECT_TRUE(HasAutosave()) << "what is still being worked on outlives a crash";
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
}

TEST_F(PackedGamesTest, AStartWithADamagedOneOpensTheLastGame) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Mine"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), WriteFile(QStringLiteral("post/Bad.tavlora"), "x"));
    EXPECT_EQ(desktop.Texts(), QStringList{kDamaged.arg(QStringLiteral("Bad.tavlora"))});
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Mine"));
    EXPECT_EQ(Ini("GameName"), InGames(QStringLiteral("Mine.gam")));
}

} // namespace
