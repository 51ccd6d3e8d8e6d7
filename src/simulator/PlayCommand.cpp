// SPDX-License-Identifier: MIT
#include "simulator/PlayCommand.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basPath.h"
#include "simulator/PlayArguments.h"
#include "simulator/PlaySetFiles.h"
#include "simulator/Report.h"

#include <ostream>

using namespace Simulator;

namespace {

std::optional<PlaySet> ReadSetFor(const PlayArguments& arguments, Kit kit, QString& sError) {
    const QString folder =
        arguments.sData.isEmpty() ? Folders::ProgramDirectory() : Folders::CompletePath(arguments.sData);
    PlaySetFiles files = ShippedFiles(folder, kit);
    if (!arguments.sGame.isEmpty()) files.game = Folders::CompletePath(arguments.sGame);
    return ReadPlaySet(files, sError);
}

bool WriteReport(const QString& sFolder, const std::vector<KitPlayed>& kits, QString& sError) {
    const QString pictures = basCommon::JoinPath(sFolder, QStringLiteral("economy"));
    if (!Files::MakeDirectory(sFolder, sError) || !Files::MakeDirectory(pictures, sError)) return false;
    for (const KitPlayed& played : kits) {
        for (const ReportPicture& picture : ReportPictures(played)) {
            if (!Files::WriteWhole(basCommon::JoinPath(pictures, picture.name), picture.svg.toUtf8(), sError))
                return false;
        }
    }
    const QByteArray text = (ReportLines(kits, true).join(u'\n') + u'\n').toUtf8();
    return Files::WriteWhole(basCommon::JoinPath(sFolder, QStringLiteral("economy.md")), text, sError);
}

} // namespace

void PlayCommand::Complain(const QString& sText) {
    Progress(QString());
    m_err << "tavlora-play: " << sText.toUtf8().constData() << std::endl;
}

void PlayCommand::Progress(const QString& sText) {
    if (m_showProgress) m_err << "\r\x1b[K" << sText.toUtf8().constData() << std::flush;
}

KitPlayed PlayCommand::PlayKit(const PlayArguments& arguments, Kit kit, const PlaySet& set) {
    KitPlayed played{kit, set, {}, {}};
    played.plan.games = arguments.iGames;
    played.plan.seed = std::uint64_t(arguments.iSeed);
    played.plan.threads = arguments.iThreads;
    for (int players = kFewestPlayers; players <= kMostPlayers; ++players) {
        if (arguments.iPlayers != 0 && players != arguments.iPlayers) continue;
        Progress(QStringLiteral("Kit %1, %2 players").arg(VariantOf(kit)).arg(players));
        played.plan.players = players;
        played.tables.push_back(RunGames(set, played.plan));
    }
    Progress(QString());
    return played;
}

int PlayCommand::Carry(const PlayArguments& arguments) {
    std::vector<KitPlayed> kits;
    QString error;
    for (const Kit kit : arguments.kits) {
        const std::optional<PlaySet> set = ReadSetFor(arguments, kit, error);
        if (!set) {
            Complain(error);
            return kFailed;
        }
        kits.push_back(PlayKit(arguments, kit, *set));
    }
    if (arguments.sReport.isEmpty()) {
        m_out << ReportLines(kits, false).join(u'\n').toUtf8().constData() << std::endl;
        return kDone;
    }
    if (WriteReport(Folders::CompletePath(arguments.sReport), kits, error)) return kDone;
    Complain(QStringLiteral("the report can't be written to '%1': %2").arg(arguments.sReport, error));
    return kFailed;
}

int PlayCommand::Run(const QStringList& words) {
    QString error;
    const std::optional<PlayArguments> arguments = PlayArguments::Parse(words, error);
    if (!arguments) {
        Complain(error + QStringLiteral("; see --help"));
        return kWrongUsage;
    }
    if (arguments->bHelp) {
        m_out << PlayArguments::Usage().toUtf8().constData();
        return kDone;
    }
    if (arguments->bVersion) {
        m_out << "tavlora-play " << TAVLORA_VERSION_MAJOR << '.' << TAVLORA_VERSION_MINOR << '.'
              << TAVLORA_VERSION_REVISION << std::endl;
        return kDone;
    }
    return Carry(*arguments);
}
