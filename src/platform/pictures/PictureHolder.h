// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"
#include "platform/paint/Units.h"

/// A scratch holder that takes the size of the picture put into it.
class PictureHolder {
public:
    ::Picture Picture;
    /// Width and height of the held picture: in twips or in pixels, as the scale mode says.
    double Width(ScaleModeKind mode) const { return Picture.Width() * UnitsPerPixel(mode); }
    double Height(ScaleModeKind mode) const { return Picture.Height() * UnitsPerPixel(mode); }

private:
    static double UnitsPerPixel(ScaleModeKind mode) {
        return mode == ScaleModeKind::Twips ? double(kTwipsPerPixel) : 1.0;
    }
};
