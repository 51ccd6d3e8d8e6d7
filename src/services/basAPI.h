// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Thin wrappers of what the platform tells about itself.
namespace basAPI {

/// Version of the operating system; always true.
bool GetOsVersion(int& lMajor, int& lMinor, int& lBuild, int& lPlatform);

/// Thickness of a sizable window's frame, in pixels.
int FrameBorderThicknessX();
int FrameBorderThicknessY();

/// Bits of colour in each pixel of the screen.
int ScreenBitsPerPixel();

/// Bytes that the user may still write on the volume that a path lies on. A root of the Windows family
/// means the volume of the user's home where there are no drives.
double FreeSpaceOnDisk(const QString& sRoot);

} // namespace basAPI
