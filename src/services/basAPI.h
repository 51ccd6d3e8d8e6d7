// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Thin wrappers of what the platform tells about itself; windowing/basAPI_screen.h has those about the screen.
namespace basAPI {

/// Version of the operating system; always true.
bool GetOsVersion(int& lMajor, int& lMinor, int& lBuild, int& lPlatform);

/// Bytes that the user may still write on the volume that a path lies on. A root of the Windows family
/// means the volume of the user's home where there are no drives.
double FreeSpaceOnDisk(const QString& sRoot);

} // namespace basAPI
