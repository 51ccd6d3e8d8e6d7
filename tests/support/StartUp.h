// SPDX-License-Identifier: MIT
#pragma once

#include "kit/GameKit.h"
#include "pieces/frmBMP.h"

/// What the start of a program fills in for floors that may not know who does it.
namespace StartUp {

inline void MakeThumbnails() { frmBMP::InstallAsThumbnailMaker(); }

/// "tavlora" is kit "8".
inline void SetUpKit(const QString& sProgramName = QStringLiteral("tavlora")) { GameKit::SetUp(sProgramName); }

} // namespace StartUp
