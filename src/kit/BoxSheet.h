// SPDX-License-Identifier: MIT
#pragma once

#include "kit/LabelSheet.h"
#include "kit/SheetJob.h"

#include <vector>

/// A sheet of peel-and-stick labels of kit "8": titles and side strips of the box, and two round stickers for each
/// token. Paints one page that the caller has set lengthwise and doesn't end the document. False after a failure,
/// which has then been told; what was painted before it stays on the page.
bool StickerBoxAndTokenSheet(SheetJob& job);

/// The labels with titles that lie on it.
std::vector<LabelSheet::TitleLabel> TitleLabelsOfBox();
