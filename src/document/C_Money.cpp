// SPDX-License-Identifier: MIT
#include "document/C_Money.h"

#include "document/RecordFields.h"
#include "document/Subscript.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

QString C_Money::Text(int iIndex) const { return m_sText[CheckedSubscript(iIndex, kTexts)]; }

void C_Money::Let_Text(int iIndex, const QString& sText) { m_sText[CheckedSubscript(iIndex, kTexts)] = sText; }

bool C_Money::operator==(const C_Money& objOther) const {
    return Index == objOther.Index && m_sText == objOther.m_sText && ShowTheSame(FaceImage, objOther.FaceImage);
}

bool C_Money::IsDifferentFrom(const C_Money& objOther) const {
    return Index != objOther.Index || FaceImage.IsDifferentFrom(objOther.FaceImage) ||
           BackImage.IsDifferentFrom(objOther.BackImage) || m_sText != objOther.m_sText ||
           !(BackColor == objOther.BackColor);
}

void C_Money::LoadFromObject(const C_Money& objSource) try {
    Index = objSource.Index;
    if (FaceImage.IsDifferentFrom(objSource.FaceImage)) FaceImage.LoadFromObject(objSource.FaceImage, false);
    if (BackImage.IsDifferentFrom(objSource.BackImage)) BackImage.LoadFromObject(objSource.BackImage, false);
    m_sText = objSource.m_sText;
    BackColor = objSource.BackColor;
} catch (...) {
    ErrTail("C_Money!", "LoadFromObject", objSource.Index);
}

QString C_Money::GetQuotedString() const try {
    return QString::number(Index) + QStringLiteral(", ") + basTAVL::Quote(m_sText[0]) + QStringLiteral(", ") +
           basTAVL::Quote(m_sText[1]) + u',' + FaceImage.GetQuotedString();
} catch (...) {
    ErrTail("C_Money!", "GetQuotedString");
}

QString C_Money::ReadFields(const QString& sLine, const ImageReader& readImage) {
    QString rest = sLine;
    const QString index = basTAVL::GetQuotedField(rest);
    // Unlike the texts of spaces and cards, an empty one stays empty.
    for (QString& text : m_sText)
        text = basTAVL::GetQuotedField(rest);
    if (IsNumeric(index)) Index = basTAVL::IntegerOrZero(index);
    return readImage(FaceImage, rest, {PictureOwner::Kind::Money, Index});
}

QString C_Money::Read(const QString& sLine, const PicturePlaces::Finder& find) {
    return ReadFields(sLine, ReaderFinding(find));
}

QString C_Money::SetQuotedString(const QString& sLine) try { return ReadFields(sLine, ReadImageAndTell); } catch (...) {
    ErrTail("C_Money!", "SetQuotedString", sLine);
}
