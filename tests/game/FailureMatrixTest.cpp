// SPDX-License-Identifier: MIT
// Every operation on files that an evening's edits, saves and rescues take is refused in turn, for every reason a
// disk has, once or for a while, amid several edits; then the program is killed. What it finds again is the last
// finished edit or the one before it.
#include "support/FileFixture.h"

#include "platform/files/Files.h"

#include <QRegularExpression>
#include <QTimer>

#include <iostream>

namespace {

using Operation = Files::Operation;

struct Reason {
    const char* sName;
    const char* sText;
    bool bReadsToo;
    bool bRoomOnly;
};
// A full disk lets one delete and rename; a broken one doesn't even let one read.
constexpr Reason kReasons[] = {{"ENOSPC", "No space left on device", false, true},
                               {"EDQUOT", "Disk quota exceeded", false, true},
                               {"EACCES", "Permission denied", false, false},
                               {"EROFS", "Read-only file system", false, false},
                               {"EIO", "Input/output error", true, false}};
/// A disk may take a file's content and refuse it only when it is to be put in its place.
enum class Lasts { Once, ForItsKind, ForAll };
/// What goes on between the trouble and the end of the program.
enum class Ending { AtOnce, AfterAMinute, AfterMoreEdits };
constexpr Ending kEndings[] = {Ending::AtOnce, Ending::AfterAMinute, Ending::AfterMoreEdits};

bool IsReading(Operation operation) { return operation == Operation::OpenRead || operation == Operation::Read; }
bool TakesNoRoom(Operation operation) {
    return IsReading(operation) || operation == Operation::Remove || operation == Operation::Rename;
}

class FailureMatrixTest : public GameFileTest {
protected:
    FailureMatrixTest() { Settings().sMyGamesDirectory = Games(); }
    ~FailureMatrixTest() override { work.reset(); }

    using Steps = std::function<void()>;

    // What a family does. What reaches the top is reported there, as in a window.
    void Edit() {
        ++last;
        Act([this] {
            C_Space space = work->InHand().spaces[0];
            space.SetText(QStringLiteral("Edit %1").arg(last));
            work->Do(Edits::OfSpace(work->InHand(), 0, space));
        });
    }
    void ThreeEdits() {
        for (int i = 0; i < 3; ++i)
            Edit();
    }
    void Save() {
        Act([this] { work->Save(); });
    }
    void EditSaveEdit() {
        Edit();
        Save();
        Edit();
    }
    void EditAndSave() {
        Edit();
        Save();
    }
    void SaveUnderAnotherName() {
        work->SetGameName(In(QStringLiteral("Other.gam")));
        Save();
    }
    /// Yes to the question about changes, when the game's own file can't be written.
    void LeaveWithoutSaving() {
        Act([this] {
            savingRefused = true;
            if (!work->Save()) work->SetSomethingChanged(false);
            savingRefused = false;
        });
    }
    void UndoAndRedo() {
        --last;
        Act([this] { work->Undo(); });
        ++last;
        Act([this] { work->Redo(); });
    }

