// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The bytes of a PNG file, the same for the same picture. Nothing, and a sentence in sError, when there is too little
/// memory.
std::optional<QByteArray> EncodePicture(const Picture& picture, QString& sError);

/// Writes a picture as a PNG file. The file that stood there stays whole unless the new one is complete;
/// false, and a sentence in sError, when it isn't.
bool SavePicture(const Picture& picture, const QString& sPath, QString& sError);
