// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/PageCanvas.h"

/// Small drawings that lead through the check of a printer.
namespace CheckSketches {

enum class Step { Print, Turn, PrintAgain, Read };
constexpr int kSteps = 4;
/// Of each drawing.
constexpr QSizeF kInches(1.5, 1.1);

void Draw(PageCanvas& page, Step step);

} // namespace CheckSketches
