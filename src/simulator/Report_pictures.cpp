// SPDX-License-Identifier: MIT
#include "simulator/Chart.h"
#include "simulator/Report.h"

namespace Simulator {
namespace {

constexpr int kMostMinutes = 150;
constexpr int kMinutesPerBar = 5;
constexpr int kMostThousands = 120;
constexpr int kThousandsPerBar = 2;
constexpr int kThousand = 1000;

QString LabelOf(const Tally& tally) { return QStringLiteral("%1 players").arg(tally.players); }

std::vector<double> Bars(const Histogram& histogram, int most, int width) {
    std::vector<double> bars;
    for (int first = 0; first < most; first += width)
        bars.push_back(double(histogram.Within(first, first + width - 1)));
    return bars;
}

template <typename Value>
std::vector<Hill> Hills(const KitPlayed& played, const Value& value, int most, int width) {
    std::vector<Hill> hills;
    for (const Tally& tally : played.tables)
        hills.push_back({LabelOf(tally), Bars(value(tally), most, width)});
    return hills;
}

QString LengthPicture(const KitPlayed& played) {
    return HillChart(QStringLiteral("Minutes of a game"),
                     {QStringLiteral("minutes; tinted: 45 to 120; the last bar: the alarm rang"), 0, kMostMinutes, 15},
                     Hills(
                         played, [](const Tally& tally) { return tally.minutes; }, kMostMinutes, kMinutesPerBar),
                     Asked::kFromMinutes, Asked::kToMinutes);
}

QString MoneyPicture(const KitPlayed& played) {
    return HillChart(
        QStringLiteral("The most money that players hold together"),
        {QStringLiteral("thousands; tinted: what is printed for six players"), 0, kMostThousands, 10},
        Hills(
            played, [](const Tally& tally) { return tally.thousandsOut; }, kMostThousands, kThousandsPerBar),
        0, double(played.set.rules.MoneyFor(kMostPlayers)) / kThousand);
}

QString SeatsPicture(const KitPlayed& played) {
    std::vector<DotRow> rows;
    for (const Tally& tally : played.tables) {
        DotRow row{LabelOf(tally), {}};
        for (int seat = 0; seat < tally.players; ++seat)
            row.dots.push_back(PointsOfSeat(tally, seat));
        rows.push_back(row);
    }
    std::vector<QString> legend;
    legend.reserve(kMostPlayers);
    for (int seat = 0; seat < kMostPlayers; ++seat)
        legend.push_back(QStringLiteral("seat %1").arg(seat + 1));
    return DotChart(QStringLiteral("Wins by seat"),
                    {QStringLiteral("of 100 games, more or less than its share"), -5, 5, 1}, rows, legend,
                    -Asked::kFirstSeatPoints, Asked::kFirstSeatPoints);
}

QString GroupsPicture(const KitPlayed& played) {
    std::vector<DotRow> rows;
    for (int group = 0; group < kGroups; ++group) {
        DotRow row{played.set.groupNames[std::size_t(group)], {}};
        for (const Tally& tally : played.tables)
            row.dots.push_back(tally.groups[std::size_t(group)].earned.Value());
        rows.push_back(row);
    }
    std::vector<QString> legend;
    for (const Tally& tally : played.tables)
        legend.push_back(LabelOf(tally));
    return DotChart(QStringLiteral("What a dollar spent on a group brings in rents"),
                    {QStringLiteral("dollars"), 0, 3, 0.5}, rows, legend, 0, 0);
}

} // namespace

std::vector<ReportPicture> ReportPictures(const KitPlayed& played) {
    const QString ending = QStringLiteral("-%1.svg").arg(VariantOf(played.kit));
    return {{QStringLiteral("length") + ending, LengthPicture(played)},
            {QStringLiteral("seats") + ending, SeatsPicture(played)},
            {QStringLiteral("groups") + ending, GroupsPicture(played)},
            {QStringLiteral("money") + ending, MoneyPicture(played)}};
}

} // namespace Simulator
