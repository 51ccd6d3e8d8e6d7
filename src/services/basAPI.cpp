// SPDX-License-Identifier: MIT
#include "services/basAPI.h"

#include "platform/Folders.h"
#include "platform/Screen.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace basAPI {

bool GetOsVersion(int& lMajor, int& lMinor, int& lBuild, int& lPlatform) {
    const Folders::SystemVersion version = Folders::System();
    lMajor = version.major;
    lMinor = version.minor;
    lBuild = version.build;
    lPlatform = version.platform;
    return true;
}

int FrameBorderThicknessX() { return Screen::FrameBorder().width(); }
int FrameBorderThicknessY() { return Screen::FrameBorder().height(); }
int ScreenBitsPerPixel() { return Screen::BitsPerPixel(); }

double FreeSpaceOnDisk(const QString& sRoot) try {
    const bool native = basCommon::PathFamilyOf(sRoot) == basCommon::PathFamily::Native;
    return Folders::FreeBytes(native || Folders::HasDrives() ? sRoot : Folders::Home());
} catch (...) {
    ErrTail("basAPI!", "FreeSpaceOnDisk", sRoot);
}

} // namespace basAPI
