// SPDX-License-Identifier: MIT
#pragma once

#include "services/BoardFacts.h"

/// What of the board a family fills. The news and lotto spaces and the corner of fate belong to the kit.
namespace OwnPieces {

constexpr bool IsSpace(int iSpace) { return BoardFacts::IsForSale(iSpace); }
constexpr bool IsCorner(int iCorner) { return iCorner != BoardFacts::kFateCorner; }

} // namespace OwnPieces
