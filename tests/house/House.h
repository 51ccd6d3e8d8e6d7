// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What the house test knows of our files: their text, the floors that they stand on, what they include.
namespace House {

/// Texts by path from the checkout: "src/board/basPosit.h".
using Sources = QMap<QString, QString>;

/// All headers and sources below these folders of the checkout.
Sources Read(const QStringList& folders);

/// The names between quotes, in their order.
QStringList IncludesOf(const QString& text);

/// The text without its comments and without what stands between quotes.
QString CodeOf(const QString& text);

/// The table of the floors, lowest first: a folder, "beside" when the next ones don't stand on it, and more that only
/// the build reads.
class Floors {
public:
    static constexpr int kNone = -1;

    explicit Floors(const QString& table);
    /// Those of src/floors.txt.
    static const Floors& OfTheHouse();

    const QStringList& Folders() const { return m_folders; }
    /// Of a folder's file "board/basPosit.h"; kNone for one on no floor.
    int Of(const QString& path) const;
    /// True for the floor itself, for lower ones, and for a file on no floor.
    bool MayInclude(int from, int target) const;

private:
    QStringList m_folders;
    QStringList m_beside;
};

/// A file's path within its "src" or "tests".
QString WithinTop(const QString& path);

} // namespace House
