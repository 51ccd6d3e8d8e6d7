// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The boxed kits that a game is printed for, and what they differ in. As a word a kit stands only in the program's
/// name, on the command line and in the settings, which may also hold a word that names none: Unknown has what no
/// kit leaves out, and nothing that only some of them have.
enum class Kit { Two, TwoA, Five, Eight, Unknown };

/// "2", "2A", "5" and "8", exactly so.
Kit KitOf(const QString& sVariant);
/// Empty for Unknown.
QString VariantOf(Kit kit);
/// The one that the settings name.
Kit KitInUse();

/// The stock gives the colours: it comes pink, green and blue, and labels for deeds are stuck on printed cards.
constexpr bool OnColouredStock(Kit kit) { return kit == Kit::Two || kit == Kit::TwoA; }
/// Deeds are sheets of their own.
constexpr bool HasDeedSheets(Kit kit) { return !OnColouredStock(kit); }
/// The label sheets that this build prints. The others' are laid out for stock that comes coloured and cut.
constexpr bool HasLabelSheets(Kit kit) { return kit == Kit::Eight; }
/// Stickers of spaces are slim and high, so that the colour band of the blank board stays in sight.
constexpr bool HasSlimStickers(Kit kit) { return kit == Kit::Eight; }

/// Rents tell what one more storey costs, and deeds have the lines that go with it.
constexpr bool HasAddedStoreys(Kit kit) { return kit == Kit::Eight; }
/// Its data files lie beside the program, not in the folder for older kits.
constexpr bool LiesBesideTheProgram(Kit kit) { return kit == Kit::Eight; }

/// Its own ornaments on deeds, and its own oval on a banknote without a photo, both in colour.
constexpr bool HasColouredOrnaments(Kit kit) { return kit == Kit::Five || kit == Kit::Eight; }
constexpr bool HasCurrencyOval(Kit kit) { return kit == Kit::Five || kit == Kit::Eight; }

// The corner of fate, whose picture belongs to the kit. On three occasions it takes the place of a game's own, and each
// has always had a rule of its own.

/// The board shows the kit's picture there, and no text.
constexpr bool PaintsFateItself(Kit kit) { return kit == Kit::Five || kit == Kit::Eight; }
/// A game is read as if it named the kit's picture there, whatever it says.
constexpr bool ReadsFateItself(Kit kit) { return kit == Kit::Eight; }
// And what is pasted there in place of a thumbnail is the kit's picture in every kit.
