// SPDX-License-Identifier: MIT
#pragma once

namespace basTAVL {

/// Which of g_dblLabelSizes is what: widths and heights of printed stickers, in inches.
enum LabelSize {
    kFullLine,   ///< Width of the lines round a whole space.
    kFullWidth,  ///< Of a whole space.
    kFullHeight, ///< Of a whole space.
    kFullBand,   ///< Height of its colour band.
    kFullCost,   ///< Height of its price.
    kStickerWidth,
    kStickerHeight,
    kCornerSide,
    kLabelSizes
};

} // namespace basTAVL
