// SPDX-License-Identifier: MIT
#pragma once

#include "services/WorkFiles.h"

#include <QDir>
#include <QFileInfo>

/// Working files of this name or pattern that have been left.
inline QStringList WorkingFilesLeft(const QString& sPattern) {
    return QFileInfo(WorkFiles::PathOf(QStringLiteral("x"))).dir().entryList({sPattern}, QDir::Files);
}
