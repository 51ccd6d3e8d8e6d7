// SPDX-License-Identifier: MIT
#include "platform/files/TemporaryPlaces.h"

#include "platform/files/Folders.h"

#include <QDir>

namespace TemporaryPlaces {
namespace {

QString& Pretended() {
    static QString folder;
    return folder;
}

bool IsBelow(const QString& sFolder, const QString& sPath) { return sPath.startsWith(sFolder + u'/'); }

} // namespace

bool Hold(const QString& sPath) {
    const QString folder = Pretended().isEmpty() ? QDir::tempPath() : Pretended();
    return IsBelow(folder, sPath) && !IsBelow(Folders::Home(), sPath);
}

void Pretend(const QString& sFolder) { Pretended() = sFolder; }

} // namespace TemporaryPlaces
