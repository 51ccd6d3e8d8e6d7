// SPDX-License-Identifier: MIT
#include "nokit/NoKitChoices.h"

#include "document/basTAVL.h"
#include "nokit/Millimetres.h"
#include "platform/text/Numbers.h"
#include "services/BoardFacts.h"

#include <array>

namespace {

struct PaperRow {
    PaperSize paper;
    const char* sWord;
    QSizeF inches;
};
const std::array<PaperRow, 4> kPapers = {{{PaperSize::Letter, "letter", {8.5, 11}},
                                          {PaperSize::A4, "a4", {Inches(210), Inches(297)}},
                                          {PaperSize::Tabloid, "tabloid", {11, 17}},
                                          {PaperSize::A3, "a3", {Inches(297), Inches(420)}}}};

struct Unit {
    const char* sEnding;
    double inches;
};
constexpr std::array<Unit, 4> kUnits = {{{"in", 1}, {"cm", Inches(10)}, {"mm", Inches(1)}, {"", 1}}};

} // namespace

QSizeF NoKitChoices::PaperInches() const { return kPapers.at(size_t(paper)).inches; }

std::optional<PaperSize> NoKitChoices::PaperOf(const QString& sWord) {
    for (const PaperRow& row : kPapers) {
        if (sWord == QLatin1String(row.sWord)) return row.paper;
    }
    return std::nullopt;
}

std::optional<BoardWay> NoKitChoices::WayOf(const QString& sWord) {
    if (sWord == QStringLiteral("pages")) return BoardWay::Pages;
    if (sWord == QStringLiteral("quarters")) return BoardWay::Quarters;
    if (sWord == QStringLiteral("page")) return BoardWay::OnePage;
    return std::nullopt;
}

double NoKitChoices::BoardInches() const {
    if (dblWantedInches != kAsTheKit) return dblWantedInches;
    // A sticker is as wide as its space.
    return basTAVL::g_dblLabelSizes(basTAVL::kFullWidth) / BoardFacts::kPitchOfBoard;
}

std::optional<double> NoKitChoices::WantedInchesOf(const QString& sWord) {
    if (sWord == QStringLiteral("kit")) return kAsTheKit;
    for (const Unit& unit : kUnits) {
        const QLatin1String ending(unit.sEnding);
        if (!sWord.endsWith(ending)) continue;
        const std::optional<double> number = ParseNumber(sWord.chopped(ending.size()));
        const double inches = number.value_or(0) * unit.inches;
        if (inches >= kLeastBoardInches && inches <= kMostBoardInches) return inches;
        return std::nullopt;
    }
    return std::nullopt;
}
