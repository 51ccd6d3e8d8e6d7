// SPDX-License-Identifier: MIT
// Nothing that anybody has done is ever lost: whatever fails on the disk, and wherever the program ends.
#include "AppFixture.h"

#include "platform/files/Files.h"

#include <QDirIterator>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <sys/wait.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include "support/MountedDisk.h"
#endif

namespace {

const QString kOldText = QStringLiteral("As saved");
const QString kFirstEdit = QStringLiteral("First edit");
const QString kLastEdit = QStringLiteral("Last edit");
constexpr int kStatusOfTheEnd = 7;

class TrustTest : public AppTest {
protected:
    /// A rescue is what a save does whose file can't be written.
    enum class Step { Autosave, AutosaveAfterBackup, Save, SaveOfTwoEdits, RescueOfTwoEdits };

    /// As saved and edited once, or in the state that the step needs ahead of it.
    void StartWithSavedGame(Step step = Step::Autosave) {
        WriteGame(QStringLiteral("Mine.gam"), kOldText);
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
        if (step == Step::AutosaveAfterBackup)
            WriteGame(QStringLiteral("~AutoSave.bak"), kFirstEdit, InGames(QStringLiteral("Mine.gam")));
        Start();
        desktop.boxes.clear();
        if (step != Step::AutosaveAfterBackup) Edit(kFirstEdit);
        if (step == Step::SaveOfTwoEdits || step == Step::RescueOfTwoEdits) Edit(kLastEdit);
    }
    /// The step during which things go wrong. Errors that reach the top are reported there, as in a window.
    void Do(Step step) const {
        try {
            if (step == Step::Autosave || step == Step::AutosaveAfterBackup) {
                Edit(kLastEdit);
            } else {
                ChooseMenu("mnuFile_3");
            }
        } catch (const TavloraError&) {
            ErrTop("TrustTest!", "Do");
        }
    }
    static std::optional<QString> WhyRefused(Step step, Files::Operation operation, const QString& path) {
        const bool isGame = operation == Files::Operation::Commit && path.endsWith(QStringLiteral("/Mine.gam"));
        return step == Step::RescueOfTwoEdits && isGame ? std::optional(QStringLiteral("No space left on device"))
                                                        : std::nullopt;
    }
    /// How many operations on files a step takes.
    int CountOperations(Step step) {
        CleanUp();
        StartWithSavedGame(step);
        int count = 0;
        Files::SetFaultHook([&](Files::Operation operation, const QString& path) {
            ++count;
            return WhyRefused(step, operation, path);
        });
        Do(step);
        Files::SetFaultHook({});
        return count;
    }
    void CleanUp() {
        ForgetTheRun();
        QDirIterator files(PathOf(QStringLiteral("games")), QDir::Files | QDir::Hidden);
        while (files.hasNext())
            QFile::remove(files.next());
        desktop.boxes.clear();
        desktop.answers.clear();
    }
    /// Texts of space 4 in all games that lie whole in the My Games directory.
    QStringList TextsOnDisk() const {
        QStringList texts;
        QDirIterator files(PathOf(QStringLiteral("games")),
                           {QStringLiteral("Mine.gam"), QStringLiteral("~AutoSave.*"), QStringLiteral("Rescued*")},
                           QDir::Files | QDir::Hidden);
        while (files.hasNext()) {
            const QByteArray bytes = ReadFile(files.next());
            if (bytes.count("\r\n") != 69 || !bytes.endsWith("\r\n")) continue;
            for (const QString& text : {kOldText, kFirstEdit, kLastEdit}) {
                if (bytes.contains("4, \"" + text.toUtf8() + '"')) texts.append(text);
            }
        }
        return texts;
    }
    /// What must still be there: the last saved state, or the last state that was autosaved.
    void ExpectRecovered(Step step, const std::string& when) {
        const QStringList onDisk = TextsOnDisk();
        EXPECT_TRUE(onDisk.contains(kFirstEdit) || onDisk.contains(kLastEdit)) << when;
        // And the next start finds it without help, unless it was put aside, which the log tells.
        ForgetTheRun();
        desktop.answers.clear();
        Start();
        const QString found = TextOfSpace4();
        const bool putAside =
            !QDir(PathOf(QStringLiteral("games"))).entryList({QStringLiteral("Rescued*")}, QDir::Files).isEmpty();
        const bool hadFirst = step != Step::SaveOfTwoEdits && step != Step::RescueOfTwoEdits;
        const bool hasLast = step != Step::Save;
        EXPECT_TRUE((hadFirst && found == kFirstEdit) || (hasLast && found == kLastEdit) || putAside)
            << when << ": " << found.toStdString();
        EXPECT_EQ(window->Commands().LoadResult(), 0) << when;
    }
    void FailEachOperationOf(Step step) {
        const int count = CountOperations(step);
        ASSERT_GT(count, 3);
        for (const char* reason : {"No space left on device", "Permission denied", "Input/output error"}) {
            for (int fail = 0; fail < count; ++fail) {
                CleanUp();
                StartWithSavedGame(step);
                int at = 0;
                Files::SetFaultHook([&](Files::Operation, const QString&) -> std::optional<QString> {
                    if (at++ != fail) return std::nullopt;
                    return QString::fromLatin1(reason);
                });
                Do(step);
                Files::SetFaultHook({});
                ExpectRecovered(step, std::string(reason) + " at operation " + std::to_string(fail));
            }
        }
    }
#ifdef Q_OS_UNIX
    /// The exit status of a step done by a process of its own that ends at one of its operations, at once, as
    /// by a power cut.
    int StatusOfAnEndAt(int end, Step step) {
        const pid_t child = fork();
        if (child == 0) {
            int at = 0;
            Files::SetFaultHook([&](Files::Operation operation, const QString& path) {
                if (at++ == end) std::_Exit(kStatusOfTheEnd);
                return WhyRefused(step, operation, path);
            });
            Do(step);
            std::_Exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    void EndTheProgramAtEachOperationOf(Step step) {
        const int count = CountOperations(step);
        ASSERT_GT(count, 3);
        for (int end = 0; end < count; ++end) {
            CleanUp();
            StartWithSavedGame(step);
            EXPECT_EQ(StatusOfAnEndAt(end, step), kStatusOfTheEnd);
            ExpectRecovered(step, "ended at operation " + std::to_string(end));
        }
        std::cout << "[ MATRIX   ] " << count << " ends\n";
    }
#else
    void EndTheProgramAtEachOperationOf(Step) { GTEST_SKIP() << "needs a process of its own"; }
#endif
};

TEST_F(TrustTest, EveryFailureOfASaveLeavesTheWorkRecoverable) { FailEachOperationOf(Step::Save); }
TEST_F(TrustTest, EveryFailureOfAnAutosaveLeavesTheWorkRecoverable) { FailEachOperationOf(Step::Autosave); }
TEST_F(TrustTest, EndAtAnyMomentOfASaveLeavesTheWorkRecoverable) { EndTheProgramAtEachOperationOf(Step::Save); }
TEST_F(TrustTest, EndAtAnyMomentOfAnAutosaveLeavesTheWorkRecoverable) {
    EndTheProgramAtEachOperationOf(Step::Autosave);
}

TEST_F(TrustTest, EndAtAnyMomentOfASaveNeverBringsBackTheStateBeforeIt) {
    EndTheProgramAtEachOperationOf(Step::SaveOfTwoEdits);
}
TEST_F(TrustTest, EndAtAnyMomentOfARescueLeavesTheNewestWorkRecoverable) {
    EndTheProgramAtEachOperationOf(Step::RescueOfTwoEdits);
    CleanUp();
    StartWithSavedGame(Step::RescueOfTwoEdits);
    Files::SetFaultHook([](Files::Operation operation, const QString& path) {
        return WhyRefused(Step::RescueOfTwoEdits, operation, path);
    });
    Do(Step::RescueOfTwoEdits);
    Files::SetFaultHook({});
    EXPECT_EQ(QDir(PathOf(QStringLiteral("games"))).entryList({QStringLiteral("Rescued*")}, QDir::Files).size(), 1)
        << "what was ended is a rescue";
}

// The backup is then the only copy of the work.
TEST_F(TrustTest, FirstChangeAfterABackupWasLoadedLeavesTheWorkRecoverable) {
    FailEachOperationOf(Step::AutosaveAfterBackup);
    EndTheProgramAtEachOperationOf(Step::AutosaveAfterBackup);
}

TEST_F(TrustTest, FirstChangeAfterABackupWasLoadedLeavesTheCurrentStateOnly) {
    StartWithSavedGame(Step::AutosaveAfterBackup);
    Edit(kLastEdit);
    EXPECT_TRUE(HasAutosave());
    EXPECT_FALSE(HasBackup());
}

TEST_F(TrustTest, ChangesOnAFullDiskLeaveTheLastAutosaveThatWasWritten) {
    StartWithSavedGame();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::OpenWrite) return QStringLiteral("No space left on device");
        return std::nullopt;
    });
    for (int change = 0; change < 3; ++change)
        Edit(kLastEdit);
    Files::SetFaultHook({});
    EXPECT_TRUE(TextsOnDisk().contains(kFirstEdit));
}

