// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

class QListWidget;
class QListWidgetItem;
class QString;

/// Adds an entry to a list: a text with a small picture ahead of it, side pixels square. Without a picture its place
/// shows an empty frame.
QListWidgetItem* AddPictureItem(QListWidget& list, const Picture& picture, int side, const QString& sText);
