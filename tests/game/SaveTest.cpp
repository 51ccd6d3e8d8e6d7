// SPDX-License-Identifier: MIT
#include "support/FileFixture.h"

#include "platform/files/Files.h"

namespace {

class SaveTest : public GameFileTest {
protected:
    SaveTest() {
        session.SetGameName(InGames(QStringLiteral("Trip.gam")));
        Load(WriteGame(PlainLines()));
        QFile::remove(InGames(QStringLiteral("Plain.gam")));
    }

    // Makes one kind of operation fail, the first so many of it excepted, for files with this ending.
    static void FailAt(Files::Operation wanted, int spared = 0, const QString& ending = QString()) {
        Files::SetFaultHook([=, count = 0](Files::Operation operation, const QString& path) mutable {
            const bool hit = operation == wanted && path.endsWith(ending) && count++ >= spared;
            return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
        });
    }
    void Edit(const QString& text) {
        basTAVL::g_oSpaces(0).SetText(text);
        session.SetSomethingChanged(true);
    }
    QString SaveError(const char* during) const {
        return IOError("save", session.GameName(), QStringLiteral("disk says no"), during);
    }
    QByteArray Log() const { return ReadFile(basErrLog::ErrLogPath()); }
};

// Fills every text and font of the game with something of its own.
void FillGame(const QString& flavour, const QString& picture) {
    int number = 0;
    const auto text = [&] { return flavour + u' ' + QString::number(++number); };
    const auto font = [&](C_FontInfo& f) {
        ++number;
        f.Load(flavour, number % 2 == 0, number % 3 == 0, 8 + float(number) / 4);
    };
    const auto image = [&](C_Image& m) {
        m.Let_FullPath(picture);
        m.Let_Zoom(qint16(++number % 30));
        m.Let_XCenter(float(number * 3));
        m.Let_YCenter(float(number * 5));
    };
    for (int i = 1; i <= 3; ++i)
        basPosit::SetSpecialText(i, text() + QStringLiteral("\r\n\"two\""));
    for (int i = 4; i <= 5; ++i)
        basPosit::m_CenterText(i).sText = text();
    for (int i = 0; i < 28; ++i) {
        C_Space& s = basTAVL::g_oSpaces(i);
        font(s.Font);
        if (i % 2) image(s.Image);
        s.SetText(text() + QStringLiteral("\r\n\"b\", c"));
    }
    for (int i = 0; i < 4; ++i) {
        C_Corner& c = basTAVL::g_oCorners(i);
        font(c.Font);
        if (i < 3) image(c.Image);
        c.SetText(0, text());
        c.SetText(1, text() + QStringLiteral("\r\n"));
    }
    for (int i = 0; i < 24; ++i) {
        C_News& n = basTAVL::g_oNews(i / 12, i % 12);
        font(n.FontBody);
        font(n.FontHead);
        n.Let_Text(text() + QStringLiteral("\r\n\r\n") + text());
    }
    for (int i = 0; i < 4; ++i) {
        basTAVL::g_oMoney(i).Let_Text(0, text());
        basTAVL::g_oMoney(i).Let_Text(1, text());
        image(basTAVL::g_oMoney(i).FaceImage);
    }
    for (int i = 0; i < 6; ++i) {
        font(basTAVL::g_oTokens(i).Font);
        basTAVL::g_oTokens(i).SetText(text());
        image(basTAVL::g_oTokens(i).Image);
    }
}

TEST_F(SaveTest, SavedGameComesBackEqualInAllScripts) {
    const QString picture = WriteFile(QStringLiteral("games/Żółw 🐢.bmp"), "picture");
    for (const char* flavour : {"Plain", "Zażółć gęślą", "شارع الزيتون", "Family 🏠👨‍👩‍👧", "Straße €"}) {
        FillGame(QString::fromUtf8(flavour), picture);
        const Game before = TheGame();
        ASSERT_TRUE(Save(session.GameName()));
        basTAVL::ResetForTest();
        basPosit::PosInit();
        ASSERT_EQ(Load(QString(session.GameName())), 0) << flavour;
        EXPECT_EQ(TheGame(), before) << flavour;
        for (size_t i = 0; i < before.spaces.size(); ++i)
            EXPECT_EQ(TheGame().spaces[i].m_fTextSize, before.spaces[i].m_fTextSize) << flavour << i;
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SaveTest, FileHasSixtyNineLinesWithTheTitlesAheadOfTheRecords) {
    ASSERT_TRUE(Save(session.GameName()));
    const QByteArray bytes = ReadFile(session.GameName());
    EXPECT_EQ(bytes.count("\r\n"), 69);
    EXPECT_EQ(bytes.count('\n'), 69);
    const QList<QByteArray> lines = bytes.split('\n');
    EXPECT_EQ(lines[0], "\"TavloraGameBoard\", 8.0.0, " + session.GameName().toUtf8() + '\r');
    EXPECT_EQ(lines[1], "\"Our\", \"Sub\", \"Day\"\r");
    EXPECT_EQ(lines[2], "\"Good News\", \"Bad News\"\r");
    EXPECT_EQ(lines[3], "0, \"Space\\n0\", \"\",0,0,0, \"Arial\",R,12\r");
    EXPECT_EQ(lines[68], "5, \"Token 5\", \"\",0,0,0, \"Arial\",I,48\r");
}

TEST_F(SaveTest, SavingTwiceGivesTheSameBytes) {
    ASSERT_TRUE(Save(session.GameName()));
    const QByteArray first = ReadFile(session.GameName());
    ASSERT_EQ(Load(QString(session.GameName())), 0);
    ASSERT_TRUE(Save(session.GameName()));
    EXPECT_EQ(ReadFile(session.GameName()), first);
}

TEST_F(SaveTest, NameWithALineBreakKeepsTheHeaderOneLine) {
    session.SetGameName(InGames(QStringLiteral("odd\nname.gam")));
    ASSERT_TRUE(Save(session.GameName()));
    EXPECT_EQ(Load(QString(session.GameName())), 0);
}

TEST_F(SaveTest, GameSavedUnderItsNameIsUnchangedAndTheLastOne) {
    Edit(QStringLiteral("x"));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("GameName")), session.GameName());
}

