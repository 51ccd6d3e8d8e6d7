// SPDX-License-Identifier: MIT
// Reads any bytes as the rents of the kit.
#include "FuzzHost.h"

#include "board/basPositRents.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzHost::Get().Write(QStringLiteral("Rents.dat"), data, size);
    basPosit::ResetRentsForTest();
    try {
        basPosit::ReadRents();
    } catch (const ProgramEnded&) {
        // Rents that can't be read end the program, by their own message.
    }
    return 0;
}
