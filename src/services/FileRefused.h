// SPDX-License-Identifier: MIT
#pragma once

#include "services/TavloraError.h"

/// What is told when the disk refuses to write, move or delete a file. Its own reason, "Permission denied" and no
/// more, would leave the reader to guess which file is meant.
inline QString RefusedText(const QString& sPath, const QString& sReason) {
    return QStringLiteral("The file named '") + sPath + QStringLiteral("' could not be written or deleted: ") + sReason;
}

[[noreturn]] inline void ErrRaiseRefused(const QString& sPath, const QString& sReason) {
    ErrRaise(ErrNumber::kFileAccess, RefusedText(sPath, sReason));
}

/// Raised for a picture that can't be had, for the same reason.
[[noreturn]] inline void ErrRaiseNoPicture(const QString& sPath, const QString& sReason) {
    ErrRaise(ErrNumber::kInvalidPicture,
             QStringLiteral("The picture in the file '") + sPath + QStringLiteral("' could not be read: ") + sReason);
}