TEST_F(TrustTest, ChangeWhoseAutosaveTheDiskRefusesIsAskedAboutAllTheSame) {
    WriteGame(QStringLiteral("Mine.gam"), kOldText);
    WriteGame(QStringLiteral("~AutoSave.bak"), kOldText, InGames(QStringLiteral("Mine.gam")));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    Start();
    Edit(kFirstEdit);
    ChooseMenu("mnuFile_3");
    Edit(kFirstEdit);
    ChooseMenu("mnuFile_3");
    ASSERT_FALSE(window->Commands().InHand().IsUnsaved());
    WriteGame(QStringLiteral("~AutoSave.dat"), kOldText);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove || operation == Files::Operation::Rename)
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    EXPECT_THROW(Edit(kLastEdit), TavloraError);
    Files::SetFaultHook({});
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(TrustTest, GameThatStaysAfterNoIsAutosavedAgain) {
    StartWithSavedGame();
    desktop.onDialog = [](CommonDialog&) { return false; };
    desktop.answers = {vbNo};
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(TextOfSpace4(), kFirstEdit);
    EXPECT_TRUE(HasAutosave()) << "a crash would lose what is still on the board";
    Start();
    EXPECT_EQ(TextOfSpace4(), kFirstEdit);
}

TEST_F(TrustTest, FileThatIsNoGameIsKeptWhenItIsSavedOver) {
    StartWithSavedGame();
    const QByteArray photo = "\xFF\xD8: the only photo of its kind";
    WriteFile(QStringLiteral("games/photo.jpg"), photo);
    desktop.onDialog = [this](CommonDialog& dialog) {
        dialog.sFileName = InGames(QStringLiteral("photo.jpg"));
        return true;
    };
    desktop.answers = {vbNo};
    ChooseMenu("mnuFile_2");
    ASSERT_EQ(window->Commands().LoadResult(), -1);
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("photo.jpg"))), photo);
    ChooseMenu("mnuFile_3");
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("photo.jpg"))).startsWith("\"TavloraGameBoard\""));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued photo.jpg"))), photo);
    EXPECT_TRUE(Log().contains(QStringLiteral("Rescued photo.jpg")));
    ChooseMenu("mnuFile_3");
    EXPECT_FALSE(HasFile(QStringLiteral("Rescued photo 2.jpg"))) << "from then on it is a game";
}

