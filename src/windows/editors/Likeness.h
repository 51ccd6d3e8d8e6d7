// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "game/Edit.h"
#include "windows/editors/TextSelection.h"
#include "windows/editors/TypedText.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

class C_FontInfo;
class C_Image;
class PictureHolder;
class Surface;

/// A piece of the board as its editor shows it: a private copy of the record, drawn large and upright, with
/// its text in the font and place in which it will stand. Needs no window: it draws on any surface. All
/// places are pixels of that surface.
class Likeness {
public:
    /// What lies at a point, and the place in the text nearest to it.
    struct Spot {
        int iRow = 0;
        int iCol = 0;
        bool bInImage = false;
        bool bInText = false;
    };

    /// Where text is centred and looked for.
    struct TextBox {
        int iCentre; ///< x of the middle of each line.
        int iLeft;
        int iRight;
        int iTop;
        int iHeight;
    };

    virtual ~Likeness() = default;

    /// Whose likeness it is.
    virtual GamePiece Piece() const = 0;
    /// Size that shows the whole of it.
    virtual QSize Size() const = 0;
    virtual C_FontInfo& Font() = 0;
    virtual C_Image& Image() = 0;
    virtual QString TextAll() const = 0;
    /// Fits the text; measures on the drawing layer's current context. "UseExistingString" keeps the lines.
    virtual void SetText(const QString& sText) = 0;
    /// A new picture, or with an empty path none; the text is fitted to the room that is left.
    virtual void SetImagePath(const QString& sFullPath) = 0;
    /// The lines as they are stored after typing.
    virtual QString Joined(const QStringList& sTextLines) const = 0;
    /// Units of its lines that are kept by it.
    virtual TypedText::LineRoom Room() const = 0;

    /// Takes a copy of a game's record.
    virtual void LoadFromGame(const Game& game, int iIndex) = 0;
    /// Drops what was changed.
    virtual void TakeBack(const Game& game) = 0;
    virtual bool IsDifferentFromGame(const Game& game) const = 0;
    /// The game with the copy in place of its record.
    virtual Edit ChangeOf(const Game& game) const = 0;
    /// The game with this font on its other spaces and corners, and their texts fitted to it. The fourth corner,
    /// whose face is fixed, keeps its own. Measures on the drawing layer's current context.
    virtual Edit AllFontsOf(const Game& game) const = 0;

    /// Lines of the text, never fewer than one.
    QStringList GetTextArray() const;
    /// Where the picture stands, or would stand.
    QRect ImageBox() { return ImagePlace(); }
    /// The middle of the lower edge of the text's place.
    QPoint BelowText();
    Spot WhereIsMouse(Surface& picDest, double X, double Y);
    /// Paints all of it.
    void Redraw(Surface& picDest, PictureHolder& picScratch, const TextSelection& selection);

protected:
    /// Lines that the record says are in use; may be none.
    virtual QStringList LinesInUse() const = 0;
    virtual TextBox TextPlace() = 0;
    virtual QRect ImagePlace() = 0;
    /// Height of a line of the text in pixels.
    virtual int LineHeight() = 0;
    /// Outline and whatever else lies under text and picture. The pen is the outline's.
    virtual void DrawOutline() = 0;

    bool HasImage();

private:
    int TopOfText();
    void UseTextFont();
    void DrawText(const TextSelection& selection);
    void DrawImage(Surface& picDest, PictureHolder& picScratch);
};
