// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QString>

/// The whole board of the game in memory as a picture.
namespace basPosit {

/// lSize units square, each of dDevicePixelRatio pixels, which are what makes text and lines finer. Leaves
/// the view set to this picture, without offset.
Picture BoardPicture(int lSize, double dDevicePixelRatio = 1.0);

/// Saves the board, as the ending of the name says: ".pdf" is a page of ten inches square that stays sharp at every
/// size; anything else is a PNG file, lSize pixels square. Leaves the view set to it.
/// False, and a sentence in sError, when it can't be written.
bool SaveBoard(const QString& sPath, int lSize, const QString& sTitle, QString& sError);

} // namespace basPosit
