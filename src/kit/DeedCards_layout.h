// SPDX-License-Identifier: MIT
#pragma once

#include "render/PiecePlace.h"

#include <QString>

class Surface;

/// What the sources of the deeds share.
namespace DeedLayout {

constexpr double kCardSide = 2.5;
constexpr double kPenInches = 1.0 / 32;
constexpr InchBox kSideBand{0.125, 0.125, 2.25, 0.125};
constexpr InchBox kPriceBand{0.125, 0.25, 2.25, 0.5};

QString SideFile(int iSide);
void TellNoDeeds();
/// An outline in the ink of the game, as wide as the surface's pen.
void DrawFrame(Surface& surface, const QRect& box);
void PaintBand(Surface& surface, const PiecePlace& place, const QString& sFile, const InchBox& band);

} // namespace DeedLayout
