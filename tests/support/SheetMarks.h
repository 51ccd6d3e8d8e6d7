// SPDX-License-Identifier: MIT
#pragma once

#include "kit/Sheets.h"
#include "support/SheetFixture.h"
#include "support/ToldText.h"

/// A sheet printed at 600 dots an inch, and everything that was painted on it: each text with its font and colour,
/// each area and each picture. Places are dots from the printable origin, worked out by hand from the inches told.
class SheetMarksTest : public SheetTest {
protected:
    static constexpr int kDotsPerInch = 600;

    /// Prints a sheet of the table, by its word on the command line.
    bool PrintSheetNamed(const char* sName) {
        const Sheet& sheet = *FindSheet(QString::fromLatin1(sName));
        const bool made = Print([&](SheetJob& job) {
            job.printer.SetOrientation(sheet.OrientationOf(TheGame().kit));
            return sheet.Print(job);
        });
        marks = ReadPageMarks(pdf, 1, kDotsPerInch);
        return made;
    }
    QList<PageMark> Only(PageMark::Kind kind) const {
        QList<PageMark> found;
        for (const PageMark& mark : marks) {
            if (mark.kind == kind) found.append(mark);
        }
        return found;
    }
    /// The texts that read so, in the order in which they were painted.
    QList<PageMark> TextsThatRead(const QString& sText) const {
        QList<PageMark> found;
        for (const PageMark& mark : Only(PageMark::Kind::Text)) {
            if (mark.sText == sText) found.append(mark);
        }
        return found;
    }
    static bool HasFace(const PageMark& text, const KnownFace& face) {
        return text.sFace == QLatin1String(face.onPage) || text.sFace == QLatin1String(face.orOnPage);
    }

    QList<PageMark> marks;
};
