// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "document/basTAVL.h"
#include "services/BoardFacts.h"

#include <algorithm>
#include <cmath>

namespace {

// Ratio of contrast below which letters can hardly be read; black on white has 21.
constexpr double kLeastContrast = 3;

double Linear(int channel) {
    constexpr double kMost = 255;
    const double value = channel / kMost;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
    return 0.2126 * Linear(color.Red()) + 0.7152 * Linear(color.Green()) + 0.0722 * Linear(color.Blue());
}

double Contrast(Color a, Color b) {
    constexpr double kStrayLight = 0.05;
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + kStrayLight) / (dark + kStrayLight);
}

void Look(Findings& findings, GamePiece piece, Color ink, Color ground, const char* sWhat, const QStringList& sheets) {
    if (Contrast(ink, ground) >= kLeastContrast) return;
    findings
        .Add(piece,
             QStringLiteral("The colours of %1 and of the letters on it are too near to each other.")
                 .arg(QLatin1String(sWhat)),
             QStringLiteral("Choose a darker ink under View, Setup."))
        .sheets = sheets;
}

void Look(Findings& findings, GamePiece piece, Color ink, Color ground, const char* sWhat) {
    Look(findings, piece, ink, ground, sWhat, PieceSheets::Of(piece));
}

QStringList DeedSheets() { return PieceSheets::OfDeed(0) + PieceSheets::OfDeed(BoardFacts::kSpaces - 1); }

} // namespace

template <>
void RunCheck<class ColoursNear>(const CheckedGame& game, Findings& findings) {
    const Color ink = basTAVL::g_lPrintBlack();
    const QStringList titles = PieceSheets::Of(GamePiece::Titles());
    const QStringList labels = titles + PieceSheets::OfSticker(GamePiece::Corner(0));
    Look(findings, GamePiece::Whole(), ink, basTAVL::g_lPrintBack(), "the labels", labels);
    Look(findings, GamePiece::Whole(), ink, basTAVL::g_lPrintRed(), "the subtitle's labels", titles);
    Look(findings, GamePiece::Whole(), ink, Color::White(), "the deeds", DeedSheets());
    for (int deck = 0; deck < basTAVL::kNewsSets; ++deck)
        Look(findings, GamePiece::Deck(deck), ink, basTAVL::g_lNewsColor(deck), "the cards");
    for (int i = 0; i < basTAVL::kMoney; ++i)
        Look(findings, GamePiece::Money(i), Color::Black(), game.game.money[size_t(i)].BackColor, "the note");
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        const C_Token& token = game.game.tokens[size_t(i)];
        if (token.Image.FullPath().isEmpty())
            Look(findings, GamePiece::Token(i), Color::Black(), token.BackColor, "the token");
    }
}
