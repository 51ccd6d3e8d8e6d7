// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_FontInfo.h"
#include "document/RecordFields.h"
#include "document/TextLines.h"
#include "pictures/C_Image.h"
#include "platform/paint/Color.h"

/// One of the 28 spaces along the sides of the board.
class C_Space {
public:
    /// 0 to 27.
    qint16 Index = 0;
    /// Price as it stands on the space, or "PLAY LOTTO". Comes from the rents, never from a game file.
    QString Cost;
    Color CostColor;
    /// Height of a line of text, in fractions of the board's width.
    float m_fTextSize = 0;
    /// "P" property, "U" utility, "N" news, "L" lotto; only the first letter counts.
    QString SpaceType;
    /// The colour band; none for a space without one.
    Color SpaceColor;
    /// Whether the space lies in the visible view of the board.
    bool IsShowing = false;
    C_FontInfo Font;
    C_Image Image;

    qint16 NLines() const { return m_lines.NLines; }
    void Let_NLines(qint16 iLines) { m_lines.NLines = iLines; }
    /// Raise the subscript error outside 0 to 9.
    QString Text(int iLine) const { return m_lines.Line(iLine); }
    void Let_Text(int iLine, const QString& sText) { m_lines.SetLine(iLine, sText); }
    /// The lines in use, joined with CR LF; written, they aren't fitted.
    QString TextAll() const { return m_lines.All(); }
    void Let_TextAll(const QString& sText) { m_lines.SetAll(sText); }
    QStringList TextArray() const { return m_lines.InUse(); }
    /// Height of a line, in fractions of the board's width, never above what the font's size allows.
    float TextSize() const;
    void Let_TextSize(float fTextSize) { m_fTextSize = fTextSize; }

    /// Splits the text into lines and fits them to the space. "UseExistingString" keeps the lines.
    void SetText(const QString& sTextIn);
    /// A picture halves the room for text, so the text is fitted anew when one comes or goes.
    void SetImagePath(const QString& sFullPath);

    /// Whether a family would call both equal: compares what a game file holds. IsDifferentFrom looks at what the
    /// board works out, too.
    bool operator==(const C_Space& objOther) const;
    bool IsDifferentFrom(const C_Space& objOther) const;
    void LoadFromObject(const C_Space& objSource);

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
    TextLines m_lines;
};
