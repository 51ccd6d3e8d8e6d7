// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileDib.h"
#include "platform/pictures/metafile/MetafilePlayer.h"

#include <array>

namespace {

// Larger patterns are cut, as their memory is kept as long as the object.
constexpr int kLargestPattern = 256;
constexpr int kTileSize = 8;
// Slanted lines were filled with whole pixels and came out a little wider than asked for.
constexpr double kSlantExtraWidth = 0.4;

// Lengths of the dashes and gaps of the four broken pens, in pixels.
const std::array<QList<qreal>, 4> kDashes = {QList<qreal>{18, 6}, QList<qreal>{3, 3}, QList<qreal>{9, 6, 3, 6},
                                             QList<qreal>{9, 3, 3, 3, 3, 3}};

enum BrushStyle : quint16 { kSolid = 0, kHollow = 1, kHatched = 2 };

bool IsHatchPixel(int hatch, int x, int y) {
    switch (hatch) {
        case 0: // Horizontal
            return y == 3;
        case 1: // Vertical
            return x == 4;
        case 2: // Downwards to the right
            return x == y;
        case 3: // Upwards to the right
            return x + y == kTileSize - 1;
        case 4: // Both straight ones
            return y == 3 || x == 4;
        default: // Both slanted ones
            return x == y || x + y == kTileSize - 1;
    }
}

} // namespace

bool MetafilePlayer::ObeyObjects(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    switch (record.order) {
        case MetafileOrder::SelectObject:
            SelectObject(reader.U16());
            return true;
        case MetafileOrder::DeleteObject:
            m_objects.Delete(reader.U16());
            return true;
        case MetafileOrder::CreatePen:
            CreatePen(reader);
            return true;
        case MetafileOrder::CreateBrush:
            CreateBrush(reader);
            return true;
        case MetafileOrder::CreateFont:
            m_objects.Add(std::make_shared<const MetafileFont>(MetafileFont::Read(record.parameters)));
            return true;
        case MetafileOrder::CreateRegion:
            m_objects.Add(std::make_shared<const MetafileRegion>(MetafileRegion::Read(record.parameters)));
            return true;
        // Of systems before those that the other orders come from; nothing can be drawn with them.
        case MetafileOrder::CreateOldBrush:
        case MetafileOrder::CreateBitmap:
        case MetafileOrder::CreateBitmapIndirect:
            m_objects.Add(MetafileUnknownObject());
            return true;
        case MetafileOrder::DibCreatePatternBrush: {
            reader.Skip(2); // Of which kind the brush was; the picture stands here for all kinds.
            const quint16 colourUse = reader.U16();
            CreatePattern(MetafileDib::Decode(reader.Rest(), colourUse, *m_state.palette, m_canvas.Budget()), false);
            return true;
        }
        case MetafileOrder::CreatePatternBrush:
            CreatePattern(
                MetafileDib::DecodePattern(record.parameters, qRgb(0, 0, 0), qRgb(255, 255, 255), m_canvas.Budget()),
                true);
            return true;
        default:
            return false;
    }
}

bool MetafilePlayer::ObeyPalettes(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    switch (record.order) {
        case MetafileOrder::CreatePalette:
            m_objects.Add(MetafilePalette::Read(record.parameters));
            return true;
        case MetafileOrder::SelectPalette:
            SelectPalette(reader.U16());
            return true;
        case MetafileOrder::SetPaletteEntries:
        case MetafileOrder::AnimatePalette:
            ChangePalette(m_state.palette->WithEntries(record.parameters));
            return true;
        case MetafileOrder::ResizePalette:
            ChangePalette(m_state.palette->Resized(reader.U16()));
            return true;
        default:
            return false;
    }
}

void MetafilePlayer::SelectObject(int slot) {
    const MetafileObject& object = m_objects.At(slot);
    if (const auto* pen = std::get_if<std::shared_ptr<const MetafilePen>>(&object)) {
        m_state.pen = *pen;
    } else if (const auto* brush = std::get_if<std::shared_ptr<const MetafileBrush>>(&object)) {
        m_state.brush = *brush;
    } else if (const auto* font = std::get_if<std::shared_ptr<const MetafileFont>>(&object)) {
        m_state.font = *font;
    } else if (std::holds_alternative<std::shared_ptr<const MetafileRegion>>(object)) {
        SelectClip(slot);
    }
}

void MetafilePlayer::SelectPalette(int slot) {
    if (const auto* palette = std::get_if<std::shared_ptr<const MetafilePalette>>(&m_objects.At(slot))) {
        m_state.palette = *palette;
        m_state.paletteSlot = slot;
    }
}

void MetafilePlayer::ChangePalette(std::shared_ptr<const MetafilePalette> palette) {
    // The fixed palette is the platform's and can't be changed by a file.
    if (m_state.paletteSlot < 0) return;
    m_objects.Replace(m_state.paletteSlot, palette);
    m_state.palette = std::move(palette);
}

