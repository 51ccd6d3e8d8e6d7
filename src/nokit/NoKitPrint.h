// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"
#include "platform/printing/PageCorrection.h"

#include <QByteArray>

/// Prints a game on plain paper and card.
namespace NoKitPrint {

struct Job {
    /// Told what is being made, and how far it is, in thousandths; false stops. Events may run inside.
    std::function<bool(const QString& sWhat, int iThousandths)> Progress = [](const QString&, int) { return true; };
    /// What the printer does that the pages are for.
    CorrectionOfPaper correction = [](const PaperOfPage&) { return PageCorrection(); };
    /// What pages lack, a sentence for each piece.
    QStringList lacking = {};
    bool bStopped = false;

    /// Tells how far it is. False when nothing more is to be done.
    bool GoesOn(const QString& sWhat, int iThousandths) {
        bStopped = bStopped || !Progress(sWhat, iThousandths);
        return !bStopped;
    }
};

/// The sheets of these names, or all when there is none, in the order of the table.
std::vector<const NoKitSheet*> SheetsOf(const QStringList& names);

/// Prints sheets into a PDF file, whose pages are as large as the sheets want them. False, and a sentence in sError
/// unless the job tells what is lacking or was stopped, when it isn't whole; no part of it is then left, and a file
/// that stood there before stands as it was.
bool IntoPdf(const std::vector<const NoKitSheet*>& sheets, const NoKitChoices& choices, const QString& sPath,
             const QString& sTitle, int iDpi, Job& job, QString& sError);

/// The cut and fold lines of every page, each as an SVG drawing at true size, into a folder that is made if need be.
/// False and a sentence in sError when one can't be written.
bool WriteCutLines(const std::vector<const NoKitSheet*>& sheets, const NoKitChoices& choices, const QString& sFolder,
                   Job& job, QString& sError);

/// A page's lines as such a drawing, with the marks that are printed on the page.
QByteArray SvgOf(QSizeF paperInches, const std::vector<PageLine>& lines);

} // namespace NoKitPrint
