// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "pieces/TitlePictures.h"

/// What the sheets of labels share.
namespace LabelSheet {

/// Shows a box, and the job keeps that a title could not be made; always false.
bool TellTitle(SheetJob& job, TitlePictures::Title title, const char* sText);

} // namespace LabelSheet
