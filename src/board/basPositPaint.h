// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPositTables.h"

#include <QString>

#include <array>
#include <optional>

class QRect;
class Surface;

/// Painting of the board on the drawing layer's current context, in the view that basPosit holds. Everything
/// scales with the view, down to the pens, so the board looks the same at each zoom. The context is in
/// transparent background mode and its surface already cleared.
namespace basPosit {

/// Width of the pen round spaces, corners, bands and boxes, as a fraction of the board's width.
constexpr float kBoardPen = 0.0031F;

/// Which pictures a paint shows: all, however long it takes to decode them; or those that are ready, so that
/// the board stands at once and the others are pasted as they come.
enum class PicturesShown { All, Ready };

/// The surface that pictures are pasted on, which is the one behind the current context; none leaves them
/// out. The surface's scale mode is pixels while the board is painted. Corners show their pictures only while
/// the board is on screen.
void PosSetPicture(Surface* picBoard, bool bOnScreen = true, PicturesShown shown = PicturesShown::All);

/// What paper shows in place of the boxes that open an editor on a screen: places for the two decks.
struct PaperLook {
    /// Of a card, with what it needs to lie freely; in fractions of the board's width.
    float fCardWidth = 0;
    float fCardHeight = 0;
    /// White grounds with coloured edges.
    bool bSavesInk = false;
};
/// The next paints are for paper; nothing: for a screen.
void PosSetPaper(const std::optional<PaperLook>& look);

/// Where the decks lie on paper.
struct DeckPlaces {
    std::array<BoardRect, 2> box;
    /// The cards lie turned, because the board is too small for two of them side by side.
    bool bTurned = false;
};
DeckPlaces DeckPlacesOf(const PaperLook& look);

/// Paints everything, and gives back pens, brushes and fonts at the end. PosInit comes before it, then the
/// view.
void PosDrawAll();

/// How many pictures the last paint left out, or showed coarsely, because they weren't ready.
int PosPicturesAwaited();
/// Pastes those of them that have become ready, in the view and on the surface of that paint, and returns how
/// many are still awaited. Never takes much longer than an eye's blink.
int PosDrawAwaited();

/// The panel in the middle: title box, card decks, money, tokens, and the game's titles.
void Pos_DrawCenter();

/// The small game board that is drawn round the title, in a rectangle of device units and whatever the view.
void DrawTitleDecoration(const QRect& box);

// With the pen and brush that are selected.
void DrawCorners();
/// Bands with the names of the sides.
void DrawSides();
/// Fills the spaces in view, and notes in each space whether it is: IsShowing.
void DrawSpaces();
void PosDrawCosts();

// Each skips spaces out of view, and the two lotto spaces, which show a panel of their own.
void PosDrawSpaceText(int iSpace);
void PosDrawSpaceBMP(int iSpace);

/// A corner's picture and, above it, its text; the text waits for a picture that is awaited.
void PosDrawCorner(int iCorner);
/// Some kits have a picture of their own on corner 3, whatever the game says.
void PosDrawCornerBMP(int iCorner);
/// The board shows block 0; block 1, in its fixed typeface, is for other output.
void PosDrawCornerText(int iBlock, int iCorner);

/// The panel of a lotto space, 10 or 24; raises for any other.
void DrawLotto(int iSpace);

/// Direction of the text on a side, tenths of a degree, so that it is read from the board's edge. Raises with
/// the message outside 0 to 3.
int EscapementOfSide(int iSide, const QString& sMessage);

/// True for the corner whose picture belongs to the kit and not to the game.
bool IsFixedCorner(int iCorner);

} // namespace basPosit
