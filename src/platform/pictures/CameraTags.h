// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

class QIODevice;

/// What a camera notes in a picture's file beside the pixels.
struct CameraTags {
    /// How the picture has to be turned, 1 to 8; 1 where nothing, or nonsense, is said.
    int orientation = 1;
    /// When it was taken by the camera's clock, in milliseconds since 1970; -1 where nothing is said.
    qint64 takenMs = -1;
};

/// Of the notes themselves, without what leads to them in a file.
CameraTags ReadCameraTags(QByteArrayView notes);

/// Of a PNG or WebP file, whose decoders don't look at them. 1, -1 for any other.
CameraTags ReadCameraTagsOfChunks(QIODevice& file);

/// When a photo was taken, in milliseconds since 1970: by the camera's notes where its file begins with them, else by
/// the date of the file.
qint64 DateTaken(const QString& sPath);
