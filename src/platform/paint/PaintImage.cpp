// SPDX-License-Identifier: MIT
#include "platform/paint/PaintImage.h"

#include "platform/paint/Resample.h"
#include "platform/text/Numbers.h"

#include <QCache>
#include <QSet>

#include <algorithm>
#include <climits>
#include <deque>
#include <mutex>
#include <span>

namespace {

/// The device's pixels that a rectangle is rounded to.
QRect OnWholePixels(const QRectF& rect) {
    const QPoint topLeft(CLng(rect.left()), CLng(rect.top()));
    const QPoint bottomRight(CLng(rect.right()), CLng(rect.bottom()));
    return {topLeft, bottomRight - QPoint(1, 1)};
}

bool IsOnPixels(const QPainter& painter) {
    const QTransform& transform = painter.deviceTransform();
    return painter.device()->devType() == QInternal::Image && transform.type() <= QTransform::TxScale &&
           transform.m11() > 0 && transform.m22() > 0;
}

struct ScaledKey {
    qint64 image;
    QRectF part;
    QSize size;
    friend bool operator==(const ScaledKey&, const ScaledKey&) = default;
    friend size_t qHash(const ScaledKey& key, size_t seed) {
        return qHashMulti(seed, key.image, key.size.width(), key.size.height(), key.part.x(), key.part.y());
    }
};

// The same pictures are pasted at the same size at every paint of the board; scaling is most of the work.
QImage Scaled(const QImage& image, const QRectF& part, QSize size) {
    constexpr int kMaxKilobytes = 16 * 1024;
    constexpr int kMaxKilobytesOfOne = 1024;
    static std::mutex mutex;
    static QCache<ScaledKey, QImage> kept(kMaxKilobytes);
    const int kilobytes = int(std::min<qint64>(qint64(size.width()) * size.height() * 4 / 1024 + 1, INT_MAX));
    if (kilobytes > kMaxKilobytesOfOne) return Resample(image, part, size);
    const ScaledKey key{image.cacheKey(), part, size};
    const std::scoped_lock lock(mutex);
    if (const QImage* known = kept.object(key)) return *known;
    const QImage scaled = Resample(image, part, size);
    kept.insert(key, new QImage(scaled), kilobytes);
    return scaled;
}

// The painter's own scaling skips source pixels when it shrinks; here each counts. A destination on whole
// pixels has sharp edges, and what touches there leaves no seam.
void PaintOnPixels(QPainter& painter, const QRectF& destination, const QImage& image, const QRectF& source) {
    const QTransform toDevice = painter.deviceTransform();
    const QRect whole = OnWholePixels(toDevice.mapRect(destination));
    const QRect visible = whole & QRect(0, 0, painter.device()->width(), painter.device()->height());
    if (visible.isEmpty()) return;
    const double across = source.width() / whole.width();
    const double down = source.height() / whole.height();
    const QRectF part(source.x() + (visible.x() - whole.x()) * across, source.y() + (visible.y() - whole.y()) * down,
                      visible.width() * across, visible.height() * down);
    const bool asItIs = part == QRectF(image.rect()) && visible.size() == image.size();
    painter.save();
    painter.setWorldTransform(toDevice.inverted() * painter.worldTransform());
    painter.drawImage(visible.topLeft(), asItIs ? image : Scaled(image, part, visible.size()));
    painter.restore();
}

// A printed page can't multiply colours. White made transparent, and the rest as much as it is dark, comes
// to the same over white paper and over any colour when the picture is a drawing in black.
QImage WithoutWhite(const QImage& image) {
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb color = row[x];
            const int white = std::min({qRed(color), qGreen(color), qBlue(color)});
            row[x] = qRgba(qRed(color) - white, qGreen(color) - white, qBlue(color) - white, qAlpha(color) - white);
        }
    }
    return result;
}

// Drawings have few colours, or few but for the smoothing of their edges, so that most pixels are like the one
// before. Compressing them as photographs would put rings round their lines.
bool IsDrawing(const QImage& image) {
    constexpr int kMostColors = 256;
    constexpr double kMostlyFlat = 0.6;
    const double pixels = double(image.width()) * image.height();
    QSet<QRgb> colors;
    qint64 flat = 0;
    for (int y = 0; y < image.height(); ++y) {
        const std::span row(reinterpret_cast<const QRgb*>(image.constScanLine(y)), size_t(image.width()));
        for (size_t x = 0; x < row.size(); ++x) {
            if (x > 0 && row[x] == row[x - 1]) {
                ++flat;
            } else if (colors.size() <= kMostColors) {
                colors.insert(row[x]);
            }
        }
    }
    return colors.size() <= kMostColors || double(flat) > kMostlyFlat * pixels;
}

