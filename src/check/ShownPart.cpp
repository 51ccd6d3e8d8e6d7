// SPDX-License-Identifier: MIT
#include "check/ShownPart.h"

#include "pictures/PictureMiddle.h"

std::optional<ZoomedSource> ShownPartOf(const PaperPicture& picture) {
    const std::optional<PictureHead>& head = picture.fact.head;
    if (!head || head->bDrawing) return std::nullopt;
    const QSize size = head->size;
    const PictureRef centered = PictureMiddle::CenteredIn(picture.ref, size.width(), size.height());
    return ZoomedSource::Of(size.width(), size.height(), centered.iZoom, centered.iXCenter, centered.iYCenter);
}
