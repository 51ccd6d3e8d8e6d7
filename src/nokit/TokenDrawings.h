// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class Recording;

/// Tokens of the game in memory, drawn as large as they are printed: their picture or, where they have none, their
/// text.
namespace TokenDrawings {

/// Round, on the token's colour; so many inches across.
std::shared_ptr<const Recording> Round(int iToken, double dblInches);
/// Square, as a figure bears it.
std::shared_ptr<const Recording> Square(int iToken, double dblInches);
/// Whether the square shows a picture, which may be seen mirrored; a text may not.
bool ShowsPicture(int iToken);

} // namespace TokenDrawings
