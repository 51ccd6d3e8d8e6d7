// SPDX-License-Identifier: MIT
#include "nokit/KitDrawings.h"

#include "kit/Sheets.h"
#include "kit/WholeKit.h"
#include "platform/printing/RecordingPrinter.h"

namespace {

constexpr MoneyKind kMoney[] = {{"money100", 100}, {"money500", 500}, {"money1000", 1000}, {"money5000", 5000}};

} // namespace

QSizeF KitPageInches() { return {8.0, 10.5}; }

std::span<const MoneyKind> MoneySheets() { return kMoney; }

int MoneyKind::SheetsFor(int nPlayers) const {
    for (const WholeKit::Run& run : WholeKit::Runs(KitInUse(), nPlayers)) {
        if (QLatin1String(run.sheet->sName) == QLatin1String(sSheet)) return run.nCopies;
    }
    return 0;
}

KitDrawing DrawingOfKitSheet(const char* sSheet, QStringList& lacking) {
    RecordingPrinter printer(KitPageInches());
    SheetJob job{printer};
    const Sheet& sheet = *FindSheet(QString::fromLatin1(sSheet));
    const bool whole = sheet.Prepare(job) && sheet.Print(job);
    lacking.append(job.lacking);
    return whole ? printer.Take() : KitDrawing();
}
