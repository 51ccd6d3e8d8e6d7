// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

class QImage;

/// What a JPEG file's segments say beside the pixels.
struct JpegMarkers {
    /// 1 to 8 as the camera wrote it; 1 where it wrote none or nonsense.
    int orientation = 1;
    /// An Adobe program wrote it: four inks are then stored inverted.
    bool isAdobe = false;
    /// The pixels come in several passes, so that a decoder has to hold all of them.
    bool inPasses = false;
    /// The colour profile; empty when there is none or a part of it is missing.
    QByteArray colorProfile;
};

/// Reads up to the first scan; stops politely at anything malformed.
JpegMarkers ReadJpegMarkers(QByteArrayView bytes);

/// The picture turned and mirrored so that it stands upright.
QImage Upright(const QImage& image, int orientation);
