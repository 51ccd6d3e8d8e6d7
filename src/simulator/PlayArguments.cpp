// SPDX-License-Identifier: MIT
#include "simulator/PlayArguments.h"

#include "services/ArgumentReader.h"

#include <limits>

namespace {

// More would take days.
constexpr int kMostGames = 100000000;
constexpr int kMostThreads = 256;

class PlayArgumentReader : ArgumentReader {
public:
    PlayArgumentReader(const QStringList& words, QString& sError) : ArgumentReader(words, sError) {}

    std::optional<PlayArguments> Read() {
        if (!ReadWords()) return std::nullopt;
        return m_arguments;
    }

private:
    bool ReadOption(const QString& sOption) override {
        if (sOption == QStringLiteral("--help") || sOption == QStringLiteral("-h")) return Flag(m_arguments.bHelp);
        if (sOption == QStringLiteral("--version")) return Flag(m_arguments.bVersion);
        if (sOption == QStringLiteral("--games")) return Number(m_arguments.iGames, 1, kMostGames);
        if (sOption == QStringLiteral("--players"))
            return Number(m_arguments.iPlayers, Simulator::kFewestPlayers, Simulator::kMostPlayers);
        if (sOption == QStringLiteral("--seed")) return Number(m_arguments.iSeed, 0, std::numeric_limits<int>::max());
        if (sOption == QStringLiteral("--threads")) return Number(m_arguments.iThreads, 1, kMostThreads);
        if (sOption == QStringLiteral("--variant")) return Variant();
        if (sOption == QStringLiteral("--game")) return Text(m_arguments.sGame);
        if (sOption == QStringLiteral("--data")) return Text(m_arguments.sData);
        if (sOption == QStringLiteral("--report")) return Text(m_arguments.sReport);
        return Fail(QStringLiteral("unknown option '%1'").arg(sOption));
    }

    bool Variant() {
        QString text;
        if (!OneOf(text, {QStringLiteral("8"), QStringLiteral("5"), QStringLiteral("2A"), QStringLiteral("2")}))
            return false;
        m_arguments.kits = {KitOf(text)};
        return true;
    }

    PlayArguments m_arguments;
};

} // namespace

std::optional<PlayArguments> PlayArguments::Parse(const QStringList& words, QString& sError) {
    return PlayArgumentReader(words, sError).Read();
}

QString PlayArguments::Usage() {
    return QStringLiteral(
        R"(Plays a Tavlora game by itself, thousands of times, and tells how long it lasts, who wins and what pays.

  tavlora-play                        all kits' deeds, two to six players, the report on standard output
  tavlora-play --report DIR           the report with pictures as DIR/economy.md

Options:
  --games N             games for each number of players (default 20000)
  --players N           only for so many players, 2 to 6
  --seed N              another seed plays other games (default 1)
  --threads N           games played side by side (default 2); changes nothing in the report
  --variant 8|5|2A|2    only with this kit's deeds
  --game GAME.gam       draw this game's news cards
  --data DIR            take the program's own data files (rents, news) from DIR
  --help, --version

Exit status: 0 when the report was made, 1 when something could not be read or written, 2 for wrong usage.
)");
}
