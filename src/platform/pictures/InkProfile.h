// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QImage;

/// Brings a picture of four inks to the colours of the screen by its own profile, which says what whoever separated it
/// meant by them. The toolkit's profiles are for light only. The image has 32 bits a pixel, that hold cyan, magenta,
/// yellow and black, inverted where 0 is most ink, and is changed in place. False, and it stays as it is, where the
/// profile is missing, damaged or for other colours.
bool ToScreenByInkProfile(QImage& image, bool inverted, const QByteArray& profile);
