// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <vector>

class Surface;

/// A picture together with halved copies of itself, so that moving and zooming a large photograph never
/// touches many more pixels than are shown. What it paints is a little softer or coarser than
/// Surface::PaintPicture, which takes every pixel into account and is right for a picture at rest.
class PicturePyramid {
public:
    PicturePyramid() = default;
    explicit PicturePyramid(const Picture& picture);

    bool IsNull() const { return m_levels.empty(); }
    /// Paints a part (in the picture's own pixels, which may reach beyond it) into a rectangle of the
    /// surface, in pixels. What lies outside the picture keeps what the surface shows.
    void Paint(Surface& surface, const QRectF& target, const QRectF& part) const;

private:
    /// The smallest copy that still has as many pixels as are shown.
    const Picture& LevelFor(double pixelsShownForEach) const;

    /// The picture itself, then halves of it.
    std::vector<Picture> m_levels;
};
