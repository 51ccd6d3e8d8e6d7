// SPDX-License-Identifier: MIT
#include "document/C_Token.h"

#include "document/RecordFields.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

namespace {

constexpr TextBox kTokenBox{56, 84};
// Size of a token's text where a game holds no font for it.
constexpr float kSizeWithoutFont = 48;

} // namespace

void C_Token::Init(qint16 iIndex) try {
    Index = iIndex;
    Font = C_FontInfo();
    Font.SetQuotedString(QString());
    Image = C_Image();
    Image.Init(QString(), QStringLiteral("Token"), iIndex);
} catch (...) {
    ErrTail("C_Token!", "Init", iIndex);
}

float C_Token::TextSize() const { return CappedTextSize(Font, m_fTextSize); }

QStringList C_Token::LinesShown() const {
    const bool hasText = Image.FullPath().isEmpty() && NLines() > 0;
    return hasText ? TextArray() : QStringList{QString()};
}

void C_Token::FitNewText(const QString& sTextIn) {
    m_lines.Split(sTextIn);
    if (m_lines.NLines == 0) {
        // Unscaled on purpose: nothing is written at this size, and the font's own size caps it.
        m_fTextSize = float(kTokenBox.lHeight);
        return;
    }
    Let_TextSize(float(FitTextLine(m_lines.InUse(), Font, kTokenBox) / kTextUnits));
}

void C_Token::AssertTextSize() const {
    basCommon::Assert(NLines() == 0 || TextSize() != 0, QStringLiteral("Size set to zero"),
                      QStringLiteral("C_TokenSetText"));
}

void C_Token::SetText(const QString& sTextIn) try {
    FitNewText(sTextIn);
    AssertTextSize();
} catch (...) {
    ErrTail("C_Token!", "SetText", sTextIn);
}

void C_Token::SetImagePath(const QString& sFullPath) try {
    const bool had = !Image.FullPath().isEmpty();
    Image.Let_FullPath(sFullPath);
    if (had == sFullPath.isEmpty()) SetText(TextLines::kUseExisting);
} catch (...) {
    ErrTail("C_Token!", "SetImagePath", sFullPath);
}

bool C_Token::operator==(const C_Token& objOther) const {
    return Index == objOther.Index && m_lines == objOther.m_lines && Font == objOther.Font &&
           ShowTheSame(Image, objOther.Image);
}

bool C_Token::IsDifferentFrom(const C_Token& objOther) const {
    return Index != objOther.Index || m_lines != objOther.m_lines || m_fTextSize != objOther.m_fTextSize ||
           !(BackColor == objOther.BackColor) || Font.IsDifferentFrom(objOther.Font) ||
           Image.IsDifferentFrom(objOther.Image);
}

void C_Token::LoadFromObject(const C_Token& objSource) try {
    Index = objSource.Index;
    m_lines = objSource.m_lines;
    m_fTextSize = objSource.m_fTextSize;
    BackColor = objSource.BackColor;
    Font.LoadFromObject(objSource.Font);
    Image = objSource.Image;
} catch (...) {
    ErrTail("C_Token!", "LoadFromObject", objSource.Index);
}

QString C_Token::GetQuotedString() const try {
    return QString::number(Index) + QStringLiteral(", ") + basTAVL::Quote(TextAll()) + QStringLiteral(", ") +
           Image.GetQuotedString() + QStringLiteral(", ") + Font.GetQuotedString();
} catch (...) {
    ErrTail("C_Token!", "GetQuotedString");
}

QString C_Token::ReadFields(const QString& sLine, const ImageReader& readImage) {
    QString rest = sLine;
    // The message about a bad index has always spoken of a space.
    const QString sSpace = basTAVL::GetQuotedField(rest);
    QString text = basTAVL::GetQuotedField(rest);
    if (text == kNotFilledIn) text.clear();
    Index = IndexFromField(QStringLiteral("sSpace"), sSpace);
    rest = readImage(Image, rest, {PictureOwner::Kind::Token, Index});
    const bool withoutFont = rest.trimmed().isEmpty();
    rest = Font.SetQuotedString(rest);
    if (withoutFont) Font.Size = kSizeWithoutFont;
    FitNewText(text);
    return rest;
}

QString C_Token::Read(const QString& sLine, const PicturePlaces::Finder& find) {
    return ReadFields(sLine, ReaderFinding(find));
}

QString C_Token::SetQuotedString(const QString& sLine) try {
    const QString rest = ReadFields(sLine, ReadImageAndTell);
    AssertTextSize();
    return rest;
} catch (...) {
    ErrTail("C_Token!", "SetQuotedString", sLine);
}
