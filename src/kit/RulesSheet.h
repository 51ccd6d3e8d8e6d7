// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "render/clsRenderDestination.h"

/// What the printed rules call the game, its news spaces and its corners: the texts of the game in memory,
/// each on one line.
InstructionNames NamesOfGame();

/// Prints the rules on a page that the caller has set upright, without ending the document. False when they weren't
/// printed whole; the reason has then been told.
bool PrintRulesSheet(SheetJob& job);
