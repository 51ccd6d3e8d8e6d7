// SPDX-License-Identifier: MIT
#include "check/ShownPart.h"

#include "check/PieceParts.h"
#include "pictures/PictureMiddle.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace {

// In parts of the side; less is no bar but a line.
constexpr double kWidthOfLine = 0.01;
constexpr int kMostSteps = 60;

int LargestGap(const ZoomedSource& part, QSize picture) {
    return std::max(
        {-part.xSrc, -part.ySrc, part.xSrc + part.iSide - picture.width(), part.ySrc + part.iSide - picture.height()});
}

// The middle of a part of this length that lies within the picture as far as it is long enough.
qint16 Inside(int iCenter, int iSide, int iLength) {
    if (iSide >= iLength) return qint16(iLength / 2);
    return qint16(std::clamp(iCenter, (iSide + 1) / 2, iLength - (iSide + 1) / 2));
}

PictureRef Zoomed(const PictureRef& centered, QSize picture, int iZoom) {
    PictureRef ref = centered;
    ref.iZoom = qint16(iZoom);
    const int side = ZoomedSource::SideOf(picture.width(), picture.height(), iZoom);
    ref.iXCenter = Inside(centered.iXCenter, side, picture.width());
    ref.iYCenter = Inside(centered.iYCenter, side, picture.height());
    return ref;
}

} // namespace

std::optional<ZoomedSource> ShownPartOf(const PaperPicture& picture) {
    const std::optional<PictureHead>& head = picture.fact.head;
    if (!head || head->bDrawing) return std::nullopt;
    const QSize size = head->size;
    const PictureRef centered = PictureMiddle::CenteredIn(picture.ref, size.width(), size.height());
    return ZoomedSource::Of(size.width(), size.height(), centered.iZoom, centered.iXCenter, centered.iYCenter);
}

double DotsPerInch(const PaperPicture& picture, const ZoomedSource& part) {
    return part.iSide / std::max(picture.inches.width(), picture.inches.height());
}

bool LeavesBars(const PaperPicture& picture, const ZoomedSource& part) {
    return LargestGap(part, picture.fact.head->size) > kWidthOfLine * part.iSide;
}

std::optional<Edit> WithOtherPart(const Game& game, const GamePiece& piece, int iStep) {
    PictureFacts facts;
    std::optional<PaperPicture> picture = PaperPictureOf(game, piece, facts, PictureFacts::Decoding::Aside);
    if (!picture || !ShownPartOf(*picture)) return std::nullopt;
    const QSize size = picture->fact.head->size;
    const PictureRef centered = PictureMiddle::CenteredIn(picture->ref, size.width(), size.height());
    for (int step = 0; step <= kMostSteps; ++step) {
        const int zoom = centered.iZoom + step * iStep;
        if (zoom < 0) break;
        picture->ref = Zoomed(centered, size, zoom);
        const std::optional<ZoomedSource> part = ShownPartOf(*picture);
        if (DotsPerInch(*picture, *part) >= kFewestDotsPerInch && !LeavesBars(*picture, *part))
            return PieceParts::WithPicture(game, piece, picture->ref);
    }
    return std::nullopt;
}
