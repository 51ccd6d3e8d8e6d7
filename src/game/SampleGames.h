// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace basTAVL {

/// A game that comes with the program, as it was shipped.
struct SampleGame {
    QString sName;
    QString sPath;
};

/// Those that are there, in the order in which they are offered.
std::vector<SampleGame> SampleGames();

/// The game that every new one begins as. Full path.
QString NewGameFile();

/// Copies the sample games and the money background from the program's directory to the My Games directory,
/// each only where there is none yet, so that a user's own changes stay. One that can't be copied is written
/// to the log and passed over.
void CopySampleGames();

} // namespace basTAVL
