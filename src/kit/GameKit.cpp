// SPDX-License-Identifier: MIT
#include "kit/GameKit.h"

#include "document/basTAVL.h"
#include "platform/text/Numbers.h"
#include "render/PrintBlackAs.h"
#include "services/basCommon.h"

#include <array>

namespace GameKit {
namespace {

constexpr int kNameLength = 8;
const QString kPlainName = QStringLiteral("TAVLORA2");

// Inches, in the order of basTAVL::LabelSize.
constexpr std::array<double, basTAVL::kLabelSizes> kLabelSizes = {0.06, 1.65, 2.8125, 0.4375, 0.25, 1.65, 1.83, 2.125};

// A slim space sticker covers the middle of the printed space only.
constexpr double kSlimStickerWidth = 1.36;
constexpr double kSlimStickerHeight = 2.125;

constexpr std::array<const char*, basTAVL::kMoney> kMoneyColors = {"00C7C7E8", "00FAD3D8", "00C7E4C8", "00FAD085"};
constexpr std::array<const char*, basTAVL::kTokens> kTokenColors = {"00DA251D", "000093DD", "0000923F",
                                                                    "00FFF500", "00E77817", "00FFFFFF"};

// A black that no printer makes from colours, for the plain kits.
constexpr qint32 kPlainBlack = 0x0A0A0A;

Color ColorOf(const char* sColor) { return basCommon::GetColorFromString(QString::fromLatin1(sColor)); }

void SetPlainColors() {
    for (int i = 0; i < basTAVL::kMoney; ++i)
        basTAVL::g_oMoney(i).BackColor = Color::White();
    basTAVL::g_lPrintYellow() = Color::White();
    basTAVL::g_lPrintRed() = Color::White();
    basTAVL::g_lPrintBack() = Color::White();
}

void SetFullColors() {
    for (int i = 0; i < basTAVL::kMoney; ++i)
        basTAVL::g_oMoney(i).BackColor = ColorOf(kMoneyColors[size_t(i)]);
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).BackColor = ColorOf(kTokenColors[size_t(i)]);
    basTAVL::g_lPrintYellow() = basCommon::GetIniColor(QStringLiteral("PrintYellowColor"), QStringLiteral("00FFFF00"));
    basTAVL::g_lPrintRed() = basCommon::GetIniColor(QStringLiteral("PrintRedColor"), QStringLiteral("00FF0000"));
    basTAVL::g_lPrintBack() = ColorOf("00B6DDC7");
}

void SetLabelSizes(Kit kit) {
    for (int i = 0; i < basTAVL::kLabelSizes; ++i)
        basTAVL::g_dblLabelSizes(i) = kLabelSizes[size_t(i)];
    if (!HasSlimStickers(kit)) return;
    basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth) = kSlimStickerWidth;
    basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) = kSlimStickerHeight;
}

} // namespace

QString ExeName(const QString& sProgramName) { return LeftStr(sProgramName, kNameLength).toUpper(); }

QString VariantOf(const QString& sProgramName) {
    const QString exeName = ExeName(sProgramName);
    if (exeName == kPlainName) return MidStr(sProgramName, kNameLength).toUpper();
    return ::VariantOf(exeName == QStringLiteral("TAVLORA5") ? Kit::Five : Kit::Eight);
}

QString ProgramNameOf(const QString& sVariant) {
    const QString name = QStringLiteral("tavlora");
    return KitOf(sVariant) == Kit::Eight ? name : name + sVariant.toLower();
}

void SetUp(const QString& sProgramName) {
    const QString variant = VariantOf(sProgramName);
    basTAVL::Let_g_sGameVersion(variant);
    SetLabelSizes(TheGame().kit);
    if (ExeName(sProgramName) == kPlainName) {
        SetPlainColors();
    } else {
        SetFullColors();
    }
    SetPrintBlack(sProgramName);
    // One key for both decks, on purpose: cards of both lie on the same stock.
    for (int set = 0; set < basTAVL::kNewsSets; ++set)
        basTAVL::g_lNewsColor(set) =
            basCommon::GetIniColor(QStringLiteral("GoodNewsColor"), QStringLiteral("00FFFFFF"));
}

void SetPrintBlack(const QString& sProgramName) {
    const bool plain = ExeName(sProgramName) == kPlainName;
    const Color black = plain ? Color::FromValue(kPlainBlack)
                              : basCommon::GetIniColor(QStringLiteral("PrintBlackColor"), QStringLiteral("00000000"));
    basTAVL::g_lPrintBlack() = PrintBlackAs::Chosen().value_or(black);
}

void ReadGameVersion() {
    basTAVL::Let_g_sGameVersion(
        basCommon::GetIniStringWithDefault(QStringLiteral("GameVersion"), basTAVL::g_sGameVersion()));
}

} // namespace GameKit
