// SPDX-License-Identifier: MIT
#include "pictures/PicturePart.h"

#include "pictures/C_Image.h"
#include "platform/pictures/PictureHead.h"
#include "services/basPath.h"

#include <algorithm>
#include <cmath>

namespace {

QString NameOf(const QString& sPath) {
    return sPath.mid(std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\')) + 1);
}

} // namespace

qint16 ZoomThatFills(const QString& sFile) {
    constexpr double kStepsPerDoubling = 10;
    constexpr int kMost = 30;
    QString error;
    const std::optional<PictureHead> head = ReadPictureHead(sFile, error);
    if (!head || head->bDrawing || head->size.isEmpty()) return 0;
    const auto [shorter, longer] = std::minmax({head->size.width(), head->size.height()});
    const double steps = std::log2(double(longer) / shorter) * kStepsPerDoubling;
    return qint16(std::min(int(std::ceil(steps)), kMost));
}

bool IsSameElsewhere(const QString& sOld, const QString& sNew) {
    return !sOld.isEmpty() && sOld != sNew && !basCommon::DoesFileExist(sOld) &&
           NameOf(sOld).compare(NameOf(sNew), Qt::CaseInsensitive) == 0;
}

PictureRef PartAtFirst(const PictureRef& before, const QString& sFile) {
    if (before.sPath != sFile && !IsSameElsewhere(before.sPath, sFile)) return {sFile, ZoomThatFills(sFile)};
    PictureRef same = before;
    same.sPath = sFile;
    return same;
}

void ShowPart(C_Image& image, const PictureRef& part) {
    image.Let_Zoom(part.iZoom);
    if (!part.IsCentered()) return;
    image.Let_XCenter(part.iXCenter);
    image.Let_YCenter(part.iYCenter);
}
