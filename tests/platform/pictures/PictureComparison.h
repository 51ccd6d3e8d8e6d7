// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// Pictures compared by what must be seen: both are blurred by the mean of 3 x 3 pixels first, so that an
/// edge that falls half a pixel beside counts for nothing.
namespace PictureComparison {

/// The mean of each pixel and its neighbours, by channel.
QImage Blurred(const QImage& image);

/// Per cent of the pixels that differ by more than the tolerance in any channel after the blur.
double DifferingPercent(const QImage& a, const QImage& b, int tolerance = 48);

} // namespace PictureComparison
