// SPDX-License-Identifier: MIT
// Finding and cutting pictures, and printing.
#include "windows/help/WhatIsThis.h"

namespace {

constexpr WhatIsThis::Row kRows[] = {
    {"frmBrowse", "", "Looks for a picture on this computer."},
    {"frmBrowse", "drvList", "Places to look in: your pictures, your home, sticks and disks."},
    {"frmBrowse", "dirList", "The folders of this place. A double click opens one."},
    {"frmBrowse", "filList", "The pictures of this folder. A click shows one, a double click takes it."},
    {"frmBrowse", "cboFilter", "Which kinds of pictures are listed."},
    {"frmBrowse", "picBitMapArea", "The picture that is chosen."},
    {"frmBrowse", "cmdOK", "Takes the picture that is shown."},
    {"frmBrowse", "cmdCancel", "Closes this window and leaves the picture as it was."},

    {"frmMissingPictures", "", "The pictures of this game that are not where it looks for them."},
    {"frmMissingPictures", "lstMissing", "Each missing picture: where it belongs, and where it was."},
    {"frmMissingPictures", "cmdFind", "Asks where the chosen picture is now. The others are looked for there, too."},
    {"frmMissingPictures", "cmdStop", "Stops looking. What was found stays found."},

    {"frmFileName", "", "There is a picture of this name already. Choose what is to become of it."},
    {"frmFileName", "txtNewName",
     "Another name for the picture. Letters, numbers, blanks and hyphens are always right."},
    {"frmFileName", "cmdGo_0", "Leaves everything as it was."},
    {"frmFileName", "cmdGo_1", "Puts the new picture in the place of the old one, which is then gone."},
    {"frmFileName", "cmdGo_2", "Saves the picture under the name typed above; the old one stays."},

    {"frmImagePosition", "", "Which part of the picture will be printed."},
    {"frmImagePosition", "picZoomed",
     "What lies in the frame is printed. Drag the picture, or move it with the arrows; plus and minus change its "
     "size."},
    {"frmImagePosition", "sldZoom", "How large the picture is: up is larger, down is smaller."},
    {"frmImagePosition", "cmdSelectImage", "Takes another picture in place of this one."},
    {"frmImagePosition", "cmdOK", "Keeps this part of the picture."},
    {"frmImagePosition", "cmdCancel", "Leaves the picture as it was."},

    {"frmTavlPrint", "", "Prints the kit sheet by sheet, each on its own kind of paper."},
    {"frmTavlPrint", "cmdNav_0", "Goes back to the parts of the game."},
    {"frmTavlPrint", "cmdNav_", "Shows the sheets of this part of the game."},
    {"frmTavlPrint", "cmdPrint_", "Prints this sheet. You are asked for its paper first, and may print a test sheet."},
    {"frmTavlPrint", "cboNumberOfSheets", "How many sheets of this note are printed, one after the other."},
    {"frmTavlPrint", "cmdChangePrinter", "Chooses another printer."},
    {"frmTavlPrint", "cmdCancel", "Goes back to the board."},
    {"frmTavlPrint", "cmdTryAgain", "Prints the sheet once more that has failed."},
    {"frmTavlPrint", "cmdEverything", "Prints the whole kit in one go."},
    {"frmTavlPrint", "cmdNoKit", "Prints the game on plain paper and card, for whoever has no boxed kit."},
    {"frmTavlPrint", "picTest", "The sheet as it would be printed. A click hides it."},
    {"PrintWithoutKit", "", "Makes everything of the game from plain paper and card."},
    {"PrintWithoutKit", "cboPaper", "The paper in your printer."},
    {"PrintWithoutKit", "cboSize", "How large the board is. The stickers of a kit fit a board of its own size."},
    {"PrintWithoutKit", "spnInches", "Another size of the board, from 8 to 40 inches."},
    {"PrintWithoutKit", "cboWay", "Whether the board is glued from pages, folds in four, or is one large page."},
    {"PrintWithoutKit", "cboPlayers", "How many people will play: fewer players need less money."},
    {"PrintWithoutKit", "cboColours", "The colors of the screen, or white grounds with colored edges."},
    {"PrintWithoutKit", "chkDice", "Puts a small picture of your board on each die in place of the one dot."},
    {"PrintWithoutKit", "cmdOpen", "Shows the PDF file."},
    {"PrintWithoutKit", "cmdShowFolder", "Shows the folder that the PDF file lies in."},
    {"PrintWithoutKit", "cmdStop", "Stops ahead of the next page. No file is written."},
    {"PrintWithoutKit", "cmdClose", "Goes back."},
    {"PrintWithoutKit", "cmdMake", "Makes the PDF file. It takes some seconds."},

    {"PrintEverything", "", "Prints the whole kit in one go, and tells what paper that takes."},
    {"PrintEverything", "lstSheets", "What will be printed. A sheet that is done loses its tick."},
    {"PrintEverything", "cboPlayers", "How many people will play: fewer players need less money."},
    {"PrintEverything", "cmdOpen", "Shows the PDF file."},
    {"PrintEverything", "cmdShowFolder", "Shows the folder that the PDF file lies in."},
    {"PrintEverything", "cmdStop", "Stops ahead of the next page. What is left keeps its tick."},
    {"PrintEverything", "cmdClose", "Goes back. What is left keeps its tick."},
    {"PrintEverything", "cmdPrint", "Begins. You are asked for each kind of paper once."},
    {"frmPrntPrep", "", "Which paper this sheet wants."},
    {"frmPrntPrep", "cmd_0", "Goes back without printing."},
    {"frmPrntPrep", "cmd_1", "Prints the sheet on plain paper, to see whether everything fits."},
    {"frmPrntPrep", "cmd_2", "Prints the sheet on its own paper."},
    {"frmPrintTest", "", "A sheet as it would be printed."},
    {"frmPrintTest", "picPage", "The sheet as it would be printed. Escape closes it."},

    {"frmColor", "", "A very dark color in place of black, for printers that make black letters too heavy."},
    {"frmColor", "chkUseDefaults", "With a tick black stays black. Take it away to choose another color."},
    {"frmColor", "txtColor_0", "How much red is in the color, from 0 to 255."},
    {"frmColor", "txtColor_1", "How much green is in the color, from 0 to 255."},
    {"frmColor", "txtColor_2", "How much blue is in the color, from 0 to 255."},
    {"frmColor", "picColorSample", "The color as it will be printed."},
};

} // namespace

std::span<const WhatIsThis::Row> WhatIsThis::OfPicturesAndPrinting() { return kRows; }
