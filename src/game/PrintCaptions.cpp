// SPDX-License-Identifier: MIT
#include "game/PrintCaptions.h"

#include "board/basPositFit.h"
#include "platform/text/NewLine.h"
#include "services/basErrLog.h"

#include <QStringList>

namespace {

const QString kStickToBoard =
    QStringLiteral("CUT ALONG THE DOTTED LINES, THEN PEEL & STICK EACH TO THE APPROPRIATE GAME BOARD SPACE");
const QString kStickToBox = QStringLiteral("AFTER PRINTING, CUT ALONG THE DOTTED LINES. THEN PEEL & STICK EACH TO THE "
                                           "APPROPRIATE SPACE ON THE GAME BOX");
const QString kStickToDeed =
    QStringLiteral("CUT ALONG THE DOTTED LINES, THEN PEEL & STICK EACH TO THE APPROPRIATE DEED CARD SPACE");

QString VersionLine() {
    return QStringLiteral("(Program Rev %1.%2)").arg(TAVLORA_VERSION_MAJOR).arg(TAVLORA_VERSION_MINOR);
}

void SetCaption(int iIndex, const QStringList& lines) { basPosit::SetSpecialText(iIndex, lines.join(kNewLine)); }

} // namespace

void SetSpecialTextStringsForPrinting() try {
    SetCaption(6, {QStringLiteral("This is Green"), QStringLiteral("Game Box & Board"), QStringLiteral("Labels #1"),
                   VersionLine()});
    SetCaption(7, {QStringLiteral("This is"), QStringLiteral("Green"), QStringLiteral("Game Board"),
                   QStringLiteral("Labels #2"), VersionLine()});
    SetCaption(8, {QStringLiteral("Game Box"), QStringLiteral("Green Label Sheet")});
    SetCaption(9, {QStringLiteral("Game Box"), QStringLiteral("Red Label Sheet"), VersionLine()});
    SetCaption(10, {QStringLiteral("Labels for"), QStringLiteral("Deed Card Sheet #1")});
    SetCaption(11, {kStickToBoard});
    SetCaption(12, {kStickToBoard});
    SetCaption(13, {kStickToBox});
    SetCaption(14, {kStickToBox});
    SetCaption(15, {kStickToDeed});
    SetCaption(16, {QStringLiteral("Labels for"), QStringLiteral("Deed Card Sheet #2")});
} catch (...) {
    ErrTail("frmTAVL!", "SetSpecialTextStringsForPrinting");
}
