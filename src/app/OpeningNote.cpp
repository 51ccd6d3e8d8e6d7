// SPDX-License-Identifier: MIT
#include "app/OpeningNote.h"

#include "platform/files/Files.h"
#include "services/basPath.h"

namespace OpeningNote {
namespace {

QString Path() { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral(".tavlora.opening")); }

} // namespace

QString Left() {
    QString error;
    const QString path = Path();
    if (!Files::Exists(path)) return {};
    return QString::fromUtf8(Files::ReadAll(path, error).value_or(QByteArray()));
}

void Write(const QString& sGame) {
    QString error;
    Remove();
    // It has to outlive this process only, so nobody waits for the disk.
    Files::Append(Path(), sGame.toUtf8(), error);
}

void Remove() {
    QString error;
    Files::Remove(Path(), error);
}

} // namespace OpeningNote
