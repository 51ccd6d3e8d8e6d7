// SPDX-License-Identifier: MIT
// Loads any bytes as a game. What loads is saved and loaded again, and must load.
#include "FuzzHost.h"

#include "game/GameFile.h"
#include "services/basPath.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzHost& host = FuzzHost::Get();
    host.Reset();
    QString name = host.Write(QStringLiteral("input.gam"), data, size);
    try {
        int result = 0;
        GameFile::GameLoad(name, result);
        if (result != 0) return 0;
        QString again = basCommon::JoinPath(QString::fromLatin1(FuzzHost::kFolder), QStringLiteral("again.gam"));
        bool saved = false;
        GameFile::GameSave(again, saved);
        if (!saved) std::abort();
        GameFile::GameLoad(again, result);
        if (result != 0) std::abort();
    } catch (const ProgramEnded&) {
        // A font of size 0 ends the program, by its own message.
    }
    return 0;
}
