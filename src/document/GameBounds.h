// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// What a game file may hold at most, however large somebody made it.
namespace GameBounds {

/// In bytes. A game is some ten thousand; what is larger than this isn't read into memory at all.
constexpr qint64 kMaxGameSize = qint64(64) << 20;
/// Of one field. No window lets anybody type as many.
constexpr int kMostLetters = 10000;

/// So many lines of a game, and of each field as many letters as it may hold. bCut tells whether anything of them was
/// left out; what stands behind the last line of a game was never read and doesn't count.
QByteArray Within(const QByteArray& bytes, int iLines, bool& bCut);

} // namespace GameBounds
