// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

class Surface;

namespace basTAVL {

/// Fills a box (unless the colour is none) and, for a dash above 0, sets dashed cut guides one pixel outside
/// it, so that nothing printed inside is touched by them. All in pixels; a dash is one unit long, the gap
/// three. Leaves the surface with a solid pen one dot wide in the colour of the dashes.
void DrawDottedBox(Surface& oDest, int lX1, int lY1, int lX2, int lY2, int lDash, Color lFillColor,
                   Color lDashColor = Color::Black());

} // namespace basTAVL
