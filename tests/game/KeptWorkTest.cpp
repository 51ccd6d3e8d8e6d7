// SPDX-License-Identifier: MIT
// What the disk refuses: where the work lies then, what is said of it, and how it gets onto the disk after all.
#include "support/FileFixture.h"

#include "platform/files/Files.h"

#include <QTimer>

namespace {

using Operation = Files::Operation;

const QString kReason = QStringLiteral("No space left on device");

class KeptWorkTest : public GameFileTest {
protected:
    KeptWorkTest() {
        WriteGame(PlainLines(), QStringLiteral("Trip.gam"));
        session.SetGameName(InGames(QStringLiteral("Trip.gam")));
        QString name = session.GameName();
        EXPECT_EQ(session.Load(name), 0);
    }
    void Rename(const QString& text) {
        C_Space space = session.InHand().spaces[0];
        space.SetText(text);
        session.Do(Edits::OfSpace(session.InHand(), 0, space));
    }
    static void Refuse(const QList<Operation>& refused, const QString& ending = QString()) {
        Files::SetFaultHook([=](Operation operation, const QString& path) {
            return refused.contains(operation) && path.endsWith(ending) ? std::optional(kReason) : std::nullopt;
        });
    }
    static bool Holds(const QString& path, const char* text) { return ReadFile(path).contains(text); }
    QString TextOfOnlyBox() {
        EXPECT_EQ(desktop.boxes.size(), 1);
        const QString text = desktop.Texts().join(u'|');
        desktop.boxes.clear();
        return text;
    }
    /// What a failure that is raised would have a window say.
    static QString Told(const std::function<void()>& action) {
        try {
            action();
        } catch (const TavloraError& error) {
            return basErrLog::ErrDismiss(error.Description());
        }
        return {};
    }
    bool Mentions(const char* words) { return TextOfOnlyBox().contains(QString::fromLatin1(words)); }
    /// A minute goes by.
    void LetTheTimerRun() {
        auto* const timer = session.findChild<QTimer*>();
        ASSERT_TRUE(timer);
        ASSERT_TRUE(timer->isActive());
        EXPECT_EQ(timer->interval(), 60'000);
        QMetaObject::invokeMethod(timer, "timeout");
    }
    bool IsWaiting() const { return session.findChild<QTimer*>()->isActive(); }
    const QString rescued = InGames(QStringLiteral("Rescued Trip.gam"));
};

TEST_F(KeptWorkTest, AChangeThatTheDiskRefusesSaysThatItIsInTheWindowOnly) {
    Refuse({Operation::Commit});
    Rename(QStringLiteral("Oak"));
    const QString text = TextOfOnlyBox();
    EXPECT_TRUE(text.contains(kReason));
    EXPECT_TRUE(text.contains(QStringLiteral("in this window only")));
    EXPECT_FALSE(text.contains(QStringLiteral("before them"))) << "there is nothing yet that could be";
}

TEST_F(KeptWorkTest, WhatWasAutosavedBeforeIsSaidToBeThere) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::OpenWrite});
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(Mentions("What you had before them is kept in My Games."));
    EXPECT_TRUE(Holds(backup, "\"Oak\""));
}

TEST_F(KeptWorkTest, AChangeThatWasRefusedIsWrittenAsSoonAsThereIsRoom) {
    Refuse({Operation::Write});
    Rename(QStringLiteral("Oak"));
    desktop.boxes.clear();
    LetTheTimerRun();
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "it was told when it failed first";
    EXPECT_TRUE(IsWaiting());
    Files::SetFaultHook({});
    LetTheTimerRun();
    EXPECT_TRUE(Holds(autosave, "\"Oak\""));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_FALSE(IsWaiting()) << "there is nothing left to be done";
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(KeptWorkTest, AChangeThatRaisedIsTriedAgainToo) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::Rename, Operation::Commit});
    EXPECT_EQ(ErrorOf([this] { Rename(QStringLiteral("Elm")); }), ErrNumber::kFileAccess);
    LetTheTimerRun();
    EXPECT_TRUE(IsWaiting());
    Files::SetFaultHook({});
    LetTheTimerRun();
    EXPECT_TRUE(Holds(autosave, "\"Elm\""));
    EXPECT_TRUE(Holds(backup, "\"Oak\""));
}