TEST_F(SaveTest, GameSavedUnderAnotherNameStaysUnsaved) {
    Edit(QStringLiteral("x"));
    EXPECT_TRUE(Save(InGames(QStringLiteral("trip.GAM"))));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("GameName")), QString());
    EXPECT_TRUE(Files::Exists(autosave));
}

TEST_F(SaveTest, FirstChangeWritesTheAutosaveTheSecondItsBackupAndASaveRemovesBoth) {
    Edit(QStringLiteral("one"));
    EXPECT_TRUE(ReadFile(autosave).contains("\"one\""));
    EXPECT_FALSE(Files::Exists(backup));
    Edit(QStringLiteral("two"));
    EXPECT_TRUE(ReadFile(autosave).contains("\"two\""));
    EXPECT_TRUE(ReadFile(backup).contains("\"one\""));
    Edit(QStringLiteral("three"));
    EXPECT_TRUE(ReadFile(backup).contains("\"two\""));
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_EQ(GamesFolder(), QStringList{QStringLiteral("Trip.gam")});
}

TEST_F(SaveTest, EachFailureAtTheHeadOfTheFileIsToldAndLeavesTheOldFileWhole) {
    ASSERT_TRUE(Save(session.GameName()));
    const QByteArray before = ReadFile(session.GameName());
    const struct {
        Files::Operation operation;
        int spared;
        const char* during;
    } rows[] = {{Files::Operation::OpenWrite, 0, "opening the file"},
                {Files::Operation::Write, 0, "trying to print the header line"},
                {Files::Operation::Write, 1, "trying to print the title line"},
                {Files::Operation::Write, 2, "trying to print the 'News' line"}};
    for (const auto& row : rows) {
        basTAVL::g_oSpaces(0).SetText(QStringLiteral("new"));
        desktop.boxes.clear();
        FailAt(row.operation, row.spared);
        EXPECT_FALSE(Save(session.GameName())) << row.during;
        Files::SetFaultHook({});
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_TRUE(desktop.boxes[0].sText.startsWith(SaveError(row.during))) << desktop.boxes[0].sText.toStdString();
        EXPECT_EQ(desktop.boxes[0].iStyle, vbCritical);
        EXPECT_EQ(ReadFile(session.GameName()), before);
    }
}

