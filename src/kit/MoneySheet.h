// SPDX-License-Identifier: MIT
#pragma once

#include "kit/CardGrid.h"

/// Banknotes of one denomination on a sheet.
constexpr int kNotesOnSheet = 10;

CardGrid MoneyGrid();
