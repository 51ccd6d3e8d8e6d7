// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include <optional>

/// What a picture's file says of itself ahead of its pixels.
struct PictureHead {
    /// Pixels across and down, as it stands upright.
    QSize size;
    /// Lines and areas instead of pixels: as sharp as it is wanted.
    bool bDrawing = false;
};

/// Reads no more of the file than that takes. Nothing, and a sentence in sError, for what can't be a picture; a file
/// that is damaged further on is found out only by LoadPicture.
std::optional<PictureHead> ReadPictureHead(const QString& sPath, QString& sError);
