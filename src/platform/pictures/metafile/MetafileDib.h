// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QImage>

class MetafileBudget;
class MetafilePalette;

/// Pictures as they stand inside metafiles, decoded to premultiplied 32-bit pictures, upright. Pixels that
/// the file doesn't hold (cut short, or skipped by a run) stay transparent. A null picture for what can't be
/// read or is larger than the budget allows.
namespace MetafileDib {

/// Pixels of the largest picture that is decoded.
constexpr qint64 kMostPixels = 20'000'000;

/// A device-independent bitmap without its file head: 1, 4, 8, 16, 24 or 32 bits, bottom-up or top-down,
/// uncompressed, run-length or with bit fields, with either head. With colourUse 1 the colour table holds
/// indices into the palette.
QImage Decode(QByteArrayView dib, quint16 colourUse, const MetafilePalette& palette, MetafileBudget& budget);

/// A bitmap of the device it was recorded on: 1, 16, 24 or 32 bits, top-down, rows of whole words. Of one
/// bit, 0 is the text colour and 1 the background colour.
QImage DecodeDeviceBitmap(QByteArrayView bitmap, QRgb textColour, QRgb bkColour, MetafileBudget& budget);

/// The same as kept by a pattern brush: the head is followed by 22 bytes without meaning.
QImage DecodePattern(QByteArrayView bitmap, QRgb textColour, QRgb bkColour, MetafileBudget& budget);

} // namespace MetafileDib
