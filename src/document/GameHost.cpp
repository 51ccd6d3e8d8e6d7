// SPDX-License-Identifier: MIT
#include "document/GameHost.h"

#include "services/basErrLog.h"

#include <utility>

namespace {

GameHost*& Installed() {
    static GameHost* host = nullptr;
    return host;
}

} // namespace

GameHost* GameHost::Install(GameHost* host) { return std::exchange(Installed(), host); }

GameHost& GameHost::Current() {
    basErrLog::ErrAssert(Installed() != nullptr, QStringLiteral("No game host was installed"));
    return *Installed();
}
