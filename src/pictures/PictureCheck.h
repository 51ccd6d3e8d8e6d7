// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Why a file can't be taken for a piece's picture, in a sentence for the user; empty where it can. Looks at its first
/// bytes only: one that is damaged further on is told when it is painted.
QString WhyNoPicture(const QString& sFile);
