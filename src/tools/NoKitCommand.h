// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

struct PrintArguments;

/// What tavlora-print makes of the game in memory on plain paper and card.
namespace NoKitCommand {

struct Voice {
    std::function<void(const QString& sText)> Complain;
    std::function<bool(const QString& sWhat, int iThousandths)> Progress;
};

/// False when something could not be made, which has then been told.
bool Print(const PrintArguments& arguments, const QString& sTitle, const Voice& voice);

} // namespace NoKitCommand
