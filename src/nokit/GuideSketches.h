// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitChoices.h"
#include "nokit/PageCanvas.h"

/// Small drawings that show what becomes of a sheet: on the left as it is printed, on the right as it is used. Nets are
/// the very ones that are cut.
namespace GuideSketches {

void Draw(PageCanvas& page, const QString& sSheet, const QRectF& box, const NoKitChoices& choices);

} // namespace GuideSketches
