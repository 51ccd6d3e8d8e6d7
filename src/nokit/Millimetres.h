// SPDX-License-Identifier: MIT
#pragma once

/// Pages are laid out in inches, as all that is printed is; what is told in millimetres is turned here.
constexpr double Inches(double millimetres) { return millimetres / 25.4; }
