// SPDX-License-Identifier: MIT
#pragma once

/// How many people play.
namespace Players {

constexpr int kFewest = 2;
constexpr int kMost = 6;

} // namespace Players
