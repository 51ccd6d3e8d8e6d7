// SPDX-License-Identifier: MIT
#pragma once

#include "support/PageMarks.h"

#include <QPolygonF>
#include <QString>
#include <QTransform>

/// A printer that moves, stretches and slants what it prints. It prints PDF files, and tells where on the upright
/// sheet things came out. All places are millimetres from the sheet's middle.
class WornPrinter {
public:
    double dblRight = 0;
    double dblDown = 0;
    double dblAcross = 1;
    double dblAlong = 1;
    /// Clockwise.
    double dblSlantDegrees = 0;

    /// What stands on a page of a file once it is printed; a page that lies lengthwise is turned with its top to the
    /// left. Sheets that were turned round beforehand are told as they lay first.
    QList<PageMark> Print(const QString& sPdf, int iPage, QSizeF paperMm, bool bTurnedRound = false) const {
        QTransform out;
        if (bTurnedRound) out.rotate(180);
        out.translate(dblRight, dblDown);
        out.rotate(dblSlantDegrees);
        out.scale(dblAcross, dblAlong);
        return Moved(sPdf, iPage, paperMm, out);
    }
    /// The same of a printer that prints all in its place.
    static QList<PageMark> PrintWell(const QString& sPdf, int iPage, QSizeF paperMm) {
        return Moved(sPdf, iPage, paperMm, QTransform());
    }

private:
    static QList<PageMark> Moved(const QString& sPdf, int iPage, QSizeF paperMm, const QTransform& out) {
        constexpr double kMillimetresPerInch = 25.4;
        constexpr double kMargin = kMillimetresPerInch / 4;
        QTransform place = QTransform::fromTranslate(kMargin - paperMm.width() / 2, kMargin - paperMm.height() / 2);
        if (paperMm.width() > paperMm.height()) place *= QTransform(0, -1, 1, 0, 0, 0);
        place *= out;
        QList<PageMark> marks = ReadPageMarks(sPdf, iPage, kMillimetresPerInch);
        for (PageMark& mark : marks)
            mark.points = place.map(mark.points);
        return marks;
    }
};
