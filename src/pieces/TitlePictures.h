// SPDX-License-Identifier: MIT
#pragma once

#include "pieces/PrintedText.h"

#include <QString>

class Titles;

/// The pictures of the game's titles, several of which stand on more than one label.
namespace TitlePictures {

enum Title { kTitle, kSubtitle, kSubtitleRed, kSubtitleLines, kCount };

/// Where the picture lies while its sheet is printed.
QString FileOf(Title title);

/// Writes the picture; false when that fails.
bool Make(Title title);

/// The same of whatever game, kept instead of written. Labels stretch it.
PrintedText Record(Title title, const Titles& titles);
/// The special text that it shows.
int RecordOf(Title title);

} // namespace TitlePictures
