// SPDX-License-Identifier: MIT
#include "kit/ConsoleSheets.h"
#include "kit/DeedCards.h"
#include "kit/LabelSheets.h"
#include "kit/NewsSheet.h"
#include "kit/RulesSheet.h"
#include "platform/Desktop.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace ConsoleSheets {
namespace {

constexpr int kBoxSheet = 0;
constexpr int kWestSheet = 1;
constexpr int kObsolete = 2;
constexpr int kEastSheet = 3;
constexpr int kDeedLabels = 4;
constexpr int kGoodNews = 5;
constexpr int kBadNews = 6;
constexpr int kRules = 11;
constexpr int kDeedsOne = 12;
constexpr int kDeedsTwo = 13;

bool TellLeftOut() {
    MsgBox(QStringLiteral("The label sheets of this kit are not part of this build."));
    return false;
}

bool TellWrongName() {
    MsgBox(QStringLiteral("This program only prints if the EXE name is set to 'Tavlora2.exe' or 'Tavlora2a.exe' or "
                          "'Tavlora4.exe'"));
    return false;
}

bool IsOlderKit(const QString& sVariant) {
    return QStringList{QStringLiteral("2"), QStringLiteral("2A"), QStringLiteral("5")}.contains(sVariant);
}

// A sheet that isn't whole has said why, and what there is of it comes on paper.
bool PrintLabels(SheetJob& job, int iIndex, const QString& sVariant) {
    if (sVariant != QStringLiteral("8"))
        return IsOlderKit(sVariant) || iIndex == kWestSheet ? TellLeftOut() : TellWrongName();
    if (iIndex == kBoxSheet) {
        StickerBoxAndTokenSheet(job);
    } else {
        const bool east = iIndex == kEastSheet;
        StickerSpaceSheet(job, east ? 1 : 0, !east, east);
    }
    return true;
}

} // namespace

bool PrintSheet(SheetJob& job, int iIndex, const QString& sVariant) try {
    switch (iIndex) {
        case kBoxSheet:
        case kWestSheet:
        case kEastSheet:
            return PrintLabels(job, iIndex, sVariant);
        case kObsolete:
        case kNoPrompt:
            return true;
        case kDeedLabels:
            return TellLeftOut();
        case kGoodNews:
        case kBadNews:
            PrintNewsSheet(job, iIndex - kGoodNews);
            return true;
        case kDeedsOne:
        case kDeedsTwo:
            PrintDeeds(job, iIndex - kDeedsOne + 1);
            return true;
        case kRules:
            PrintRulesSheet(job);
            return true;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Index"), QStringLiteral("frmTavlPrint!cmdPrint_Click"));
            return false;
    }
} catch (...) {
    ErrTail("frmTavlPrint!", "PrintSheet", iIndex, sVariant);
}

} // namespace ConsoleSheets
