// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GameFile {

/// What the disk said when a game was to be written.
struct Refusal {
    QString sError;
    /// What was being written; empty behind the lines that are written one by one.
    QString sDuring;
};

} // namespace GameFile
