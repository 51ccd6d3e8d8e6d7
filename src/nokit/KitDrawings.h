// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QStringList>

#include <memory>
#include <span>

class Recording;

using KitDrawing = std::shared_ptr<const Recording>;

/// The page that the sheets of the boxed kit are laid out for, in inches.
QSizeF KitPageInches();
/// A sheet of the boxed kit as a drawing of that size; nothing when it isn't whole, for the reasons then in lacking.
KitDrawing DrawingOfKitSheet(const char* sSheet, QStringList& lacking);

/// A kind of banknote.
struct MoneyKind {
    const char* sSheet;
    int iValue;

    /// As many sheets as so many players need.
    int SheetsFor(int nPlayers) const;
};
std::span<const MoneyKind> MoneySheets();
