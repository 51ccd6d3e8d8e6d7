// SPDX-License-Identifier: MIT
// The editors.
#include "windows/help/WhatIsThis.h"

namespace {

constexpr const char* kSpaceName =
    "The name as it is typed so far. Enter starts a new line; letters grow smaller when a line gets long.";
constexpr const char* kSpacePicture =
    "What will be printed. Click the name to type, click the picture to choose its part.";
constexpr const char* kImageFile =
    "Where the picture lies. The game only remembers the place, so leave the picture there.";

constexpr WhatIsThis::Row kRows[] = {
    {"*", "cmdChangeFont", "Chooses letters for this one: their kind, their style, and how large they may become."},
    {"*", "cmdSetAllFonts", "Gives all of this kind the letters of this one."},
    {"*", "fraBitmap", "The picture, if there is to be one."},
    {"*", "chkIncludeImage", "With a tick there is a picture; without it the words have more room."},
    {"*", "cmdBitmap", "Looks for a picture on this computer."},
    {"*", "cmdCropImage", "Chooses which part of the picture shows, and how large."},
    {"*", "lblImageFile", kImageFile},
    {"*", "txtBitmapPath", kImageFile},

    {"frmEditSpace", "", "A space of the board: its name and its picture."},
    {"frmEditSpace", "picDest", kSpacePicture},
    {"frmEditSpace", "txtHoldFocus", kSpaceName},
    {"frmEditSpace", "txtSpace", kSpaceName},
    {"frmEditCorner", "", "A corner of the board: its name and its picture."},
    {"frmEditCorner", "picDest", kSpacePicture},
    {"frmEditCorner", "txtHoldFocus", kSpaceName},
    {"frmEditCorner", "txtSpace", kSpaceName},

    {"frmEditCenter", "", "The titles of the game, on the board and on the box."},
    {"frmEditCenter", "picForm", "Click a title and type. The other places show what becomes of it."},
    {"frmEditCenter", "txtHoldFocus", "The title that you are typing. Tab goes to the next one."},

    {"frmEditMoney", "", "The four banknotes, each with a portrait and two short texts."},
    {"frmEditMoney", "picNote", "The note as it will be printed."},
    {"frmEditMoney", "optMoney_", "Which of the four notes you are changing."},
    {"frmEditMoney", "txtSpace_0", "What stands on the left of the note: the name of your bank, for one."},
    {"frmEditMoney", "txtSpace_1", "What stands on the right of the note: what it is good for."},

    {"frmShowTokens", "", "The six tokens. Click the one that you want to change."},
    {"frmShowTokens", "picToken_", "A token as it will be printed. Click it to change it."},
    {"frmShowTokens", "cmdOK", "Closes this window. What you have changed is kept."},
    {"frmEditToken", "", "A token: a picture or a short text in a circle."},
    {"frmEditToken", "picDest", "The token as it will be printed. Click it to type; on a picture, use Crop Image."},
    {"frmEditToken", "txtHoldFocus", "The text of the token as it is typed so far."},
    {"frmEditToken", "txtToken", "The text of the token as it is typed so far."},
    {"frmEditToken", "optInclude_0", "Shows a picture on the token."},
    {"frmEditToken", "optInclude_1", "Shows a text on the token."},
    {"frmEditToken", "cmdHelp", "Tells how a text is typed on the token."},

    {"frmShowNews", "", "The twelve cards of one kind. Click a card to change it."},
    {"frmShowNews", "picCards",
     "The cards as they will be printed. Click one to change it, or choose it with the arrows."},
    {"frmShowNews", "hscrl", "Moves the cards to the left and to the right."},
    {"frmShowNews", "vscrl", "Moves the cards up and down."},
    {"frmEditNews", "", "A news card: the title of all of them, and the text of this one."},
    {"frmEditNews", "cmdPlaceHolder", "The card as it will be printed."},
    {"frmEditNews", "txtTitle", "The title of all cards of this kind."},
    {"frmEditNews", "txtSpace", "What happened, and what it costs or brings. Enter starts a new line."},
    {"frmEditNews", "cmdBodyFont", "Chooses the letters of the text."},
    {"frmEditNews", "cmdSetHeadFont", "Chooses the letters of the title, for all cards of this kind."},
};

} // namespace

std::span<const WhatIsThis::Row> WhatIsThis::OfEditors() { return kRows; }
