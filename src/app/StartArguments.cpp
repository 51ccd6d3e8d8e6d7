// SPDX-License-Identifier: MIT
#include "app/StartArguments.h"

#include "platform/files/Folders.h"
#include "services/ArgumentReader.h"

namespace {

class StartArgumentReader : ArgumentReader {
public:
    StartArgumentReader(const QStringList& words, QString& sError) : ArgumentReader(words, sError) {}

    std::optional<StartArguments> Read() {
        if (!ReadWords()) return std::nullopt;
        return m_arguments;
    }

private:
    bool TakeWord(const QString& sWord) override {
        if (!m_arguments.sRequest.isEmpty()) return ArgumentReader::TakeWord(sWord);
        m_arguments.sRequest = Folders::CompletePath(sWord);
        return true;
    }

    bool ReadOption(const QString& sOption) override {
        if (sOption == QStringLiteral("--help") || sOption == QStringLiteral("-h")) return Flag(m_arguments.bHelp);
        if (sOption == QStringLiteral("--version")) return Flag(m_arguments.bVersion);
        if (sOption == QLatin1String(StartArguments::kNew) || sOption == QLatin1String(StartArguments::kRecent))
            return Request(sOption);
        return Fail(QStringLiteral("unknown option '%1'").arg(sOption));
    }

    bool Request(const QString& sOption) {
        bool asked = false;
        if (!Flag(asked)) return false;
        if (!m_arguments.sRequest.isEmpty()) return ArgumentReader::TakeWord(sOption);
        m_arguments.sRequest = sOption;
        return true;
    }

    StartArguments m_arguments;
};

} // namespace

std::optional<StartArguments> StartArguments::Parse(const QStringList& words, QString& sError) {
    return StartArgumentReader(words, sError).Read();
}

QString StartArguments::Usage() {
    return QStringLiteral(R"(Opens the window in which a board game is designed.

  tavlora                the game that was worked on last
  tavlora GAME           this game: GAME.gam, or GAME.tavlora that somebody sent
  tavlora --new          a new game
  tavlora --recent       the game opened or saved last; in a program that runs, the one before that in hand

  --help, --version
)");
}

QString StartArguments::Version() {
    return QStringLiteral("tavlora %1.%2.%3\n")
        .arg(TAVLORA_VERSION_MAJOR)
        .arg(TAVLORA_VERSION_MINOR)
        .arg(TAVLORA_VERSION_REVISION);
}
