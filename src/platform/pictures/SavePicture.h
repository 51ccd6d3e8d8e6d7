// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QString>

/// Writes a picture as a PNG file. The file that stood there stays whole unless the new one is complete;
/// false, and a sentence in sError, when it isn't.
bool SavePicture(const Picture& picture, const QString& sPath, QString& sError);
