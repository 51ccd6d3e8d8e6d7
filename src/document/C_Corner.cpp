// SPDX-License-Identifier: MIT
#include "document/C_Corner.h"

#include "document/RecordFields.h"
#include "document/Subscript.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

namespace {

constexpr TextBox kBlockBox{63, 32};

} // namespace

const TextLines& C_Corner::Block(int iBlock) const { return m_blocks[CheckedSubscript(iBlock, kBlocks)]; }
TextLines& C_Corner::Block(int iBlock) { return m_blocks[CheckedSubscript(iBlock, kBlocks)]; }

float C_Corner::TextSize(int iBlock) const {
    return CappedTextSize(Font, CheckedSubscript(iBlock, kBlocks) == 0 ? m_fTextSize0 : m_fTextSize1);
}

void C_Corner::Let_TextSize(int iBlock, float fTextSize) {
    CheckedSubscript(iBlock, kBlocks);
    m_fTextSize0 = fTextSize;
}

void C_Corner::SetText(int iBlock, const QString& sTextIn) try {
    TextLines& block = Block(iBlock);
    block.Split(sTextIn);
    Let_TextSize(iBlock, float(FitTextLine(block.InUse(), Font, kBlockBox) / kTextUnits));
} catch (...) {
    ErrTail("C_Corner!", "SetText", iBlock, sTextIn);
}

bool C_Corner::operator==(const C_Corner& objOther) const {
    return Index == objOther.Index && m_blocks == objOther.m_blocks && Font == objOther.Font &&
           ShowTheSame(Image, objOther.Image);
}

bool C_Corner::IsDifferentFrom(const C_Corner& objOther) const {
    return Index != objOther.Index || X != objOther.X || Y != objOther.Y || IsShowing != objOther.IsShowing ||
           m_blocks != objOther.m_blocks || m_fTextSize0 != objOther.m_fTextSize0 ||
           m_fTextSize1 != objOther.m_fTextSize1 || Font.IsDifferentFrom(objOther.Font) ||
           Image.IsDifferentFrom(objOther.Image);
}

void C_Corner::LoadFromObject(const C_Corner& objSource) try {
    Index = objSource.Index;
    X = objSource.X;
    Y = objSource.Y;
    IsShowing = objSource.IsShowing;
    for (int iBlock = 0; iBlock < kBlocks; ++iBlock) {
        const TextLines& from = objSource.Block(iBlock);
        TextLines& to = Block(iBlock);
        to.NLines = from.NLines;
        for (int iLine = 0; iLine < from.NLines; ++iLine)
            to.SetLine(iLine, from.Line(iLine));
    }
    m_fTextSize0 = objSource.m_fTextSize0;
    m_fTextSize1 = objSource.m_fTextSize1;
    Font.LoadFromObject(objSource.Font);
    Image = objSource.Image;
} catch (...) {
    ErrTail("C_Corner!", "LoadFromObject", objSource.Index);
}

QString C_Corner::GetQuotedString() const try {
    return QString::number(Index) + QStringLiteral(", ") + basTAVL::Quote(TextAll(0)) + QStringLiteral(", ") +
           basTAVL::Quote(TextAll(1)) + QStringLiteral(", ") + Image.GetQuotedString() + QStringLiteral(", ") +
           Font.GetQuotedString();
} catch (...) {
    ErrTail("C_Corner!", "GetQuotedString");
}

QString C_Corner::ReadFields(const QString& sLine, const ImageReader& readImage) {
    QString rest = sLine;
    const QString sCorner = basTAVL::GetQuotedField(rest);
    const QString text0 = basTAVL::GetQuotedField(rest);
    const QString text1 = basTAVL::GetQuotedField(rest);
    Index = IndexFromField(QStringLiteral("sCorner"), sCorner);
    rest = readImage(Image, rest, {PictureOwner::Kind::Corner, Index});
    rest = Font.SetQuotedString(rest);
    SetText(0, text0);
    SetText(1, text1);
    return rest;
}

QString C_Corner::Read(const QString& sLine, const PicturePlaces::Finder& find) {
    return ReadFields(sLine, ReaderFinding(find));
}

QString C_Corner::SetQuotedString(const QString& sLine) try {
    return ReadFields(sLine, ReadImageAndTell);
} catch (...) {
    ErrTail("C_Corner!", "SetQuotedString", sLine);
}
