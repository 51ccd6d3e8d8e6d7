// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QByteArray>
#include <QRgb>
#include <QString>

#include <array>
#include <span>

class BinaryFile;
class DeviceContext;

/// The program's own small reader and writer of bitmap files, for what the picture loader doesn't tell: what
/// a bitmap is without decoding it, a copy of a one-bit file in another colour, and the headers of files
/// that are written row by row. All numbers in the files are little-endian. The metafile player stands in
/// basBMP_metafile.h.
namespace basBMP {

/// First record of a bitmap file: 14 bytes.
struct FileHead {
    static constexpr quint16 kType = 0x4D42; ///< The letters BM.
    static constexpr int kSize = 14;

    quint16 bfType = 0;
    quint32 bfSize = 0;
    quint16 bfReserved1 = 0;
    quint16 bfReserved2 = 0;
    quint32 bfOffBits = 0;
};

/// Second record: 40 bytes.
struct InfoHead {
    static constexpr int kSize = 40;

    quint32 biSize = 0;
    qint32 biWidth = 0;
    qint32 biHeight = 0; ///< Negative for rows that run from the top down.
    quint16 biPlanes = 0;
    quint16 biBitCount = 0;
    quint32 biCompression = 0;
    quint32 biSizeImage = 0;
    qint32 biXPelsPerMeter = 0;
    qint32 biYPelsPerMeter = 0;
    quint32 biClrUsed = 0;
    quint32 biClrImportant = 0;
};

/// The bytes of a colour entry in the order of the file: blue, green, red, zero.
using RgbQuad = std::array<quint8, 4>;

struct BitmapInfo {
    InfoHead bmiHeader;
    std::array<RgbQuad, 256> bmiColors{};
};

constexpr qint16 kNoBitmap = -2;
constexpr qint16 kBadPlanes = -3;
constexpr qint16 kBadBitCount = -4;
constexpr qint16 kIsCompressed = -5;

/// Bytes of a row of a 1- or 24-bit picture, padded to a multiple of four.
constexpr qint64 RowBytes1(qint64 lWidth) { return ((lWidth + 7) / 8 + 3) / 4 * 4; }
constexpr qint64 RowBytes24(qint64 lWidth) { return (lWidth * 3 + 3) / 4 * 4; }

/// 0, or kNoBitmap for a file that isn't a bitmap: it is closed, and after a box thrown away, unless it is empty or a
/// picture of another kind. Raises when the disk can't be read.
qint16 ReadFileHead(BinaryFile& file, const QString& sFile, FileHead& head);
/// 0, or why this module can't work with the file, after a box. The file stays open.
qint16 ReadInfoHead(BinaryFile& file, const QString& sFile, BitmapInfo& info);
/// From the file's position on; nothing for more than 8 bits. An entry that is 0 becomes lBlack with its
/// bytes exchanged. bFlag has no effect. Always 0.
qint16 ReadColorTable(BinaryFile& file, const QString& sFile, BitmapInfo& info, Color lBlack, bool bFlag);
// These give 0. Write errors show in the file's WasWritten.
qint16 WriteFileHead(BinaryFile& file, const FileHead& head);
qint16 WriteInfoHead(BinaryFile& file, const BitmapInfo& info);
/// lColor is ignored.
qint16 WriteColorTable(BinaryFile& file, const BitmapInfo& info, Color lColor);

/// Blue, green and red of each pixel, in a row whose padding stands already.
void PackRow24(std::span<const QRgb> pixels, QByteArray& row);

/// True for a .bmp file of one bit a pixel. What no loader shows and only claims to be a bitmap is told and thrown
/// away; what else can't be understood is told once for each state of the file. A disk that can't be read gives False.
bool IsMonochromeBMP(const QString& sFile);

/// True when the name ends in .wmf.
bool IsWMF(const QString& sFile);

/// Copies a one-bit bitmap with its second colour replaced. False, without a copy, for any other file.
bool ChangeMonoBmpBackColor(const QString& sFile, const QString& sNewFile, Color lColor);

// Values that are kept and read by nobody; windows set them before they draw.
void BMP_SetHDC(DeviceContext* hDC);
void BMP_SetBackColor(Color lColor);
void BMP_SetMagicColor(Color lColor);

/// What the module keeps.
struct State {
    DeviceContext* m_hDC = nullptr;
    Color m_lBackColor;
    Color m_lMagicColor;
    /// Size of the picture looked at last, by ReadInfoHead or LoadTheMetafile.
    qint32 m_lImageWidth = 0;
    qint32 m_lImageHeight = 0;
};
State& Module();

} // namespace basBMP
