// SPDX-License-Identifier: MIT
#include "windows/pictures/ShownParts.h"

#include "pictures/C_Image.h"

void ShownParts::Note(const PictureRef& shown) {
    if (shown.IsEmpty()) return;
    m_parts.insert(shown.sPath, shown);
    m_last = shown;
}

void ShownParts::Restore(C_Image& image) const {
    const auto part = m_parts.constFind(image.FullPath());
    if (part == m_parts.constEnd()) return;
    image.Let_Zoom(part->iZoom);
    image.Let_XCenter(part->iXCenter);
    image.Let_YCenter(part->iYCenter);
}
