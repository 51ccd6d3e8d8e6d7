// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

/// The whole board of the game in memory as a picture.
namespace basPosit {

/// lSize units square, each of dDevicePixelRatio pixels, which are what makes text and lines finer. Leaves
/// the view set to this picture, without offset.
Picture BoardPicture(int lSize, double dDevicePixelRatio = 1.0);

} // namespace basPosit
