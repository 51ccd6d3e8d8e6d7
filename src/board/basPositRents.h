// SPDX-License-Identifier: MIT
#pragma once

#include "services/BoardFacts.h"
#include "services/Kit.h"

#include <QByteArray>
#include <QString>

#include <array>

/// Prices and rents. They belong to the boxed kit, not to the game, and lie in a small file beside the
/// program.
namespace basPosit {

struct RentRecord {
    qint16 Cost = 0;
    /// The lines of a deed, from the top; which label each carries depends on the kind of space.
    qint16 RentSingle = 0;
    qint16 RentTwo = 0;
    qint16 RentStory1 = 0;
    qint16 RentStory2 = 0;
    /// In the files of some kits only.
    qint16 RentAddStory = 0;
    qint16 Extra = 0;
    /// Shown in the board's tool tip.
    QString DefaultName;
};

using RentTable = std::array<RentRecord, BoardFacts::kSpaces>;

/// What a file of rents says, row by row, and what is wrong with it.
struct RentReading {
    /// What stood there before, with the rows that were read in its place.
    RentTable rents;
    /// Rows that were read: all of them when nothing is wrong.
    int iRows = 0;
    /// Why the next row can't be read; empty when the file ends there or the row has another number.
    QString sError;

    bool IsWhole() const { return iRows == int(rents.size()); }
};

/// Reads the rents of a kit from the bytes of their file. What follows the last space's row is passed over.
RentReading ReadRentRows(const QByteArray& bytes, Kit kit, const RentTable& before);

/// Raises the subscript error outside 0 to 27.
const RentRecord& m_Rent(int iSpace);

/// Fills the rents and the prices of the spaces. Reads the file again only when it has changed since. Tells
/// what is wrong and ends the program when the rents can't be had.
void ReadRents();

/// Path of the rents file of this kit.
QString RentsPath();

/// A price as it stands on spaces and deeds.
QString FormatCost(int lCost);

/// For tests: as before the first reading.
void ResetRentsForTest();

} // namespace basPosit
