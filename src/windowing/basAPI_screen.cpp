// SPDX-License-Identifier: MIT
#include "windowing/basAPI_screen.h"

#include "windowing/Screen.h"

namespace basAPI {

int FrameBorderThicknessX() { return Screen::FrameBorder().width(); }
int FrameBorderThicknessY() { return Screen::FrameBorder().height(); }
int ScreenBitsPerPixel() { return Screen::BitsPerPixel(); }

} // namespace basAPI
