// SPDX-License-Identifier: MIT
#include "pictures/ThumbnailFile.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace ThumbnailFile {
namespace {

constexpr int kDotsPerMetre = 3780; // 96 an inch
constexpr int kBitsPerPixel = 24;
constexpr qint64 kHeadSize = basBMP::FileHead::kSize + basBMP::InfoHead::kSize;

// Three times the true size of the pixels. Kept on purpose: thumbnails have always claimed it, their readers go by the
// dimensions, and it tells them from all other bitmaps.
quint32 ClaimedSize(QSize size) {
    constexpr int kTimes = 3;
    return quint32(kTimes * basBMP::RowBytes24(size.width()) * size.height());
}

QByteArray HeadsOf(QSize size) {
    QByteArray heads;
    const auto put = [&heads](quint32 value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            heads.append(char(value >> (8 * i)));
    };
    const basBMP::FileHead file = FileHeadOf(size);
    const basBMP::InfoHead info = InfoHeadOf(size);
    put(file.bfType, 2);
    for (const quint32 field :
         {file.bfSize, quint32(0), file.bfOffBits, info.biSize, quint32(info.biWidth), quint32(info.biHeight)})
        put(field, 4);
    put(info.biPlanes, 2);
    put(info.biBitCount, 2);
    for (const quint32 field : {info.biCompression, info.biSizeImage, quint32(info.biXPelsPerMeter),
                                quint32(info.biYPelsPerMeter), info.biClrUsed, info.biClrImportant})
        put(field, 4);
    return heads;
}

// What a crash leaves: no picture is as short. An empty one that came a moment ago may be a picture that is still being
// copied.
bool IsCutShort(const Files::Stamp& stamp) {
    constexpr qint64 kMoment = 60000;
    return stamp.size < kHeadSize &&
           (stamp.size > 0 || QDateTime::currentMSecsSinceEpoch() - stamp.modifiedMs > kMoment);
}

bool BeginsAsOurs(const QString& sPath, QSize size) {
    BinaryFile file;
    QString error;
    if (!file.OpenForReading(sPath, error)) return false;
    const QByteArray start = file.Bytes(kHeadSize);
    return file.WasRead(error) && start == HeadsOf(size);
}

struct Series {
    const char* sName;
    PictureOwner::Kind kind;
};
constexpr std::array<Series, 4> kSeries{{{"space", PictureOwner::Kind::Space},
                                         {"corner", PictureOwner::Kind::Corner},
                                         {"money", PictureOwner::Kind::Money},
                                         {"token", PictureOwner::Kind::Token}}};

// The piece whose thumbnail a name stands for; of no kind for other names.
PictureOwner::Kind KindByName(const QString& sPath) {
    const QString name = sPath.mid(std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\')) + 1).toLower();
    const QString ending = QStringLiteral(".bmp");
    if (!name.endsWith(ending)) return PictureOwner::Kind::None;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    for (const Series& series : kSeries) {
        const QString word = QString::fromLatin1(series.sName);
        if (!name.startsWith(word)) continue;
        const QString number = name.mid(word.size()).chopped(ending.size());
        if (!number.isEmpty() && std::all_of(number.begin(), number.end(), isDigit)) return series.kind;
    }
    return PictureOwner::Kind::None;
}

} // namespace

QSize SizeOf(PictureOwner::Kind kind) {
    switch (kind) {
        case PictureOwner::Kind::Token:
            return {200, 200};
        case PictureOwner::Kind::Money:
            return {164, 190};
        default:
            return {100, 100};
    }
}

basBMP::FileHead FileHeadOf(QSize size) {
    basBMP::FileHead head;
    head.bfType = basBMP::FileHead::kType;
    head.bfSize = kHeadSize + ClaimedSize(size);
    head.bfOffBits = kHeadSize;
    return head;
}

basBMP::InfoHead InfoHeadOf(QSize size) {
    basBMP::InfoHead head;
    head.biSize = basBMP::InfoHead::kSize;
    head.biWidth = size.width();
    head.biHeight = size.height();
    head.biPlanes = 1;
    head.biBitCount = kBitsPerPixel;
    head.biSizeImage = ClaimedSize(size);
    head.biXPelsPerMeter = kDotsPerMetre;
    head.biYPelsPerMeter = kDotsPerMetre;
    return head;
}

bool IsOfTheUser(const QString& sPath, QSize size) {
    const Files::Stamp stamp = Files::StampOf(sPath);
    if (stamp == Files::Stamp() || IsCutShort(stamp)) return false;
    const qint64 wholeLength = kHeadSize + basBMP::RowBytes24(size.width()) * size.height();
    return stamp.size > wholeLength || !BeginsAsOurs(sPath, size);
}

bool Remove(const QString& sPath, QSize size, QString& sError) {
    if (!IsOfTheUser(sPath, size)) return Files::Remove(sPath, sError);
    sError = QStringLiteral("A file that Tavlora didn't make has this name");
    return false;
}

bool HasNameOfOne(const QString& sPath) { return KindByName(sPath) != PictureOwner::Kind::None; }

bool IsThumbnail(const QString& sPath) {
    const PictureOwner::Kind kind = KindByName(sPath);
    return kind != PictureOwner::Kind::None && !IsOfTheUser(sPath, SizeOf(kind));
}

} // namespace ThumbnailFile
