// SPDX-License-Identifier: MIT
#pragma once

/// The wrappers of what the screen tells about itself.
namespace basAPI {

/// Thickness of a sizable window's frame, in pixels.
int FrameBorderThicknessX();
int FrameBorderThicknessY();

/// Bits of colour in each pixel of the screen.
int ScreenBitsPerPixel();

} // namespace basAPI
