// SPDX-License-Identifier: MIT
#pragma once

namespace basTAVL {

/// Copies the sample games and the money background from the program's directory to the My Games directory,
/// each only where there is none yet, so that a user's own changes stay. One that can't be copied is written
/// to the log and passed over.
void CopySampleGames();

} // namespace basTAVL
