// SPDX-License-Identifier: MIT
#include "platform/paint/Resample.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kChannels = 4;

/// Which source pixels make one destination pixel along one axis, and how much each of them counts.
struct Taps {
    int first = 0;
    std::vector<float> weights;
};

// The span [from, to) of source coordinates averaged; what lies outside the image counts as nothing.
Taps AreaTaps(double from, double to, int length) {
    const double inFrom = std::max(from, 0.0);
    const double inTo = std::min(to, double(length));
    Taps taps;
    if (inTo <= inFrom) return taps;
    taps.first = std::min(int(inFrom), length - 1);
    const int end = std::min(int(std::ceil(inTo)), length);
    for (int i = taps.first; i < end; ++i) {
        const double covered = std::min(inTo, i + 1.0) - std::max(inFrom, double(i));
        taps.weights.push_back(float(covered / (to - from)));
    }
    return taps;
}

// The middle of the span interpolated between its two neighbours; at the rim the last pixel goes on.
Taps PointTaps(double from, double to, int length) {
    const double visible = (std::min(to, double(length)) - std::max(from, 0.0)) / (to - from);
    Taps taps;
    if (visible <= 0) return taps;
    const double middle = std::clamp((from + to) / 2 - 0.5, 0.0, length - 1.0);
    taps.first = std::min(int(middle), length - 1);
    const double second = middle - taps.first;
    const double whole = std::min(visible, 1.0);
    taps.weights.push_back(float((1 - second) * whole));
    if (second > 0) taps.weights.push_back(float(second * whole));
    return taps;
}

std::vector<Taps> TapsFor(double start, double extent, int length, int count) {
    const double step = extent / count;
    std::vector<Taps> all;
    all.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        const double from = start + i * step;
        all.push_back(step >= 1 ? AreaTaps(from, from + step, length) : PointTaps(from, from + step, length));
    }
    return all;
}

/// Rows of the source already brought to the width of the destination; the last two are kept, because
/// neighbouring destination rows share one.
class WideRows {
public:
    WideRows(const QImage& image, std::vector<Taps> taps) : m_image(image), m_taps(std::move(taps)) {
        for (Row& row : m_rows)
            row.values.resize(m_taps.size() * kChannels);
    }

    const float* Get(int y) {
        Row& row = m_rows[size_t(y % 2)];
        if (row.y != y) {
            row.y = y;
            Fill(row);
        }
        return row.values.data();
    }

private:
    struct Row {
        int y = -1;
        std::vector<float> values;
    };

    void Fill(Row& row) const {
        const uchar* source = m_image.constScanLine(row.y);
        float* out = row.values.data();
        for (const Taps& taps : m_taps) {
            float sum[kChannels] = {};
            const uchar* pixel = source + taps.first * kChannels;
            for (const float weight : taps.weights) {
                for (int c = 0; c < kChannels; ++c)
                    sum[c] += weight * float(pixel[c]);
                pixel += kChannels;
            }
            for (int c = 0; c < kChannels; ++c)
                *out++ = sum[c];
        }
    }

    const QImage& m_image;
    std::vector<Taps> m_taps;
    Row m_rows[2];
};

bool IsPixelFormat(const QImage& image) {
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

QImage Resample(const QImage& image, const QRectF& part, QSize size) {
    if (image.isNull() || size.isEmpty() || part.isEmpty()) return {};
    const bool inside = QRectF(image.rect()).contains(part);
    const bool opaque = inside && !image.hasAlphaChannel();
    const QImage pixels = IsPixelFormat(image)
                              ? image
                              : image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                              : QImage::Format_RGB32);
    QImage result(size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (result.isNull()) return {};
    WideRows rows(pixels, TapsFor(part.x(), part.width(), pixels.width(), size.width()));
    const std::vector<Taps> down = TapsFor(part.y(), part.height(), pixels.height(), size.height());
    std::vector<float> sums(size_t(size.width()) * kChannels);
    for (int y = 0; y < size.height(); ++y) {
        std::fill(sums.begin(), sums.end(), 0.0F);
        const Taps& taps = down[size_t(y)];
        for (size_t i = 0; i < taps.weights.size(); ++i) {
            const float* row = rows.Get(taps.first + int(i));
            for (size_t k = 0; k < sums.size(); ++k)
                sums[k] += taps.weights[i] * row[k];
        }
        uchar* out = result.scanLine(y);
        for (size_t k = 0; k < sums.size(); ++k)
            out[k] = uchar(std::clamp(sums[k] + 0.5F, 0.0F, 255.0F));
    }
    return result;
}
