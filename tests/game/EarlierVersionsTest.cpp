// SPDX-License-Identifier: MIT
// What a save replaces is kept, at most so many of each game, and never in the way of the save.
#include "support/FileFixture.h"

#include "document/GameText.h"
#include "game/EarlierVersions.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/TextFile.h"
#include "services/basErrLog.h"

namespace {

using EarlierVersions::Of;
using EarlierVersions::TooMany;

class EarlierVersionsTest : public GameFileTest {
protected:
    EarlierVersionsTest() {
        game = WriteGame(PlainLines(), QStringLiteral("Trip.gam"));
        Open(game);
    }
    void Open(QString path) {
        session.SetGameName(path);
        ASSERT_EQ(session.Load(path), 0);
    }
    void Rename(const QString& text) {
        C_Space space = session.InHand().spaces[0];
        space.SetText(text);
        session.Do(Edits::OfSpace(session.InHand(), 0, space));
    }
    static QDateTime At(int second) { return QDateTime(QDate(2026, 3, 9), QTime(20, 0)).addSecs(second); }
    /// Saves a state, as at that second.
    void SaveAt(int second, const QString& text) {
        Rename(text);
        ASSERT_TRUE(session.Save());
        Date(second);
    }
    void Date(int second) const {
        QFile file(session.GameName());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(At(second), QFileDevice::FileModificationTime));
    }
    QString game;
};

TEST_F(EarlierVersionsTest, EachSaveKeepsTheStateThatItReplaces) {
    Date(0);
    QByteArray first = ReadFile(game);
    first.replace("Plain.gam", game.toUtf8());
    SaveAt(1, QStringLiteral("Oak"));
    const QByteArray second = ReadFile(game);
    SaveAt(2, QStringLiteral("Elm"));
    const QList<EarlierVersions::Version> versions = Of(game);
    ASSERT_EQ(versions.size(), 2);
    EXPECT_EQ(versions[0].when, At(1));
    EXPECT_EQ(ReadFile(versions[0].sPath), second);
    EXPECT_EQ(versions[1].when, At(0));
    EXPECT_EQ(ReadFile(versions[1].sPath), first);
    EXPECT_TRUE(versions[0].sPath.startsWith(InGames(QStringLiteral("Earlier Versions/Trip "))));
}

TEST_F(EarlierVersionsTest, ASaveThatChangesNothingKeepsNothing) {
    SaveAt(0, QStringLiteral("Oak"));
    const qsizetype before = Of(game).size();
    ASSERT_TRUE(session.Save());
    EXPECT_EQ(Of(game).size(), before);
}

TEST_F(EarlierVersionsTest, AnAutosaveKeepsNothing) {
    Rename(QStringLiteral("Oak"));
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(Of(game).isEmpty());
}

TEST_F(EarlierVersionsTest, AGameOfTheSameNameInAnotherFolderHasItsOwn) {
    SaveAt(0, QStringLiteral("Oak"));
    QDir(folder.path()).mkdir(QStringLiteral("other"));
    const QString other = PathOf(QStringLiteral("other/Trip.gam"));
    ASSERT_TRUE(QFile::copy(game, other));
    EXPECT_EQ(Of(game).size(), 1);
    EXPECT_TRUE(Of(other).isEmpty());
    Open(other);
    SaveAt(1, QStringLiteral("Elm"));
    EXPECT_EQ(Of(other).size(), 1);
    EXPECT_EQ(Of(game).size(), 1);
}

TEST_F(EarlierVersionsTest, WhatTheDiskRefusesIsNoHindranceToTheSave) {
    using Operation = Files::Operation;
    for (const Operation refused : {Operation::MakeDirectory, Operation::OpenWrite, Operation::Write, Operation::Commit,
                                    Operation::Rename, Operation::Remove}) {
        Files::SetFaultHook([refused](Operation operation, const QString& path) {
            const bool hit = operation == refused && path.contains(QStringLiteral("/Earlier Versions"));
            return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
        });
        Rename(QStringLiteral("Oak %1").arg(int(refused)));
        EXPECT_TRUE(session.Save());
        Files::SetFaultHook({});
        EXPECT_FALSE(session.IsUnsaved());
        EXPECT_TRUE(desktop.boxes.isEmpty());
        EXPECT_TRUE(ReadFile(game).contains(QStringLiteral("Oak %1").arg(int(refused)).toUtf8()));
    }
    const QByteArray log = ReadFile(basErrLog::ErrLogPath());
    EXPECT_TRUE(log.contains("Of an earlier version, ")) << log.toStdString();
    EXPECT_TRUE(log.contains(" could not be kept: disk says no")) << log.toStdString();
}

TEST_F(EarlierVersionsTest, OnADiskThatIsNearlyFullTheRoomBelongsToTheGame) {
    // Of 32 MiB not a byte may lack.
    Folders::PretendFreeBytes(33'554'431);
    SaveAt(0, QStringLiteral("Oak"));
    EXPECT_TRUE(Of(game).isEmpty());
    EXPECT_TRUE(desktop.boxes.isEmpty());
    Folders::PretendFreeBytes(33'554'432);
    SaveAt(1, QStringLiteral("Elm"));
    Folders::PretendFreeBytes(-1);
    EXPECT_EQ(Of(game).size(), 1);
}

