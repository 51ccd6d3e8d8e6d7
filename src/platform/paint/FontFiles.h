// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// Fonts as files: those of this machine, and those that came along with a game.
namespace FontFiles {

struct File {
    QString sPath;
    /// In bytes.
    qint64 size = 0;
    /// Everybody may pass it on: nothing in it forbids that, and it names a free licence or came with the system's own
    /// packages, which hold no others.
    bool bMayBePassedOn = false;
};

/// The files of the families on this machine, by the families as they are asked for, without regard to case; in the
/// order of their paths. Looks through all folders of fonts.
QHash<QString, QList<File>> Of(const QStringList& families);
/// Whether this machine has a family, or a game has brought it.
bool IsKnown(const QString& sFamily);

/// Fonts in a folder may be used from here on in this run, without being installed; those of families that are there
/// already are passed over, and those that would make more than 64 MB of them. No such folder is no fault.
void UseFolder(const QString& sFolder);

} // namespace FontFiles
