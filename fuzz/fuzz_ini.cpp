// SPDX-License-Identifier: MIT
// Reads any bytes as a settings file, writes a key into it and reads that key back.
#include "FuzzHost.h"

#include "platform/files/ProfileFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString path = FuzzHost::Get().Write(QStringLiteral("input.ini"), data, size);
    const QString section = QStringLiteral("tavlora");
    ProfileFile::Read(path, section, QStringLiteral("GameName"));
    const QString key = QStringLiteral("ShowSplash");
    if (!ProfileFile::Write(path, section, key, QStringLiteral("False"))) return 0;
    if (ProfileFile::Read(path, section, key) != QStringLiteral("False")) std::abort();
    return 0;
}
