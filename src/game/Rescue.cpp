// SPDX-License-Identifier: MIT
#include "game/Rescue.h"

#include "platform/files/Files.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"

#include <QSet>

namespace Rescue {
namespace {

QSet<QString>& Unread() {
    static QSet<QString> paths;
    return paths;
}

} // namespace

QString FreePath(const QString& sBase, const QString& sExtension) {
    const QString folder = basCommon::GetMyGamesDirectory();
    const QString name = QStringLiteral("Rescued ") + sBase;
    const QString extension = sExtension.isEmpty() ? QString() : u'.' + sExtension;
    QString path = basCommon::JoinPath(folder, name + extension);
    for (int number = 2; Files::Exists(path); ++number)
        path = basCommon::JoinPath(folder, name + u' ' + QString::number(number) + extension);
    return path;
}

QString FreePathFor(const QString& sPath) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sPath, drive, dir, base, ext);
    return FreePath(base, ext);
}

void NoteUnread(const QString& sPath) {
    if (Files::Size(sPath) > 0) Unread().insert(sPath);
}

void NoteRead(const QString& sPath) { Unread().remove(sPath); }

bool IsUnread(const QString& sPath) { return Unread().contains(sPath) && Files::Exists(sPath); }

bool PutAside(const QString& sPath, QString& sError) {
    const QString path = FreePathFor(sPath);
    if (!Files::Rename(sPath, path, sError)) return false;
    basErrLog::ErrLogToFile(QStringLiteral("What could not be read as a game was kept as ") + path, true);
    Unread().remove(sPath);
    return true;
}

bool KeepUnread(const QString& sPath, QString& sError) {
    if (!Unread().contains(sPath)) return true;
    if (Files::Exists(sPath)) {
        const QString path = FreePathFor(sPath);
        if (!Files::Copy(sPath, path, sError)) return false;
        basErrLog::ErrLogToFile(
            QStringLiteral("What could not be read as a game is about to be written over. It was kept as ") + path,
            true);
    }
    Unread().remove(sPath);
    return true;
}

void ResetForTest() { Unread().clear(); }

} // namespace Rescue
