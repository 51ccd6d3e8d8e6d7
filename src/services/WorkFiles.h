// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Files that the program makes only to read them again, as the pictures of pieces that a sheet is printed with. They
/// lie in a folder of this run alone, so that none of them ever meets a file of the user's.
namespace WorkFiles {

/// Complete path of such a file. Raises when no folder can be made for it.
QString PathOf(const QString& sName);

} // namespace WorkFiles
