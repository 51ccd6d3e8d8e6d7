// SPDX-License-Identifier: MIT
#pragma once

#include "services/TavloraError.h"

/// Raised when the disk refuses to write, move or delete a file. Its own reason, "Permission denied" and no
/// more, would leave the reader to guess which file is meant.
[[noreturn]] inline void ErrRaiseRefused(const QString& sPath, const QString& sReason) {
    ErrRaise(ErrNumber::kFileAccess, QStringLiteral("The file named '") + sPath +
                                         QStringLiteral("' could not be written or deleted: ") + sReason);
}

/// Raised for a picture that can't be had, for the same reason.
[[noreturn]] inline void ErrRaiseNoPicture(const QString& sPath, const QString& sReason) {
    ErrRaise(ErrNumber::kInvalidPicture,
             QStringLiteral("The picture in the file '") + sPath + QStringLiteral("' could not be read: ") + sReason);
}
