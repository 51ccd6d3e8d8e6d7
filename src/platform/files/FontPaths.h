// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Where files of fonts lie.
namespace FontPaths {

/// All files that the system and this user have installed, sorted.
QStringList Installed();
/// Those of one folder, sorted; none of a folder that isn't there.
QStringList In(const QString& sFolder);
/// True for a folder that only the system's packages write, which hold nothing that may not be passed on.
bool IsOfSystemPackages(const QString& sPath);

} // namespace FontPaths
