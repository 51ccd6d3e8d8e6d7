// SPDX-License-Identifier: MIT
// Takes any bytes apart as lines of the rules, without laying them out: fast enough for millions.
#include "FuzzHost.h"

#include "platform/files/TextFile.h"
#include "render/clsRenderDestination.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const QString& line : TextFile::SplitLines(TextFile::Decode(bytes))) {
        QString text =
            clsRenderDestination::MakeSubstitutions(line, QStringLiteral("<FATE>"), QStringLiteral("a <FATE> b"));
        QString font;
        QString align;
        int points = 0;
        bool bold = false;
        bool italic = false;
        int result = 0;
        clsRenderDestination::ParseGamePlayLine(text, font, points, align, bold, italic, result);
    }
    return 0;
}