TEST_F(SaveTest, DiskThatFillsUpWhileRecordsAreWrittenIsNoFailureButTheWorkIsRescuedAndTheBoxNamesIt) {
    const QList<std::pair<Files::Operation, int>> faults{{Files::Operation::Write, 3}, {Files::Operation::Commit, 0}};
    for (const auto& [operation, spared] : faults) {
        QFile::remove(InGames(QStringLiteral("Rescued Trip.gam")));
        ASSERT_TRUE(Save(session.GameName()));
        const QByteArray before = ReadFile(session.GameName());
        Edit(QStringLiteral("precious"));
        FailAt(operation, spared, QStringLiteral("Trip.gam"));
        EXPECT_TRUE(Save(session.GameName()));
        Files::SetFaultHook({});
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("The game 'Trip.gam' could not be saved: disk says no\r\n\r\n"
                                             "Your work was kept in My Games as 'Rescued Trip.gam'.")});
        desktop.boxes.clear();
        EXPECT_FALSE(session.IsUnsaved());
        EXPECT_EQ(ReadFile(session.GameName()), before);
        EXPECT_EQ(GamesFolder(), (QStringList{QStringLiteral("Rescued Trip.gam"), QStringLiteral("Trip.gam")}));
        EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Rescued Trip.gam"))).contains("\"precious\""));
        EXPECT_TRUE(Log().contains("Rescued Trip.gam"));
    }
}

TEST_F(SaveTest, WorkIsRescuedWhenAFailedSaveIsFollowedByForgettingTheChange) {
    Edit(QStringLiteral("precious"));
    FailAt(Files::Operation::OpenWrite, 0, QStringLiteral("Trip.gam"));
    EXPECT_FALSE(Save(session.GameName()));
    Files::SetFaultHook({});
    session.SetSomethingChanged(false);
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_EQ(GamesFolder(), QStringList{QStringLiteral("Rescued Trip.gam")});
    EXPECT_EQ(Load(InGames(QStringLiteral("Rescued Trip.gam"))), 0);
    EXPECT_EQ(basTAVL::g_oSpaces(0).TextAll(), QStringLiteral("precious"));
}

TEST_F(SaveTest, RescuedGamesAreNumberedAndNeverOverwritten) {
    for (int i = 1; i <= 3; ++i) {
        Edit(QStringLiteral("work %1").arg(i));
        FailAt(Files::Operation::Commit, 0, QStringLiteral("Trip.gam"));
        EXPECT_TRUE(Save(session.GameName()));
        Files::SetFaultHook({});
    }
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Rescued Trip.gam"))).contains("\"work 1\""));
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Rescued Trip 2.gam"))).contains("\"work 2\""));
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Rescued Trip 3.gam"))).contains("\"work 3\""));
}

TEST_F(SaveTest, GameWithoutAutosaveIsRescuedFromMemory) {
    basTAVL::g_oSpaces(0).SetText(QStringLiteral("unchanged"));
    FailAt(Files::Operation::Commit, 0, QStringLiteral("/Trip.gam"));
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Rescued Trip.gam"))).contains("\"unchanged\""));
}

TEST_F(SaveTest, AutosaveThatCantBeKeptElsewhereStays) {
    Edit(QStringLiteral("precious"));
    Files::SetFaultHook([](Files::Operation operation, const QString&) {
        const bool hit = operation == Files::Operation::Commit || operation == Files::Operation::Rename;
        return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
    });
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_TRUE(ReadFile(autosave).contains("\"precious\""));
}

TEST_F(SaveTest, SuccessfulSaveAfterAFailedOneRescuesNothing) {
    Edit(QStringLiteral("x"));
    FailAt(Files::Operation::OpenWrite, 0, QStringLiteral("Trip.gam"));
    EXPECT_FALSE(Save(session.GameName()));
    Files::SetFaultHook({});
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_EQ(GamesFolder(), QStringList{QStringLiteral("Trip.gam")});
}

TEST_F(SaveTest, AutosaveThatCantBeWrittenIsToldAndTheEditGoesOn) {
    Edit(QStringLiteral("one"));
    FailAt(Files::Operation::OpenWrite, 0, QStringLiteral("~AutoSave.dat"));
    Edit(QStringLiteral("two"));
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(
        IOError("save", autosave, QStringLiteral("disk says no"), "opening the file")));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(ReadFile(backup).contains("\"one\""));
}

TEST_F(SaveTest, AutosaveThatCantBeMovedOrDeletedRaises) {
    Edit(QStringLiteral("one"));
    FailAt(Files::Operation::Rename);
    EXPECT_EQ(ErrorOf([&] { session.SetSomethingChanged(true); }), ErrNumber::kFileAccess);
    EXPECT_TRUE(ReadFile(autosave).contains("\"one\""));
    FailAt(Files::Operation::Remove);
    EXPECT_EQ(ErrorOf([&] { session.SetSomethingChanged(false); }), ErrNumber::kFileAccess);
}

