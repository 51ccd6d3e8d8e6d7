// SPDX-License-Identifier: MIT
// The entries of the menus, by the names of their actions.
#include "windows/help/WhatIsThis.h"

namespace {

constexpr WhatIsThis::Row kRows[] = {
    {"frmTAVL", "mnuFile_0", "Begins a new game. The one in hand is saved first, if you like."},
    {"frmTAVL", "mnuFile_1", "Not part of this version."},
    {"frmTAVL", "mnuFile_2", "Opens a game from a file."},
    {"frmTAVL", "mnuFile_3", "Writes the game into its file."},
    {"frmTAVL", "mnuFile_4", "Writes the game into another file, under another name."},
    {"frmTAVL", "mnuFile_6", "Chooses the printer and its paper."},
    {"frmTAVL", "mnuFile_7", "Opens the print window, where each sheet of the kit has a button."},
    {"frmTAVL", "mnuFile_9", "Ends the program. If the game is not saved yet, you are asked first."},
    {"frmTAVL", "mnuFile_20", "Makes a copy of the game to play about with, and opens it."},
    {"frmTAVL", "mnuFile_21", "Prints the whole kit in one go, and tells what paper that takes."},
    {"frmTAVL", "mnuFile_22", "Shows what the game was like before its last saves, and opens one of these states."},
    {"frmTAVL", "mnuFile_23", "Shows how far the printer prints beside the place, and puts it right."},
    {"frmTAVL", "mnuFile_30", "Puts the game with all its pictures into one file that you can give away."},
    {"frmTAVL", "mnuFile_31", "Saves the board as a picture, an SVG drawing or a PDF page."},
    {"frmTAVL", "mnuFile_32",
     "Saves a space, a card, a note or another piece as a picture, an SVG drawing or a PDF page."},
    {"frmTAVL", "mnuFile_51", "Lists the pictures that are not where the game looks for them, and finds them again."},
    {"frmTAVL", "mnuFile_52", "Lays the photos of a folder onto the free places of the board, in one step."},
    {"frmTAVL", "mnuNewFrom", "Begins a new game from one of the samples."},
    {"frmTAVL", "mnuRecent", "Opens one of the games that you worked on last."},
    {"frmTAVL", "mnuEdit_0", "Takes back the last change."},
    {"frmTAVL", "mnuEdit_1", "Makes the change again that was taken back last."},
    {"frmTAVL", "mnuEdit_42",
     "Puts the space, corner or picture that you have copied onto the place with the frame, or under the mouse."},
    {"frmTAVL", "mnuEdit_3", "Lists what would come out badly on paper."},
    {"frmTAVL", "mnuEdit_41",
     "Copies the space or corner under the mouse, or in the frame: its words, their font and its picture."},
    {"frmTAVL", "mnuEdit_43",
     "Exchanges what two spaces or two corners show. With the mouse, drag one onto the other."},
    {"frmTAVL", "mnuEdit_31", "Copies a picture of the board, to be pasted into a message."},
    {"frmTAVL", "mnuView_0", "Shows the board larger or smaller."},
    {"frmTAVL", "mnuView_1", "Opens the four banknotes."},
    {"frmTAVL", "mnuView_2", "Opens the twelve cards of good news."},
    {"frmTAVL", "mnuView_3", "Opens the twelve cards of bad news."},
    {"frmTAVL", "mnuView_4", "Opens the six tokens."},
    {"frmTAVL", "mnuView_6", "Shows a few words beside the mouse, or stops showing them."},
    {"frmTAVL", "mnuView_8", "Takes a very dark color in place of black, for printers that need it."},
    {"frmTAVL", "mnuView_9", "Tells which version this is."},
    {"frmTAVL", "mnuView_21", "Hides the panel beside the board, or brings it back."},
    {"frmTAVL", "mnuZoom_", "How large the board is shown. Printing does not change."},
    {"frmTAVL", "mnuHelp_0", "Tells which version this is."},
    {"frmTAVL", "mnuHelp_1", "Tells where the guide lies, and opens it."},
    {"frmTAVL", "mnuHelp_2", "Not part of this version: the guide prints from your web browser."},
    {"frmTAVL", "mnuHelp_21", "Shows the steps of a first evening beside the board."},
    {"frmTAVL", "mnuHelp_30", "Opens the page of the guide that tells about this window. F1 does it in every window."},
    {"frmTAVL", "mnuHelp_31", "Lets you click on anything to be told what it is for."},
};

} // namespace

std::span<const WhatIsThis::Row> WhatIsThis::OfMenus() { return kRows; }
