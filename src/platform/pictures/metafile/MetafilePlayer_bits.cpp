// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileDib.h"
#include "platform/pictures/metafile/MetafilePlayer.h"

namespace {

constexpr int kKeepBlack = 1;
constexpr int kKeepWhite = 2;
constexpr int kHalftone = 4;
constexpr qint64 kUnitsPerSourcePixel = 6;

int CornerOf(int from, int length) { return length < 0 ? from + length : from; }

// Makes a picture smaller so that its black (or white) lines don't get lost: pixels that fall together are
// combined bit by bit.
QImage ShrinkKeepingLines(const QImage& image, QSize size, bool keepBlack) {
    QImage small(size, QImage::Format_ARGB32_Premultiplied);
    small.fill(keepBlack ? 0xFFFFFFFF : 0xFF000000);
    for (int y = 0; y < image.height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(small.scanLine(int(qint64(y) * size.height() / image.height())));
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            QRgb& pixel = to[qint64(x) * size.width() / image.width()];
            pixel = keepBlack ? pixel & from[x] : pixel | from[x];
        }
    }
    return small;
}

QImage Shrink(const QImage& image, QSize wanted, int stretchMode) {
    const QSize size = wanted.boundedTo(image.size());
    if (size == image.size() || size.isEmpty()) return image;
    if (stretchMode == kKeepBlack || stretchMode == kKeepWhite) {
        return ShrinkKeepingLines(image, size, stretchMode == kKeepBlack);
    }
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

bool MetafilePlayer::ObeyBits(const MetafileRecord& record) {
    const std::optional<MetafileBlit> blit = MetafileBlit::Read(record);
    if (blit) DrawBlit(*blit);
    return blit.has_value();
}

QRect MetafilePlayer::TargetOf(const MetafileBlit& blit) const {
    const QPoint from = m_state.mapping.ToDevice(blit.target);
    if (blit.unscaled) return QRect(from, blit.targetSize * m_canvas.PatternScale()).normalized();
    const QPoint size(blit.targetSize.width(), blit.targetSize.height());
    const DeviceBox box = ToDevice(MetafileBox{blit.target, blit.target + size});
    return box.Rect();
}

QImage MetafilePlayer::SourceOf(const MetafileBlit& blit) {
    MetafileBudget& budget = m_canvas.Budget();
    switch (blit.kind) {
        case MetafileBlit::Bits::Dib:
            return MetafileDib::Decode(blit.bits, blit.colourUse, *m_state.palette, budget);
        case MetafileBlit::Bits::DeviceBitmap:
            return MetafileDib::DecodeDeviceBitmap(blit.bits, m_state.Colour(m_state.textColour),
                                                   m_state.Colour(m_state.bkColour), budget);
        case MetafileBlit::Bits::None:
            break;
    }
    // What was painted so far, one pixel of it for each pixel of the source's place.
    const QPoint size(blit.sourceSize.width(), blit.sourceSize.height());
    const QRect place = ToDevice(MetafileBox{blit.source, blit.source + size}).Rect() & m_canvas.Bounds();
    return place.isEmpty() ? QImage() : m_canvas.Snapshot(place);
}

void MetafilePlayer::DrawBlit(const MetafileBlit& blit) {
    const QRect area = TargetOf(blit);
    const QRect seen = area & m_canvas.Bounds();
    const quint8 code = blit.Code();
    if (seen.isEmpty()) return;
    if (code == MetafileRop::kBlackness || code == MetafileRop::kWhiteness || code == MetafileRop::kPattern) {
        const QBrush brush = code == MetafileRop::kPattern
                                 ? MakeBrush(*m_state.brush)
                                 : QBrush(code == MetafileRop::kBlackness ? Qt::black : Qt::white);
        m_canvas.Draw(seen, MetafileRop::kCopyPen, [&](QPainter& painter) { painter.fillRect(seen, brush); });
        return;
    }
    QImage source;
    if (MetafileRop::UsesSource(code)) {
        source = SourceOf(blit);
        if (source.isNull()) return;
        if (!m_canvas.Budget().Spend(qint64(source.width()) * source.height() * kUnitsPerSourcePixel)) return;
    }
    if (code == MetafileRop::kSource || code == MetafileRop::kInvertedSource) {
        if (code == MetafileRop::kInvertedSource) source.invertPixels();
        m_canvas.Draw(seen, MetafileRop::kCopyPen, [&](QPainter& painter) { PaintBits(painter, blit, area, source); });
        return;
    }
    CombineBlit(blit, area, source);
}

// Source and pattern are laid out as large as what is seen, and combined with what was painted.
void MetafilePlayer::CombineBlit(const MetafileBlit& blit, const QRect& area, const QImage& source) {
    const QRect seen = area & m_canvas.Bounds();
    const qint64 pixels = qint64(seen.width()) * seen.height();
    if (!m_canvas.Budget().Spend(pixels * kUnitsPerSourcePixel)) return;
    const auto layer = [&](const MetafileCanvas::DrawFunction& draw) {
        QImage image(seen.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(-seen.topLeft());
        draw(painter);
        return image;
    };
    QImage stretched;
    QImage pattern;
    if (!source.isNull()) {
        stretched = layer([&](QPainter& painter) { PaintBits(painter, blit, area, source); });
    }
    if (MetafileRop::UsesPattern(blit.Code())) {
        pattern = layer([&](QPainter& painter) { painter.fillRect(seen, MakeBrush(*m_state.brush)); });
    }
    m_canvas.Combine(seen, blit.Code(), stretched, pattern);
}

void MetafilePlayer::PaintBits(QPainter& painter, const MetafileBlit& blit, const QRect& area,
                               const QImage& image) const {
    if (blit.kind == MetafileBlit::Bits::None) {
        painter.drawImage(area, image);
        return;
    }
    QRect source(CornerOf(blit.source.x(), blit.sourceSize.width()),
                 CornerOf(blit.source.y(), blit.sourceSize.height()), qAbs(blit.sourceSize.width()),
                 qAbs(blit.sourceSize.height()));
    if (blit.fromBottom) source.moveTop(image.height() - source.y() - source.height());
    const QRect inside = source & image.rect();
    if (inside.isEmpty()) return;
    const QPointF corner =
        m_state.mapping.ToDevice(blit.target + QPoint(blit.targetSize.width(), blit.targetSize.height()));
    const QPointF start = m_state.mapping.ToDevice(blit.target);
    const bool mirrorX =
        (blit.unscaled ? blit.targetSize.width() < 0 : corner.x() < start.x()) != (blit.sourceSize.width() < 0);
    const bool mirrorY =
        (blit.unscaled ? blit.targetSize.height() < 0 : corner.y() < start.y()) != (blit.sourceSize.height() < 0);
    const double scaleX = double(area.width()) / source.width();
    const double scaleY = double(area.height()) / source.height();
    // Only the part that lies in the picture is painted, at its proportional place.
    const double x = mirrorX ? source.right() - inside.right() : inside.left() - source.left();
    const double y = mirrorY ? source.bottom() - inside.bottom() : inside.top() - source.top();
    const QRectF target(area.left() + x * scaleX, area.top() + y * scaleY, inside.width() * scaleX,
                        inside.height() * scaleY);
    QImage part = inside == image.rect() ? image : image.copy(inside);
    if (!m_canvas.IsVector()) part = Shrink(part, target.size().toSize().expandedTo(QSize(1, 1)), m_state.stretchMode);
    if (mirrorX || mirrorY) part = part.mirrored(mirrorX, mirrorY);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_state.stretchMode == kHalftone);
    painter.drawImage(target, part);
}
