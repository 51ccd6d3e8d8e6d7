// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "platform/Printer.h"

#include <QString>

#include <span>

/// A sheet of the boxed kit as tavlora-print knows it.
struct PrintSheet {
    const char* sName;
    const char* sTitle;
    const char* sStock;
    PageOrientation orientation;
    /// Prints the page without ending the document; false when something is missing from it, which has then
    /// been told.
    bool (*print)(SheetJob& job);
};

/// All sheets, in the order of the whole kit.
std::span<const PrintSheet> PrintSheets();

/// Nothing for a name that no sheet has.
const PrintSheet* FindPrintSheet(const QString& sName);
