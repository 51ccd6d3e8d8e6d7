// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "render/RulesText.h"

#include <QString>
#include <QStringList>

class C_Corner;
class C_FontInfo;
class C_Image;
class C_Space;
class Surface;

/// The paint target of all printed pieces: wraps a drawing surface (the printer, or any window or scratch
/// form standing in for it), turns inches into its pixels and sets fonts so that a text of a wanted height
/// comes out that high. Doubles are inches from the printable origin, longs are device pixels; no margin is
/// corrected anywhere.
class clsRenderDestination {
public:
    /// A line of text is this much higher than its nominal font size.
    static constexpr double kSizeOfHeight = 0.625;

    /// Puts a printer into pixels and measures its fonts; the surface is kept by reference.
    void Init(Surface& oDest, double dblScale);

    /// Device pixels an inch, times the scale given to Init.
    double DPI() const { return dblDPI; }
    double FontFactor() const { return m_dblFontFactor; }
    Surface& Destination() const { return *m_oDest; }

    /// The cutting ring round a token; dblX and dblY are the top left of the circle's square.
    void CircleRender(double dblX, double dblY, double dblRadius);

    /// A small bold caption with an arrow that says what a piece is and which way is up. Directions "UP",
    /// "DOWN", "LEFT", "RIGHT" and "NONE" in any case.
    void Legend(float sngX, float sngY, const QString& sDirection, const QString& sText, Color lColor);

    /// The lines of title record iItem (0 to 16), centred and as large as they fit a filled box; nothing at
    /// all, not even the fill, when it has none.
    void MultiLineBox(int iItem, const QString& sFontName, bool bBold, bool bItalic, double dblX, double dblY,
                      double dblWidth, double dblHeight, Color lForeColor, Color lBackColor);

    /// Lines centred and as large as they fit. The surface's own ForeColor is used; lColor isn't.
    void MultiLineTextAutofit(const QStringList& saLines, int iLineCount, const QString& sFontName, bool bBold,
                              bool bItalic, int lX, int lY, int lWidth, int lHeight, Color lColor);

    /// The same with a nominal size that the text doesn't exceed, so that several boxes can keep one size.
    void MultiLineTextAutofitWithSize(const QStringList& saLines, int iLineCount, int vSizeLimit,
                                      const QString& sFontName, bool bBold, bool bItalic, int lX, int lY, int lWidth,
                                      int lHeight, Color lColor);

    /// A picture file stretched to a box. A missing file draws nothing and raises nothing; one that is
    /// there and can't be read is raised by its name.
    void OutputFromBMP(const QString& sPath, double dblX, double dblY, double dblWidth, double dblHeight);

    /// The text of title record iItem (0 to 16) in one line, stretched in both directions to a filled box
    /// inside its margin, whatever the text's own proportions.
    void SingleLine(int iItem, const QString& sFontName, bool bBold, bool bItalic, double dblX, double dblY,
                    double dblWidth, double dblHeight, double dblFontHeight, double dblMargin, Color lForeColor,
                    Color lBackColor);

    /// Text wrapped at blanks into lWidth. Consumes vText and moves lY below the block. sAlign "L", "C", "R".
    void TextBlock(QString& vText, int lX, int& lY, int lWidth, const QString& sFontName, int lLineHeight, bool bBold,
                   bool bItalic, const QString& sAlign);

    /// The picture of a space or corner in the upper half of its sticker; nothing without one. dblX and dblY are
    /// the sticker's top left in inches.
    void SpaceStickerImageV6(int iSpace, double dblX, double dblY);
    void CornerStickerImageV6(int iCorner, double dblX, double dblY);
    /// Sides of these pictures, which are square.
    static double SpaceStickerImageInches();
    static double CornerStickerImageInches();
    /// The text of a space or corner, never larger than on the board: in the lower half of the sticker when a
    /// picture has the upper one, else in all of it.
    void SpaceStickerText(int iSpace, double dblX, double dblY, bool bIncludeImage);
    void CornerStickerText(int iCorner, double dblX, double dblY, bool bIncludeImage);
    /// The same of a space or corner in whatever game.
    void SpaceStickerText(const C_Space& space, double dblX, double dblY, bool bIncludeImage);
    void CornerStickerText(const C_Corner& corner, double dblX, double dblY, bool bIncludeImage);

    /// Prints the rules of the game on one page from the instruction file in the program's directory. False
    /// when it stopped early; a box has then said so, and sWhy names the file and the line.
    bool InstructionSheet(const InstructionNames& names, QString& sWhy);

    /// Every occurrence of a tag replaced; goes on behind what it put in, so that a name holding the tag
    /// can't hang the print.
    static QString MakeSubstitutions(const QString& sLine, const QString& sTag, const QString& sValue);

    /// Takes the fields off a text line "font,size,align,style:text" and leaves the text in sLine. lSize is
    /// the pitch of the lines in points. iResult is below 0, and a box is shown, for a line in another form.
    static void ParseGamePlayLine(QString& sLine, QString& sFontName, int& lSize, QString& sAlign, bool& bBold,
                                  bool& bItalic, int& iResult);

private:
    /// Where the layout of the rules goes on.
    struct Cursor {
        int lX = 0;
        int lY = 0;
        int lWidth = 0;
    };

    int Pixels(double dblInches) const;
    void StickerImage(const C_Image& oImage, int lLeft, int lTop, int lSide);
    void StickerText(const QStringList& saLines, const C_FontInfo& oFont, double dblSizeLimit, double dblWidth,
                     double dblHeight, double dblX, double dblY, bool bIncludeImage);
    void SetFont(const QString& sFontName, bool bBold, bool bItalic, double nominalSize);
    double Widest(const QStringList& saLines, int iLineCount) const;
    void FitLines(const QStringList& saLines, int iLineCount, const int* vSizeLimit, const QString& sFontName,
                  bool bBold, bool bItalic, int lX, int lY, int lWidth, int lHeight);
    void DrawArrow(int lX, int lY, int lSize, const QString& sDirection);
    void PrintInstructionLine(const RulesLine& line, Cursor& cursor);

    Surface* m_oDest = nullptr;
    double dblDPI = 96.0;
    double m_dblFontFactor = 1.0;
};
