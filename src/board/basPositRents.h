// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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
