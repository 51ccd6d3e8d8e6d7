// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>

class QPainter;
class QRectF;

/// A Windows metafile: drawing orders kept in a file, played into a rectangle of any painter. Nothing in the
/// file is trusted; a damaged one draws what can be made out, and no file takes more than about half a
/// second or a bounded amount of memory to play.
class Metafile {
public:
    /// Takes the bytes of a file, with the 22-byte placeable header or without. Nothing, and a sentence in
    /// sError, when they don't begin like a metafile.
    static std::optional<Metafile> FromBytes(const QByteArray& bytes, QString& sError);

    bool IsPlaceable() const { return m_placeableSize.has_value(); }
    /// Right minus left and bottom minus top of the placeable header, in its own units; 0 without one.
    QSize PlaceableSize() const { return m_placeableSize.value_or(QSize(0, 0)); }

    /// Plays into the target, in the painter's units, which becomes the viewport: the file's own window
    /// extents stretch to fill exactly it, and nothing is painted outside. The painter is left as it was.
    /// False when not a single drawing order could be made out.
    bool Play(QPainter& painter, const QRectF& target) const;

private:
    QByteArray m_orders; ///< From the first record on.
    std::optional<QSize> m_placeableSize;
};
