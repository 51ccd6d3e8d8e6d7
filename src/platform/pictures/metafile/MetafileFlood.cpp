// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileFlood.h"

#include <algorithm>
#include <vector>

namespace {

constexpr uchar kClosed = 0;
constexpr uchar kOpen = 1;
constexpr uchar kFilled = 255;
constexpr QRgb kOpaque = 0xFF000000;

// Each pixel that the flood may enter is open, looked up once for the whole picture.
QImage OpenPixels(const QImage& picture, const QRegion& within, QRgb colour, bool onlyOnColour) {
    QImage open(picture.size(), QImage::Format_Alpha8);
    open.fill(kClosed);
    for (const QRect& part : within) {
        const QRect seen = part & picture.rect();
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            uchar* to = open.scanLine(y);
            for (int x = seen.left(); x <= seen.right(); ++x)
                to[x] = ((from[x] | kOpaque) == (colour | kOpaque)) == onlyOnColour ? kOpen : kClosed;
        }
    }
    return open;
}

// A pixel of each run of open ones between two columns, the second one left out.
void AddRuns(const QImage& pixels, int y, int left, int end, std::vector<QPoint>& seeds) {
    if (y < 0 || y >= pixels.height()) return;
    const uchar* row = pixels.constScanLine(y);
    for (int x = left; x < end; ++x) {
        if (row[x] == kOpen && (x == left || row[x - 1] != kOpen)) seeds.emplace_back(x, y);
    }
}

} // namespace

MetafileFlood MetafileFlood::From(QPoint start, const QImage& picture, const QRegion& within, QRgb colour,
                                  bool onlyOnColour) {
    if (!picture.rect().contains(start)) return {};
    QImage pixels = OpenPixels(picture, within, colour, onlyOnColour);
    QRect area;
    std::vector<QPoint> seeds{start};
    while (!seeds.empty()) {
        const QPoint seed = seeds.back();
        seeds.pop_back();
        uchar* row = pixels.scanLine(seed.y());
        if (row[seed.x()] != kOpen) continue;
        int left = seed.x();
        int end = left + 1;
        while (left > 0 && row[left - 1] == kOpen)
            --left;
        while (end < pixels.width() && row[end] == kOpen)
            ++end;
        std::fill(row + left, row + end, kFilled);
        area |= QRect(left, seed.y(), end - left, 1);
        AddRuns(pixels, seed.y() - 1, left, end, seeds);
        AddRuns(pixels, seed.y() + 1, left, end, seeds);
    }
    if (area.isEmpty()) return {};
    QImage mask = pixels.copy(area);
    for (int y = 0; y < mask.height(); ++y) {
        uchar* row = mask.scanLine(y);
        std::replace(row, row + mask.width(), kOpen, kClosed);
    }
    return {area, mask};
}
