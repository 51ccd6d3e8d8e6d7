// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace basGetFolderPath {

/// Number of the user's documents folder.
constexpr int kPersonalFolder = 5;

/// Full path of one of the user's folders by its number; empty for a folder that this system hasn't.
QString GetFolderPath(int lFolder, int lFlags);

/// The text up to its first null character.
QString TrimNull(const QString& sText);

} // namespace basGetFolderPath
