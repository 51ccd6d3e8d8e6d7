// SPDX-License-Identifier: MIT
#pragma once

/// Banknotes of one denomination on a sheet.
constexpr int kNotesOnSheet = 10;
