// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A picture on a disk that may go away, or among temporary files, is copied into the games folder, as the chooser
/// does. The path to use: of the copy, or of the picture itself where that stays or can't be copied.
QString KeepPicture(const QString& sFile);

/// The first path in a folder that bears no file yet, with a number in brackets where it has to be.
QString FreePathIn(const QString& sFolder, const QString& sBase, const QString& sExt);
