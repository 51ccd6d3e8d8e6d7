// SPDX-License-Identifier: MIT
// Loads any bytes as a game. What loads is saved and loaded again, and must load.
#include "FuzzHost.h"

#include "document/GameFile.h"
#include "platform/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const FuzzHost& host = FuzzHost::Get();
    QString name = host.Write(QStringLiteral("input.gam"), data, size);
    try {
        int result = 0;
        GameFile::GameLoad(name, result);
        if (result != 0) return 0;
        const QByteArray saved = TextFile::Encode(TextFile::JoinLines(GameFile::ComposeLines()));
        QString again = host.Write(QStringLiteral("again.gam"), reinterpret_cast<const uint8_t*>(saved.constData()),
                                   size_t(saved.size()));
        GameFile::GameLoad(again, result);
        if (result != 0) std::abort();
    } catch (const ProgramEnded&) {
        // A font of size 0 ends the program, by its own message.
    }
    return 0;
}
