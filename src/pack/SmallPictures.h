// SPDX-License-Identifier: MIT
#pragma once

#include "pack/Packing.h"

/// Pictures as small as paper allows: a photo of a phone has ten times the pixels that a sticker shows.
namespace SmallPictures {

/// Dots an inch that a printed piece keeps of its picture.
constexpr int kDpi = 300;

/// Pixels of the longer side that the pieces need of a picture, whichever part of it each of them shows.
int SideNeeded(const QList<GamePictures::Named>& users);

/// Has a picture go in smaller if it has more pixels than its pieces need, and these show the same part of it.
void MakeOne(Packing::Contents& contents, int iPicture);
/// The same with all of them. False when it was stopped; the contents are then partly done.
bool Make(Packing::Contents& contents, const Packing::Progress& progress);

} // namespace SmallPictures
