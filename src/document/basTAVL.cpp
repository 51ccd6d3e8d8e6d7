// SPDX-License-Identifier: MIT
#include "document/basTAVL.h"

#include "document/Locale.h"
#include "document/Subscript.h"
#include "platform/text/NewLine.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"

#include <array>

namespace basTAVL {
namespace {

constexpr int kScreenFonts = 1;

struct State {
    QString currencySign = QString::fromLatin1(Locale::kCurrencySign);
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

template <typename Record, size_t count>
Record& At(std::array<Record, count>& table, int index) {
    return table[CheckedSubscript(index, int(count))];
}

} // namespace

C_Space& g_oSpaces(int iSpace) { return At(TheGame().spaces, iSpace); }
C_Corner& g_oCorners(int iCorner) { return At(TheGame().corners, iCorner); }
C_News& g_oNews(int iGoodOrBad, int iCard) { return At(At(TheGame().news, iGoodOrBad), iCard); }
C_Money& g_oMoney(int iMoney) { return At(TheGame().money, iMoney); }
C_Token& g_oTokens(int iToken) { return At(TheGame().tokens, iToken); }

const QString& g_sGameVersion() { return Settings().sGameVersion; }
void Let_g_sGameVersion(const QString& sVariant) {
    Settings().sGameVersion = sVariant;
    TheGame().kit = KitOf(sVariant);
}
QString& g_vCurrencySign() { return Module().currencySign; }
Color& g_lNewsColor(int iGoodOrBad) { return At(Module().newsColor, iGoodOrBad); }
Color& g_lPrintYellow() { return Module().printYellow; }
Color& g_lPrintRed() { return Module().printRed; }
Color& g_lPrintBlack() { return Module().printBlack; }
Color& g_lPrintBack() { return Module().printBack; }
Color& g_lMagicColor() { return Module().magicColor; }
double& g_dblLabelSizes(int iSize) { return At(Module().labelSizes, iSize); }

QString CRLF2Space(const QString& sText) {
    QString text = sText;
    return text.replace(kNewLine, QStringLiteral(" "));
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

void ResetForTest() {
    TheGame() = Game();
    Module() = State{};
}

} // namespace basTAVL
