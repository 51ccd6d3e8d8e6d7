// SPDX-License-Identifier: MIT
#include "tools/PrintSheets.h"

#include "document/basTAVL.h"
#include "platform/Desktop.h"
#include "print/LabelSheets.h"
#include "print/RulesSheet.h"

namespace {

constexpr auto kLandscape = PageOrientation::Landscape;
constexpr auto kPortrait = PageOrientation::Portrait;

constexpr const char* kLabels = "white label paper";
constexpr const char* kWhiteCard = "white card stock";
constexpr const char* kColoredCard = "colored card stock";
constexpr const char* kPaper = "white paper";

// The other kits' labels are laid out for stock that comes coloured and cut.
bool KitHasLabelSheets() {
    if (basTAVL::g_sGameVersion() == QStringLiteral("8")) return true;
    MsgBox(QStringLiteral("The label sheets of this kit are not part of this build."));
    return false;
}

bool PrintBox(SheetJob& job) { return KitHasLabelSheets() && StickerBoxAndTokenSheet(job); }
bool PrintWest(SheetJob& job) { return KitHasLabelSheets() && StickerSpaceSheet(job, 0, true, false); }
bool PrintEast(SheetJob& job) { return KitHasLabelSheets() && StickerSpaceSheet(job, 1, false, true); }

constexpr PrintSheet kSheets[] = {
    {"box", "Box Top & Token Stickers", kLabels, kLandscape, PrintBox},
    {"west", "West, South & Corner Board Stickers", kLabels, kLandscape, PrintWest},
    {"east", "East, North & Title Board Stickers", kLabels, kLandscape, PrintEast},
    {"deeds1", "Property Deed Sheet #1", kWhiteCard, kPortrait, nullptr},
    {"deeds2", "Property Deed Sheet #2", kWhiteCard, kPortrait, nullptr},
    {"good", "Good News Cards", kColoredCard, kPortrait, nullptr},
    {"bad", "Bad News Cards", kColoredCard, kPortrait, nullptr},
    {"money100", "$ 100", kPaper, kPortrait, nullptr},
    {"money500", "$ 500", kPaper, kPortrait, nullptr},
    {"money1000", "$ 1,000", kPaper, kPortrait, nullptr},
    {"money5000", "$ 5,000", kPaper, kPortrait, nullptr},
    {"rules", "Game Play Instruction Sheet", kPaper, kPortrait, PrintRulesSheet},
};

} // namespace

std::span<const PrintSheet> PrintSheets() { return kSheets; }

const PrintSheet* FindPrintSheet(const QString& sName) {
    for (const PrintSheet& sheet : kSheets) {
        if (sName == QString::fromLatin1(sheet.sName)) return &sheet;
    }
    return nullptr;
}
