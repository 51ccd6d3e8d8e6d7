// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureRef.h"

#include <QString>

class C_Image;

// Which part of a picture shows at first, and which parts last.

/// The step of the zoom at which a picture, centred on its middle, leaves no bar in a square; 0 for a drawing, a square
/// one, or what can't be read.
qint16 ZoomThatFills(const QString& sFile);

/// True where the old file is gone and the new one has its name: the same photo, chosen again where it lies now.
bool IsSameElsewhere(const QString& sOld, const QString& sNew);

/// What a picture shows when it is laid onto a piece: the part that is there where it is the same picture, else as much
/// as leaves no bar.
PictureRef PartAtFirst(const PictureRef& before, const QString& sFile);

/// The image shows this part of whatever picture it has.
void ShowPart(C_Image& image, const PictureRef& part);
