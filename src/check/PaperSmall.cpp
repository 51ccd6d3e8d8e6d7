// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "kit/Sheets.h"

namespace {

QSizeF InOrientation(QSizeF upright, PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? upright.transposed() : upright;
}

QString Inches(QSizeF size) {
    return QStringLiteral("%1 by %2")
        .arg(QString::number(size.width(), 'f', 1), QString::number(size.height(), 'f', 1));
}

} // namespace

template <>
void RunCheck<class PaperSmall>(const CheckedGame& game, Findings& findings) {
    if (!game.options.printableInches) return;
    const Kit kit = game.game.kit;
    QStringList tooLarge;
    for (const Sheet& sheet : Sheets()) {
        if (!sheet.WhyLeftOut(kit).isEmpty()) continue;
        const QSizeF printable = InOrientation(*game.options.printableInches, sheet.OrientationOf(kit));
        if (!sheet.WhatIsLostOn(printable, kit).isEmpty()) tooLarge.append(sheet.Title(kit));
    }
    if (tooLarge.isEmpty()) return;
    findings.Add(GamePiece::Whole(),
                 QStringLiteral("Only %1 inches of the paper can be printed on. Edges would be missing from: %2.")
                     .arg(Inches(*game.options.printableInches), tooLarge.join(QStringLiteral(", "))),
                 QStringLiteral("Use US Letter paper, or smaller margins in the printer's settings."));
}
