// SPDX-License-Identifier: MIT
#include "services/basAPI.h"

#include "platform/files/Folders.h"
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

double FreeSpaceOnDisk(const QString& sRoot) try {
    const bool native = basCommon::PathFamilyOf(sRoot) == basCommon::PathFamily::Native;
    return Folders::FreeBytes(native || Folders::HasDrives() ? sRoot : Folders::Home());
} catch (...) {
    ErrTail("basAPI!", "FreeSpaceOnDisk", sRoot);
}

} // namespace basAPI
