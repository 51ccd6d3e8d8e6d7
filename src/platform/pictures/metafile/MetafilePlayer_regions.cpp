// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafilePlayer.h"

namespace {

constexpr int kMostClipRects = 2'000;
constexpr qint64 kUnitsPerClipRect = 200;
// Where a clip may be moved to: out of sight of any picture, and far from where whole numbers come round.
constexpr int kReach = 1 << 26;
constexpr QRect kReachable(-kReach, -kReach, 2 * kReach, 2 * kReach);

} // namespace

bool MetafilePlayer::ObeyRegions(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    switch (record.order) {
        case MetafileOrder::SelectClipRegion:
            SelectClip(reader.U16());
            return true;
        case MetafileOrder::IntersectClipRect:
        case MetafileOrder::ExcludeClipRect: {
            const MetafileBox box = MetafileBox::Read(reader);
            if (!reader.Failed()) NarrowClip(box, record.order == MetafileOrder::ExcludeClipRect);
            return true;
        }
        case MetafileOrder::OffsetClip:
            OffsetClip(reader.PointYX());
            return true;
        case MetafileOrder::PaintRegion:
            if (const auto region = RegionAt(reader.U16())) FillRegion(ToDevice(*region), *m_state.brush);
            return true;
        case MetafileOrder::InvertRegion:
            if (const auto region = RegionAt(reader.U16())) {
                for (const QRect& part : ToDevice(*region))
                    m_canvas.Combine(part, MetafileRop::kInvertedTarget, {}, {});
            }
            return true;
        case MetafileOrder::FillRegion: {
            const auto region = RegionAt(reader.U16());
            const auto brush = BrushAt(reader.U16());
            if (region && brush) FillRegion(ToDevice(*region), *brush);
            return true;
        }
        case MetafileOrder::FrameRegion: {
            const auto region = RegionAt(reader.U16());
            const auto brush = BrushAt(reader.U16());
            const QPoint thickness = reader.PointYX();
            if (region && brush) FrameRegion(*region, *brush, thickness);
            return true;
        }
        default:
            return false;
    }
}

std::shared_ptr<const MetafileRegion> MetafilePlayer::RegionAt(int slot) const {
    const auto* region = std::get_if<std::shared_ptr<const MetafileRegion>>(&m_objects.At(slot));
    return region ? *region : nullptr;
}

std::shared_ptr<const MetafileBrush> MetafilePlayer::BrushAt(int slot) const {
    const auto* brush = std::get_if<std::shared_ptr<const MetafileBrush>>(&m_objects.At(slot));
    return brush ? *brush : nullptr;
}

QRegion MetafilePlayer::ToDevice(const MetafileRegion& region) {
    QRegion pixels;
    for (const QRect& band : region.bands) {
        const DeviceBox box =
            ToDevice(MetafileBox{band.topLeft(), band.topLeft() + QPoint(band.width(), band.height())});
        const QRect seen = box.IsEmpty() ? QRect() : box.Rect() & m_canvas.Bounds();
        // Each union goes through all that is there already.
        if (!m_canvas.Budget().Spend((1 + pixels.rectCount()) * kUnitsPerClipRect)) break;
        if (!seen.isEmpty() && pixels.rectCount() < kMostClipRects) pixels += seen;
    }
    return pixels;
}

void MetafilePlayer::SetClip(std::optional<QRegion> clip) {
    m_canvas.Budget().Require((10 + (clip ? clip->rectCount() : 0)) * kUnitsPerClipRect);
    m_state.clip = std::move(clip);
    m_canvas.SetClip(m_state.clip);
}

void MetafilePlayer::SelectClip(int slot) {
    // Anything but a region ends clipping.
    const auto region = RegionAt(slot);
    SetClip(region ? std::optional<QRegion>(ToDevice(*region)) : std::nullopt);
}

void MetafilePlayer::NarrowClip(const MetafileBox& box, bool exclude) {
    const QRegion now = m_state.clip.value_or(QRegion(m_canvas.Bounds()));
    const DeviceBox pixels = ToDevice(box);
    const QRegion area = pixels.IsEmpty() ? QRegion() : QRegion(pixels.Rect());
    if (exclude && now.rectCount() >= kMostClipRects) return;
    SetClip(exclude ? now - area : now & area);
}

void MetafilePlayer::OffsetClip(QPoint by) {
    if (!m_state.clip) return;
    const QPoint offset = m_state.mapping.ToDevice(by) - m_state.mapping.ToDevice(QPoint(0, 0));
    if (!kReachable.contains(m_state.clip->boundingRect().translated(offset))) return;
    SetClip(m_state.clip->translated(offset));
}

void MetafilePlayer::FillRegion(const QRegion& region, const MetafileBrush& brush) {
    const QBrush filling = MakeBrush(brush);
    for (const QRect& part : region) {
        m_canvas.Draw(part, m_state.rop2, [&](QPainter& painter) { painter.fillRect(part, filling); });
    }
}

void MetafilePlayer::FrameRegion(const MetafileRegion& region, const MetafileBrush& brush, QPoint thickness) {
    const int x = qMax(1, qRound(m_state.mapping.Length(thickness.x())));
    const int y = qMax(1, qRound(qAbs(thickness.y() * m_state.mapping.ScaleY())));
    const QRegion whole = ToDevice(region);
    if (!m_canvas.Budget().Spend(whole.rectCount() * 10 * kUnitsPerClipRect)) return;
    const QRegion inside =
        whole.translated(x, 0) & whole.translated(-x, 0) & whole.translated(0, y) & whole.translated(0, -y);
    FillRegion(whole - inside, brush);
}
