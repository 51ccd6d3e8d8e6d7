// SPDX-License-Identifier: MIT
#include "game/RecoveredName.h"

#include "document/GameBounds.h"
#include "document/GameText.h"
#include "game/Autosave.h"
#include "game/GameNames.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace RecoveredName {
namespace {

bool IsGame(const QString& sPath) {
    QString error;
    if (Files::Size(sPath) > GameBounds::kMaxGameSize) return false;
    const std::optional<QByteArray> bytes = Files::ReadAll(sPath, error);
    return bytes && ReadGameHeader(*bytes).bIsGame;
}

bool MayBeSavedTo(const QString& sPath) {
    if (!Folders::IsComplete(sPath) || Autosave::IsOneOf(sPath) || Files::IsDirectory(sPath)) return false;
    if (Files::Exists(sPath)) return IsGame(sPath);
    QString error;
    return Files::IsNoSpecialFile(sPath, error) && sPath.endsWith(QStringLiteral(".gam"), Qt::CaseInsensitive);
}

} // namespace

QString For(const QString& sNameInHeader) {
    if (MayBeSavedTo(sNameInHeader)) return sNameInHeader;
    const QString name = GameNames::FirstFreeName(basCommon::GetMyGamesDirectory());
    basErrLog::ErrLogToFile(
        QStringLiteral("The autosave names '%1', which is no game. It goes on as '%2'.").arg(sNameInHeader, name),
        true);
    return name;
}

} // namespace RecoveredName
