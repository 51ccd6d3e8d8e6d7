// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Which boxed kit the program prints for. The name it was started under decides: "tavlora2", "tavlora2a",
/// "tavlora5", anything else for kit "8".
namespace GameKit {

/// First eight characters of the program's name, in upper case.
QString ExeName(const QString& sProgramName);

/// The kit that the program's name asks for.
QString VariantOf(const QString& sProgramName);

/// The program's name that asks for a kit: the other way round.
QString ProgramNameOf(const QString& sVariant);

/// Sets the variant, the sticker sizes and all colours of the kit, creating money and tokens on the way.
/// Absent colours are written to the settings file.
void SetUp(const QString& sProgramName);

/// Sets the ink that stands for black: the kit's, unless the user has chosen another in the settings.
void SetPrintBlack(const QString& sProgramName);

/// The settings file has the last word on the variant, though not on sizes and colours.
void ReadGameVersion();

} // namespace GameKit
