// SPDX-License-Identifier: MIT
#include "pictures/PictureMiddle.h"

#include "services/RecordText.h"

#include <QHash>
#include <QSize>

#include <algorithm>
#include <limits>

namespace PictureMiddle {
namespace {

QHash<QString, QSize>& SizesShown() {
    static QHash<QString, QSize> sizes;
    return sizes;
}

// Rounded as every centre is, halves to even.
qint16 MiddleOf(int side) {
    constexpr double kLast = std::numeric_limits<qint16>::max();
    return basTAVL::CInt(std::min(side / 2.0, kLast));
}

} // namespace

PictureRef CenteredIn(const PictureRef& ref, int lW, int lH) {
    if (ref.IsCentered()) return ref;
    PictureRef centered = ref;
    centered.iXCenter = MiddleOf(lW);
    centered.iYCenter = MiddleOf(lH);
    return centered;
}

void NoteShown(const QString& sPath, int lW, int lH) { SizesShown().insert(sPath, QSize(lW, lH)); }

PictureRef Centered(const PictureRef& ref) {
    const auto size = SizesShown().constFind(ref.sPath);
    return size == SizesShown().constEnd() ? ref : CenteredIn(ref, size->width(), size->height());
}

void ForgetAll() { SizesShown().clear(); }

} // namespace PictureMiddle