// A save that ends in its middle has then put the game in place already, or has touched nothing of it.
TEST_F(EarlierVersionsTest, NothingIsKeptBeforeTheSaveIsDone) {
    Rename(QStringLiteral("Oak"));
    bool keeping = false;
    Files::SetFaultHook([this, &keeping](Files::Operation, const QString& path) -> std::optional<QString> {
        keeping = keeping || path.contains(QStringLiteral("/Earlier Versions"));
        EXPECT_FALSE(keeping && (session.IsUnsaved() || !ReadFile(game).contains("Oak"))) << path.toStdString();
        return std::nullopt;
    });
    session.Save();
    Files::SetFaultHook({});
    EXPECT_TRUE(keeping);
}

TEST_F(EarlierVersionsTest, ASaveThatFailsKeepsNothing) {
    Rename(QStringLiteral("Oak"));
    Files::SetFaultHook([this](Files::Operation operation, const QString& path) {
        const bool hit = operation == Files::Operation::Commit && path == game;
        return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
    });
    session.Save();
    Files::SetFaultHook({});
    EXPECT_TRUE(Of(game).isEmpty());
}

TEST_F(EarlierVersionsTest, AStateIsKeptThoughTheAutosaveOfTheNextCanNotBeRemoved) {
    QByteArray before = ReadFile(game);
    before.replace("Plain.gam", game.toUtf8());
    Rename(QStringLiteral("Oak"));
    Files::SetFaultHook([](Files::Operation operation, const QString& path) {
        const bool hit = operation == Files::Operation::Remove && path.contains(QStringLiteral("AutoSave"));
        return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
    });
    EXPECT_THROW(session.Save(), TavloraError);
    Files::SetFaultHook({});
    EXPECT_TRUE(ReadFile(game).contains("Oak"));
    ASSERT_EQ(Of(game).size(), 1);
    EXPECT_EQ(ReadFile(Of(game).first().sPath), before);
}

// As in a folder that takes no new file: nothing but what is in hand is left of the state of before.
TEST_F(EarlierVersionsTest, AStateThatASaveInPlaceDestroysIsKeptThoughTheSaveFails) {
    using Operation = Files::Operation;
    QByteArray before = ReadFile(game);
    before.replace("Plain.gam", game.toUtf8());
    for (const Operation refused : {Operation::Write, Operation::Commit}) {
        Date(int(refused));
        const qsizetype kept = Of(game).size();
        Rename(QStringLiteral("Oak %1").arg(int(refused)));
        Files::SetFaultHook([&](Operation operation, const QString& path) -> std::optional<QString> {
            if (operation != refused || path != game) return std::nullopt;
            QFile file(game);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("\"Tavl");
            return QStringLiteral("disk says no");
        });
        session.Save();
        Files::SetFaultHook({});
        ASSERT_EQ(Of(game).size(), kept + 1) << int(refused);
        EXPECT_EQ(ReadFile(Of(game).first().sPath), before);
        WriteGame(PlainLines(), QStringLiteral("Trip.gam"));
    }
}

TEST_F(EarlierVersionsTest, AGameThatIsSavedOverAnotherKeepsTheStateOfThatOne) {
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"Mill\", \"\",0,0,0, \"Arial\",R,12");
    const QString other = WriteGame(lines, QStringLiteral("Other.gam"));
    Rename(QStringLiteral("Oak"));
    session.SetGameName(other);
    ASSERT_TRUE(session.Save());
    EXPECT_TRUE(Of(game).isEmpty());
    ASSERT_EQ(Of(other).size(), 1);
    EXPECT_TRUE(ReadFile(Of(other).first().sPath).contains("Mill"));
    EXPECT_FALSE(ReadFile(other).contains("Mill"));
}

TEST_F(EarlierVersionsTest, TheBoardAsItWasSavedGoesWithItsState) {
    Date(0);
    EarlierVersions::KeepBoard(game, "first");
    SaveAt(1, QStringLiteral("Oak"));
    EarlierVersions::KeepBoard(game, "second");
    SaveAt(2, QStringLiteral("Elm"));
    SaveAt(3, QStringLiteral("Ash"));
    const QList<EarlierVersions::Version> versions = Of(game);
    ASSERT_EQ(versions.size(), 3);
    EXPECT_EQ(ReadFile(versions[2].sBoard), "first");
    EXPECT_EQ(ReadFile(versions[1].sBoard), "second");
    EXPECT_FALSE(Files::Exists(versions[0].sBoard)) << "nobody has drawn it";
}

