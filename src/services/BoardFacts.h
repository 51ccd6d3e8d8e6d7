// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

/// What is the same on every board, told once: how many places there are, what kind each of them is, and the grid
/// that they lie in. Spaces run clockwise from the bottom right corner, seven a side; sides are 0 bottom, 1 left,
/// 2 top, 3 right; corners 0 bottom right, 1 bottom left, 2 top left, 3 top right.
namespace BoardFacts {

constexpr int kSides = 4;
constexpr int kSpacesPerSide = 7;
constexpr int kSpaces = kSides * kSpacesPerSide;
constexpr int kCorners = 4;

/// Of the lotto and the news spaces, and of the corner of fate, the texts and the picture belong to the kit: nobody
/// edits them.
enum class SpaceKind { Property, Utility, News, Lotto };

constexpr int kNoGroup = -1;

struct Space {
    SpaceKind kind;
    /// Of the properties: which of the eight groups of a colour.
    int iGroup = kNoGroup;
};

constexpr Space Property(int iGroup) { return {SpaceKind::Property, iGroup}; }
constexpr Space kUtility{SpaceKind::Utility};
constexpr Space kNews{SpaceKind::News};
constexpr Space kLotto{SpaceKind::Lotto};

constexpr std::array<Space, kSpaces> kTable = {
    // bottom, right to left
    Property(0), kUtility, Property(0), kNews, Property(1), Property(1), Property(1),
    // left, upward
    Property(2), Property(2), Property(2), kLotto, Property(3), Property(3), Property(3),
    // top, left to right
    Property(4), Property(4), Property(4), kNews, Property(5), Property(5), Property(5),
    // right, downward
    Property(6), Property(6), Property(6), kLotto, Property(7), kUtility, Property(7)};

/// Whether a space is of a kind; what is no space is of none.
constexpr bool IsA(SpaceKind kind, int iSpace) {
    return iSpace >= 0 && iSpace < kSpaces && kTable[std::size_t(iSpace)].kind == kind;
}
constexpr bool IsProperty(int iSpace) { return IsA(SpaceKind::Property, iSpace); }
constexpr bool IsUtility(int iSpace) { return IsA(SpaceKind::Utility, iSpace); }
constexpr bool IsNews(int iSpace) { return IsA(SpaceKind::News, iSpace); }
constexpr bool IsLotto(int iSpace) { return IsA(SpaceKind::Lotto, iSpace); }
/// Has a deed and a price.
constexpr bool IsForSale(int iSpace) { return IsProperty(iSpace) || IsUtility(iSpace); }

/// The two spaces of a kind that there are two of, in their order round the board.
constexpr std::array<int, 2> BothOf(SpaceKind kind) {
    std::array<int, 2> spaces{};
    std::size_t found = 0;
    for (int iSpace = 0; iSpace < kSpaces && found < spaces.size(); ++iSpace) {
        if (IsA(kind, iSpace)) spaces[found++] = iSpace;
    }
    return spaces;
}
constexpr std::array<int, 2> kNewsSpaces = BothOf(SpaceKind::News);
constexpr std::array<int, 2> kLottoSpaces = BothOf(SpaceKind::Lotto);

constexpr int kFateCorner = 3;
/// Its picture, in the program's directory. Kit.h tells where it takes the place of a game's own.
constexpr const char* kFatePicture = "fate.dat";

// The grid, in fractions of the board's width. The ends of a side differ by a hair from the corners' edges.

/// Width of a space along its side.
constexpr double kPitchOfBoard = 0.0852;
constexpr float kPitch = float(kPitchOfBoard);
/// Where the spaces of the sides 0 and 1 start, and those of the sides 2 and 3.
constexpr float kNearEndHigh = 0.7983F;
constexpr float kNearEndLow = 0.2017F;
/// The spaces' inner edges.
constexpr float kInnerHigh = 0.8295F;
constexpr float kInnerLow = 0.1705F;

} // namespace BoardFacts
