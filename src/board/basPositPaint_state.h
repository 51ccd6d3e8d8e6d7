// SPDX-License-Identifier: MIT
#pragma once

/// For the sources of the board's painting only.
namespace basPosit {

/// Before a paint: nothing is awaited yet, and what must be decoded is decoded on other processors meanwhile.
void StartPictures();

} // namespace basPosit
