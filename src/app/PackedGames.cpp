// SPDX-License-Identifier: MIT
#include "app/PackedGames.h"

#include "game/GameNames.h"
#include "pack/Unpacking.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

#include <optional>

namespace PackedGames {

QString Arrive(const QString& sPath) {
    if (!Unpacking::IsPacked(sPath)) return sPath;
    QString error;
    const std::optional<QString> game = Unpacking::Unpack(sPath, basCommon::GetMyGamesDirectory(), error);
    basErrLog::ErrLogToFile(QStringLiteral("Unpack Game Named: ") + sPath + QStringLiteral(": ") + game.value_or(error),
                            true);
    if (!game) MsgBox(error, vbExclamation);
    return game.value_or(QString());
}

void TellWhereItLies(const QString& sPath, const QString& sGame) {
    if (sPath == sGame) return;
    const QString folder = GameNames::FolderOf(sGame).chopped(1);
    MsgBox(QStringLiteral("The game and its pictures now lie in My Games, in the folder '%1'. From now on, open it "
                          "there.")
               .arg(GameNames::FileNameOf(folder)),
           vbInformation);
}

} // namespace PackedGames
