// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSize>
#include <QString>

/// Kinds of picture files that are known, told apart by their first bytes and never by their names.
enum class PictureFormat { Unknown, Bmp, Jpeg, Gif, Png, WebP, Tiff, Heif, Metafile };

PictureFormat PictureFormatOf(QByteArrayView bytes);

/// No picture may need more memory than this when every pixel that is decoded takes 32 bits: what claims more is a
/// trap, not a photograph (those of 50 megapixels need 200 MB).
constexpr qint64 kMaxPictureBytes = qint64(208) << 20;

/// False for sizes that are empty or beyond the limit.
bool IsSizeAllowed(QSize size);
/// A plain JPEG may claim four times as many: it is decoded to half its size then.
bool IsJpegSizeAllowed(QSize size);

/// Says so of a picture that is larger, in a sentence without its full stop.
QString TooLargeToOpen(QSize size);

/// False when the file is shorter than its bitmap head says it must be, or when the head's size is not
/// allowed. The declared size of the file plays no part: it is often wrong, and thumbnails of this program
/// claim three times their length on purpose. Takes the bytes that the file begins with, and how many it has.
bool IsBmpWhole(QByteArrayView start, qint64 size);

/// False when the file ends before the data of its first frame do; the decoder would show what there is.
bool IsGifWhole(QByteArrayView bytes);
