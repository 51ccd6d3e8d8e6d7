// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QByteArray>
#include <QByteArrayView>

class PictureFile;

/// Decodes picture files. All of it may run on any thread. A null picture comes with a sentence
/// in sError; longerSideWanted as in LoadPicture.
namespace PictureDecoder {

/// Any known kind. Gives 32-bit pixels, with transparency (premultiplied) or without. Bitmaps, PNG and TIFF are read
/// where they lie.
Picture Decode(PictureFile& file, int longerSideWanted, QString& sError);
Picture Decode(const QByteArray& bytes, int longerSideWanted, QString& sError);

Picture DecodeJpeg(const QByteArray& bytes, int longerSideWanted, QString& sError);
Picture DecodeHeif(QByteArrayView bytes, QString& sError);

/// By which power of two (1, 2, 4 or 8) a side may be divided while it keeps the pixels wanted.
int ReductionFor(int longerSide, int longerSideWanted);

/// The least and the most that may be wanted of a side so long for the same power of two to come out.
struct SizesAlike {
    int iFrom;
    int iTo;
};
SizesAlike SizesOfReduction(int longerSide, int iReduction);

/// The colours as this program means them, whatever profile the camera used.
QImage InScreenColors(QImage image, const QByteArray& colorProfile);

} // namespace PictureDecoder
