// SPDX-License-Identifier: MIT
#include "simulator/PlayArguments.h"

namespace {

// More would take days.
constexpr int kMostGames = 100000000;
constexpr int kMostThreads = 256;

class ArgumentReader {
public:
    ArgumentReader(const QStringList& words, QString& sError) : m_words(words), m_error(sError) {}

    std::optional<PlayArguments> Read() {
        while (m_at < m_words.size()) {
            if (!ReadOption(m_words.at(m_at++))) return std::nullopt;
        }
        return m_arguments;
    }

private:
    bool Fail(const QString& sError) {
        m_error = sError;
        return false;
    }

    bool ReadOption(const QString& sWord) {
        const qsizetype equals = sWord.startsWith(QStringLiteral("--")) ? sWord.indexOf(u'=') : -1;
        m_option = equals < 0 ? sWord : sWord.left(equals);
        m_inline = equals < 0 ? std::optional<QString>() : sWord.mid(equals + 1);
        if (m_option == QStringLiteral("--help") || m_option == QStringLiteral("-h")) return Flag(m_arguments.bHelp);
        if (m_option == QStringLiteral("--version")) return Flag(m_arguments.bVersion);
        if (m_option == QStringLiteral("--games")) return Number(m_arguments.iGames, 1, kMostGames);
        if (m_option == QStringLiteral("--players"))
            return Number(m_arguments.iPlayers, Simulator::kFewestPlayers, Simulator::kMostPlayers);
        if (m_option == QStringLiteral("--seed")) return Number(m_arguments.iSeed, 0, std::numeric_limits<int>::max());
        if (m_option == QStringLiteral("--threads")) return Number(m_arguments.iThreads, 1, kMostThreads);
        if (m_option == QStringLiteral("--variant")) return Variant();
        if (m_option == QStringLiteral("--game")) return Text(m_arguments.sGame);
        if (m_option == QStringLiteral("--data")) return Text(m_arguments.sData);
        if (m_option == QStringLiteral("--report")) return Text(m_arguments.sReport);
        if (!m_option.startsWith(u'-')) return Fail(QStringLiteral("unexpected argument '%1'").arg(sWord));
        return Fail(QStringLiteral("unknown option '%1'").arg(m_option));
    }

    bool Flag(bool& bFlag) {
        if (m_inline) return Fail(QStringLiteral("option '%1' takes no value").arg(m_option));
        bFlag = true;
        return true;
    }

    bool Text(QString& sValue) {
        if (!m_inline && m_at < m_words.size()) m_inline = m_words.at(m_at++);
        if (!m_inline || m_inline->isEmpty()) return Fail(QStringLiteral("option '%1' needs a value").arg(m_option));
        sValue = *m_inline;
        return true;
    }

    bool Number(int& iValue, int iLeast, int iMost) {
        QString text;
        if (!Text(text)) return false;
        bool ok = false;
        iValue = text.toInt(&ok);
        if (ok && iValue >= iLeast && iValue <= iMost) return true;
        return Fail(QStringLiteral("option '%1' takes a whole number from %2 to %3, not '%4'")
                        .arg(m_option, QString::number(iLeast), QString::number(iMost), text));
    }

    bool Variant() {
        QString text;
        if (!Text(text)) return false;
        const Kit kit = KitOf(text);
        if (kit == Kit::Unknown)
            return Fail(QStringLiteral("option '%1' takes one of 8, 5, 2A, 2, not '%2'").arg(m_option, text));
        m_arguments.kits = {kit};
        return true;
    }

    const QStringList& m_words;
    QString& m_error;
    qsizetype m_at = 0;
    QString m_option;
    std::optional<QString> m_inline;
    PlayArguments m_arguments;
};

} // namespace

std::optional<PlayArguments> PlayArguments::Parse(const QStringList& words, QString& sError) {
    return ArgumentReader(words, sError).Read();
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
