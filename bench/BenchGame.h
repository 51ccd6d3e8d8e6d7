// SPDX-License-Identifier: MIT
#pragma once

class BenchPhotos;

/// Photographs that a game full of pictures shows: on the 26 spaces that can, and on two corners.
constexpr int kPicturesOfAGame = 28;

/// Loads the sample game into memory with a photograph wherever one is shown, as kit "8".
void LoadFamilyWith(const BenchPhotos& photos);
