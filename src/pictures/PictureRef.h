// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Which picture, and which part of it: the file, the step of the zoom, and the place of the picture that comes to
/// the middle. A plain value.
struct PictureRef {
    /// Complete path; empty for none.
    QString sPath;
    /// Step z magnifies 2^(z/10) times; 0 is the whole picture.
    qint16 iZoom = 0;
    /// In pixels of the picture. Both 0: nobody has centred it yet.
    qint16 iXCenter = 0;
    qint16 iYCenter = 0;

    friend bool operator==(const PictureRef&, const PictureRef&) = default;

    bool IsEmpty() const { return sPath.isEmpty(); }
    /// Told by the ending of the name.
    bool IsMetafile() const { return sPath.endsWith(QStringLiteral(".wmf"), Qt::CaseInsensitive); }
    bool IsCentered() const { return iXCenter != 0 || iYCenter != 0; }
};
