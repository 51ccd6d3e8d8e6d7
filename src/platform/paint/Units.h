// SPDX-License-Identifier: MIT
#pragma once

/// The lengths that layouts are told in. Pixels are the toolkit's device-independent ones.

constexpr double kTwipsPerInch = 1440;
constexpr int kTwipsPerPixel = 15;
/// Of a window and of every hidden drawing surface, whatever the display.
constexpr double kScreenDotsPerInch = kTwipsPerInch / kTwipsPerPixel;

constexpr int TwipsToPixels(int twips) { return twips / kTwipsPerPixel; }
