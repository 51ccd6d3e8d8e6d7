// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_FontInfo.h"
#include "document/RecordFields.h"
#include "document/TextLines.h"
#include "pictures/C_Image.h"
#include "platform/paint/Color.h"

class PictureHolder;
class Surface;

/// One of the six round tokens.
class C_Token {
public:
    /// 0 to 5.
    qint16 Index = 0;
    /// Height of a line of text, in fractions of the board's width.
    float m_fTextSize = 0;
    /// Set at start-up, never saved. White where the start sets none.
    Color BackColor = Color::White();
    C_FontInfo Font;
    C_Image Image;

    /// A new font and image for the token of this number.
    void Init(qint16 iIndex);

    qint16 NLines() const { return m_lines.NLines; }
    void Let_NLines(qint16 iLines) { m_lines.NLines = iLines; }
    /// Raise the subscript error outside 0 to 9.
    QString Text(int iLine) const { return m_lines.Line(iLine); }
    void Let_Text(int iLine, const QString& sText) { m_lines.SetLine(iLine, sText); }
    /// The lines in use, joined with CR LF; written, they aren't fitted.
    QString TextAll() const { return m_lines.All(); }
    void Let_TextAll(const QString& sText) { m_lines.SetAll(sText); }
    QStringList TextArray() const { return m_lines.InUse(); }
    /// The lines that a person sees and types on: a single empty one where there is a picture or no text.
    QStringList LinesShown() const;
    /// Height of a line, in fractions of the board's width, never above what the font's size allows.
    float TextSize() const;
    void Let_TextSize(float fTextSize) { m_fTextSize = fTextSize; }

    /// Splits the text into lines and fits them to the token. "UseExistingString" keeps the lines.
    void SetText(const QString& sTextIn);
    /// Fits the text anew when a picture comes or goes.
    void SetImagePath(const QString& sFullPath);

    /// Part of a token's text that an editor marks; -1 for none. Columns count UTF-16 units.
    struct TextSelection {
        int iColStart = -1;
        int iRowStart = -1;
        int iColEnd = -1;
        int iRowEnd = -1;
    };
    /// Draws the round token into a box of pixels of picDest: its colour, then its picture or its lines, and
    /// lBackColor beyond the circle. A picture that can't be painted is given up for the text.
    void Redraw(int xStart, int yStart, int xEnd, int yEnd, bool bWithSelection, Surface& picDest,
                PictureHolder& picScratch, const TextSelection& selection, Color lBackColor);
    /// The picture alone, cut round, in the box's pixels. False, after it was told, for a bad one.
    bool PaintImage(Surface& picDest, PictureHolder& picScratch, int xStart, int yStart, int xEnd, int yEnd) const;
    /// The lines alone, on the drawing layer's current context.
    void DrawText(int xStart, int yStart, int xEnd, int yEnd, bool bWithSelection, const TextSelection& selection);

    /// The place in the lines nearest to the pixel (x, y) of a token drawn by Redraw into the same box. False
    /// outside the square that is left for text.
    bool FindInsertPoint(int xStart, int yStart, int xEnd, int yEnd, Surface& picDest, int x, int y, int& iCol,
                         int& iRow) const;

    /// Whether a family would call both equal: compares what a game file holds. IsDifferentFrom looks at the
    /// kit's colour and the fitted size, too.
    bool operator==(const C_Token& objOther) const;
    bool IsDifferentFrom(const C_Token& objOther) const;
    void LoadFromObject(const C_Token& objSource);

    QString GetQuotedString() const;
    /// Reads a record off the front and returns what is left. Raises for an index that is no number.
    QString SetQuotedString(const QString& sLine);
    /// As SetQuotedString, but touches nothing besides the record: the picture is found by what is given, a missing
    /// one isn't told, and a text of no size doesn't end the program; TextSize tells of it.
    QString Read(const QString& sLine, const PicturePlaces::Finder& find);

private:
    /// Ends the program when the text has no size, with a message.
    void AssertTextSize() const;
    QString ReadFields(const QString& sLine, const ImageReader& readImage);
    void FitNewText(const QString& sTextIn);
    struct TextPlace;
    TextPlace PlaceOfText(int xStart, int yStart, int xEnd, int yEnd) const;
    void UseFont(const TextPlace& place) const;

    TextLines m_lines;
};
