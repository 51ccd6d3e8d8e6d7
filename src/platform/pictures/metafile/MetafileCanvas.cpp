// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileCanvas.h"

#include "platform/pictures/metafile/MetafileFlood.h"

#include <QPaintEngine>

namespace {

constexpr qint64 kUnitsPerCombinedPixel = 12;
constexpr qint64 kUnitsPerLayerPixel = 3;
constexpr qint64 kUnitsPerDraw = 2'000;

// One row of the truth table for each bit of the code: pattern, source, target as bits 2, 1, 0.
QRgb Ternary(quint8 code, QRgb pattern, QRgb source, QRgb target) {
    QRgb result = 0;
    for (int row = 0; row < 8; ++row) {
        if ((code >> row & 1) == 0) continue;
        result |= (row & 4 ? pattern : ~pattern) & (row & 2 ? source : ~source) & (row & 1 ? target : ~target);
    }
    return result | 0xFF000000;
}

} // namespace

quint8 MetafileRop::FromBinary(int rop2) {
    const int table = qBound(1, rop2, 16) - 1;
    int code = 0;
    for (int row = 0; row < 8; ++row) {
        const int pen = row >> 2;
        if (table >> (pen * 2 + row % 2) & 1) code |= 1 << row;
    }
    return quint8(code);
}

bool MetafileRop::UsesSource(quint8 code) { return ((code ^ code >> 2) & 0x33) != 0; }
bool MetafileRop::UsesPattern(quint8 code) { return ((code ^ code >> 4) & 0x0F) != 0; }

MetafileCanvas::MetafileCanvas(QPainter& painter, const QRectF& target, double dotsPerInch, MetafileBudget& budget)
    : m_painter(&painter), m_target(target), m_bounds(target.toAlignedRect()), m_dotsPerInch(dotsPerInch),
      m_budget(budget) {
    m_painter->save();
    SetClip({});
}

MetafileCanvas::MetafileCanvas(QImage& picture, double dotsPerInch, MetafileBudget& budget)
    : m_painter(nullptr), m_picture(&picture), m_target(picture.rect()), m_bounds(picture.rect()),
      m_dotsPerInch(dotsPerInch), m_budget(budget) {
    m_painter = &m_ownPainter.emplace(&picture);
    m_painter->save();
    SetClip({});
}

MetafileCanvas::~MetafileCanvas() { m_painter->restore(); }

bool MetafileCanvas::IsVector() const { return m_painter->paintEngine()->type() != QPaintEngine::Raster; }

void MetafileCanvas::SetClip(const std::optional<QRegion>& clip) {
    m_clip = clip;
    // Clips can only be narrowed without losing the caller's own, so this one starts from it again.
    m_painter->restore();
    m_painter->save();
    m_painter->setClipRect(m_target, Qt::IntersectClip);
    if (m_clip) m_painter->setClipRegion(*m_clip, Qt::IntersectClip);
    SetSmooth(m_smooth);
}

void MetafileCanvas::SetSmooth(bool smooth) {
    m_smooth = smooth;
    m_painter->setRenderHint(QPainter::Antialiasing, smooth);
    m_painter->setRenderHint(QPainter::TextAntialiasing, smooth);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
}

bool MetafileCanvas::MayPaint(QPoint pixel) const {
    return m_bounds.contains(pixel) && (!m_clip || m_clip->contains(pixel));
}

void MetafileCanvas::Draw(const QRect& area, int rop2, const DrawFunction& draw) {
    const QRect seen = area & m_bounds;
    if (seen.isEmpty() || rop2 == MetafileRop::kNop) return;
    const qint64 pixels = qint64(seen.width()) * seen.height();
    if (!m_budget.Spend(kUnitsPerDraw + pixels)) return;
    if (rop2 == MetafileRop::kCopyPen || !m_picture) {
        draw(*m_painter);
        return;
    }
    if (!m_budget.Spend(pixels * kUnitsPerLayerPixel)) return;
    QImage layer(seen.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter painter(&layer);
        painter.translate(-seen.topLeft());
        draw(painter);
    }
    // What the layer leaves transparent stays; the layer's colours are the operation's pattern. Handing it
    // over as source too makes Combine pass over its transparent pixels.
    Combine(seen, MetafileRop::FromBinary(rop2), layer, layer);
}

void MetafileCanvas::Combine(const QRect& area, quint8 code, const QImage& source, const QImage& pattern) {
    const QRect seen = area & m_bounds;
    if (!m_picture || seen.isEmpty()) return;
    if (!m_budget.Spend(qint64(seen.width()) * seen.height() * kUnitsPerCombinedPixel)) return;
    const QRegion region = m_clip ? *m_clip & seen : QRegion(seen);
    for (const QRect& part : region) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            auto* target = reinterpret_cast<QRgb*>(m_picture->scanLine(y));
            const QPoint offset(-area.left(), y - area.top());
            const auto* from =
                source.isNull() ? nullptr : reinterpret_cast<const QRgb*>(source.constScanLine(offset.y()));
            const auto* with =
                pattern.isNull() ? nullptr : reinterpret_cast<const QRgb*>(pattern.constScanLine(offset.y()));
            for (int x = part.left(); x <= part.right(); ++x) {
                const QRgb sourcePixel = from ? from[x + offset.x()] : 0;
                if (from && qAlpha(sourcePixel) == 0) continue;
                target[x] = Ternary(code, with ? with[x + offset.x()] : 0, sourcePixel, target[x]);
            }
        }
    }
}

void MetafileCanvas::FloodFill(QPoint start, QRgb colour, bool onlyOnColour, const DrawFunction& draw) {
    if (!m_picture || !MayPaint(start)) return;
    const qint64 pixels = qint64(m_bounds.width()) * m_bounds.height();
    if (!m_budget.Spend(pixels * MetafileBudget::kFloodedPixel)) return;
    const QRegion region = m_clip ? *m_clip & m_bounds : QRegion(m_bounds);
    const MetafileFlood flood = MetafileFlood::From(start, *m_picture, region, colour, onlyOnColour);
    if (flood.area.isEmpty()) return;
    QImage layer(flood.area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter painter(&layer);
        painter.translate(-flood.area.topLeft());
        draw(painter);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(flood.area.topLeft(), flood.mask);
    }
    m_painter->drawImage(flood.area.topLeft(), layer);
}

QImage MetafileCanvas::Snapshot(const QRect& area) const { return m_picture ? m_picture->copy(area) : QImage(); }
