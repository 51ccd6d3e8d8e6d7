// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// What differs from country to country. A build knows one country; this is the one for the United States.
namespace Locale {

/// Of the sides 0 to 3.
constexpr std::array<const char*, 4> kSideNames = {"The South Side", "The West Side", "The North Side",
                                                   "The East Side"};
/// Behind the names of the sample games and of the money background.
constexpr const char* kSuffix = "_US";
constexpr const char* kDefaultGame = "Default_US.dat";
constexpr const char* kRents = "Rents_US.dat";
/// Ahead of prices.
constexpr const char* kCurrencySign = "$";

} // namespace Locale
