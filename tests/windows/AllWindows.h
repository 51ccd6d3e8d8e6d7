// SPDX-License-Identifier: MIT
#pragma once

#include "support/EditorFixture.h"

#include <map>
#include <memory>

/// Every window of this floor as it opens, by its object name. Settings must be at hand.
std::map<QString, std::unique_ptr<QWidget>> AllWindows(Session& session);
