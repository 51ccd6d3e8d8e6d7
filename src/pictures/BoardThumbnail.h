// SPDX-License-Identifier: MIT
#pragma once

class QRectF;
class Surface;
struct OwnedPicture;

// Painting of a space's or corner's picture on the board, turned to its side. Boxes are in the surface's own units.

/// Paints the thumbnail, made anew if need be; a finer rendering of the same where the thumbnail would be enlarged, or
/// the disk takes none. Raises for tokens and banknotes, which never lie on the board.
void DrawOnBoard(const OwnedPicture& image, Surface& picDest, const QRectF& box);
/// Paints an up-to-date thumbnail.
void PaintThumbnailOf(const OwnedPicture& image, Surface& picDest, const QRectF& box);
/// Starts decoding on other processors what DrawOnBoard would have to decode; true when it needn't.
bool PrepareForScreen(const OwnedPicture& image, Surface& picDest, double w, double h);
/// As DrawOnBoard, but without waiting: where something has to be decoded first, that is started, an up-to-date
/// thumbnail is painted if there is one, and the answer is false.
bool DrawWhatIsReady(const OwnedPicture& image, Surface& picDest, const QRectF& box);
