// SPDX-License-Identifier: MIT
// The work on one game: its edits, what is unsaved, and the autosave.
#include "support/FileFixture.h"

#include "platform/files/Files.h"

namespace {

class SessionTest : public GameFileTest {
protected:
    SessionTest() {
        WriteGame(PlainLines(), QStringLiteral("Trip.gam"));
        session.SetGameName(InGames(QStringLiteral("Trip.gam")));
        QString name = session.GameName();
        EXPECT_EQ(session.Load(name), 0);
        QObject::connect(&session, &Session::Changed, [this] { ++told; });
    }
    ~SessionTest() override { QObject::disconnect(&session, nullptr, nullptr, nullptr); }

    void Rename(const QString& text) {
        C_Space space = session.InHand().spaces[0];
        space.SetText(text);
        session.Do(Edits::OfSpace(session.InHand(), 0, space));
    }
    QString Name() const { return session.InHand().spaces[0].TextAll(); }
    bool IsAutosaved(const char* text) const { return ReadFile(autosave).contains(text); }
    static void RefuseRenames() {
        Files::SetFaultHook([](Files::Operation operation, const QString&) {
            return operation == Files::Operation::Rename ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
        });
    }

    int told = 0;
};

TEST_F(SessionTest, AnEditIsInForceUnsavedAutosavedAndTold) {
    EXPECT_FALSE(session.IsUnsaved());
    Rename(QStringLiteral("Oak"));
    EXPECT_EQ(basTAVL::g_oSpaces(0).TextAll(), QStringLiteral("Oak"));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(IsAutosaved("\"Oak\""));
    EXPECT_EQ(session.UndoName(), QStringLiteral("Name of Oak"));
    EXPECT_GT(told, 0);
}

TEST_F(SessionTest, EachEditKeepsTheStateOneChangeEarlierInTheBackup) {
    Rename(QStringLiteral("Oak"));
    EXPECT_FALSE(Files::Exists(backup));
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(ReadFile(backup).contains("\"Oak\""));
    session.Undo();
    EXPECT_TRUE(IsAutosaved("\"Oak\""));
    EXPECT_TRUE(ReadFile(backup).contains("\"Elm\""));
}

TEST_F(SessionTest, UndoneToWhatWasSavedTheGameIsSavedAndLeavesNoAutosave) {
    const QString before = Name();
    Rename(QStringLiteral("Oak"));
    Rename(QStringLiteral("Elm"));
    session.Undo();
    EXPECT_TRUE(session.IsUnsaved());
    told = 0;
    session.Undo();
    EXPECT_EQ(Name(), before);
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_GT(told, 0);
    EXPECT_FALSE(Files::Exists(autosave));
    EXPECT_FALSE(Files::Exists(backup));
    session.Redo();
    EXPECT_EQ(Name(), QStringLiteral("Oak"));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(IsAutosaved("\"Oak\""));
}

TEST_F(SessionTest, StepsOutliveASave) {
    Rename(QStringLiteral("Oak"));
    ASSERT_TRUE(session.Save());
    EXPECT_FALSE(session.IsUnsaved());
    ASSERT_TRUE(session.CanUndo());
    session.Undo();
    EXPECT_TRUE(session.IsUnsaved()) << "what is saved is the edit";
    session.Redo();
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_FALSE(Files::Exists(autosave));
}

TEST_F(SessionTest, AnotherEditInPlaceOfTheSavedOneIsUnsaved) {
    Rename(QStringLiteral("Oak"));
    ASSERT_TRUE(session.Save());
    session.Undo();
    Rename(QStringLiteral("Elm"));
    EXPECT_TRUE(session.IsUnsaved());
    session.Undo();
    EXPECT_TRUE(session.IsUnsaved()) << "the saved state can't be reached any more";
}

TEST_F(SessionTest, UnsavedWithoutAnEditIsNoStep) {
    session.SetSomethingChanged(true);
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(Files::Exists(autosave));
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, AutosavedAgainAnEditCanStillBeUndoneToWhatWasSaved) {
    Rename(QStringLiteral("Oak"));
    session.SetSomethingChanged(true);
    session.Undo();
    EXPECT_FALSE(session.IsUnsaved());
}

TEST_F(SessionTest, AnEditThatChangesNothingIsUnsavedAsItHasAlwaysBeenAndNoStep) {
    session.Do({QStringLiteral("Set All Fonts"), session.InHand()});
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(Files::Exists(autosave));
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, WithoutAStepNothingIsWritten) {
    told = 0;
    session.Undo();
    session.Redo();
    EXPECT_FALSE(Files::Exists(autosave));
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_EQ(told, 0);
}

TEST_F(SessionTest, AnotherGameBeginsAnew) {
    Rename(QStringLiteral("Oak"));
    QString other = WriteGame(PlainLines(), QStringLiteral("Other.gam"));
    ASSERT_EQ(session.Load(other), 0);
    EXPECT_FALSE(session.CanUndo());
    EXPECT_FALSE(session.IsUnsaved());
    Rename(QStringLiteral("Elm"));
    session.Undo();
    EXPECT_FALSE(session.IsUnsaved());
}

TEST_F(SessionTest, AGameReadInPartBeginsAnew) {
    Rename(QStringLiteral("Oak"));
    QStringList lines = PlainLines();
    lines[3].replace(QStringLiteral("Space"), QStringLiteral("Half"));
    QString half = WriteGame(lines.mid(0, 20), QStringLiteral("Half.gam"));
    ASSERT_EQ(session.Load(half), -1);
    ASSERT_EQ(Name(), QStringLiteral("Half\r\n0"));
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, AGameThatCantBeReadAtAllLeavesTheStepsOfTheOneInHand) {
    Rename(QStringLiteral("Oak"));
    QString missing = InGames(QStringLiteral("Missing.gam"));
    ASSERT_EQ(session.Load(missing), -1);
    EXPECT_EQ(session.UndoName(), QStringLiteral("Name of Oak"));
    session.Undo();
    EXPECT_FALSE(session.IsUnsaved());
}

TEST_F(SessionTest, WhatAnAutosaveHoldsIsTakenUpUnderItsNameAndUnsaved) {
    Rename(QStringLiteral("Oak"));
    const QString name = session.GameName();
    session.SetGameName(QStringLiteral("/another"));
    ASSERT_EQ(session.Recover(autosave), 0);
    EXPECT_EQ(session.GameName(), name);
    EXPECT_EQ(Name(), QStringLiteral("Oak"));
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(Files::Exists(autosave)) << "until the next change";
    Rename(QStringLiteral("Elm"));
    session.Undo();
    EXPECT_TRUE(session.IsUnsaved()) << "it wasn't saved when it was taken up";
    EXPECT_EQ(session.Recover(QStringLiteral("/nowhere")), -1);
    EXPECT_EQ(session.GameName(), name);
}

TEST_F(SessionTest, AnEditWhoseAutosaveRaisesIsInForceAndUnsavedAndCanBeUndone) {
    const QString before = Name();
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "of another run");
    RefuseRenames();
    EXPECT_EQ(ErrorOf([this] { Rename(QStringLiteral("Oak")); }), ErrNumber::kFileAccess);
    Files::SetFaultHook({});
    EXPECT_EQ(Name(), QStringLiteral("Oak"));
    EXPECT_TRUE(session.IsUnsaved());
    session.Undo();
    EXPECT_EQ(Name(), before);
    EXPECT_FALSE(session.IsUnsaved());
}

TEST_F(SessionTest, AFailedSaveStaysUnsavedAndItsStepsStay) {
    Rename(QStringLiteral("Oak"));
    Files::SetFaultHook([this](Files::Operation operation, const QString& path) {
        const bool hit = operation == Files::Operation::OpenWrite && path == session.GameName();
        return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
    });
    EXPECT_FALSE(session.Save());
    Files::SetFaultHook({});
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(session.CanUndo());
}

} // namespace
