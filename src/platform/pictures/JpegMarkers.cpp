// SPDX-License-Identifier: MIT
#include "platform/pictures/JpegMarkers.h"

#include "platform/pictures/ByteReader.h"
#include "platform/pictures/CameraTags.h"

#include <QImage>
#include <QTransform>

#include <map>
#include <optional>

namespace {

constexpr QByteArrayView kExif("Exif\0\0", 6);
constexpr QByteArrayView kProfile("ICC_PROFILE\0", 12);
constexpr QByteArrayView kAdobe("Adobe", 5);
// A long profile comes in numbered parts, in any order.
class ProfileParts {
public:
    void Add(QByteArrayView segment) {
        if (segment.size() < 2) return;
        m_expected = quint8(segment[1]);
        m_parts[quint8(segment[0])] = segment.sliced(2);
    }
    QByteArray Whole() const {
        QByteArray whole;
        int next = 1;
        for (const auto& [number, part] : m_parts) {
            if (number != next++) return {};
            whole.append(part.data(), part.size());
        }
        return next - 1 == m_expected ? whole : QByteArray();
    }

private:
    std::map<int, QByteArrayView> m_parts;
    int m_expected = 0;
};

} // namespace

namespace {

// Progressive frames of all kinds.
bool IsProgressiveFrame(quint32 marker) { return (marker & 0xF3) == 0xC2; }

// Others, but for three markers among them that are no frames.
bool IsPlainFrame(quint32 marker) {
    return (marker & 0xF0) == 0xC0 && !IsProgressiveFrame(marker) && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

} // namespace

JpegMarkers ReadJpegMarkers(QByteArrayView bytes) {
    constexpr quint32 kFirstApplication = 0xE0;
    constexpr quint32 kStartOfScan = 0xDA;
    JpegMarkers markers;
    ProfileParts profile;
    const ByteReader reader(bytes);
    // Of the frame, to be compared with those of its first pass.
    constexpr qsizetype kComponentsAt = 5;
    quint32 components = 0;
    qint64 at = 2;
    while (true) {
        const std::optional<quint32> lead = reader.Number(at, 1);
        const std::optional<quint32> marker = reader.Number(at + 1, 1);
        if (!lead || !marker || *lead != 0xFF) break;
        if (*marker == kStartOfScan) {
            markers.inPasses = markers.inPasses || reader.Number(at + 4, 1).value_or(0) < components;
            break;
        }
        if (*marker == 0xFF) { // fill byte
            ++at;
            continue;
        }
        const std::optional<quint32> length = reader.Number(at + 2, 2);
        if (!length || *length < 2 || at + 2 + *length > bytes.size()) break;
        const QByteArrayView segment = bytes.sliced(at + 4, *length - 2);
        if (IsProgressiveFrame(*marker)) {
            markers.inPasses = true;
        } else if (IsPlainFrame(*marker)) {
            components = segment.size() > kComponentsAt ? quint8(segment[kComponentsAt]) : 0;
        } else if (*marker == kFirstApplication + 1 && segment.startsWith(kExif)) {
            markers.orientation = ReadCameraTags(segment.sliced(kExif.size())).orientation;
        } else if (*marker == kFirstApplication + 2 && segment.startsWith(kProfile)) {
            profile.Add(segment.sliced(kProfile.size()));
        } else if (*marker == kFirstApplication + 14 && segment.startsWith(kAdobe)) {
            markers.isAdobe = true;
        }
        at += 2 + qint64(*length);
    }
    markers.colorProfile = profile.Whole();
    return markers;
}

QImage Upright(const QImage& image, int orientation) {
    const auto turned = [&image](int degrees) { return image.transformed(QTransform().rotate(degrees)); };
    switch (orientation) {
        case 2:
            return image.mirrored(true, false);
        case 3:
            return image.mirrored(true, true);
        case 4:
            return image.mirrored(false, true);
        case 5:
            return turned(90).mirrored(true, false);
        case 6:
            return turned(90);
        case 7:
            return turned(90).mirrored(false, true);
        case 8:
            return turned(270);
        default:
            return image;
    }
}
