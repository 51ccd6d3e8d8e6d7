// SPDX-License-Identifier: MIT
#include "game/Autosave.h"

#include "game/Rescue.h"
#include "platform/files/Files.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/FileRefused.h"

#include <optional>

namespace Autosave {
namespace {

// A save of the game that failed and wasn't made good since.
struct FailedSave {
    QString sGameName;
    QByteArray content;
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

// Renaming needs no room on a full disk; only where there is no autosave does the content have to be written.
bool KeepAs(const QString& sPath, const QByteArray& content, QString& sError) {
    for (const QString& kept : {DataPath(), BackupPath()}) {
        if (Files::Exists(kept)) return Files::Rename(kept, sPath, sError);
        // The failed save's own content is newer than the state one change earlier.
        if (!content.isEmpty() && Files::WriteWhole(sPath, content, sError)) return true;
    }
    return false;
}

// False when nothing could be kept: then nothing may be deleted either.
bool KeepWork(const FailedSave& failed) {
    const QString path = FreeRescuedPath(failed.sGameName);
    QString error;
    const bool kept = KeepAs(path, failed.content, error);
    basErrLog::ErrLogToFile(kept ? QStringLiteral("The game could not be saved. It was kept as ") + path
                                 : QStringLiteral("The game could not be saved, nor kept as ") + path +
                                       QStringLiteral(". The autosave stays. ") + error,
                            true);
    return kept;
}

} // namespace

QString DataPath() { return InMyGames(QStringLiteral("~AutoSave.dat")); }
QString BackupPath() { return InMyGames(QStringLiteral("~AutoSave.bak")); }

Rotated Rotate() {
    // Without a newer state the earlier one is the only copy there is.
    if (!Files::Exists(DataPath()) || Files::IsDirectory(BackupPath())) return Rotated::BackupIsAll;
    RemoveOrRaise(BackupPath());
    QString error;
    Rescue::KeepUnread(DataPath(), error);
    // Renamed in one step, so that at every moment one of the two holds the game whole.
    if (!Files::Rename(DataPath(), BackupPath(), error)) ErrRaiseRefused(DataPath(), error);
    return Rotated::DataBecameBackup;
}

void EndRotation(Rotated rotated) {
    const bool bNewer = rotated == Rotated::BackupIsAll && Files::Exists(DataPath());
    if (bNewer && Files::Exists(BackupPath())) RemoveOrRaise(BackupPath());
}

void NoteSave(bool bInPlace, const QString& sGameName, const QByteArray& content) {
    Failed().reset();
    if (!bInPlace) Failed() = FailedSave{sGameName, content};
}

void Forget() {
    if (Failed() && !KeepWork(*Failed())) return;
    Failed().reset();
    // The newer one last: a program that ends here must not offer the state before the saved one.
    RemoveOrRaise(BackupPath());
    RemoveOrRaise(DataPath());
}

bool IsKeptNowhere(const QString& sGameName) {
    return Failed() && Failed()->sGameName == sGameName && !Files::Exists(DataPath());
}

void ResetForTest() {
    Failed().reset();
    Rescue::ResetForTest();
}

} // namespace Autosave