// As where another program holds one of the two files.
TEST_F(KeptWorkTest, WhereTheEarlierStateCantBeMovedOrDeletedTheNewestIsKeptAllTheSame) {
    Rename(QStringLiteral("Oak"));
    Rename(QStringLiteral("Ash"));
    for (const auto& [refused, ending, name] : {std::tuple(Operation::Remove, "~AutoSave.bak", "Elm"),
                                                std::tuple(Operation::Rename, "~AutoSave.dat", "Fir")}) {
        Refuse({refused}, QString::fromLatin1(ending));
        const QString told = Told([&, text = name] { Rename(QString::fromLatin1(text)); });
        EXPECT_TRUE(told.contains(QString::fromLatin1(ending))) << told.toStdString();
        EXPECT_TRUE(told.contains(kReason)) << told.toStdString();
        EXPECT_TRUE(told.endsWith(
            QStringLiteral("Your changes are kept in My Games: the next start of Tavlora brings them back.")))
            << told.toStdString();
        EXPECT_TRUE(Holds(autosave, name)) << name;
        EXPECT_TRUE(session.IsUnsaved());
        EXPECT_FALSE(IsWaiting()) << "the disk holds the game as it stands";
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "the failure is told by whoever asked for the edit";
}

TEST_F(KeptWorkTest, WhereNothingCanBeMovedDeletedOrWrittenTheFailureSaysWhereTheWorkLies) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::Remove, Operation::Rename, Operation::Commit});
    const QString told = Told([this] { Rename(QStringLiteral("Elm")); });
    EXPECT_TRUE(told.contains(kReason)) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("Your latest changes are in this window only. What you had before them is "
                                             "kept in My Games.")))
        << told.toStdString();
    EXPECT_TRUE(Holds(autosave, "\"Oak\""));
    EXPECT_TRUE(IsWaiting());
}

TEST_F(KeptWorkTest, NothingWaitsWhenAllIsKeptOrGivenUp) {
    EXPECT_FALSE(IsWaiting());
    Rename(QStringLiteral("Oak"));
    EXPECT_FALSE(IsWaiting());
    Refuse({Operation::Write});
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(IsWaiting());
    session.GiveUp();
    EXPECT_FALSE(IsWaiting());
}

TEST_F(KeptWorkTest, AnOlderStateNeverStandsForTheWorkThatASaveFailedToPutInPlace) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::Write});
    Rename(QStringLiteral("Elm"));
    desktop.boxes.clear();
    Refuse({Operation::Commit});
    EXPECT_TRUE(session.Save()) << "so late that the save counts as good";
    EXPECT_TRUE(Mentions("in this window only"));
    EXPECT_FALSE(Files::Exists(rescued));
    EXPECT_TRUE(Holds(backup, "\"Oak\""));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(IsWaiting());
    Files::SetFaultHook({});
    LetTheTimerRun();
    EXPECT_TRUE(Holds(autosave, "\"Elm\""));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(session.Save());
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(GamesFolder(), QStringList{QStringLiteral("Trip.gam")});
}

TEST_F(KeptWorkTest, TheNewestStateIsRescuedThoughItIsNotAutosaved) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::Write}, QStringLiteral("~AutoSave.dat"));
    Rename(QStringLiteral("Elm"));
    desktop.boxes.clear();
    Refuse({Operation::Commit}, QStringLiteral("/Trip.gam"));
    EXPECT_TRUE(session.Save());
    EXPECT_TRUE(Holds(rescued, "\"Elm\""));
    EXPECT_TRUE(Mentions("'Rescued Trip.gam'"));
    EXPECT_FALSE(session.IsUnsaved());
}

TEST_F(KeptWorkTest, WorkOfAFailedSaveThatWasEditedOnIsRescuedAsItIsNow) {
    Rename(QStringLiteral("Oak"));
    Refuse({Operation::OpenWrite}, QStringLiteral("/Trip.gam"));
    EXPECT_FALSE(session.Save());
    EXPECT_TRUE(Mentions("the next start of Tavlora brings them back"));
    Rename(QStringLiteral("Elm"));
    session.SetSomethingChanged(false);
    EXPECT_TRUE(Mentions("'Rescued Trip.gam'"));
    EXPECT_TRUE(Holds(rescued, "\"Elm\""));
    EXPECT_EQ(GamesFolder(), (QStringList{QStringLiteral("Rescued Trip.gam"), QStringLiteral("Trip.gam")}));
}

TEST_F(KeptWorkTest, ASaveThatFailsOnAGameThatItsFileHoldsSaysNothingOfWork) {
    ASSERT_TRUE(session.Save());
    Refuse({Operation::OpenWrite});
    EXPECT_FALSE(session.Save());
    EXPECT_EQ(TextOfOnlyBox(), IOError("save", session.GameName(), kReason, "opening the file"));
}

TEST_F(KeptWorkTest, ADamagedAutosaveIsPutAsideAndTheGoodBackupStaysUntilThereIsANewerState) {
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "damaged");
    const QString backedUp = WriteGame(PlainLines(), QStringLiteral("~AutoSave.bak"));
    const QByteArray good = ReadFile(backedUp);
    EXPECT_EQ(session.Recover(autosave), -1);
    ASSERT_EQ(session.Recover(backup), 0);
    desktop.boxes.clear();
    Refuse({Operation::Commit});
    Rename(QStringLiteral("Oak"));
    EXPECT_EQ(ReadFile(backup), good);
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued ~AutoSave.dat"))), "damaged");
    Files::SetFaultHook({});
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(Holds(autosave, "\"Elm\""));
    EXPECT_FALSE(Files::Exists(backup));
}

} // namespace
