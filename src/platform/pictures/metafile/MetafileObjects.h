// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/metafile/MetafileRecords.h"

#include <QImage>
#include <QList>
#include <QRect>
#include <QString>

#include <array>
#include <memory>
#include <variant>
#include <vector>

/// The colours that indices in the file stand for.
class MetafilePalette {
public:
    /// The platform's twenty fixed colours, in force until the file selects a palette.
    static std::shared_ptr<const MetafilePalette> Fixed();
    static std::shared_ptr<const MetafilePalette> Read(QByteArrayView parameters);

    /// A colour as records keep it: 0x00BBGGRR, or an index with 1 in the highest byte.
    QRgb Resolve(quint32 colour) const;
    /// The colour of an index; black beyond the last.
    QRgb At(int index) const { return m_colours.value(index, qRgb(0, 0, 0)); }
    /// Copies with some entries changed, or with another number of entries.
    std::shared_ptr<const MetafilePalette> WithEntries(QByteArrayView parameters) const;
    std::shared_ptr<const MetafilePalette> Resized(int count) const;

private:
    QList<QRgb> m_colours;
};

struct MetafilePen {
    static constexpr int kNull = 5;
    static constexpr int kInsideFrame = 6;
    int style = 0;
    int width = 0; ///< Logical units.
    quint32 colour = 0;
};

struct MetafileBrush {
    enum class Kind { Solid, Hollow, Hatched, Pattern };
    Kind kind = Kind::Solid;
    quint32 colour = 0x00FFFFFF;
    int hatch = 0;
    QImage pattern;
    /// The pattern's black stands for the text colour, its white for the background colour.
    bool patternIsMask = false;
};

struct MetafileFont {
    int height = 0; ///< Logical units; above 0 the cell, below 0 the em.
    int width = 0;
    int escapement = 0; ///< Tenths of a degree.
    int weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    quint8 charset = 0;
    quint8 pitchAndFamily = 0;
    QByteArray face;
    static MetafileFont Read(QByteArrayView parameters);
};

struct MetafileRegion {
    QList<QRect> bands; ///< Right and bottom edges excluded, logical units.
    static MetafileRegion Read(QByteArrayView parameters);
};

/// An object of a kind that can't be drawn with still takes a slot, or all later numbers would be off.
struct MetafileUnknownObject {};

using MetafileObject = std::variant<std::monostate, MetafileUnknownObject, std::shared_ptr<const MetafilePen>,
                                    std::shared_ptr<const MetafileBrush>, std::shared_ptr<const MetafileFont>,
                                    std::shared_ptr<const MetafilePalette>, std::shared_ptr<const MetafileRegion>>;

/// The objects a metafile has created, by number.
class MetafileObjects {
public:
    static constexpr size_t kMostObjects = 4096;

    /// Takes the lowest free slot; a file that wants more than the table holds goes without.
    void Add(MetafileObject object);
    /// Empties a slot; an empty one or none at all is passed over.
    void Delete(int slot);
    /// The object in a slot; std::monostate for none.
    const MetafileObject& At(int slot) const;
    void Replace(int slot, MetafileObject object);

private:
    std::vector<MetafileObject> m_slots;
    size_t m_lowestFree = 0;
};
