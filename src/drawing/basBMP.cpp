// SPDX-License-Identifier: MIT
#include "drawing/basBMP.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureFormat.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"
#include "services/ProgramSettings.h"
#include "services/UserFiles.h"

#include <QHash>

#include <algorithm>
#include <optional>

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

// A picture of another kind, or one that is still being copied.
bool MayBeAPicture(const QString& sFile) {
    BinaryFile file;
    QString error;
    constexpr int kEnoughToTell = 16;
    if (!file.OpenForReading(sFile, error)) return true;
    const QByteArray start = file.Bytes(kEnoughToTell);
    return start.isEmpty() || PictureFormatOf(start) != PictureFormat::Unknown;
}

void DeleteFalseBitmap(BinaryFile& file, const QString& sFile) {
    file.Close();
    if (MayBeAPicture(sFile)) return;
    const QString sText = QStringLiteral("File '") + sFile + QStringLiteral("' is not a valid '.BMP' file. ");
    if (Settings().bKeepUserFiles) {
        basMsgQueue::MsgQueue_Post(sText, vbQuestion);
        return;
    }
    const Files::Stamp stamp = Files::StampOf(Files::InDiskSpelling(sFile));
    basMsgQueue::MsgQueue_Post(sText + QStringLiteral("Click OK to delete this file. "), vbQuestion, [sFile, stamp] {
        // Somebody may have put a picture in its place while the box was waiting.
        if (Files::StampOf(Files::InDiskSpelling(sFile)) == stamp) UserFiles::ThrowAway(sFile);
    });
}

// Whether it is no answer to any question about the file.
void RaiseIfUnread(const BinaryFile& file, const QString& sFile) {
    QString error;
    if (file.WasRead(error)) return;
    ErrRaise(ErrNumber::kFileAccess,
             QStringLiteral("The file named '") + sFile + QStringLiteral("' could not be read: ") + error);
}

FileHead HeadOf(BinaryFile& file) {
    FileHead head;
    file.Seek(0);
    head.bfType = file.U16();
    head.bfSize = file.U32();
    head.bfReserved1 = file.U16();
    head.bfReserved2 = file.U16();
    head.bfOffBits = file.U32();
    return head;
}

InfoHead InfoOf(BinaryFile& file) {
    InfoHead head;
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
    return head;
}

// 0, or why this module can't work with the picture.
qint16 FlawOf(const InfoHead& head) {
    constexpr std::array<quint16, 5> kBitCounts{1, 4, 8, 24, 32};
    if (head.biPlanes != 1) return kBadPlanes;
    if (std::find(kBitCounts.begin(), kBitCounts.end(), head.biBitCount) == kBitCounts.end()) return kBadBitCount;
    return head.biCompression != 0 ? kIsCompressed : qint16(0);
}

// What this module can't work with may be a good picture for all others, of which there is nothing to tell.
bool IsShownByOthers(const QString& sFile) {
    constexpr int kSmall = 1;
    QString error;
    return !LoadPicture(sFile, error, kSmall).IsNull();
}

// Nothing where the disk can't be read.
std::optional<bool> FindMonochrome(const QString& sFile) {
    BinaryFile file;
    QString error;
    FileHead head;
    BitmapInfo info;
    if (!file.OpenForReading(sFile, error)) return std::nullopt;
    const bool plain = HeadOf(file).bfType == FileHead::kType && FlawOf(InfoOf(file)) == 0;
    RaiseIfUnread(file, sFile);
    if (!plain && IsShownByOthers(sFile)) return false;
    if (ReadFileHead(file, sFile, head) != 0 || ReadInfoHead(file, sFile, info) != 0) return false;
    return info.bmiHeader.biBitCount == kMonochrome;
}

// The pixels are taken to follow the table directly, and a file whose rows run top down has none to copy:
// both are kept on purpose, as callers then paint the file's own picture.
void CopyRows(BinaryFile& from, BinaryFile& to, const InfoHead& head) {
    const qint64 rowBytes = RowBytes1(head.biWidth);
    // Without this a head that claims rows of nothing, two thousand million of them, is copied for minutes.
    if (rowBytes <= 0) return;
    QString error;
    for (qint32 lRow = 0; lRow < head.biHeight && !from.AtEnd() && from.WasRead(error); ++lRow)
        to.PutBytes(from.Bytes(rowBytes));
}

} // namespace

State& Module() {
    static State state;
    return state;
}

qint16 ReadFileHead(BinaryFile& file, const QString& sFile, FileHead& head) try {
    head = HeadOf(file);
    RaiseIfUnread(file, sFile);
    if (head.bfType == FileHead::kType) return 0;
    DeleteFalseBitmap(file, sFile);
    return kNoBitmap;
} catch (...) {
    ErrTail("basBMP!", "ReadFileHead", file, sFile, head);
}

qint16 ReadInfoHead(BinaryFile& file, const QString& sFile, BitmapInfo& info) try {
    info.bmiHeader = InfoOf(file);
    RaiseIfUnread(file, sFile);
    const InfoHead& head = info.bmiHeader;
    Module().m_lImageWidth = head.biWidth;
    Module().m_lImageHeight = head.biHeight;
    const qint16 flaw = FlawOf(head);
    if (flaw == 0) return 0;
    QString sReason = QStringLiteral("Compression is turned on.");
    if (flaw == kBadPlanes) sReason = QStringLiteral("Planes not set to 1");
    if (flaw == kBadBitCount) sReason = QStringLiteral("Pits per pixel = %1. ").arg(head.biBitCount);
    basMsgQueue::MsgQueue_Post(QStringLiteral("Sorry, but Tavlora is unable to interpret the file named '") + sFile +
                                   QStringLiteral("'. ") + sReason,
                               vbExclamation);
    return flaw;
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
    try {
        const std::optional<bool> monochrome = FindMonochrome(sFile);
        if (monochrome) Findings().insert(sFile, {stamp, *monochrome});
        return monochrome.value_or(false);
    } catch (const TavloraError& error) {
        if (error.Number() != ErrNumber::kFileAccess) throw;
        // Whoever loads the picture tells it; the file says nothing about its colours, and is asked again.
        basErrLog::ErrLogToFile(basErrLog::ErrDismiss(error.Description()), true);
        return false;
    }
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
    RaiseIfUnread(from, sFile);
    if (!to.WasWritten(error)) ErrRaiseRefused(sNewFile, error);
    return true;
} catch (...) {
    ErrTail("basBMP!", "ChangeMonoBmpBackColor", sFile, sNewFile, lColor);
}

void BMP_SetHDC(DeviceContext* hDC) { Module().m_hDC = hDC; }
void BMP_SetBackColor(Color lColor) { Module().m_lBackColor = lColor; }
void BMP_SetMagicColor(Color lColor) { Module().m_lMagicColor = lColor; }

} // namespace basBMP
