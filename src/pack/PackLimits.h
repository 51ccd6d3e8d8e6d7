// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// How large a packed game may be. What is beyond is no family's game, but made to fill a disk.
namespace PackLimits {

/// A game has 42 pictures and at most 70 fonts, each in four styles.
constexpr qsizetype kMostEntries = 400;
/// In bytes: of the game's text, and of everything unpacked.
constexpr qint64 kMostOfGame = qint64(2) << 20;
constexpr qint64 kMostUnpacked = qint64(2) << 30;

/// Whether so many bytes, packed as those, are a trap. Empty bitmaps shrink to a thousandth, too: what any disk has
/// room for is taken in any case.
constexpr bool IsTrap(qint64 unpacked, qint64 packed) {
    constexpr qint64 kHarmless = qint64(256) << 20;
    constexpr qint64 kMostShrunk = 64;
    return unpacked > kMostUnpacked || (unpacked > kHarmless && unpacked / kMostShrunk > packed);
}

} // namespace PackLimits
