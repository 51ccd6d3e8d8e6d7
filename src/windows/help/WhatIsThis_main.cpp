// SPDX-License-Identifier: MIT
// The main window, what stands beside its board, and the windows about the program.
#include "windows/help/WhatIsThis.h"

namespace {

constexpr WhatIsThis::Row kRows[] = {
    {"*", "cmdOK", "Keeps what you have changed in this window and closes it."},
    {"*", "cmdCancel", "Closes this window and leaves everything as it was."},
    {"*", "cmdClose", "Closes this window."},
    {"*", "cmdDone", "Closes this window. What you have changed is kept."},

    {"frmTAVL", "", "The board of your game. Click on anything to change it."},
    {"frmTAVL", "picBoard",
     "The board as it will be printed. Click a space, a corner or the middle to change it; drop a photo on a place to "
     "put it there."},
    {"frmTAVL", "imgToolBar", "A click here does what is done most often. Rest the mouse on a picture to read what."},
    {"frmTAVL", "hscrl", "Moves the enlarged board to the left and to the right."},
    {"frmTAVL", "vscrl", "Moves the enlarged board up and down."},
    {"frmTAVL", "cmd_0", "Opens the four banknotes."},
    {"frmTAVL", "cmd_1", "Opens the twelve cards of good news."},
    {"frmTAVL", "cmd_2", "Opens the twelve cards of bad news."},
    {"frmTAVL", "cmd_3", "Opens the print window, where each sheet of the kit has a button."},
    {"frmTAVL", "cmd_4", "Ends the program. If the game is not saved yet, you are asked first."},
    {"frmTAVL", "SidePanel", "What helps with the game in hand. F9 hides it and brings it back."},
    {"frmTAVL", "cmdSideHandle", "Hides the panel beside the board, or brings it back."},
    {"frmTAVL", "GuideScroll", "The steps of a first evening with the program."},
    {"frmTAVL", "lstTray",
     "The photos of a folder. Drag one onto a place of the board; a tick stands on those in use."},
    {"frmTAVL", "cmdFolder", "Shows the photos of another folder."},
    {"frmTAVL", "cmdStep_", "A step of the first evening. It opens its place, and is ticked when it is done."},
    {"frmTAVL", "cmdGuideAway", "Takes the steps away. \"First Evening\" in the menu Help brings them back."},

    {"frmAbout", "", "Which version of Tavlora this is."},
    {"frmAbout", "cmdOK", "Closes this window."},

    {"frmPrintManual", "", "Where the guide lies that tells how a game is put together."},
    {"frmPrintManual", "cmdShowPage", "Opens the guide in your web browser. It needs no network."},
    {"frmPrintManual", "cmdAlreadyPrintedIt", "Begins, and does not ask about the instructions again."},
    {"frmPrintManual", "cmdDoNotPrint", "Begins now. You are asked again at the next start."},
    {"frmPrintManual", "cmdOK", "Closes this window."},

    {"frmTAVL", "CountLight",
     "Green while nothing would come out badly on paper; else the number of things to look at."},
    {"frmTAVL", "checkScroll", "What would come out badly on paper."},
    {"frmCheck", "", "What would come out badly on paper."},
    {"*", "tvwFindings",
     "Each line is something to look at. A click shows its place on the board, a double click opens it."},
    {"*", "cmdFix", "Mends the line that is chosen, where a click can do that. Undo takes it back."},
    {"*", "cmdNoProblem", "Takes the line off the list and remembers that it is meant like this."},
    {"*", "cmdTellAll", "Brings back all lines that you have taken off the list."},
    {"frmBeforePrint", "", "What would come out badly on the sheets that you are about to print."},
    {"frmBeforePrint", "cmdPrintAnyway", "Prints, and does not ask about these things again in this printing."},
    {"frmBeforePrint", "cmdShowMe", "Prints nothing, and shows the line that is chosen in the list and on the board."},
    {"frmBeforePrint", "cmdCancel", "Goes back. Nothing is printed."},

    {"frmEarlierVersions", "", "What the game was like before its last saves."},
    {"frmEarlierVersions", "lstVersions", "A click opens a version as a new game. The game itself stays as it is."},
    {"frmEarlierVersions", "cmdCancel", "Closes this window. Nothing is opened."},

    {"frmPieces", "", "Saves a picture of a single piece, for a message or for the copy shop."},
    {"frmPieces", "lstPieces", "All pieces of the game. Choose the one that you would like."},
    {"frmPieces", "cmdSaveAs", "Asks where to put the picture, and makes it: PNG, SVG or PDF, by its name's ending."},

    {"frmSendGame", "", "Puts the game with all its pictures into one file that you can give away."},
    {"frmSendGame", "optAsTheyAre", "Every photo goes along with all its dots. The file may become large."},
    {"frmSendGame", "optSmaller", "Photos go along as small as paper allows: a file for the mail that prints as well."},
    {"frmSendGame", "cmdSaveAs", "Asks where to put the file, and makes it."},
    {"frmSendGame", "cmdCancel", "Closes this window. No file is made."},
};

} // namespace

std::span<const WhatIsThis::Row> WhatIsThis::OfMainWindow() { return kRows; }
