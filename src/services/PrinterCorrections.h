// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/PageCorrection.h"

#include <QString>

/// What printers were found to do to their pages, kept in the settings for each printer and paper. Files that are
/// printed elsewhere count as a printer without a name.
namespace PrinterCorrections {

/// Nothing for a printer that hasn't been checked with this paper, or where the settings can't be read.
PageCorrection Of(const QString& sPrinter, const PaperOfPage& paper);
CorrectionOfPaper OfPrinter(const QString& sPrinter);

/// Forgets it where there is nothing to undo. False when the settings can't be written: what held before holds on.
bool Keep(const QString& sPrinter, const PaperOfPage& paper, const PageCorrection& correction);

/// "0.4 mm right, 1.2 mm up, 0.2 % narrower": what is done to each sheet; empty for nothing.
QString Words(const PageCorrection& correction);

} // namespace PrinterCorrections
