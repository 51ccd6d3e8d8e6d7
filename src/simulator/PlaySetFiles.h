// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/PlaySet.h"

#include <QString>

#include <optional>

namespace Simulator {

/// What is read to play.
struct PlaySetFiles {
    QString rents;
    /// The game whose news cards are drawn.
    QString game;
    Kit kit = Kit::Eight;
};

/// The rents file of a kit and the game that a new one starts from, in the program's own folder.
PlaySetFiles ShippedFiles(const QString& folder, Kit kit);

/// Reads rents and cards. Nothing, and a sentence in error, when a file can't be read, or when a card tells nothing
/// that can be played.
std::optional<PlaySet> ReadPlaySet(const PlaySetFiles& files, QString& error);

} // namespace Simulator