    void RunMatrix(const Steps& before, const Steps& amid) {
        int cases = 0;
        for (const Reason& reason : kReasons) {
            for (const Lasts lasts : {Lasts::Once, Lasts::ForItsKind, Lasts::ForAll}) {
                for (const Ending ending : kEndings) {
                    int at = 0;
                    while (RunCase(before, amid, reason, lasts, ending, at++) && !HasFailure())
                        ++cases;
                }
            }
        }
        std::cout << "[ MATRIX   ] " << cases << " failures injected\n";
        RecordProperty("failures", cases);
        EXPECT_GT(cases, 100);
    }

private:
    template <typename Action>
    void Act(Action action) {
        const qsizetype boxes = desktop.boxes.size();
        try {
            action();
        } catch (const TavloraError&) {
            ErrTop("FailureMatrixTest!", "Act");
        }
        // Nobody can be expected to know that a step failed that says nothing.
        if (desktop.boxes.size() == boxes) lastUntold = last;
    }
    void BeginEvening() {
        work.reset();
        Autosave::ResetForTest();
        QDir dir(Games());
        for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden))
            dir.remove(name);
        basCommon::ResetForTest();
        basCommon::InitIniPath();
        desktop.boxes.clear();
        last = lastUntold = 0;
        QStringList lines = PlainLines();
        lines[3].replace(QStringLiteral("Space\\n0"), QStringLiteral("Edit 0"));
        QString game = In(QStringLiteral("Trip.gam"));
        QFile file(game);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n");
        file.close();
        work = std::make_unique<Session>();
        work->SetGameName(game);
        ASSERT_EQ(work->Load(game), 0);
    }
    /// False when the steps took fewer operations.
    bool RunCase(const Steps& before, const Steps& amid, const Reason& reason, Lasts lasts, Ending ending, int at) {
        BeginEvening();
        before();
        EXPECT_TRUE(desktop.boxes.isEmpty());
        int count = 0;
        Operation kind{};
        bool hit = false;
        Files::SetFaultHook([&](Operation operation, const QString& path) -> std::optional<QString> {
            if (savingRefused && operation == Operation::OpenWrite && path.endsWith(QStringLiteral("/Trip.gam")))
                return QStringLiteral("Permission denied");
            if (IsReading(operation) && !reason.bReadsToo) return std::nullopt;
            if (TakesNoRoom(operation) && reason.bRoomOnly) return std::nullopt;
            const int number = count++;
            if (number < at || (lasts == Lasts::Once && number > at)) return std::nullopt;
            if (number == at) kind = operation;
            if (lasts == Lasts::ForItsKind && operation != kind) return std::nullopt;
            hit = true;
            return QString::fromLatin1(reason.sText);
        });
        amid();
        Files::SetFaultHook({});
        if (!hit) return false;
        GoOn(ending);
        const bool closingAsks = work->IsUnsaved();
        const int foundAgain = FindAgain();
        const bool trouble = lasts != Lasts::Once && ending == Ending::AtOnce;
        const int oldest = closingAsks ? (trouble ? lastUntold : last) - 1 : last;
        EXPECT_GE(foundAgain, oldest) << reason.sName << " at operation " << at << ", lasting " << int(lasts)
                                      << ", ending " << int(ending) << ", last edit " << last << ", boxes:\n"
                                      << told.join(u'\n').toStdString();
        EXPECT_LE(foundAgain, last);
        return true;
    }
    void GoOn(Ending ending) {
        auto* const timer = work->findChild<QTimer*>();
        if (ending == Ending::AfterAMinute && timer->isActive()) QMetaObject::invokeMethod(timer, "timeout");
        if (ending == Ending::AfterMoreEdits) {
            Edit();
            Edit();
        }
    }
    /// The number of the edit that a new start comes up with, or that lies where the program has said that it does.
    int FindAgain() {
        const QString saved = work->IsUnsaved() ? QString() : work->GameName();
        work.reset();
        told = desktop.Texts();
        desktop.boxes.clear();
        Autosave::ResetForTest();
        int found = StartAgain();
        if (Files::Exists(saved)) found = std::max(found, NumberIn(saved));
        for (const QString& name : QDir(Games()).entryList({QStringLiteral("Rescued *")}, QDir::Files)) {
            if (told.join(u' ').contains(u'\'' + name + u'\'')) found = std::max(found, NumberIn(In(name)));
        }
        return found;
    }
    int StartAgain() const {
        Session next;
        for (const QString& kept : {Autosave::DataPath(), Autosave::BackupPath()}) {
            if (Files::Exists(kept) && next.Recover(kept) == 0) return NumberOf(next.InHand().spaces[0].TextAll());
        }
        QString game = basCommon::GetIniString(QStringLiteral("GameName"));
        if (!Files::Exists(game)) game = In(QStringLiteral("Trip.gam"));
        return next.Load(game) == 0 ? NumberOf(next.InHand().spaces[0].TextAll()) : -1;
    }
    static int NumberIn(const QString& path) {
        Session next;
        QString name = path;
        return next.Load(name) == 0 ? NumberOf(next.InHand().spaces[0].TextAll()) : -1;
    }
    static int NumberOf(const QString& text) {
        static const QRegularExpression pattern(QStringLiteral("^Edit (\\d+)$"));
        const QRegularExpressionMatch match = pattern.match(text);
        return match.hasMatch() ? match.captured(1).toInt() : -1;
    }

    // A real disk would spend minutes on bringing each of these thousands of files to its platter.
    static QString TemplateOfMemoryFolder() {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/tavlora-test-XXXXXX");
    }
    QString Games() const { return games.path(); }
    QString In(const QString& name) const { return games.filePath(name); }

    QTemporaryDir games{TemplateOfMemoryFolder()};
    std::unique_ptr<Session> work;
    QStringList told;
    int last = 0;
    int lastUntold = 0;
    bool savingRefused = false;
};

TEST_F(FailureMatrixTest, AmidEdits) {
    RunMatrix([this] { ThreeEdits(); }, [this] { ThreeEdits(); });
}
TEST_F(FailureMatrixTest, FromTheFirstEditOn) {
    RunMatrix([this] { Edit(); }, [this] { ThreeEdits(); });
}
TEST_F(FailureMatrixTest, AtASave) {
    RunMatrix([this] { ThreeEdits(); }, [this] { Save(); });
}
TEST_F(FailureMatrixTest, AtAnEditAndItsSave) {
    RunMatrix([this] { ThreeEdits(); }, [this] { EditAndSave(); });
}
TEST_F(FailureMatrixTest, AmidEditsAndASave) {
    RunMatrix([this] { ThreeEdits(); }, [this] { EditSaveEdit(); });
}
TEST_F(FailureMatrixTest, BehindASave) {
    RunMatrix([this] { EditSaveEdit(); }, [this] { EditSaveEdit(); });
}
TEST_F(FailureMatrixTest, AtASaveUnderAnotherName) {
    RunMatrix([this] { ThreeEdits(); }, [this] { SaveUnderAnotherName(); });
}
TEST_F(FailureMatrixTest, AtARescue) {
    RunMatrix([this] { ThreeEdits(); }, [this] { LeaveWithoutSaving(); });
}
TEST_F(FailureMatrixTest, AmidUndoneEdits) {
    RunMatrix([this] { ThreeEdits(); }, [this] { UndoAndRedo(); });
}

} // namespace
