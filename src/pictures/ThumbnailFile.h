// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/basBMP.h"
#include "pictures/PictureOwner.h"

#include <QSize>
#include <QString>

/// The heads of a thumbnail's file, and how one is known. They claim three times the true size: nobody else writes such
/// a file, so whatever lies under a thumbnail's name without them is a picture of the user's.
namespace ThumbnailFile {

/// In pixels, as all sizes here.
QSize SizeOf(PictureOwner::Kind kind);

basBMP::FileHead FileHeadOf(QSize size);
basBMP::InfoHead InfoHeadOf(QSize size);

/// Removes a thumbnail of this size, or what is left of one whose writing was cut short; true as well where there is
/// nothing. False and a sentence in sError for a file that the program didn't make, which stays, and where the disk
/// refuses.
bool Remove(const QString& sPath, QSize size, QString& sError);
/// True for a file that the program didn't make.
bool IsOfTheUser(const QString& sPath, QSize size);

/// True for a path that ends in the name of a thumbnail, in any case of its letters.
bool HasNameOfOne(const QString& sPath);
/// True when the file has such a name and is one.
bool IsThumbnail(const QString& sPath);

} // namespace ThumbnailFile
