// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A picture on a disk that may go away, or among temporary files, is copied into the games folder, as the chooser
/// does. The path to use: of the copy, or of the picture itself where that stays. Empty, and why in sWhyNot, for one
/// that can't be copied: tomorrow it would be gone.
QString KeepPicture(const QString& sFile, QString& sWhyNot);

/// What is told when a picture can't be copied to a path in the games folder.
QString WhyNotCopied(const QString& sFile, const QString& sTarget, const QString& sError);

/// The first path in a folder that bears no file yet, with a number in brackets where it has to be.
QString FreePathIn(const QString& sFolder, const QString& sBase, const QString& sExt);
