// SPDX-License-Identifier: MIT
#include "kit/WholeKit.h"

#include <algorithm>

namespace WholeKit {
namespace {

// A page of the kit, and a caller who may have had enough of it.
class PagePainter {
public:
    PagePainter(Printer& printer, Kit kit, PhotosAhead& ahead, const std::function<bool(const Progress&)>& tell)
        : m_printer(printer), m_kit(kit), m_ahead(ahead), m_tell(tell) {}

    void Paint(const Run& run) {
        const Sheet& sheet = *run.sheet;
        sheet.LayOn(m_printer, m_kit);
        SheetJob job{m_printer};
        job.ahead = &m_ahead;
        job.nCopies = run.nCopies;
        job.Progress = [&](int) { Tell(sheet); };
        if (!Tell(sheet)) return;
        if (!sheet.Prepare(job)) return Fail(sheet, job);
        for (job.iCopy = 0; job.iCopy < run.nCopies && !m_outcome.bStopped; ++job.iCopy) {
            if (!sheet.Print(job)) return Fail(sheet, job);
            m_printer.EndDoc();
            if (const QString error = m_printer.LastError(); !error.isEmpty()) {
                job.lacking = {error};
                return Fail(sheet, job);
            }
            ++m_outcome.nPages;
        }
        m_ahead.SheetDone();
    }
    const Outcome& Result() const { return m_outcome; }

private:
    bool Tell(const Sheet& sheet) {
        if (!m_tell({sheet, m_outcome.nPages})) m_outcome.bStopped = true;
        return !m_outcome.bStopped;
    }
    void Fail(const Sheet& sheet, const SheetJob& job) {
        m_outcome.sheet = &sheet;
        m_outcome.lacking = job.lacking;
    }

    Printer& m_printer;
    Kit m_kit;
    PhotosAhead& m_ahead;
    const std::function<bool(const Progress&)>& m_tell;
    Outcome m_outcome;
};

// As the rules have it: up to three players need half.
int CopiesOf(const Sheet& sheet, int nPlayers) {
    if (sheet.iSheetsForSix == 0) return 1;
    constexpr int kFew = 3;
    return nPlayers <= kFew ? (sheet.iSheetsForSix + 1) / 2 : sheet.iSheetsForSix;
}

} // namespace

std::vector<Run> Runs(Kit kit, int nPlayers) {
    const int players = std::clamp(nPlayers, Players::kFewest, Players::kMost);
    std::vector<Run> runs;
    for (const Sheet& sheet : Sheets()) {
        if (sheet.WhyLeftOut(kit).isEmpty()) runs.push_back({&sheet, CopiesOf(sheet, players)});
    }
    return runs;
}

int Pages(const std::vector<Run>& runs) {
    int pages = 0;
    for (const Run& run : runs)
        pages += run.nCopies;
    return pages;
}

QString Pile::Text() const {
    return (nSheets == 1 ? QStringLiteral("%1 sheet of %2") : QStringLiteral("%1 sheets of %2"))
        .arg(nSheets)
        .arg(sStock);
}

std::vector<Pile> Piles(const std::vector<Run>& runs, Kit kit) {
    std::vector<Pile> piles;
    for (const Run& run : runs) {
        const QString stock = run.sheet->Stock(kit);
        const auto pile = std::ranges::find(piles, stock, &Pile::sStock);
        if (pile == piles.end()) {
            piles.push_back({stock, run.nCopies});
        } else {
            pile->nSheets += run.nCopies;
        }
    }
    return piles;
}

Outcome Print(Printer& printer, const std::vector<Run>& runs, Kit kit,
              const std::function<bool(const Progress&)>& tell) {
    std::vector<std::vector<SheetPhoto>> photos;
    photos.reserve(runs.size());
    for (const Run& run : runs)
        photos.push_back(run.sheet->Photos());
    PhotosAhead ahead(photos);
    PagePainter painter(printer, kit, ahead, tell);
    for (const Run& run : runs) {
        painter.Paint(run);
        if (!painter.Result().IsWhole()) break;
    }
    return painter.Result();
}

} // namespace WholeKit
