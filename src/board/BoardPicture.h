// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QSizeF>
#include <QString>

#include <memory>

class Recording;

/// The whole board of the game in memory as a picture.
namespace basPosit {

/// lSize units square, each of dDevicePixelRatio pixels, which are what makes text and lines finer. Leaves
/// the view set to this picture, without offset.
Picture BoardPicture(int lSize, double dDevicePixelRatio = 1.0);

/// Saves the board, as the ending of the name says: ".pdf" is a page and ".svg" a drawing of ten inches square, which
/// stay sharp at every size; anything else is a PNG file, lSize pixels square. Leaves the view set to it. False, and a
/// sentence in sError, when it can't be written.
bool SaveBoard(const QString& sPath, int lSize, const QString& sTitle, QString& sError);

/// The board for paper: so many inches square when it is printed at 600 of its units an inch, with photographs of
/// 300 dots an inch, and in place of what only a screen needs places that cards of so many inches lie on.
std::shared_ptr<const Recording> BoardOnPaper(double dblInches, QSizeF cardInches, bool bSavesInk);

} // namespace basPosit
