// SPDX-License-Identifier: MIT
#pragma once

class C_FontInfo;

/// One font for the texts of all spaces and corners.
namespace GameFonts {

constexpr int kNoSpace = -1;
constexpr int kNoCorner = -1;

/// Gives the font to every space but one and to the first three corners but one, and fits their texts to it.
/// Corner 3 is left alone: its face belongs to the kit. Measures on the drawing layer's current context.
void GiveToAllBut(const C_FontInfo& font, int iSpace, int iCorner);

} // namespace GameFonts
