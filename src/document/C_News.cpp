// SPDX-License-Identifier: MIT
#include "document/C_News.h"

#include "document/RecordFields.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

namespace {

const QString kCardFamily = QStringLiteral("Times New Roman");
constexpr float kCardSize = 12;

// Cards of old games carry no fonts.
QString ReadFont(C_FontInfo& font, const QString& sLine, bool bBoldByDefault) {
    if (!sLine.isEmpty()) return font.SetQuotedString(sLine);
    font.Load(kCardFamily, false, bBoldByDefault, kCardSize);
    return sLine;
}

} // namespace

bool C_News::IsDifferentFrom(const C_News& objOther) const { return !(*this == objOther); }

void C_News::LoadFromObject(const C_News& objSource) {
    Index = objSource.Index;
    m_sText = objSource.m_sText;
    FontBody.LoadFromObject(objSource.FontBody);
    FontHead.LoadFromObject(objSource.FontHead);
}

QString C_News::GetQuotedString() const {
    return QString::number(Index) + QStringLiteral(", ") + basTAVL::Quote(m_sText) + QStringLiteral(", ") +
           FontBody.GetQuotedString() + u',' + FontHead.GetQuotedString();
}

QString C_News::SetQuotedString(const QString& sLine) try {
    QString rest = sLine;
    const QString index = basTAVL::GetQuotedField(rest);
    m_sText = basTAVL::GetQuotedField(rest);
    if (IsNumeric(index)) Index = basTAVL::IntegerOrZero(index);
    if (m_sText.isEmpty()) m_sText = kNotFilledIn;
    rest = ReadFont(FontBody, rest, false);
    return ReadFont(FontHead, rest, true);
} catch (...) {
    ErrTail("C_News!", "SetQuotedString", sLine);
}
