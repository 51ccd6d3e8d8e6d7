// SPDX-License-Identifier: MIT
#include "tools/PrintSheets.h"

#include "document/basTAVL.h"
#include "kit/DeedCards.h"
#include "kit/LabelSheets.h"
#include "kit/MoneySheet.h"
#include "kit/NewsSheet.h"
#include "kit/RulesSheet.h"
#include "platform/Desktop.h"
#include "platform/LoadPicture.h"
#include "services/basErrLog.h"

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

template <int iSheet>
bool Deeds(SheetJob& job) {
    return PrintDeeds(job, iSheet);
}

template <int iDeck>
bool News(SheetJob& job) {
    return PrintNewsSheet(job, iDeck);
}

template <int iMoney>
bool Money(SheetJob& job) {
    QString path;
    if (!MakeMoneyImage(iMoney, path)) return false;
    QString error;
    const Picture picture = LoadPicture(path, error);
    if (picture.IsNull()) ErrRaise(ErrNumber::kInvalidPicture, error);
    PrintMoneySheet(job, iMoney, picture, 0, 1);
    return true;
}

constexpr PrintSheet kSheets[] = {
    {"box", "Box Top & Token Stickers", kLabels, kLandscape, PrintBox},
    {"west", "West, South & Corner Board Stickers", kLabels, kLandscape, PrintWest},
    {"east", "East, North & Title Board Stickers", kLabels, kLandscape, PrintEast},
    {"deeds1", "Property Deed Sheet #1", kWhiteCard, kPortrait, Deeds<1>},
    {"deeds2", "Property Deed Sheet #2", kWhiteCard, kPortrait, Deeds<2>},
    {"good", "Good News Cards", kColoredCard, kPortrait, News<0>},
    {"bad", "Bad News Cards", kColoredCard, kPortrait, News<1>},
    {"money100", "$ 100", kPaper, kPortrait, Money<0>},
    {"money500", "$ 500", kPaper, kPortrait, Money<1>},
    {"money1000", "$ 1,000", kPaper, kPortrait, Money<2>},
    {"money5000", "$ 5,000", kPaper, kPortrait, Money<3>},
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
