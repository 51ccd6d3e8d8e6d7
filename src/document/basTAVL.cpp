// SPDX-License-Identifier: MIT
#include "document/basTAVL.h"

#include "document/Subscript.h"
#include "platform/Desktop.h"
#include "platform/ProgramSettings.h"

#include <array>
#include <memory>

namespace basTAVL {
namespace {

constexpr int kScreenFonts = 1;

template <typename Record, int count>
using Table = std::array<std::unique_ptr<Record>, count>;

struct State {
    Table<C_Space, kSpaces> spaces;
    Table<C_Corner, kCorners> corners;
    Table<C_News, kNewsSets * kCards> news;
    Table<C_Money, kMoney> money;
    Table<C_Token, kTokens> tokens;

    QString currencySign = QStringLiteral("$");
    std::array<Color, kNewsSets> newsColor{Color::White(), Color::White()};
    Color printYellow = Color::White();
    Color printRed = Color::White();
    Color printBlack;
    Color printBack = Color::White();
    Color magicColor = Color::Rgb(224, 255, 224);
    std::array<double, kLabelSizes> labelSizes{};
};

State& Module() {
    static State state;
    return state;
}

// The record in a slot. A new one knows its number, so that a game saved before any was loaded loads again.
template <typename Record, size_t count>
Record& Touch(std::array<std::unique_ptr<Record>, count>& table, int slotNumber, int index) {
    std::unique_ptr<Record>& slot = table[CheckedSubscript(slotNumber, int(count))];
    if (!slot) {
        slot = std::make_unique<Record>();
        slot->Index = qint16(index);
    }
    return *slot;
}

} // namespace

C_Space& g_oSpaces(int iSpace) { return Touch(Module().spaces, iSpace, iSpace); }
C_Corner& g_oCorners(int iCorner) { return Touch(Module().corners, iCorner, iCorner); }
C_News& g_oNews(int iGoodOrBad, int iCard) {
    const int set = int(CheckedSubscript(iGoodOrBad, kNewsSets));
    return Touch(Module().news, set * kCards + int(CheckedSubscript(iCard, kCards)), iCard);
}
C_Money& g_oMoney(int iMoney) { return Touch(Module().money, iMoney, iMoney); }
C_Token& g_oTokens(int iToken) { return Touch(Module().tokens, iToken, iToken); }

QString& g_sGameVersion() { return Settings().sGameVersion; }
QString& g_vCurrencySign() { return Module().currencySign; }
Color& g_lNewsColor(int iGoodOrBad) { return Module().newsColor[CheckedSubscript(iGoodOrBad, kNewsSets)]; }
Color& g_lPrintYellow() { return Module().printYellow; }
Color& g_lPrintRed() { return Module().printRed; }
Color& g_lPrintBlack() { return Module().printBlack; }
Color& g_lPrintBack() { return Module().printBack; }
Color& g_lMagicColor() { return Module().magicColor; }
double& g_dblLabelSizes(int iSize) { return Module().labelSizes[CheckedSubscript(iSize, kLabelSizes)]; }

QString CRLF2Space(const QString& sText) {
    QString text = sText;
    return text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
}

void FontFromDialog(const CommonDialog& objDialog, C_FontInfo& oFont) {
    oFont.Load(objDialog.sFontName, objDialog.bFontItalic, objDialog.bFontBold, objDialog.fFontSize);
}

void FontToDialog(CommonDialog& objDialog, const C_FontInfo& oFont) {
    objDialog.iFlags = kScreenFonts;
    objDialog.sFontName = oFont.Family;
    objDialog.bFontBold = oFont.Bold;
    objDialog.bFontItalic = oFont.Italic;
    objDialog.fFontSize = oFont.Size;
}

void ResetForTest() { Module() = State{}; }

} // namespace basTAVL
