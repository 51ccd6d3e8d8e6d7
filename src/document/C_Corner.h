// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_FontInfo.h"
#include "document/RecordFields.h"
#include "document/TextLines.h"
#include "pictures/C_Image.h"

#include <array>

/// One corner of the board. Its text falls into two blocks, told apart by iBlock 0 and 1; any other number
/// raises the subscript error.
class C_Corner {
public:
    static constexpr int kBlocks = 2;

    /// 0 bottom right, 1 bottom left, 2 top left, 3 top right.
    qint16 Index = 0;
    /// Anchor of the text, in fractions of the board's width.
    float X = 0;
    float Y = 0;
    float m_fTextSize0 = 0;
    float m_fTextSize1 = 0;
    /// Nothing sets it; it is compared and copied with the record.
    bool IsShowing = false;
    C_FontInfo Font;
    C_Image Image;

    qint16 NLines(int iBlock) const { return Block(iBlock).NLines; }
    void Let_NLines(int iBlock, qint16 iLines) { Block(iBlock).NLines = iLines; }
    QString TextAll(int iBlock) const { return Block(iBlock).All(); }
    void Let_TextAll(int iBlock, const QString& sText) { Block(iBlock).SetAll(sText); }
    /// Exactly the lines in use.
    QStringList TextArray(int iBlock) const { return Block(iBlock).InUse(); }
    QString TextLine(int iBlock, int iLine) const { return Block(iBlock).Line(iLine); }
    void Let_TextLine(int iBlock, int iLine, const QString& sText) { Block(iBlock).SetLine(iLine, sText); }

    /// Height of a line, in fractions of the board's width, never above what the font's size allows.
    float TextSize(int iBlock) const;
    /// Kept on purpose: whichever block is named, the first block's size is written, so the last text that
    /// was fitted decides how both are shown.
    void Let_TextSize(int iBlock, float fTextSize);

    /// Splits the text of a block into lines and fits them. "UseExistingString" keeps the lines.
    void SetText(int iBlock, const QString& sTextIn);

    /// Whether a family would call both equal: compares what a game file holds. IsDifferentFrom looks at what the
    /// board works out, too.
    bool operator==(const C_Corner& objOther) const;
    bool IsDifferentFrom(const C_Corner& objOther) const;
    /// Of each block only the lines in use are copied.
    void LoadFromObject(const C_Corner& objSource);

    QString GetQuotedString() const;
    /// Reads a record off the front and returns what is left. Raises for an index that is no number.
    QString SetQuotedString(const QString& sLine);
    /// As SetQuotedString, but touches nothing besides the record: the picture is found by what is given, and
    /// a missing one isn't told.
    QString Read(const QString& sLine, const PicturePlaces::Finder& find);

private:
    QString ReadFields(const QString& sLine, const ImageReader& readImage);
    const TextLines& Block(int iBlock) const;
    TextLines& Block(int iBlock);

    std::array<TextLines, kBlocks> m_blocks;
};