TEST_F(SaveTest, WorkThatCouldBeKeptNowhereStaysUnsaved) {
    FailAt(Files::Operation::OpenWrite);
    Edit(QStringLiteral("precious"));
    EXPECT_FALSE(Save(session.GameName()));
    session.SetSomethingChanged(false);
    EXPECT_TRUE(session.IsUnsaved()) << "the memory is the only place it is in";
    Files::SetFaultHook({});
    EXPECT_TRUE(Save(session.GameName()));
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_EQ(GamesFolder(), QStringList{QStringLiteral("Trip.gam")});

    FailAt(Files::Operation::OpenWrite);
    Edit(QStringLiteral("given up"));
    EXPECT_FALSE(Save(session.GameName()));
    session.SetGameName(InGames(QStringLiteral("Other.gam")));
    session.SetSomethingChanged(false);
    EXPECT_FALSE(session.IsUnsaved()) << "another game starts unchanged";
}

TEST_F(SaveTest, ChangeWhoseAutosaveRaisesIsAChangeAllTheSame) {
    Edit(QStringLiteral("one"));
    ASSERT_TRUE(Save(session.GameName()));
    ASSERT_FALSE(session.IsUnsaved());
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "of another run");
    FailAt(Files::Operation::Rename);
    EXPECT_EQ(ErrorOf([&] { session.SetSomethingChanged(true); }), ErrNumber::kFileAccess);
    EXPECT_TRUE(session.IsUnsaved());
}

TEST_F(SaveTest, FailureOfTheDiskNamesTheFile) {
    const auto told = [](auto action) {
        try {
            action();
        } catch (const TavloraError& error) {
            return basErrLog::ErrDismiss(error.Description());
        }
        return QString();
    };
    const auto sentence = [](const QString& path) {
        return QStringLiteral("The file named '") + path +
               QStringLiteral("' could not be written or deleted: disk says no");
    };
    Edit(QStringLiteral("one"));
    Edit(QStringLiteral("two"));
    FailAt(Files::Operation::Remove);
    const QString kept =
        QStringLiteral("\r\n\r\nYour changes are kept in My Games: the next start of Tavlora brings them back.");
    EXPECT_EQ(told([this] { session.SetSomethingChanged(true); }), sentence(backup) + kept);
    EXPECT_EQ(told([this] { session.SetSomethingChanged(false); }), sentence(backup));
    FailAt(Files::Operation::Remove, 0, QStringLiteral("~AutoSave.dat"));
    EXPECT_EQ(told([this] { session.SetSomethingChanged(false); }), sentence(autosave));
    session.SetSomethingChanged(true);
    FailAt(Files::Operation::Rename);
    EXPECT_EQ(told([this] { session.SetSomethingChanged(true); }), sentence(autosave) + kept);
}

TEST_F(SaveTest, CrashAtAnyMomentOfAnAutosaveLeavesTheLastStateOnDisk) {
    for (int moment = 0; moment < 9; ++moment) {
        QFile::remove(autosave);
        QFile::remove(backup);
        Edit(QStringLiteral("one"));
        Edit(QStringLiteral("two"));
        Files::SetFaultHook([moment, count = 0](Files::Operation, const QString&) mutable -> std::optional<QString> {
            if (count++ == moment) throw ProgramEnded(9);
            return std::nullopt;
        });
        try {
            Edit(QStringLiteral("three"));
        } catch (const ProgramEnded&) {
            // The crash.
        }
        Files::SetFaultHook({});
        const QByteArray left = ReadFile(Files::Exists(autosave) ? autosave : backup);
        EXPECT_TRUE(left.contains("\"two\"") || left.contains("\"three\"")) << moment;
        EXPECT_EQ(left.count("\r\n"), 69) << moment;
    }
}

TEST_F(SaveTest, FolderIsNoPlaceToSaveTo) {
    session.SetGameName(PathOf(QStringLiteral("games")));
    EXPECT_FALSE(Save(session.GameName()));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("opening the file")));
}

TEST_F(SaveTest, OldFileIsReplacedThroughItsLink) {
    const QString target = WriteFile(QStringLiteral("target.gam"), "old");
    const QString link = InGames(QStringLiteral("link.gam"));
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(Save(link));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(ReadFile(target).startsWith("\"TavloraGameBoard\""));
}

} // namespace
