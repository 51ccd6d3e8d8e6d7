// SPDX-License-Identifier: MIT
// Most of the work of a print is done here. The loops are short and plain, over floats in the order in which they lie
// in memory, so that the compiler makes them work on four or more at a time.
#include "platform/paint/Resample.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace {

constexpr int kChannels = 4;

/// Which source pixels make one destination pixel along one axis, and how much each of them counts.
struct Taps {
    int first = 0;
    std::span<const float> weights;
};

/// Those of all destination pixels along an axis.
class AllTaps {
public:
    AllTaps(double start, double extent, int length, int count) {
        const double step = extent / count;
        m_firsts.reserve(size_t(count));
        m_ends.reserve(size_t(count));
        m_weights.reserve(size_t(count) * size_t(std::ceil(std::min(step, double(length))) + 1));
        for (int i = 0; i < count; ++i) {
            const double from = start + i * step;
            m_firsts.push_back(step >= 1 ? AddArea(from, from + step, length) : AddPoint(from, from + step, length));
            m_ends.push_back(m_weights.size());
        }
    }

    size_t Count() const { return m_ends.size(); }
    Taps At(size_t i) const {
        const size_t begin = i == 0 ? 0 : m_ends[i - 1];
        return {m_firsts[i], std::span(m_weights).subspan(begin, m_ends[i] - begin)};
    }

private:
    // The span [from, to) of source coordinates averaged; what lies outside the image counts as nothing.
    int AddArea(double from, double to, int length) {
        const double inFrom = std::max(from, 0.0);
        const double inTo = std::min(to, double(length));
        if (inTo <= inFrom) return 0;
        const int first = std::min(int(inFrom), length - 1);
        const int end = std::min(int(std::ceil(inTo)), length);
        for (int i = first; i < end; ++i) {
            const double covered = std::min(inTo, i + 1.0) - std::max(inFrom, double(i));
            m_weights.push_back(float(covered / (to - from)));
        }
        return first;
    }
    // The middle of the span interpolated between its two neighbours; at the rim the last pixel goes on.
    int AddPoint(double from, double to, int length) {
        const double visible = (std::min(to, double(length)) - std::max(from, 0.0)) / (to - from);
        if (visible <= 0) return 0;
        const double middle = std::clamp((from + to) / 2 - 0.5, 0.0, length - 1.0);
        const int first = std::min(int(middle), length - 1);
        const double second = middle - first;
        const double whole = std::min(visible, 1.0);
        m_weights.push_back(float((1 - second) * whole));
        if (second > 0) m_weights.push_back(float(second * whole));
        return first;
    }

    std::vector<int> m_firsts;
    /// Where the weights of each end.
    std::vector<size_t> m_ends;
    std::vector<float> m_weights;
};

void Sum(float* out, const float* pixel, std::span<const float> weights) {
    float sum[kChannels] = {};
    for (size_t t = 0; t < weights.size(); ++t, pixel += kChannels) {
        for (int c = 0; c < kChannels; ++c)
            sum[c] += weights[t] * pixel[c];
    }
    for (int c = 0; c < kChannels; ++c)
        out[c] = sum[c];
}

// The same of a few, as most pictures come: without a loop to be found the end of.
template <size_t count>
void SumOf(float* out, const float* pixel, const float* weights) {
    Sum(out, pixel, std::span<const float, count>(weights, count));
}

/// Rows of the source already brought to the width of the destination; the last two are kept, because
/// neighbouring destination rows share one.
class WideRows {
public:
    WideRows(const QImage& image, const AllTaps& taps) : m_image(image), m_taps(taps) {
        for (Row& row : m_rows)
            row.values.resize(m_taps.Count() * kChannels);
        for (size_t i = 0; i < m_taps.Count(); ++i) {
            const Taps one = m_taps.At(i);
            if (one.weights.empty()) continue;
            m_begin = m_end == 0 ? one.first : std::min(m_begin, one.first);
            m_end = std::max(m_end, one.first + int(one.weights.size()));
        }
        m_plain.resize(size_t(m_end - m_begin) * kChannels);
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

    void Fill(Row& row) {
        const uchar* source = m_image.constScanLine(row.y) + qsizetype(m_begin) * kChannels;
        float* plain = m_plain.data();
        for (size_t k = 0; k < m_plain.size(); ++k)
            plain[k] = float(source[k]);
        float* out = row.values.data();
        for (size_t i = 0; i < m_taps.Count(); ++i, out += kChannels) {
            const Taps taps = m_taps.At(i);
            const float* pixel = plain + qsizetype(taps.first - m_begin) * kChannels;
            switch (taps.weights.size()) {
                case 2:
                    SumOf<2>(out, pixel, taps.weights.data());
                    break;
                case 3:
                    SumOf<3>(out, pixel, taps.weights.data());
                    break;
                case 4:
                    SumOf<4>(out, pixel, taps.weights.data());
                    break;
                default:
                    Sum(out, pixel, taps.weights);
            }
        }
    }

    const QImage& m_image;
    const AllTaps& m_taps;
    /// The columns that count at all, and those of a row as numbers.
    int m_begin = 0;
    int m_end = 0;
    std::vector<float> m_plain;
    Row m_rows[2];
};

bool IsPixelFormat(const QImage& image) {
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
}

void AddWeighted(std::span<float> sums, const float* row, float weight) {
    float* out = sums.data();
    for (size_t k = 0; k < sums.size(); ++k)
        out[k] += weight * row[k];
}

void RoundTo(uchar* out, std::span<const float> sums) {
    const float* in = sums.data();
    for (size_t k = 0; k < sums.size(); ++k)
        out[k] = uchar(int(std::min(in[k] + 0.5F, 255.0F)));
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
    const AllTaps across(part.x(), part.width(), pixels.width(), size.width());
    const AllTaps down(part.y(), part.height(), pixels.height(), size.height());
    WideRows rows(pixels, across);
    std::vector<float> sums(size_t(size.width()) * kChannels);
    for (int y = 0; y < size.height(); ++y) {
        std::fill(sums.begin(), sums.end(), 0.0F);
        const Taps taps = down.At(size_t(y));
        for (size_t i = 0; i < taps.weights.size(); ++i)
            AddWeighted(sums, rows.Get(taps.first + int(i)), taps.weights[i]);
        RoundTo(result.scanLine(y), sums);
    }
    return result;
}