void MetafilePlayer::CreatePen(MetafileReader& reader) {
    MetafilePen pen;
    // The higher bits hold caps and joins, which only pens of later systems have.
    pen.style = reader.U16() & 0x0F;
    pen.width = reader.S16();
    reader.Skip(2);
    pen.colour = reader.U32();
    m_objects.Add(std::make_shared<const MetafilePen>(pen));
}

void MetafilePlayer::CreateBrush(MetafileReader& reader) {
    MetafileBrush brush;
    const quint16 style = reader.U16();
    brush.colour = reader.U32();
    brush.hatch = reader.U16();
    switch (style) {
        case kSolid:
            break;
        case kHollow:
            brush.kind = MetafileBrush::Kind::Hollow;
            break;
        case kHatched:
            brush.kind = MetafileBrush::Kind::Hatched;
            break;
        default:
            m_objects.Add(MetafileUnknownObject());
            return;
    }
    m_objects.Add(std::make_shared<const MetafileBrush>(brush));
}

void MetafilePlayer::CreatePattern(QImage pattern, bool isMask) {
    if (pattern.isNull()) {
        m_objects.Add(MetafileUnknownObject());
        return;
    }
    MetafileBrush brush;
    brush.kind = MetafileBrush::Kind::Pattern;
    const QRect kept = pattern.rect() & QRect(0, 0, kLargestPattern, kLargestPattern);
    brush.pattern = kept == pattern.rect() ? std::move(pattern) : pattern.copy(kept);
    brush.patternIsMask = isMask;
    // The memory kept counts as work, so that all the patterns of a file together stay bounded.
    if (!m_canvas.Budget().Spend(qint64(kept.width()) * kept.height() * 8)) return;
    m_objects.Add(std::make_shared<const MetafileBrush>(std::move(brush)));
}

int MetafilePlayer::PenWidth() const {
    const double width = m_state.mapping.Length(m_state.pen->width);
    // Wider than the picture is as good as covering it.
    const int most = 4 * qMax(m_canvas.Bounds().width(), m_canvas.Bounds().height()) + 8;
    return width < most ? qMax(m_canvas.Thinnest(), qRound(width)) : most;
}

bool MetafilePlayer::IsDashed() const {
    const int style = m_state.pen->style;
    return style >= 1 && style <= int(kDashes.size()) && PenWidth() == m_canvas.Thinnest();
}

QPen MetafilePlayer::MakePen(bool slanted) const {
    if (!HasPen()) return QPen(Qt::NoPen);
    const int width = PenWidth();
    const int pixel = m_canvas.Thinnest();
    // Of a pen two pixels wide only slanted corners are seen to be round.
    const bool round = width > 2 * pixel || (width == 2 * pixel && slanted);
    const Qt::PenCapStyle cap = round ? Qt::RoundCap : width > pixel ? Qt::SquareCap : Qt::FlatCap;
    const double drawn = slanted && width > pixel ? width + kSlantExtraWidth : width;
    QPen pen(QColor(m_state.Colour(m_state.pen->colour)), drawn, Qt::SolidLine, cap,
             round ? Qt::RoundJoin : Qt::MiterJoin);
    if (!IsDashed()) return pen;
    QList<qreal> dashes = kDashes[size_t(m_state.pen->style) - 1];
    for (qreal& dash : dashes)
        dash *= m_canvas.PatternScale();
    pen.setDashPattern(dashes);
    return pen;
}

QImage MetafilePlayer::HatchTile(const MetafileBrush& brush) const {
    QImage tile(kTileSize, kTileSize, QImage::Format_ARGB32_Premultiplied);
    tile.fill(m_state.opaqueBackground ? QColor(m_state.Colour(m_state.bkColour)) : QColor(Qt::transparent));
    const QRgb colour = m_state.Colour(brush.colour);
    for (int y = 0; y < kTileSize; ++y) {
        for (int x = 0; x < kTileSize; ++x) {
            if (IsHatchPixel(brush.hatch, x, y)) tile.setPixel(x, y, colour);
        }
    }
    return tile;
}

QBrush MetafilePlayer::MakeBrush(const MetafileBrush& brush) const {
    switch (brush.kind) {
        case MetafileBrush::Kind::Solid:
            return QBrush(QColor(m_state.Colour(brush.colour)));
        case MetafileBrush::Kind::Hollow:
            return QBrush(Qt::NoBrush);
        case MetafileBrush::Kind::Hatched:
        case MetafileBrush::Kind::Pattern:
            break;
    }
    QImage tile = brush.kind == MetafileBrush::Kind::Hatched ? HatchTile(brush) : brush.pattern;
    if (brush.patternIsMask) {
        const QRgb text = m_state.Colour(m_state.textColour);
        const QRgb background = m_state.Colour(m_state.bkColour);
        for (int y = 0; y < tile.height(); ++y) {
            for (int x = 0; x < tile.width(); ++x)
                tile.setPixel(x, y, qGray(tile.pixel(x, y)) == 0 ? text : background);
        }
    }
    QBrush textured(tile);
    textured.setTransform(QTransform::fromScale(m_canvas.PatternScale(), m_canvas.PatternScale()));
    return textured;
}
