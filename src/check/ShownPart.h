// SPDX-License-Identifier: MIT
#pragma once

#include "check/PaperPictures.h"
#include "game/Edit.h"
#include "pictures/PaintPicture.h"

#include <functional>
#include <optional>

/// The square of a picture that its piece shows, as the painting works it out. Nothing for a picture that can't be had,
/// and for a drawing, which has no pixels.
std::optional<ZoomedSource> ShownPartOf(const PaperPicture& picture);

/// Dots of the picture on an inch of paper.
double DotsPerInch(const PaperPicture& picture, const ZoomedSource& part);
constexpr double kFewestDotsPerInch = 150; ///< Below this a family sees squares and blurred faces on paper.

/// Whether bars beside the picture show where it doesn't fill its place.
bool LeavesBars(const PaperPicture& picture, const ZoomedSource& part);

/// The change that lets a piece show more of its picture, or less, by as few steps as it takes (iStep is 1 or -1) until
/// it neither comes out coarse nor leaves bars. It stays as near to the part shown as it can. Nothing where no part
/// will do.
std::optional<Edit> WithOtherPart(const Game& game, const GamePiece& piece, int iStep);
