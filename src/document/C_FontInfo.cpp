// SPDX-License-Identifier: MIT
#include "document/C_FontInfo.h"

#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

#include <cmath>

namespace {

constexpr float kDefaultSize = 12;

QString StyleOf(const C_FontInfo& font) {
    const QString style =
        (font.Bold ? QStringLiteral("B") : QString()) + (font.Italic ? QStringLiteral("I") : QString());
    return style.isEmpty() ? QStringLiteral("R") : style;
}

float SizeOf(const QString& sField) {
    const float size = float(ParseNumber(sField).value_or(kDefaultSize));
    if (!std::isfinite(size)) ErrRaise(ErrNumber::kOverflow, QStringLiteral("Overflow"));
    return size;
}

} // namespace

void C_FontInfo::Load(const QString& sFamily, bool bItalic, bool bBold, float fSize) {
    Family = sFamily;
    Italic = bItalic;
    Bold = bBold;
    Size = fSize;
}

void C_FontInfo::LoadFromObject(const C_FontInfo& objSource) { *this = objSource; }

bool C_FontInfo::IsDifferentFrom(const C_FontInfo& objOther) const { return !(*this == objOther); }

QString C_FontInfo::GetQuotedString() const {
    return basTAVL::Quote(Family) + u',' + StyleOf(*this) + u',' + FloatToText(Size);
}

QString C_FontInfo::SetQuotedString(const QString& sLine) try {
    QString rest = sLine;
    Family = basTAVL::GetQuotedField(rest);
    if (Family.isEmpty()) Family = QStringLiteral("Arial");
    const QString style = basTAVL::GetQuotedField(rest).toUpper();
    const bool both = style == QStringLiteral("BI") || style == QStringLiteral("IB");
    Bold = both || style == QStringLiteral("B");
    Italic = both || style == QStringLiteral("I");
    Size = SizeOf(basTAVL::GetQuotedField(rest));
    return rest;
} catch (...) {
    ErrTail("C_FontInfo!", "SetQuotedString", sLine);
}
