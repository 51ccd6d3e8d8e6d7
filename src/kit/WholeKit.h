// SPDX-License-Identifier: MIT
#pragma once

#include "kit/Sheets.h"
#include "services/Players.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// Printing all of a kit in one go: what it takes, and painting it.
namespace WholeKit {

/// A sheet and how often it is printed.
struct Run {
    const Sheet* sheet = nullptr;
    int nCopies = 1;
};

/// All sheets that this build prints for a kit, in the order of the table; money as often as so many players need it.
/// Fewer or more players than a game takes count as the nearest number that it does.
std::vector<Run> Runs(Kit kit, int nPlayers);

/// Pages of all runs together.
int Pages(const std::vector<Run>& runs);

/// A kind of paper, and how many sheets of it the runs take.
struct Pile {
    QString sStock;
    int nSheets = 0;

    /// "2 sheets of white card stock".
    QString Text() const;
};
/// In the order in which they are printed on first.
std::vector<Pile> Piles(const std::vector<Run>& runs, Kit kit);

/// The page being painted: its sheet, and how many pages are done.
struct Progress {
    const Sheet& sheet;
    int nPagesDone;
};

/// What became of a print.
struct Outcome {
    /// What the first sheet lacks that isn't whole, or why the printer didn't take it.
    QStringList lacking;
    /// That sheet; nothing when all were whole. Its page has to be thrown away.
    const Sheet* sheet = nullptr;
    /// It was stopped between two pages.
    bool bStopped = false;
    /// Pages that are whole.
    int nPages = 0;

    bool IsWhole() const { return !sheet && !bStopped; }
};

/// Paints the runs, a page to each EndDoc. Told of each progress, at which events may run; goes on as long as it is
/// told true. Ends at the first page that isn't whole.
Outcome Print(Printer& printer, const std::vector<Run>& runs, Kit kit,
              const std::function<bool(const Progress&)>& tell);

} // namespace WholeKit
