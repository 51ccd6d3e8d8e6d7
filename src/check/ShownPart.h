// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckedGame.h"
#include "pictures/PaintPicture.h"

#include <optional>

/// The square of a picture that its piece shows, as the painting works it out. Nothing for a picture that can't be had,
/// and for a drawing, which has no pixels.
std::optional<ZoomedSource> ShownPartOf(const PaperPicture& picture);
