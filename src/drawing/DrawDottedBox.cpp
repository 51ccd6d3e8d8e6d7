// SPDX-License-Identifier: MIT
#include "drawing/DrawDottedBox.h"

#include "platform/paint/Surface.h"
#include "services/basErrLog.h"

namespace basTAVL {
namespace {

constexpr int kDashAndGap = 4;

void DashedRow(Surface& oDest, int lX1, int lX2, int lY, int lDash) {
    for (int x = lX1 - 1; x + lDash < lX2 - 2 * lDash; x += kDashAndGap * lDash)
        oDest.Line(x, lY, x + lDash, lY, oDest.ForeColor);
    // The closing dash sees to it that the corner always has ink.
    oDest.Line(lX2 - lDash, lY, lX2, lY, oDest.ForeColor);
}

void DashedColumn(Surface& oDest, int lX, int lY1, int lY2, int lDash) {
    for (int y = lY1 - 1; y + lDash < lY2 - 2 * lDash; y += kDashAndGap * lDash)
        oDest.Line(lX, y, lX, y + lDash, oDest.ForeColor);
    oDest.Line(lX, lY2 - lDash, lX, lY2, oDest.ForeColor);
}

} // namespace

void DrawDottedBox(Surface& oDest, int lX1, int lY1, int lX2, int lY2, int lDash, Color lFillColor,
                   Color lDashColor) try {
    if (!lFillColor.IsNone()) oDest.Line(lX1, lY1, lX2, lY2, lFillColor, LineForm::FilledBox);
    if (lDash <= 0) return;
    oDest.DrawStyle = 0;
    oDest.DrawWidth = 1;
    oDest.ForeColor = lDashColor;
    DashedRow(oDest, lX1, lX2, lY1 - 1, lDash);
    DashedRow(oDest, lX1, lX2, lY2 + 1, lDash);
    DashedColumn(oDest, lX1 - 1, lY1, lY2, lDash);
    DashedColumn(oDest, lX2 + 1, lY1, lY2, lDash);
} catch (...) {
    ErrTail("basTAVL!", "DrawDottedBox", oDest, lX1, lY1, lX2, lY2, lDash, lFillColor, lDashColor);
}

} // namespace basTAVL
