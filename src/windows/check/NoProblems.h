// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

/// What a family doesn't mind, kept in the settings by game and finding.
namespace NoProblems {

bool Holds(const QString& sGame, const Finding& finding);
void Add(const QString& sGame, const Finding& finding);
void ForgetAll(const QString& sGame);

} // namespace NoProblems
