// SPDX-License-Identifier: MIT
#pragma once

class Picture;

/// What shows through a mask: opaque where the mask, stretched over the picture, is white, and transparent
/// where it is black. Made here and not by raster operations, which no printer knows.
Picture ThroughMask(const Picture& picture, const Picture& mask);

/// The picture with its white made transparent, for line drawings on coloured paper.
Picture WithoutWhite(const Picture& picture);
