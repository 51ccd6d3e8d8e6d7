// SPDX-License-Identifier: MIT
#pragma once

#include "services/BoardFacts.h"

/// The 32 places that a token goes round, the start first: on each side a corner and then its seven spaces.
namespace Simulator {

constexpr int kPlaces = BoardFacts::kSpaces + BoardFacts::kCorners;
constexpr int kPlacesPerSide = kPlaces / BoardFacts::kSides;

constexpr int PlaceOfCorner(int corner) { return corner * kPlacesPerSide; }
constexpr int PlaceOfSpace(int space) {
    return space / BoardFacts::kSpacesPerSide * kPlacesPerSide + 1 + space % BoardFacts::kSpacesPerSide;
}
constexpr bool IsCorner(int place) { return place % kPlacesPerSide == 0; }
constexpr int CornerAt(int place) { return place / kPlacesPerSide; }
constexpr int SpaceAt(int place) {
    return place / kPlacesPerSide * BoardFacts::kSpacesPerSide + place % kPlacesPerSide - 1;
}

constexpr int kStartCorner = 0;
constexpr int kLoseTurnCorner = 1;

} // namespace Simulator
