// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/RunGames.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Simulator {

/// All games that were played with the deeds of one kit.
struct KitPlayed {
    Kit kit;
    PlaySet set;
    Plan plan;
    /// For two players and more.
    std::vector<Tally> tables;
};

/// What is asked of the economy.
namespace Asked {
constexpr int kFromMinutes = 45;
constexpr int kToMinutes = 120;
constexpr double kShareOfGames = 0.9;
/// Going first may be worth so much, in hundredths of all games.
constexpr double kFirstSeatPoints = 3;
constexpr double kHouseKeeps = 0.1;
/// The printed money is enough in so many games.
constexpr double kMoneyEnough = 0.99;
} // namespace Asked

/// Games that lasted as long as a game shall.
Estimate InTime(const Tally& tally);
/// How many more games than its share a seat won, in hundredths of all games.
Estimate PointsOfSeat(const Tally& tally, int seat);
/// Games in which the money printed for so many players was enough.
Estimate MoneyEnough(const Tally& tally, const HouseRules& rules);
/// What of the asked doesn't hold, a line each.
QStringList Misses(const KitPlayed& played);

/// A picture of the report and the name of its file.
struct ReportPicture {
    QString name;
    QString svg;
};

/// The whole report in Markdown, with its pictures or without.
QStringList ReportLines(const std::vector<KitPlayed>& kits, bool withPictures);
std::vector<ReportPicture> ReportPictures(const KitPlayed& played);

} // namespace Simulator
