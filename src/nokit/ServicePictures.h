// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitPrint.h"

/// The pieces of a game as pictures that a printing service takes.
namespace ServicePictures {

/// Of all pictures, and how far they reach beyond the cut on every side.
constexpr double kDpi = 300;
constexpr double kBleedInches = 0.125;

/// Writes the board, whole and in four for one that folds, and every deed, card, note and token as PNG files into a
/// folder that is made if need be, and "sizes.csv", which tells how large each is and how often it is wanted. False and
/// a sentence in sError, unless the job tells what is lacking, when something can't be made.
bool Write(const NoKitChoices& choices, const QString& sFolder, NoKitPrint::Job& job, QString& sError);

} // namespace ServicePictures
