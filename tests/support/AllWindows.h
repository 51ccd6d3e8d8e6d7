// SPDX-License-Identifier: MIT
#pragma once

#include "game/Session.h"

#include <QWidget>

#include <map>
#include <memory>

/// Every window but the program's own and those that it alone opens, as it opens, by its object name. Settings must be
/// at hand.
std::map<QString, std::unique_ptr<QWidget>> AllWindows(Session& session);
