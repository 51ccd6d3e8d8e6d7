// SPDX-License-Identifier: MIT
#include "nokit/KitDrawings.h"

#include "kit/Sheets.h"
#include "platform/printing/RecordingPrinter.h"

namespace {

constexpr MoneyKind kMoney[] = {
    {"money100", 100, 3, 5}, {"money500", 500, 2, 3}, {"money1000", 1000, 2, 4}, {"money5000", 5000, 1, 1}};

} // namespace

QSizeF KitPageInches() { return {8.0, 10.5}; }

std::span<const MoneyKind> MoneySheets() { return kMoney; }

KitDrawing DrawingOfKitSheet(const char* sSheet, QStringList& lacking) {
    RecordingPrinter printer(KitPageInches());
    SheetJob job{printer};
    const Sheet& sheet = *FindSheet(QString::fromLatin1(sSheet));
    const bool whole = sheet.Prepare(job) && sheet.Print(job);
    lacking.append(job.lacking);
    return whole ? printer.Take() : KitDrawing();
}
