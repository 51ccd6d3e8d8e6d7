// SPDX-License-Identifier: MIT
#include "document/C_Space.h"

#include "document/RecordFields.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

namespace {

constexpr TextBox kBoxWithoutImage{34, 51};
constexpr TextBox kBoxWithImage{34, 25};

} // namespace

float C_Space::TextSize() const { return CappedTextSize(Font, m_fTextSize); }

void C_Space::FitNewText(const QString& sTextIn) {
    m_lines.Split(sTextIn);
    const TextBox box = Image.FullPath().isEmpty() ? kBoxWithoutImage : kBoxWithImage;
    if (m_lines.NLines == 0) {
        // Unscaled on purpose: nothing is written at this size, and the font's own size caps it.
        m_fTextSize = float(box.lHeight);
        return;
    }
    Let_TextSize(float(FitTextLine(m_lines.InUse(), Font, box) / kTextUnits));
}

void C_Space::AssertTextSize() const {
    basCommon::Assert(NLines() == 0 || TextSize() != 0, QStringLiteral("Size set to zero"),
                      QStringLiteral("C_SpaceSetText"));
}

void C_Space::SetText(const QString& sTextIn) try {
    FitNewText(sTextIn);
    AssertTextSize();
} catch (...) {
    ErrTail("C_Space!", "SetText", sTextIn);
}

void C_Space::SetImagePath(const QString& sFullPath) try {
    const bool had = !Image.FullPath().isEmpty();
    Image.Let_FullPath(sFullPath);
    if (had == sFullPath.isEmpty()) SetText(TextLines::kUseExisting);
} catch (...) {
    ErrTail("C_Space!", "SetImagePath", sFullPath);
}

bool C_Space::operator==(const C_Space& objOther) const {
    return Index == objOther.Index && m_lines == objOther.m_lines && Font == objOther.Font &&
           ShowTheSame(Image, objOther.Image);
}

bool C_Space::IsDifferentFrom(const C_Space& objOther) const {
    return Index != objOther.Index || Cost != objOther.Cost || m_lines != objOther.m_lines ||
           !(CostColor == objOther.CostColor) || m_fTextSize != objOther.m_fTextSize ||
           SpaceType != objOther.SpaceType || !(SpaceColor == objOther.SpaceColor) || IsShowing != objOther.IsShowing ||
           Font.IsDifferentFrom(objOther.Font) || Image.IsDifferentFrom(objOther.Image);
}

void C_Space::LoadFromObject(const C_Space& objSource) try {
    Index = objSource.Index;
    Cost = objSource.Cost;
    m_lines = objSource.m_lines;
    CostColor = objSource.CostColor;
    m_fTextSize = objSource.m_fTextSize;
    SpaceType = objSource.SpaceType;
    SpaceColor = objSource.SpaceColor;
    IsShowing = objSource.IsShowing;
    Font.LoadFromObject(objSource.Font);
    Image = objSource.Image;
} catch (...) {
    ErrTail("C_Space!", "LoadFromObject", objSource.Index);
}

QString C_Space::GetQuotedString() const try {
    return QString::number(Index) + QStringLiteral(", ") + basTAVL::Quote(TextAll()) + QStringLiteral(", ") +
           Image.GetQuotedString() + QStringLiteral(", ") + Font.GetQuotedString();
} catch (...) {
    ErrTail("C_Space!", "GetQuotedString");
}

QString C_Space::ReadFields(const QString& sLine, const ImageReader& readImage) {
    QString rest = sLine;
    const QString sSpace = basTAVL::GetQuotedField(rest);
    QString text = basTAVL::GetQuotedField(rest);
    Index = IndexFromField(QStringLiteral("sSpace"), sSpace);
    if (text.isEmpty()) text = kNotFilledIn;
    rest = readImage(Image, rest, {PictureOwner::Kind::Space, Index});
    rest = Font.SetQuotedString(rest);
    FitNewText(text);
    return rest;
}

QString C_Space::Read(const QString& sLine, const PicturePlaces::Finder& find) {
    return ReadFields(sLine, ReaderFinding(find));
}

QString C_Space::SetQuotedString(const QString& sLine) try {
    const QString rest = ReadFields(sLine, ReadImageAndTell);
    AssertTextSize();
    return rest;
} catch (...) {
    ErrTail("C_Space!", "SetQuotedString", sLine);
}
