// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRegion>

/// The pixels that a flood fills.
struct MetafileFlood {
    /// What it fills lies within; empty where it fills nothing.
    QRect area;
    /// As large as the area, Alpha8: 255 for each pixel that is filled, 0 for the others.
    QImage mask;

    /// Runs from a pixel to its neighbours above, below and beside it: over those of the colour, or over all but
    /// those. The picture is RGB32; nothing outside of the region is filled.
    static MetafileFlood From(QPoint start, const QImage& picture, const QRegion& within, QRgb colour,
                              bool onlyOnColour);
};
