// SPDX-License-Identifier: MIT
#include "document/RecordFields.h"

#include "document/C_FontInfo.h"
#include "pictures/C_Image.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

const QString kNotFilledIn = QStringLiteral("Not Filled In");

qint16 IndexFromField(const QString& sVariable, const QString& sField) {
    const std::optional<double> number = ParseNumber(sField);
    if (!number) basErrLog::ErrUnexVal(sVariable, sField);
    return basTAVL::CInt(*number);
}

float CappedTextSize(const C_FontInfo& font, float fTextSize) { return std::min(font.Size / 1000.0F, fTextSize); }

bool ShowTheSame(const C_Image& a, const C_Image& b) {
    return a.FullPath() == b.FullPath() && a.Zoom() == b.Zoom() && a.XCenter() == b.XCenter() &&
           a.YCenter() == b.YCenter();
}

QString ReadImageAndTell(C_Image& image, const QString& sRest, const PictureOwner& owner) {
    return image.SetQuotedString(sRest, owner.KindName(), owner.iNumber);
}

ImageReader ReaderFinding(const PicturePlaces::Finder& find) {
    return [find](C_Image& image, const QString& sRest, const PictureOwner& owner) {
        return image.Read(sRest, owner, find);
    };
}
