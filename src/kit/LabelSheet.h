// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"

class clsRenderDestination;

/// What the sheets of labels share.
namespace LabelSheet {

/// Sets the destination up on the job's page, with upright letters.
void Begin(SheetJob& job, clsRenderDestination& sheet);

/// Shows a box; always false.
bool Tell(const char* sText);

} // namespace LabelSheet
