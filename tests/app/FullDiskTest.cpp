// SPDX-License-Identifier: MIT
// A disk that fills up between two edits: played for everybody, and a real one where the machine lets us mount it.
#include "AppFixture.h"

#include "platform/files/Files.h"
#include "support/MountedDisk.h"

#include <QDirIterator>

namespace {

const QString kSaved = QStringLiteral("As saved");
const QString kKept = QStringLiteral("Kept ahead of it");
const QString kUnsaved = QStringLiteral("Unsaved work");
const QString kNoSpace = QStringLiteral("No space left on device");
const QString kQuestion = QStringLiteral("Do you want to save the changes pending on the current game.?");

class FullDiskTest : public AppTest {
protected:
    /// Opens a game that lies in the My Games directory and edits it once while there is room.
    void StartWithOneEdit() {
        SetIni(QStringLiteral("GameName"), Games() + QStringLiteral("/Mine.gam"));
        Start();
        ASSERT_EQ(TextOfSpace4(), kSaved);
        Edit(kKept);
        ASSERT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'|').toStdString();
        ASSERT_TRUE(SomeFileHolds(kKept));
    }
    /// Everything that a person does next on the full disk.
    void EditAndTryToSave() {
        for (int change = 0; change < 3; ++change)
            Edit(kUnsaved);
        EXPECT_TRUE(Complains()) << "an edit that is kept nowhere is told";
        EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
        desktop.boxes.clear();
        ChooseMenu("mnuFile_3");
        EXPECT_TRUE(Complains()) << "a save that came to nothing is told";
        EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
        EXPECT_TRUE(window->isWindowModified());
        EXPECT_EQ(TextOfSpace4(), kUnsaved);
        EXPECT_TRUE(SomeFileHolds(kKept) || SomeFileHolds(kUnsaved)) << "what was kept once is gone";
    }
    /// Nobody leaves without a question, however often, and whatever was answered before.
    void ExpectAQuestionAtTheEnd() {
        for (const int answer : {vbYes, vbCancel, vbYes, vbCancel}) {
            desktop.boxes.clear();
            desktop.answers = {answer};
            bool ok = true;
            window->Commands().OkToEndProgram(ok);
            ASSERT_FALSE(desktop.boxes.isEmpty());
            EXPECT_EQ(desktop.boxes[0].sText, kQuestion);
            EXPECT_FALSE(ok);
            EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
        }
    }
    void ExpectThatASaveWithRoomAgainHoldsAll() {
        desktop.boxes.clear();
        ChooseMenu("mnuFile_3");
        EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'|').toStdString();
        EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
        EXPECT_TRUE(Holds(Games() + QStringLiteral("/Mine.gam"), kUnsaved));
        Start();
        EXPECT_EQ(TextOfSpace4(), kUnsaved);
    }

    static QString Games() { return Settings().sMyGamesDirectory; }
    static bool Holds(const QString& path, const QString& text) {
        const QByteArray bytes = ReadFile(path);
        return bytes.contains("4, \"" + text.toUtf8() + '"') && bytes.endsWith("\r\n");
    }
    static bool SomeFileHolds(const QString& text) {
        QDirIterator files(Games(), QDir::Files | QDir::Hidden);
        while (files.hasNext()) {
            if (Holds(files.next(), text)) return true;
        }
        return false;
    }
    bool Complains() const { return !desktop.boxes.isEmpty() && desktop.Texts().join(u'|').contains(kNoSpace); }
};

// Where a full disk refuses depends on the system: when a file is opened, written or put in its place.
TEST_F(FullDiskTest, DiskThatRefusesBetweenTwoEditsLosesNoWork) {
    using Operation = Files::Operation;
    const QList<QList<Operation>> refusals = {{Operation::OpenWrite, Operation::Copy},
                                              {Operation::Write, Operation::Copy},
                                              {Operation::Commit, Operation::Copy},
                                              {Operation::Write, Operation::Append, Operation::MakeDirectory}};
    for (const QList<Operation>& refused : refusals) {
        SCOPED_TRACE(int(refused.front()));
        ForgetTheRun();
        desktop.boxes.clear();
        for (const QString& name : QDir(Games()).entryList(QDir::Files | QDir::Hidden))
            QFile::remove(InGames(name));
        WriteGame(QStringLiteral("Mine.gam"), kSaved);
        StartWithOneEdit();
        Files::SetFaultHook([&](Operation operation, const QString&) -> std::optional<QString> {
            if (refused.contains(operation)) return kNoSpace;
            return std::nullopt;
        });
        EditAndTryToSave();
        ExpectAQuestionAtTheEnd();
        Files::SetFaultHook({});
        ExpectThatASaveWithRoomAgainHoldsAll();
    }
}

// As on a disk that has become read-only for what is there, or where another program holds the files.
TEST_F(FullDiskTest, DiskThatLetsNothingBeMovedOrDeletedKeepsTheNewestEditAndSaysSo) {
    WriteGame(QStringLiteral("Mine.gam"), kSaved);
    StartWithOneEdit();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove || operation == Files::Operation::Rename)
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    try {
        Edit(kUnsaved);
    } catch (const TavloraError&) {
        ErrTop("FullDiskTest!", "Edit");
    }
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("Permission denied")));
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("Your changes are kept in My Games")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    Start();
    EXPECT_EQ(TextOfSpace4(), kUnsaved);
}

#ifdef Q_OS_LINUX
TEST_F(FullDiskTest, DiskThatIsFilledBetweenTwoEditsLosesNoWorkNeedsRoot) {
    const MountedDisk disk(PathOf(QStringLiteral("small")), 200 * 1024);
    if (!disk.IsMounted()) GTEST_SKIP() << "only root can mount a disk to fill";
    WriteGame(QStringLiteral("Mine.gam"), kSaved);
    ASSERT_TRUE(QFile::copy(InGames(QStringLiteral("Mine.gam")), disk.Path() + QStringLiteral("/Mine.gam")));
    Settings().sMyGamesDirectory = disk.Path();
    StartWithOneEdit();
    disk.Fill();
    EditAndTryToSave();
    ExpectAQuestionAtTheEnd();
    disk.MakeRoom();
    ExpectThatASaveWithRoomAgainHoldsAll();
    window.reset();
}
#endif

} // namespace
