// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The pictures of the game's titles, several of which stand on more than one label.
namespace TitlePictures {

enum Title { kTitle, kSubtitle, kSubtitleRed, kSubtitleLines, kCount };

/// Where the picture lies while its sheet is printed.
QString FileOf(Title title);

/// Writes the picture; false when that fails.
bool Make(Title title);

} // namespace TitlePictures
