// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The folder whose photos are looked at beside the board.
namespace PhotoFolder {

/// The one of the last time, kept over starts; Pictures the first time, and where that one is gone.
QString Last();
void Remember(const QString& sFolder);

/// Complete paths of the files in a folder that are pictures by their names, in the order of these; without what the
/// program makes for itself. Empty for a folder that can't be read.
QStringList Pictures(const QString& sFolder);

} // namespace PhotoFolder
