// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainMenu.h"

#include <array>

/// The hand-made toolbar: one picture with 13 faces in it. Lengths are pixels.
namespace ToolBarTable {

constexpr int kButtons = 13;
/// The last face, the exit, is dead: a mouse that slips off the zoom buttons must not end the program.
constexpr int kLiveButtons = 12;
constexpr int kButtonWidth = 22;
constexpr int kTop = 2;
constexpr int kBottom = 23;
constexpr int kPictureWidth = 330;
constexpr int kPictureHeight = 26;

struct Row {
    int iLeft;
    const char* sBoxLine1;
    const char* sBoxLine2;
    const char* sTip;
    Menu menu;
    int iItem;
};

// "Tokens" with "1X" and the small "3x" stay as they are.
constexpr std::array<Row, kButtons> kRows = {{
    {2, "New", "Game", "New Game", Menu::File, 0},
    {25, "Existing", "Game", "Open Previous Game", Menu::File, 2},
    {48, "Save", "Current Game", "Save Current Game", Menu::File, 3},
    {77, "Print", "Dialog", "Print", Menu::File, 7},
    {106, "Edit", "Money", "Edit Money", Menu::View, 1},
    {129, "Good News", "Cards", "Edit Good News Cards", Menu::View, 2},
    {152, "Bad News", "Cards", "Edit Bad News Cards", Menu::View, 3},
    {178, "Tokens", "1X", "Edit Tokens", Menu::View, 4},
    {206, "Zoom", "1X", "Zoom 1X", Menu::Zoom, 0},
    {229, "Zoom", "2X", "Zoom 2X", Menu::Zoom, 1},
    {252, "Zoom", "3X", "Zoom 3x", Menu::Zoom, 2},
    {275, "Zoom", "4X", "Zoom 4X", Menu::Zoom, 3},
    {304, "Exit", "Program", "Exit Program", Menu::File, 9},
}};

/// The live button at a point; -1 for none.
constexpr int ButtonAt(int lX, int lY) {
    if (lY < kTop || lY > kBottom) return -1;
    for (int i = 0; i < kLiveButtons; ++i) {
        const int left = kRows[static_cast<unsigned>(i)].iLeft;
        if (lX >= left && lX <= left + kButtonWidth) return i;
    }
    return -1;
}

} // namespace ToolBarTable
