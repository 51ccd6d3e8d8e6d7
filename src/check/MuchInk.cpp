// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "document/basTAVL.h"
#include "kit/BoardSheet.h"
#include "kit/BoxSheet.h"
#include "kit/MoneySheet.h"
#include "kit/NewsSheet.h"
#include "kit/Sheets.h"

namespace {

// What a page of US Letter shows inside margins of a quarter inch.
constexpr QSizeF kPage(8.0, 10.5);
constexpr double kMuch = 0.4;
// Photos are taken as half dark, half light.
constexpr double kInkOfPhoto = 0.5;
constexpr int kSpacesOnSheet = 12;
constexpr int kHundred = 100;

double AreaOf(QSizeF inches) { return inches.width() * inches.height(); }

// 0 for white paper, 1 for black.
double InkOf(Color color) {
    constexpr double kMost = 3 * 255;
    return 1 - (color.Red() + color.Green() + color.Blue()) / kMost;
}

double LabelSize(basTAVL::LabelSize size) { return basTAVL::g_dblLabelSizes(size); }

double InkOfSpace(const C_Space& space) {
    const double width = LabelSize(basTAVL::kFullWidth);
    const double band = space.SpaceColor.IsNone() ? 0 : LabelSize(basTAVL::kFullBand);
    const double ground = width * (LabelSize(basTAVL::kFullHeight) - band) * InkOf(basTAVL::g_lPrintBack());
    return ground + (band > 0 ? width * band * InkOf(space.SpaceColor) : 0);
}

double InkOfPictures(const CheckedGame& game, const std::function<bool(GamePiece)>& lies) {
    double ink = 0;
    for (const PaperPicture& picture : game.Pictures()) {
        if (picture.fact.head && lies(picture.piece)) ink += AreaOf(picture.inches) * kInkOfPhoto;
    }
    return ink;
}

double InkOfTitles(const std::vector<LabelSheet::TitleLabel>& labels) {
    double ink = 0;
    for (const LabelSheet::TitleLabel& label : labels) {
        const bool red = label.picture == TitlePictures::kSubtitleRed || label.picture == TitlePictures::kSubtitleLines;
        ink += AreaOf(label.inches) * InkOf(red ? basTAVL::g_lPrintRed() : basTAVL::g_lPrintBack());
    }
    return ink;
}

double InkOfBoardSheet(const CheckedGame& game, int iSide) {
    const int first = iSide * basTAVL::kSpaces / 2;
    const auto lies = [&](GamePiece piece) {
        if (piece.kind == GamePiece::Kind::Corner) return iSide == 0;
        return piece.kind == GamePiece::Kind::Space && piece.iNumber >= first &&
               piece.iNumber < first + basTAVL::kSpaces / 2;
    };
    double ink = InkOfPictures(game, lies);
    for (int place = 0; place < kSpacesOnSheet; ++place) {
        const int columns = kSpacesOnSheet / 2;
        ink += InkOfSpace(
            game.game.spaces.at(size_t(GetSpaceFromArrayCoordinates(iSide, place / columns, place % columns))));
    }
    return ink + (iSide == 0 ? 0 : InkOfTitles(TitleLabelsOfBoard()));
}

void Look(Findings& findings, const char* sSheet, double ink) {
    const Sheet& sheet = *FindSheet(QString::fromLatin1(sSheet));
    const double part = ink / AreaOf(kPage);
    if (part <= kMuch) return;
    findings
        .Add(GamePiece::Whole(),
             QStringLiteral("The sheet %1 takes much ink: about %2 % of it is covered.")
                 .arg(sheet.Title(Kit::Eight))
                 .arg(int(part * kHundred)),
             QStringLiteral("Have ink at hand, and let the sheet dry before you cut it."))
        .sheets = QStringList{QString::fromLatin1(sSheet)};
}

} // namespace

template <>
void RunCheck<class MuchInk>(const CheckedGame& game, Findings& findings) {
    const Game& g = game.game;
    if (HasLabelSheets(g.kit)) {
        Look(findings, "box", InkOfTitles(TitleLabelsOfBox()));
        Look(findings, "west", InkOfBoardSheet(game, 0));
        Look(findings, "east", InkOfBoardSheet(game, 1));
    }
    const double cards = AreaOf(NewsCardInches()) * basTAVL::kCards;
    Look(findings, "good", cards * InkOf(basTAVL::g_lNewsColor(0)));
    Look(findings, "bad", cards * InkOf(basTAVL::g_lNewsColor(1)));
    constexpr const char* kMoneySheets[] = {"money100", "money500", "money1000", "money5000"};
    for (int i = 0; i < basTAVL::kMoney; ++i)
        Look(findings, kMoneySheets[i],
             AreaOf(C_Money::NoteInches()) * kNotesOnSheet * InkOf(g.money[size_t(i)].BackColor));
}
