// SPDX-License-Identifier: MIT
#pragma once

/// What the sheets of labels share.
namespace LabelSheet {

/// Shows a box; always false.
bool Tell(const char* sText);

} // namespace LabelSheet
