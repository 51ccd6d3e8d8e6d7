// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What is told of an index of the print window's buttons, in plain words: the one list that tests hold the table of
/// the sheets and the window to. The coloured kits are "2" and "2A".
struct ToldSheet {
    int button;
    const char* name; ///< On the command line; empty where this build prints nothing.
    int frame;        ///< -1 without a button.
    const char* caption;
    const char* captionOfOthers;
    const char* toolTip;
    const char* prompt; ///< Nothing: no paper is asked for. One that ends in a blank has the usual end.
    const char* promptColoured;
    bool lengthwise;
    bool lengthwiseOfOthers;
    bool shown;
    bool shownColoured;

    static QString Asked(const char* sPrompt) {
        const QString prompt = QString::fromLatin1(sPrompt);
        return prompt.endsWith(u' ') ? prompt + QStringLiteral("and click 'Print' to begin printing.") : prompt;
    }
};

// clang-format off
constexpr ToldSheet kToldSheets[] = {
    {0, "box", 1, "Box Top & Token Stickers", "Green  Box & Board Labels #1", "",
     "Position white peel && stick label paper in your printer.  Make sure the printing side is faced properly ",
     "Please position a sheet of light green label stock in the printer ", true, false, true, true},
    {1, "west", 1, "West, South & Corner Board Stickers", "Green Game Board Labels #2", "",
     "Position white peel && stick label paper in your printer.  Make sure the printing side is faced properly ",
     "Please position a sheet of light green label stock in the printer ", true, false, true, true},
    {2, "", 1, "Game Box Light Green Sheet", "Game Box Light Green Sheet", "",
     "Obsolete", "Obsolete", true, false, false, false},
    {3, "east", 1, "East, North & Title Board Stickers", "Game  Box Red Sheet", "",
     "Position white peel && stick label paper in your printer.  Make sure the printing side is faced properly ",
     "Please position a sheet of red label stock in the printer ", true, true, true, true},
    {4, "", 2, "Deed Card Label Sheet", "Deed Card Label Sheet", "Click to print Deel Card Lable Sheet",
     "", "Please position a sheet of white label stock in the printer ", false, false, false, true},
    {5, "good", 3, "Good News Cards", "Good News Cards", "",
     "Please position a sheet of colored card stock in the printer ",
     "Please position a sheet of pink card stock in the printer ", false, false, true, true},
    {6, "bad", 3, "Bad News Cards", "Bad News Cards", "",
     "Please position a sheet of colored card stock in the printer ",
     "Please position a sheet of green  card stock in the printer ", false, false, true, true},
    {7, "money100", 4, "$ 100", "$ 100", "", "Please load white paper into the printer ",
     "Please load pink paper into the printer ", false, false, true, true},
    {8, "money500", 4, "$ 500", "$ 500", "", "Please load white paper into the printer ",
     "Please load light blue paper into the printer ", false, false, true, true},
    {9, "money1000", 4, "$ 1,000", "$ 1,000", "", "Please load white paper into the printer ",
     "Please load light green paper into the printer ", false, false, true, true},
    {10, "money5000", 4, "$ 5,000", "$ 5,000", "", "Please load white paper into the printer ",
     "Please load mustard paper into the printer ", false, false, true, true},
    {11, "rules", 5, "Game Play Instruction Sheet", "Game Play Instruction Sheet",
     "Once you have created your game, this gives you the rules for playing it.",
     "Please load white paper into the printer ", "Please load white paper into the printer ",
     false, false, true, true},
    {12, "deeds1", 2, "Property Deed Sheet #1", "Property Deed Sheet #1",
     "Click to begin printing Deed Card Sheet #1", "Please load white card stock into the printer ",
     "Not used for this version.", false, false, true, false},
    {13, "deeds2", 2, "Property Deed Sheet #2", "Property Deed Sheet #2",
     "Click to begin printing Deed Card Sheet #2", "Please load white card stock into the printer ",
     "Not used for this version.", false, false, true, false},
    {14, "", -1, "", "", "", nullptr, nullptr, false, false, false, false},
};
// clang-format on
