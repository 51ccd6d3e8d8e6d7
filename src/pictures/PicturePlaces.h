// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"
#include "services/Kit.h"

#include <QString>

#include <functional>

/// Where pictures lie, and how a game file says so: relative where they lie in the user's games folder or the
/// program's, so that games travel with their pictures.
namespace PicturePlaces {

/// What a game file holds for a complete path.
QString RelativeOf(const QString& sFullPath);
/// The complete path that a name in a game file leads to, in the spelling of the disk, whether or not a picture is
/// there. Relative ones are looked for in the user's folder, beside the game, then in the program's folder.
QString FullOf(const QString& sName);
/// The same for a picture of a game of this kit, which may have a face of its own for a corner.
QString FullFor(const QString& sName, const PictureOwner& owner, Kit kit);
/// What finds the complete path for a name in a game file.
using Finder = std::function<QString(const QString& sName, const PictureOwner& owner)>;
/// The picture of the corner whose face belongs to the kit.
QString Fate();

} // namespace PicturePlaces