/// Pictures prepared for paper last. A file that shows one picture several times stores it once only when it is handed
/// the same pixels each time, also where the picture was read anew for another sheet.
class PreparedPictures {
public:
    struct Key {
        qint64 image;
        QRectF part;
        QSize size;
        bool withoutWhite;
        friend bool operator==(const Key&, const Key&) = default;
    };
    struct Prepared {
        Key key;
        QImage image;
        bool drawing;
    };

    const Prepared& Get(const Key& key, const QImage& image) {
        for (const Kept* kept : {&m_small, &m_large}) {
            for (const Prepared& prepared : kept->pictures) {
                if (prepared.key == key) return prepared;
            }
        }
        QImage pixels =
            key.part == QRectF(image.rect()) && key.size == image.size() ? image : Resample(image, key.part, key.size);
        if (pixels.depth() != 32) pixels = pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (key.withoutWhite) pixels = WithoutWhite(pixels);
        Kept& kept = pixels.sizeInBytes() <= kMostBytesOfSmall ? m_small : m_large;
        for (const Prepared& prepared : kept.pictures) {
            if (prepared.image != pixels) continue;
            const Prepared again{key, prepared.image, prepared.drawing};
            return kept.Add(again);
        }
        return kept.Add({key, pixels, IsDrawing(pixels)});
    }

private:
    /// A photograph that stands on two sheets is still known on the second.
    struct Kept {
        explicit Kept(int megabytes) : mostBytes(qint64(megabytes) << 20) {}

        std::deque<Prepared> pictures;
        qint64 bytes = 0;
        qint64 mostBytes;

        const Prepared& Add(const Prepared& prepared) {
            bytes += prepared.image.sizeInBytes();
            pictures.push_back(prepared);
            while (bytes > mostBytes && pictures.size() > 1) {
                bytes -= pictures.front().image.sizeInBytes();
                pictures.pop_front();
            }
            return pictures.back();
        }
    };

    // Ornaments and arrows come again on many sheets; photographs in between don't drive them out.
    static constexpr qint64 kMostBytesOfSmall = qint64(128) << 10;
    Kept m_small{2};
    Kept m_large{8};
};

// As many as there are at most. A pixel too many is no reason to blur a picture that was brought to its size
// before, when it was recorded.
int PixelsOnPaper(double wanted, double available) {
    const int all = std::max(CLng(available), 1);
    const int pixels = std::clamp(CLng(wanted), 1, all);
    return all - pixels <= 1 ? all : pixels;
}

QSize SizeOnPaper(const QPainter& painter, const QRectF& target, const QSizeF& available) {
    const QSizeF dots = painter.deviceTransform().mapRect(QRectF(QPointF(0, 0), target.size())).size();
    // A picture that is painted on at an angle shows no more than its own pixels.
    const bool paper = painter.device()->devType() != QInternal::Image;
    const double share = paper ? double(kPaperDotsPerInch) / std::max(painter.device()->logicalDpiX(), 1) : 1;
    return QSize(PixelsOnPaper(dots.width() * share, available.width()),
                 PixelsOnPaper(dots.height() * share, available.height()));
}

void PaintOnPaper(QPainter& painter, const QRectF& destination, const QImage& image, const QRectF& source) {
    static PreparedPictures pictures;
    // Only the part that lies in the picture is painted, at its proportional place.
    const QRectF inside = source & QRectF(image.rect());
    const double across = destination.width() / source.width();
    const double down = destination.height() / source.height();
    const QRectF target(destination.x() + (inside.x() - source.x()) * across,
                        destination.y() + (inside.y() - source.y()) * down, inside.width() * across,
                        inside.height() * down);
    const bool multiplies = painter.compositionMode() == QPainter::CompositionMode_Multiply;
    const auto& prepared =
        pictures.Get({image.cacheKey(), inside, SizeOnPaper(painter, target, inside.size()), multiplies}, image);
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::LosslessImageRendering, prepared.drawing);
    painter.drawImage(target, prepared.image);
    painter.restore();
}

} // namespace

void PaintImage(QPainter& painter, const QRectF& destination, const QImage& image, const QRectF& source,
                QPainter::CompositionMode mode) {
    if (destination.isEmpty() || source.isEmpty() || image.isNull()) return;
    if (!source.intersects(QRectF(image.rect()))) return;
    const QPainter::CompositionMode before = painter.compositionMode();
    painter.setCompositionMode(mode);
    if (IsOnPixels(painter)) {
        PaintOnPixels(painter, destination, image, source);
    } else {
        PaintOnPaper(painter, destination, image, source);
    }
    painter.setCompositionMode(before);
}
