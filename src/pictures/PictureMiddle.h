// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureRef.h"

/// A picture that nobody has centred shows its middle. Where that lies is known once it was painted, and kept here
/// beside the records: looking at a picture changes none of them, and still each copy tells the same centre.
namespace PictureMiddle {

/// The reference with the centre that a picture of this size, in pixels, shows: its own, or the middle; the last
/// place that a centre can hold where a side is longer than that.
PictureRef CenteredIn(const PictureRef& ref, int lW, int lH);

/// A picture of this size was painted just now.
void NoteShown(const QString& sPath, int lW, int lH);

/// The reference with its own centre, or the middle of the picture as it was painted last in this run. Unchanged
/// where neither is known.
PictureRef Centered(const PictureRef& ref);

/// For tests: nothing was ever painted.
void ForgetAll();

} // namespace PictureMiddle
