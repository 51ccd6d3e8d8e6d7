// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/metafile/MetafileBudget.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <functional>
#include <optional>

/// Where a metafile is played: a painter whose unit is a device pixel, or a picture of our own that can be
/// read back, which the raster operations need.
class MetafileCanvas {
public:
    using DrawFunction = std::function<void(QPainter&)>;

    /// Plays straight onto the painter, which must stand at one unit to a device pixel. The painter's state
    /// at this moment is what each change of the clip goes back to.
    MetafileCanvas(QPainter& painter, const QRectF& target, double dotsPerInch, MetafileBudget& budget);
    /// Plays into a picture, which is the target as a whole.
    MetafileCanvas(QImage& picture, double dotsPerInch, MetafileBudget& budget);
    ~MetafileCanvas();
    MetafileCanvas(const MetafileCanvas&) = delete;
    MetafileCanvas& operator=(const MetafileCanvas&) = delete;

    /// Pixels that may be painted at all.
    const QRect& Bounds() const { return m_bounds; }
    double DotsPerInch() const { return m_dotsPerInch; }
    /// How many device pixels a pixel of hatches, patterns and unscaled pictures takes, so that they look on
    /// paper as on the screen.
    int PatternScale() const { return qMax(1, qRound(m_dotsPerInch / 96)); }
    bool IsVector() const;
    MetafileBudget& Budget() { return m_budget; }

    void SetClip(const std::optional<QRegion>& clip);

    /// The width of the thinnest line and of a single pixel, in device pixels; more than 1 where the picture will be
    /// made smaller by so much.
    void SetThinnest(int pixels) { m_thinnest = pixels; }
    int Thinnest() const { return m_thinnest; }

    /// Edges without half tones, for pictures that are to be flood-filled.
    void SetSmooth(bool smooth);

    /// Draws within the area, which may reach beyond the bounds; every pixel that comes out painted is
    /// combined with what is there by the binary operation (1 to 16).
    void Draw(const QRect& area, int rop2, const DrawFunction& draw);

    /// Combines pixels by the ternary operation: source and pattern are pictures as large as the area, null
    /// where the operation doesn't ask for one. Transparent source pixels leave what is there. Only on a
    /// picture; without one nothing happens.
    void Combine(const QRect& area, quint8 code, const QImage& source, const QImage& pattern);

    /// Fills from a pixel as far as the colour reaches, or up to the colour, with what the function paints.
    /// Only on a picture.
    void FloodFill(QPoint start, QRgb colour, bool onlyOnColour, const DrawFunction& draw);

    /// The picture so far; null when playing straight onto a painter.
    QImage Snapshot(const QRect& area) const;

private:
    bool MayPaint(QPoint pixel) const;

    QPainter* m_painter;
    QImage* m_picture = nullptr;
    std::optional<QPainter> m_ownPainter;
    QRectF m_target;
    QRect m_bounds;
    double m_dotsPerInch;
    MetafileBudget& m_budget;
    std::optional<QRegion> m_clip;
    bool m_smooth = true;
    int m_thinnest = 1;
};

/// Binary operations by number, ternary ones by code, and what they ask for.
namespace MetafileRop {
constexpr int kBlack = 1;
constexpr int kNotCopyPen = 4;
constexpr int kNop = 11;
constexpr int kCopyPen = 13;
constexpr int kWhite = 16;
constexpr quint8 kBlackness = 0x00;
constexpr quint8 kInvertedSource = 0x33;
constexpr quint8 kInvertedTarget = 0x55;
constexpr quint8 kSource = 0xCC;
constexpr quint8 kPattern = 0xF0;
constexpr quint8 kWhiteness = 0xFF;
/// The ternary code of a binary operation with the pattern as its pen.
quint8 FromBinary(int rop2);
bool UsesSource(quint8 code);
bool UsesPattern(quint8 code);
} // namespace MetafileRop
