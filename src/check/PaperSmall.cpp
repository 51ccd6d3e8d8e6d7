// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "kit/Sheets.h"

namespace {

QSizeF InOrientation(QSizeF upright, PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? upright.transposed() : upright;
}

} // namespace

template <>
void RunCheck<class PaperSmall>(const CheckedGame& game, Findings& findings) {
    if (!game.options.printableInches) return;
    const Kit kit = game.game.kit;
    for (const Sheet& sheet : Sheets()) {
        if (!sheet.WhyLeftOut(kit).isEmpty()) continue;
        const QSizeF printable = InOrientation(*game.options.printableInches, sheet.OrientationOf(kit));
        const QString lost = sheet.WhatIsLostOn(printable, kit);
        if (lost.isEmpty()) continue;
        findings
            .Add(GamePiece::Whole(),
                 QStringLiteral("The sheet %1 is larger than the paper. %2").arg(sheet.Title(kit), lost),
                 QStringLiteral("Use US Letter paper, or smaller margins in the printer's settings."))
            .sheets = QStringList{QString::fromLatin1(sheet.sName)};
    }
}
