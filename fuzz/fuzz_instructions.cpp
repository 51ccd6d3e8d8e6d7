// SPDX-License-Identifier: MIT
// Prints any bytes as the rules of the game, with names that hold tags themselves.
#include "FuzzHost.h"

#include "platform/paint/Surface.h"
#include "render/clsRenderDestination.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzHost::Get().Write(QStringLiteral("GamePlay.dat"), data, size);
    static ScratchForm page(QSize(64, 64));
    clsRenderDestination destination;
    destination.Init(page, 0.125);
    const QString tag = QStringLiteral("a <TAVLORA> b");
    QString why;
    destination.InstructionSheet({tag, tag, tag, tag, tag, tag, tag}, why);
    return 0;
}
