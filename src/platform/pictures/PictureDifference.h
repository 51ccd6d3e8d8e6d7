// SPDX-License-Identifier: MIT
#pragma once

class Picture;

/// How far two pictures of the same size are apart on average: 0 where each pixel is the same, 255 between black and
/// white. 255 as well for two of different sizes or without pixels.
double PictureDifference(const Picture& one, const Picture& other);