TEST_F(EarlierVersionsTest, NoMoreThanTwentyStayAndTheirBoardsGoWithThem) {
    Date(0);
    for (int i = 1; i <= 30; ++i) {
        EarlierVersions::KeepBoard(game, "board");
        SaveAt(i * 60, QStringLiteral("Save %1").arg(i));
    }
    const QList<EarlierVersions::Version> versions = Of(game);
    ASSERT_EQ(versions.size(), 20);
    EXPECT_EQ(versions.first().when, At(29 * 60));
    EXPECT_EQ(versions.last().when, At(0));
    const QDir kept(QFileInfo(versions.first().sPath).path());
    EXPECT_EQ(kept.entryList({QStringLiteral("*.png")}, QDir::Files).size(), 20);
}

TEST_F(EarlierVersionsTest, WhatElseLiesInTheFolderIsLeftAlone) {
    SaveAt(0, QStringLiteral("Oak"));
    const QString mine = QFileInfo(Of(game).first().sPath).path() + QStringLiteral("/mine.gam");
    ASSERT_TRUE(QFile::copy(game, mine));
    for (int i = 1; i <= 25; ++i)
        SaveAt(i, QStringLiteral("Save %1").arg(i));
    EXPECT_EQ(Of(game).size(), 20);
    EXPECT_TRUE(QFile::exists(mine));
}

TEST_F(EarlierVersionsTest, TheOlderTheyAreTheWiderApartTheyStand) {
    constexpr qint64 kMinute = 60;
    QList<qint64> times; // of saves ten minutes apart, as they are left after each
    for (int save = 0; save < 1000; ++save) {
        const qint64 now = save * 10 * kMinute;
        times.prepend(now);
        QList<qint64> ages;
        for (const qint64 time : times)
            ages.append(now - time);
        QList<qsizetype> gone = TooMany(ages);
        std::sort(gone.begin(), gone.end(), std::greater<>());
        for (const qsizetype i : gone)
            times.removeAt(i);
        ASSERT_LE(times.size(), EarlierVersions::kMost);
    }
    ASSERT_EQ(times.size(), EarlierVersions::kMost);
    EXPECT_EQ(times.last(), 0) << "the first of all";
    EXPECT_EQ(times[0] - times[1], 10 * kMinute) << "and all of the last hour's half";
    EXPECT_EQ(times[1] - times[2], 10 * kMinute);
    for (qsizetype i = 2; i + 1 < times.size(); ++i) {
        const double gap = double(times[i] - times[i + 1]);
        const double age = double(times.first() - times[i]);
        EXPECT_LT(gap, age * 1.5) << i << ": nowhere is a large part of the time missing";
    }
}

TEST_F(EarlierVersionsTest, TwentyAndFewerAllStay) {
    EXPECT_TRUE(TooMany({}).isEmpty());
    EXPECT_TRUE(TooMany(QList<qint64>(20, 5)).isEmpty());
    EXPECT_EQ(TooMany(QList<qint64>(23, 0)).size(), 3) << "of one moment, or of a clock that was set back";
}

TEST_F(EarlierVersionsTest, NamesInAllScriptsComeBack) {
    QStringList lines = PlainLines();
    lines[0] = QStringLiteral("\"TavloraGameBoard\", 8.0.0, Plain.gam");
    for (const char* text : {"Straße", "Żółw 🐢", "Oak"}) {
        for (const char* name : {"Müller.gam", "Żółw, 🐢.gam", "Plain.gam"}) {
            lines[3] = QStringLiteral("0, \"%1\", \"\",0,0,0, \"Arial\",R,12").arg(QString::fromUtf8(text));
            const QString path = InGames(QString::fromUtf8(name));
            WriteFile(QStringLiteral("games/") + QString::fromUtf8(name), TextFile::Encode(TextFile::JoinLines(lines)));
            const EarlierVersions::Replaced replaced(path);
            replaced.Keep("something else");
            QString version = Of(path).first().sPath;
            EXPECT_EQ(ReadGameHeader(ReadFile(version)).sGameName, path);
            ASSERT_EQ(session.Load(version), 0);
            EXPECT_EQ(session.InHand().spaces[0].TextAll(), QString::fromUtf8(text)) << name;
        }
    }
}

TEST_F(EarlierVersionsTest, PicturesOfAnEarlierVersionAreLookedForBesideItsGame) {
    QDir(folder.path()).mkdir(QStringLiteral("other"));
    const QString other = PathOf(QStringLiteral("other/Trip.gam"));
    ASSERT_TRUE(QFile::copy(game, other));
    Open(other);
    SaveAt(0, QStringLiteral("Oak"));
    QString version = Of(other).first().sPath;
    ASSERT_EQ(session.Load(version), 0) << "of a game that came with another name in its header";
    EXPECT_EQ(QDir::cleanPath(Settings().sGameDirectory), PathOf(QStringLiteral("other")));
}

TEST_F(EarlierVersionsTest, OnlyWhatLiesInAFolderOfEarlierVersionsIsOne) {
    SaveAt(0, QStringLiteral("Oak"));
    EXPECT_TRUE(EarlierVersions::IsOneOf(Of(game).first().sPath));
    EXPECT_FALSE(EarlierVersions::IsOneOf(game));
    EXPECT_FALSE(EarlierVersions::IsOneOf(QStringLiteral("Trip.gam")));
    EXPECT_FALSE(EarlierVersions::IsOneOf(QString()));
}

} // namespace
