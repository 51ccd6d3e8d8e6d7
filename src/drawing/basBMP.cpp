// SPDX-License-Identifier: MIT
#include "drawing/basBMP.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"

#include <QHash>

#include <algorithm>

namespace basBMP {
namespace {

constexpr int kMaxTableBits = 8;
constexpr quint16 kMonochrome = 1;

// What IsMonochromeBMP found, by path. It is asked at every paint, and a file that can't be read would
// otherwise be told each time.
struct Finding {
    Files::Stamp stamp;
    bool monochrome = false;
};

QHash<QString, Finding>& Findings() {
    static QHash<QString, Finding> findings;
    return findings;
}

// A head that claims more entries than a table can have is taken for a full table.
int TableSize(const BitmapInfo& info) {
    const quint32 lUsed = info.bmiHeader.biClrUsed;
    const quint32 lCount = lUsed != 0 ? lUsed : 1U << std::min<int>(info.bmiHeader.biBitCount, kMaxTableBits);
    return int(std::min<quint32>(lCount, quint32(info.bmiColors.size())));
}

// Byte order of a colour value: red first.
RgbQuad InValueOrder(Color color) { return {quint8(color.Red()), quint8(color.Green()), quint8(color.Blue()), 0}; }
RgbQuad InFileOrder(Color color) { return InValueOrder(color.Reversed()); }

void DeleteFalseBitmap(BinaryFile& file, const QString& sFile) {
    basMsgQueue::MsgQueue_Post(QStringLiteral("File '") + sFile + QStringLiteral("' is not a valid '.BMP' file. ") +
                                   QStringLiteral("Click OK to delete this file. "),
                               vbQuestion);
    file.Close();
    QString error;
    if (Files::Exists(sFile) && !Files::MoveToTrash(sFile, error)) basErrLog::ErrLogToFile(error, true);
}

bool FindMonochrome(const QString& sFile) {
    BinaryFile file;
    QString error;
    FileHead head;
    BitmapInfo info;
    if (!file.OpenForReading(sFile, error)) return false;
    if (ReadFileHead(file, sFile, head) != 0 || ReadInfoHead(file, sFile, info) != 0) return false;
    return info.bmiHeader.biBitCount == kMonochrome;
}

// The pixels are taken to follow the table directly, and a file whose rows run top down has none to copy:
// both are kept on purpose, as callers then paint the file's own picture.
void CopyRows(BinaryFile& from, BinaryFile& to, const InfoHead& head) {
    const qint64 rowBytes = RowBytes1(head.biWidth);
    // Without this a head that claims rows of nothing, two thousand million of them, is copied for minutes.
    if (rowBytes <= 0) return;
    for (qint32 lRow = 0; lRow < head.biHeight && !from.AtEnd(); ++lRow)
        to.PutBytes(from.Bytes(rowBytes));
}

} // namespace

State& Module() {
    static State state;
    return state;
}

qint16 ReadFileHead(BinaryFile& file, const QString& sFile, FileHead& head) try {
    file.Seek(0);
    head.bfType = file.U16();
    head.bfSize = file.U32();
    head.bfReserved1 = file.U16();
    head.bfReserved2 = file.U16();
    head.bfOffBits = file.U32();
    if (head.bfType == FileHead::kType) return 0;
    DeleteFalseBitmap(file, sFile);
    return kNoBitmap;
} catch (...) {
    ErrTail("basBMP!", "ReadFileHead", file, sFile, head);
}

qint16 ReadInfoHead(BinaryFile& file, const QString& sFile, BitmapInfo& info) try {
    InfoHead& head = info.bmiHeader;
    file.Seek(FileHead::kSize);
    head.biSize = file.U32();
    head.biWidth = file.S32();
    head.biHeight = file.S32();
    head.biPlanes = file.U16();
    head.biBitCount = file.U16();
    head.biCompression = file.U32();
    head.biSizeImage = file.U32();
    head.biXPelsPerMeter = file.S32();
    head.biYPelsPerMeter = file.S32();
    head.biClrUsed = file.U32();
    head.biClrImportant = file.U32();
    Module().m_lImageWidth = head.biWidth;
    Module().m_lImageHeight = head.biHeight;

    const auto refuse = [&sFile](const QString& sReason, qint16 iResult) {
        const QString sText = QStringLiteral("Sorry, but Tavlora is unable to interpret the file named '") + sFile +
                              QStringLiteral("'. ");
        basMsgQueue::MsgQueue_Post(sText + sReason, vbExclamation);
        return iResult;
    };
    if (head.biPlanes != 1) return refuse(QStringLiteral("Planes not set to 1"), kBadPlanes);
    constexpr std::array<quint16, 5> kBitCounts{1, 4, 8, 24, 32};
    if (std::find(kBitCounts.begin(), kBitCounts.end(), head.biBitCount) == kBitCounts.end())
        return refuse(QStringLiteral("Pits per pixel = %1. ").arg(head.biBitCount), kBadBitCount);
    if (head.biCompression != 0) return refuse(QStringLiteral("Compression is turned on."), kIsCompressed);
    return 0;
} catch (...) {
    ErrTail("basBMP!", "ReadInfoHead", file, sFile, info);
}

qint16 ReadColorTable(BinaryFile& file, const QString& sFile, BitmapInfo& info, Color lBlack, bool bFlag) try {
    if (info.bmiHeader.biBitCount > kMaxTableBits) return 0;
    for (int i = 0; i < TableSize(info); ++i) {
        const quint32 lEntry = file.U32();
        info.bmiColors[size_t(i)] =
            lEntry == 0 ? InFileOrder(lBlack) : RgbQuad{quint8(lEntry), quint8(lEntry >> 8), quint8(lEntry >> 16), 0};
    }
    return 0;
} catch (...) {
    ErrTail("basBMP!", "ReadColorTable", file, sFile, info, lBlack, bFlag);
}

qint16 WriteFileHead(BinaryFile& file, const FileHead& head) try {
    file.Seek(0);
    file.PutU16(head.bfType);
    file.PutU32(head.bfSize);
    file.PutU16(head.bfReserved1);
    file.PutU16(head.bfReserved2);
    file.PutU32(head.bfOffBits);
    return 0;
} catch (...) {
    ErrTail("basBMP!", "WriteFileHead", file, head);
}

qint16 WriteInfoHead(BinaryFile& file, const BitmapInfo& info) try {
    const InfoHead& head = info.bmiHeader;
    file.Seek(FileHead::kSize);
    file.PutU32(head.biSize);
    file.PutU32(quint32(head.biWidth));
    file.PutU32(quint32(head.biHeight));
    file.PutU16(head.biPlanes);
    file.PutU16(head.biBitCount);
    file.PutU32(head.biCompression);
    file.PutU32(head.biSizeImage);
    file.PutU32(quint32(head.biXPelsPerMeter));
    file.PutU32(quint32(head.biYPelsPerMeter));
    file.PutU32(head.biClrUsed);
    file.PutU32(head.biClrImportant);
    return 0;
} catch (...) {
    ErrTail("basBMP!", "WriteInfoHead", file, info);
}

qint16 WriteColorTable(BinaryFile& file, const BitmapInfo& info, Color lColor) try {
    for (int i = 0; i < TableSize(info); ++i) {
        const RgbQuad& entry = info.bmiColors[size_t(i)];
        file.PutU32(entry[0] | quint32(entry[1]) << 8 | quint32(entry[2]) << 16);
    }
    return 0;
} catch (...) {
    ErrTail("basBMP!", "WriteColorTable", file, info, lColor);
}

void PackRow24(std::span<const QRgb> pixels, QByteArray& row) {
    char* out = row.data();
    for (const QRgb color : pixels) {
        *out++ = char(qBlue(color));
        *out++ = char(qGreen(color));
        *out++ = char(qRed(color));
    }
}

bool IsMonochromeBMP(const QString& sFile) try {
    if (!sFile.endsWith(QStringLiteral(".bmp"), Qt::CaseInsensitive)) return false;
    const Files::Stamp stamp = Files::StampOf(Files::InDiskSpelling(sFile));
    const auto found = Findings().constFind(sFile);
    if (found != Findings().constEnd() && found->stamp == stamp) return found->monochrome;
    const bool monochrome = FindMonochrome(sFile);
    Findings().insert(sFile, {stamp, monochrome});
    return monochrome;
} catch (...) {
    ErrTail("basBMP!", "IsMonochromeBMP", sFile);
}

bool IsWMF(const QString& sFile) { return sFile.endsWith(QStringLiteral(".wmf"), Qt::CaseInsensitive); }

bool ChangeMonoBmpBackColor(const QString& sFile, const QString& sNewFile, Color lColor) try {
    BinaryFile from;
    FileHead head;
    BitmapInfo info;
    QString error;
    if (!from.OpenForReading(sFile, error)) return false;
    if (ReadFileHead(from, sFile, head) != 0 || ReadInfoHead(from, sFile, info) != 0) return false;
    if (ReadColorTable(from, sFile, info, Color::Black(), false) != 0) return false;
    if (head.bfType != FileHead::kType || info.bmiHeader.biBitCount != kMonochrome) return false;
    // Red and blue change places here: kept on purpose, games and eyes are used to the colours it gives.
    info.bmiColors[1] = InValueOrder(lColor);

    BinaryFile to;
    if (!to.OpenForWriting(sNewFile, error)) ErrRaiseRefused(sNewFile, error);
    WriteFileHead(to, head);
    WriteInfoHead(to, info);
    WriteColorTable(to, info, Color::Black());
    CopyRows(from, to, info.bmiHeader);
    if (!to.WasWritten(error)) ErrRaiseRefused(sNewFile, error);
    return true;
} catch (...) {
    ErrTail("basBMP!", "ChangeMonoBmpBackColor", sFile, sNewFile, lColor);
}

void BMP_SetHDC(DeviceContext* hDC) { Module().m_hDC = hDC; }
void BMP_SetBackColor(Color lColor) { Module().m_lBackColor = lColor; }
void BMP_SetMagicColor(Color lColor) { Module().m_lMagicColor = lColor; }

} // namespace basBMP
