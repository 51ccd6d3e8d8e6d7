// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "pieces/TitlePictures.h"

#include <QSizeF>

/// What the sheets of labels share.
namespace LabelSheet {

/// A label with a title of the game, and what its caption calls it.
struct TitleLabel {
    TitlePictures::Title picture;
    QSizeF inches;
    const char* sLegend;
};

/// Shows a box, and the job keeps that a title could not be made; always false.
bool TellTitle(SheetJob& job, TitlePictures::Title title, const char* sText);

} // namespace LabelSheet
