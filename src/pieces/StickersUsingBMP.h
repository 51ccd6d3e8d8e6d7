// SPDX-License-Identifier: MIT
#pragma once

class clsRenderDestination;

/// Stickers that come as a made picture: the picture is written, painted and deleted.
/// Positions are inches; when it can't be made a box says so, the place stays blank and the answer is false.

/// A corner, 2.125 inches square, without a cut line.
bool CornerStickerUsingBMP(clsRenderDestination& destination, int iCorner, double dblX, double dblY);

/// A space as the older kits' label sheets have it, with dashed cut lines round it.
bool SpaceStickerUsingBMP(clsRenderDestination& destination, int iSpace, double dblX, double dblY);
