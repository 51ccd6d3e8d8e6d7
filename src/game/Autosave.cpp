// SPDX-License-Identifier: MIT
#include "game/Autosave.h"

#include "document/GameHost.h"
#include "game/GameNames.h"
#include "game/Rescue.h"
#include "platform/files/Files.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"

#include <utility>

namespace Autosave {
namespace {

// A save of the game that failed and wasn't made good since.
struct FailedSave {
    QString sGameName;
    // The newest of the work.
    QByteArray content;
    // Why it failed, as long as nobody was told.
    QString sUntold;
};

std::optional<FailedSave>& Failed() {
    static std::optional<FailedSave> failed;
    return failed;
}

QString InMyGames(const QString& sName) { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), sName); }

void RemoveOrRaise(const QString& sPath) {
    // A folder of that name is somebody else's.
    if (Files::IsDirectory(sPath)) return;
    QString error;
    // On a full disk a state that nobody could read goes in favour of the one that is being written.
    Rescue::KeepUnread(sPath, error);
    if (!Files::Remove(sPath, error)) ErrRaiseRefused(sPath, error);
}

QString FreeRescuedPath(const QString& sGameName) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sGameName, drive, dir, base, ext);
    return Rescue::FreePath(base, QStringLiteral("gam"));
}

QByteArray BehindTheHeader(const QByteArray& bytes) { return bytes.mid(bytes.indexOf("\r\n")); }

// Whatever name the game had then.
bool Holds(const QString& sPath, const QByteArray& content) {
    QString error;
    if (!Files::Exists(sPath)) return false;
    const std::optional<QByteArray> bytes = Files::ReadAll(sPath, error);
    return bytes && BehindTheHeader(*bytes) == BehindTheHeader(content);
}

bool IsAutosaved(const QByteArray& content) { return Holds(DataPath(), content) || Holds(BackupPath(), content); }

// Renaming needs no room on a full disk; but what is older than the work can't stand for it.
bool KeepAs(const QString& sPath, const QByteArray& content, QString& sError) {
    for (const QString& kept : {DataPath(), BackupPath()}) {
        if (Holds(kept, content) && Files::Rename(kept, sPath, sError)) return true;
    }
    return Files::WriteWhole(sPath, content, sError);
}

void TellOfFailedSave(const FailedSave& failed, const QString& sWhere) {
    QString text = sWhere;
    if (!failed.sUntold.isEmpty())
        text = QStringLiteral("The game '%1' could not be saved: %2\r\n\r\n%3")
                   .arg(GameNames::FileNameOf(failed.sGameName), failed.sUntold, sWhere);
    MsgBox(text, vbExclamation);
}

// False when nothing could be kept: then nothing may be deleted either.
bool KeepWork() {
    const QString path = FreeRescuedPath(Failed()->sGameName);
    QString error;
    if (!KeepAs(path, Failed()->content, error)) {
        basErrLog::ErrLogToFile(QStringLiteral("The game could not be saved, nor kept as ") + path +
                                    QStringLiteral(". The autosave stays. ") + error,
                                true);
        const FailedSave failed = *Failed();
        Failed()->sUntold.clear();
        if (!failed.sUntold.isEmpty()) TellOfFailedSave(failed, WhereItLies(failed.content));
        return false;
    }
    basErrLog::ErrLogToFile(QStringLiteral("The game could not be saved. It was kept as ") + path, true);
    const FailedSave failed = *std::exchange(Failed(), std::nullopt);
    TellOfFailedSave(failed,
                     QStringLiteral("Your work was kept in My Games as '%1'.").arg(GameNames::FileNameOf(path)));
    return true;
}

} // namespace

QString DataPath() { return InMyGames(QStringLiteral("~AutoSave.dat")); }
QString BackupPath() { return InMyGames(QStringLiteral("~AutoSave.bak")); }

bool IsOneOf(const QString& sPath) {
    return Files::IsSameFile(sPath, DataPath()) || Files::IsSameFile(sPath, BackupPath());
}

Rotated Rotate() {
    // Without a newer state the earlier one is the only copy there is.
    if (!Files::Exists(DataPath()) || Files::IsDirectory(BackupPath())) return Rotated::BackupIsAll;
    QString error;
    if (Rescue::IsUnread(DataPath())) {
        // It must not take the place of an earlier state that is good.
        if (!Rescue::PutAside(DataPath(), error)) ErrRaiseRefused(DataPath(), error);
        return Rotated::BackupIsAll;
    }
    RemoveOrRaise(BackupPath());
    // Renamed in one step, so that at every moment one of the two holds the game whole.
    if (!Files::Rename(DataPath(), BackupPath(), error)) ErrRaiseRefused(DataPath(), error);
    return Rotated::DataBecameBackup;
}

void EndRotation(Rotated rotated, const QByteArray& content) {
    if (Failed()) Failed()->content = content;
    if (rotated == Rotated::BackupIsAll && Files::Exists(BackupPath())) RemoveOrRaise(BackupPath());
}

void NoteSave(const QString& sGameName, const QByteArray& content, const std::optional<GameFile::Refusal>& refusal) {
    Failed().reset();
    if (!refusal) return;
    const bool told = !refusal->sDuring.isEmpty();
    Failed() = FailedSave{sGameName, content, told ? QString() : refusal->sError};
    basErrLog::ErrLogToFile(
        QStringLiteral("The game file could not be completed: ") + sGameName + u' ' + refusal->sError, true);
}

void Forget() {
    if (Failed() && !KeepWork()) return;
    // The newer one last: a program that ends here must not offer the state before the saved one.
    RemoveOrRaise(BackupPath());
    RemoveOrRaise(DataPath());
}

void GiveUp() {
    Forget();
    Failed().reset();
}

bool IsStillToBeKept(const QString& sGameName) { return Failed() && Failed()->sGameName == sGameName; }

QString WhereItLies(const QByteArray& content) {
    if (Holds(GameHost::Current().GameName(), content)) return {};
    if (IsAutosaved(content))
        return QStringLiteral("Your changes are kept in My Games: the next start of Tavlora brings them back.");
    QString where = QStringLiteral("Your latest changes are in this window only.");
    if (Files::Exists(DataPath()) || Files::Exists(BackupPath()))
        where += QStringLiteral(" What you had before them is kept in My Games.");
    return where + QStringLiteral(" Please save the game somewhere else, or make room on the disk: Tavlora tries again "
                                  "at your next change and every minute.");
}

void ResetForTest() {
    Failed().reset();
    Rescue::ResetForTest();
}

} // namespace Autosave
