// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

class QMimeData;

/// The picture without a file that another program hands over by a drag or a copy; null where there is none.
Picture PictureIn(const QMimeData& data);
