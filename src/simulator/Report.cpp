// SPDX-License-Identifier: MIT
#include "simulator/Report.h"

#include "platform/text/Numbers.h"

namespace Simulator {
namespace {

constexpr int kThousand = 1000;

QString Fixed(double value, int decimals) { return QString::number(value, 'f', decimals); }

QString WithBounds(const Estimate& estimate, double factor, int decimals) {
    return QStringLiteral("%1 ± %2").arg(Fixed(factor * estimate.value, decimals),
                                         Fixed(factor * estimate.HalfWidth(), decimals));
}
QString Percent(const Estimate& share) { return WithBounds(share, 100, 1) + QStringLiteral(" %"); }
QString Between(const Estimate& estimate) {
    return QStringLiteral("%1 (%2 to %3)")
        .arg(Fixed(estimate.value, 0), Fixed(estimate.low, 0), Fixed(estimate.high, 0));
}

QString Row(const QStringList& cells) {
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |");
}

// The first row and the rule below it.
QStringList Head(const QStringList& cells) {
    return {Row(cells), QStringLiteral("|---") + QStringLiteral("|---:").repeated(cells.size() - 1) + u'|'};
}

QStringList Picture(const KitPlayed& played, const char* what, const char* told, bool withPictures) {
    if (!withPictures) return {};
    return {QString(), QStringLiteral("![%1](economy/%2-%3.svg)")
                           .arg(QString::fromLatin1(told), QString::fromLatin1(what), VariantOf(played.kit))};
}

QStringList Lengths(const KitPlayed& played) {
    QStringList lines =
        Head({QStringLiteral("Players"), QStringLiteral("turns"), QStringLiteral("1 in 20 below, minutes"),
              QStringLiteral("median"), QStringLiteral("1 in 20 above"), QStringLiteral("45 to 120 minutes"),
              QStringLiteral("ended by somebody going broke")});
    for (const Tally& tally : played.tables) {
        lines.append(Row({QString::number(tally.players), WithBounds(tally.turns.Mean(), 1, 0),
                          Between(tally.minutes.Quantile(0.05)), Between(tally.minutes.Quantile(0.5)),
                          Between(tally.minutes.Quantile(0.95)), Percent(InTime(tally)),
                          Percent(ShareOf(tally.endedBroke, tally.games))}));
    }
    return lines;
}

QStringList Seats(const KitPlayed& played) {
    QStringList head = {QStringLiteral("Players")};
    for (int seat = 0; seat < kMostPlayers; ++seat)
        head.append(QStringLiteral("seat %1").arg(seat + 1));
    QStringList lines = Head(head);
    for (const Tally& tally : played.tables) {
        QStringList row = {QString::number(tally.players)};
        for (int seat = 0; seat < kMostPlayers; ++seat)
            row.append(seat < tally.players ? WithBounds(PointsOfSeat(tally, seat), 1, 1) : QString());
        lines.append(Row(row));
    }
    return lines;
}

QStringList Kinds(const KitPlayed& played) {
    QStringList head = {QStringLiteral("Players")};
    for (const PlayerKind& kind : kPlayerKinds)
        head.append(QString::fromLatin1(kind.name));
    QStringList lines = Head(head);
    for (const Tally& tally : played.tables) {
        QStringList row = {QString::number(tally.players)};
        for (std::size_t kind = 0; kind < kPlayerKinds.size(); ++kind)
            row.append(Percent(ShareOf(tally.winsOfKind[kind], tally.seatsOfKind[kind])));
        lines.append(Row(row));
    }
    return lines;
}

template <typename Cell>
QStringList ByGroup(const KitPlayed& played, const Cell& cell) {
    QStringList head = {QStringLiteral("Group")};
    for (const Tally& tally : played.tables)
        head.append(QStringLiteral("%1 players").arg(tally.players));
    QStringList lines = Head(head);
    for (int group = 0; group < kGroups; ++group) {
        QStringList row = {played.set.groupNames[std::size_t(group)]};
        for (const Tally& tally : played.tables)
            row.append(cell(tally, tally.groups[std::size_t(group)]));
        lines.append(Row(row));
    }
    return lines;
}

QStringList Titled(const char* title, const QStringList& lines) {
    return QStringList{QString(), QString::fromUtf8(title), QString()} + lines;
}

QStringList Groups(const KitPlayed& played) {
    using Group = Tally::Group;
    return Titled("How often a token lands on one of its spaces in a game:",
                  ByGroup(played,
                          [](const Tally&, const Group& group) { return WithBounds(group.landings.Mean(), 1, 1); })) +
           Titled(
               "How many of its deeds are bought:",
               ByGroup(played, [](const Tally&,
                                  const Group& group) { return Percent(ShareOf(group.deedsBought, group.deeds)); })) +
           Titled("Games in which one player has the whole group at some time:",
                  ByGroup(played, [](const Tally& tally,
                                     const Group& group) { return Percent(ShareOf(group.gamesWhole, tally.games)); })) +
           Titled("Games in which its rents come up to all that was paid for its deeds and stories:",
                  ByGroup(played,
                          [](const Tally&, const Group& group) {
                              return Percent(ShareOf(group.gamesPaid, group.gamesBought));
                          })) +
           Titled("What a dollar spent on it brings in rents, on average of all games:",
                  ByGroup(played,
                          [](const Tally&, const Group& group) { return WithBounds(group.earned.Value(), 1, 2); }));
}

QStringList LottoAndMoney(const KitPlayed& played) {
    QStringList lines = Head({QStringLiteral("Players"), QStringLiteral("back of $100 bet at the lotto"),
                              QStringLiteral("most money out, median, thousands"), QStringLiteral("1 in 100 above"),
                              QStringLiteral("printed, thousands"), QStringLiteral("games it is enough for")});
    for (const Tally& tally : played.tables) {
        lines.append(Row({QString::number(tally.players), WithBounds(tally.lotto.Value(), 100, 1),
                          Between(tally.thousandsOut.Quantile(0.5)), Between(tally.thousandsOut.Quantile(0.99)),
                          QString::number(played.set.rules.MoneyFor(tally.players) / kThousand),
                          Percent(MoneyEnough(tally, played.set.rules))}));
    }
    return lines;
}

QStringList Verdict(const KitPlayed& played) {
    const QStringList misses = Misses(played);
    if (misses.isEmpty()) return {QStringLiteral("All that is asked holds.")};
    QStringList lines = {QStringLiteral("What doesn't hold:"), QString()};
    for (const QString& miss : misses)
        lines.append(QStringLiteral("- ") + miss);
    return lines;
}

QStringList Section(const KitPlayed& played, bool pictures) {
    const QString kit = VariantOf(played.kit);
    const QString rents =
        played.set.deeds.HasStories() ? QStringLiteral("Rents_US.dat") : QStringLiteral("older/Rents_US.dat");
    QStringList lines = {QString(), QStringLiteral("## Kit \"%1\": %2").arg(kit, rents), QString(),
                         QStringLiteral("%1 games for each number of players, seed %2, deeds, cards and rules %3.")
                             .arg(WithThousands(played.plan.games))
                             .arg(played.plan.seed)
                             .arg(Fingerprint(played.set)),
                         QString()};
    lines += Verdict(played);
    lines +=
        Titled("### How long a game lasts", Lengths(played)) + Picture(played, "length", "Minutes of a game", pictures);
    lines += Titled(
        "### Who wins",
        {QStringLiteral("How many of a hundred games a seat wins more than its share; seat 1 goes first:"), QString()});
    lines += Seats(played) + Picture(played, "seats", "Wins by seat", pictures);
    lines += Titled("How many of its games a kind of player wins:", Kinds(played));
    lines += QStringList{QString(), QStringLiteral("### The groups")} + Groups(played) +
             Picture(played, "groups", "What a dollar spent on a group brings", pictures);
    lines += Titled("### Lotto and money", LottoAndMoney(played)) +
             Picture(played, "money", "The most money that players hold", pictures);
    return lines;
}

QStringList Introduction() {
    QStringList lines = QStringLiteral(R"(# The economy, played

What comes of the rents, the news cards and the rules of the game when they are played, over and over, by players who
never tire. This page and its pictures are made by

    tavlora-play --report docs

A turn is a throw of the dice that moves a token, and counts 25 seconds; each deed bought or traded, and each time of
building, 20 more. Figures come with the bounds that hold the true one in 19 of 20 such samples, as ± or in brackets.
Game *i* of a table is the same game whenever it is played with the same seed. Who sits at the table is drawn anew for
each game, and any two may be of one kind:
)")
                            .split(u'\n');
    for (const PlayerKind& kind : kPlayerKinds) {
        lines.append(
            QStringLiteral(
                "- *%1* keeps $%2 when buying and $%3 when building, bids %4 % of a deed's price (%5 % where it "
                "completes a group), bets $%6 at the lotto%7")
                .arg(QString::fromLatin1(kind.name), WithThousands(kind.keepsWhenBuying),
                     WithThousands(kind.keepsWhenBuilding))
                .arg(kind.bids)
                .arg(kind.bidsForGroup)
                .arg(kind.lottoBet)
                .arg(kind.proposesTrades ? QStringLiteral(" and proposes trades.") : QStringLiteral(".")));
    }
    lines += QStringLiteral(R"(
Asked is: nine games of ten last 45 to 120 minutes; going first is worth less than 3 of 100 games either way; the lotto
keeps at most $10 of $100 (by its odds it keeps $%1 in the long run); the money that the rules tell to print is enough in
99 games of 100.)")
                 .arg(Fixed(100 * (1 - LottoReturn()), 2))
                 .split(u'\n');
    return lines;
}

} // namespace

Estimate InTime(const Tally& tally) {
    return ShareOf(tally.minutes.Within(Asked::kFromMinutes, Asked::kToMinutes - 1), tally.games);
}

Estimate PointsOfSeat(const Tally& tally, int seat) {
    const Estimate share = ShareOf(tally.winsBySeat[std::size_t(seat)], tally.games);
    const double fair = 1.0 / tally.players;
    return {100 * (share.value - fair), 100 * (share.low - fair), 100 * (share.high - fair)};
}

Estimate MoneyEnough(const Tally& tally, const HouseRules& rules) {
    return ShareOf(tally.thousandsOut.Within(0, rules.MoneyFor(tally.players) / kThousand - 1), tally.games);
}

QStringList Misses(const KitPlayed& played) {
    QStringList misses;
    for (const Tally& tally : played.tables) {
        const QString players = QStringLiteral("%1 players: ").arg(tally.players);
        if (InTime(tally).low < Asked::kShareOfGames)
            misses.append(players + QStringLiteral("%1 of games last 45 to 120 minutes.").arg(Percent(InTime(tally))));
        const Estimate first = PointsOfSeat(tally, 0);
        if (first.high >= Asked::kFirstSeatPoints || first.low <= -Asked::kFirstSeatPoints)
            misses.append(players + QStringLiteral("going first is worth %1 points.").arg(WithBounds(first, 1, 1)));
        if (MoneyEnough(tally, played.set.rules).low < Asked::kMoneyEnough)
            misses.append(players + QStringLiteral("the money is enough in %1 of games.")
                                        .arg(Percent(MoneyEnough(tally, played.set.rules))));
    }
    if (1 - LottoReturn() > Asked::kHouseKeeps) misses.append(QStringLiteral("The lotto keeps too much."));
    return misses;
}

QStringList ReportLines(const std::vector<KitPlayed>& kits, bool withPictures) {
    QStringList lines = Introduction();
    for (const KitPlayed& played : kits)
        lines += Section(played, withPictures);
    return lines;
}

} // namespace Simulator
