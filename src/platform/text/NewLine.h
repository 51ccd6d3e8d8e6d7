// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What ends a line in stored texts, files and boxes, on every system.
inline const QString kNewLine = QStringLiteral("\r\n");
