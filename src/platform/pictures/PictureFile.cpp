// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureFile.h"

#include <algorithm>

namespace {

constexpr qint64 kStartBytes = qint64(256) << 10;

// In megabytes, of the kinds that are decoded from memory. Photographs of a hundred megapixels need half of it.
constexpr struct {
    PictureFormat format;
    int megabytes;
} kLargest[] = {{PictureFormat::Jpeg, 96}, {PictureFormat::WebP, 64},     {PictureFormat::Heif, 64},
                {PictureFormat::Gif, 32},  {PictureFormat::Metafile, 16}, {PictureFormat::Unknown, 16}};

} // namespace

bool PictureFile::Open(const QString& sPath, QString& sError) {
    if (!m_file.OpenForReading(sPath, sError)) return false;
    m_size = m_file.Size();
    m_start = m_file.Bytes(kStartBytes);
    m_at = m_start.size();
    // What lies ahead is kept by the file itself.
    return m_file.WasRead(sError) && open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

std::optional<QByteArray> PictureFile::Whole(QString& sError) {
    if (m_start.size() >= m_size) return m_start;
    for (const auto& [format, megabytes] : kLargest) {
        if (Format() != format || m_size <= qint64(megabytes) << 20) continue;
        sError =
            QStringLiteral("The picture file is larger than %1 MB, which is more than can be opened").arg(megabytes);
        return std::nullopt;
    }
    m_file.Seek(0);
    QByteArray bytes = m_file.Bytes(m_size);
    m_at = bytes.size();
    if (!m_file.WasRead(sError)) return std::nullopt;
    return bytes;
}

qint64 PictureFile::readData(char* data, qint64 most) {
    if (pos() != m_at) m_file.Seek(pos());
    const QByteArray bytes = m_file.Bytes(most);
    m_at = pos() + bytes.size();
    std::copy(bytes.begin(), bytes.end(), data);
    QString error;
    return m_file.WasRead(error) ? bytes.size() : -1;
}