TEST_F(TrustTest, FileThatCantBeKeptIsNotSavedOver) {
    WriteFile(QStringLiteral("games/Bad.gam"), "nonsense\r\n");
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Bad.gam")));
    Start();
    desktop.boxes.clear();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Copy) return QStringLiteral("No space left on device");
        return std::nullopt;
    });
    ChooseMenu("mnuFile_3");
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("No space left on device")));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Bad.gam"))), "nonsense\r\n");
}

TEST_F(TrustTest, AutosaveThatCantBeReadIsKept) {
    WriteGame(QStringLiteral("Mine.gam"), kOldText);
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "of a later version\r\n");
    Start();
    Edit(kFirstEdit);
    ChooseMenu("mnuFile_3");
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued ~AutoSave.dat"))), "of a later version\r\n");
}

TEST_F(TrustTest, FailedAutosaveIsToldAndTheEditGoesOn) {
    StartWithSavedGame();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::OpenWrite) return QStringLiteral("No space left on device");
        return std::nullopt;
    });
    Edit(kLastEdit);
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("No space left on device")));
    EXPECT_EQ(TextOfSpace4(), kLastEdit);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
}

TEST_F(TrustTest, YesAtTheExitQuestionWithAFailingSaveKeepsTheWork) {
    StartWithSavedGame();
    Files::SetFaultHook([this](Files::Operation operation, const QString& path) -> std::optional<QString> {
        if (operation == Files::Operation::OpenWrite && path == InGames(QStringLiteral("Mine.gam")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    desktop.answers = {vbYes};
    bool ok = true;
    window->Commands().OkToEndProgram(ok);
    Files::SetFaultHook({});
    EXPECT_FALSE(ok);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved()) << "whether or not the save worked";
    EXPECT_TRUE(HasFile(QStringLiteral("Rescued Mine.gam")));
    EXPECT_TRUE(Log().contains(QStringLiteral("Rescued Mine.gam")));
}

#ifdef Q_OS_LINUX
TEST_F(TrustTest, FullDiskLosesNothingNeedsRoot) {
    const MountedDisk disk(PathOf(QStringLiteral("small")), 96 * 1024);
    if (!disk.IsMounted()) GTEST_SKIP() << "only root can mount a disk to fill";
    Settings().sMyGamesDirectory = disk.Path();
    ForgetTheRun();
    Settings().sProgramName = QStringLiteral("tavlora");
    const QString game = disk.Path() + QStringLiteral("/Mine.gam");
    WriteGame(QStringLiteral("Mine.gam"), kOldText);
    QFile::copy(InGames(QStringLiteral("Mine.gam")), game);
    SetIni(QStringLiteral("GameName"), game);
    Start();
    EXPECT_EQ(TextOfSpace4(), kOldText);
    Edit(kFirstEdit);
    disk.Fill();
    desktop.boxes.clear();
    ChooseMenu("mnuFile_3");
    const QByteArray saved = ReadFile(game);
    EXPECT_EQ(saved.count("\r\n"), 69) << "the old file stands whole, or the new one does";
    QByteArray all = saved;
    QDirIterator files(disk.Path(), QDir::Files | QDir::Hidden);
    while (files.hasNext())
        all += ReadFile(files.next());
    EXPECT_TRUE(all.contains(kFirstEdit.toUtf8())) << "the work is still on the disk";
    window.reset();
}
#endif

TEST_F(TrustTest, ReadOnlyGamesFolderStartsAndTellsWhenItCantSave) {
    WriteGame(QStringLiteral("Mine.gam"), kOldText);
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    SetIni(QStringLiteral("ShowSplash"), QStringLiteral("false"));
    // Root may write anywhere, so the disk's refusal is played.
    Files::SetFaultHook([this](Files::Operation operation, const QString& path) -> std::optional<QString> {
        const bool reads = operation == Files::Operation::OpenRead || operation == Files::Operation::Read;
        const bool removesNothing = operation == Files::Operation::Remove && !QFileInfo::exists(path);
        if (reads || removesNothing || !path.startsWith(PathOf(QStringLiteral("games")))) return std::nullopt;
        return QStringLiteral("Permission denied");
    });
    Start(QStringLiteral("tavlora"), QString());
    EXPECT_EQ(TextOfSpace4(), kOldText);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "starting changes nothing that anybody would miss";
    Edit(kFirstEdit);
    ChooseMenu("mnuFile_3");
    ASSERT_EQ(desktop.boxes.size(), 2);
    for (const TestDesktop::Box& box : desktop.boxes)
        EXPECT_TRUE(box.sText.contains(QStringLiteral("Permission denied")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    Files::SetFaultHook({});
    EXPECT_TRUE(TextsOnDisk().contains(kOldText));
}

} // namespace
