// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureRef.h"
#include "platform/paint/Color.h"
#include "platform/paint/Picture.h"

class DeviceContext;
class PictureHolder;
class QRect;
class QRectF;
class Surface;
class TellOnce;
enum class ScaleModeKind;

// Painting of pictures that the user chose. Boxes are in the surface's own units; what can't be painted is told once
// in the memory handed over, and the area stays as it is. Nothing here changes the reference.

/// The square of a picture, in its own pixels, that a zoomed paint shows. It may reach beyond the picture.
struct ZoomedSource {
    int xSrc = 0;
    int ySrc = 0;
    int iSide = 0;

    /// lW and lH are the picture's size in pixels; zoom step z shows a square of the longer side / 2^(z/10)
    /// around the centre.
    static ZoomedSource Of(int lW, int lH, int iZoom, double fXCenter, double fYCenter);
    /// The square's side, wherever its centre is.
    static int SideOf(int lW, int lH, int iZoom);
};

/// A picture's place in a box: as large as it fits, centred, uncropped.
struct FittedBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    static FittedBox Of(const Picture& picture, const QRectF& box);
};

/// What is said of a path that leads to no picture, of a file that is missing when it is painted, and of one that can't
/// be loaded.
QString InvalidPictureText(const QString& sName);
QString MissingPictureText(const QString& sName);
QString BadPictureText(const QString& sName, const QString& sSystemText);

/// How large the longer side of the whole picture is drawn when the square shown fills a box of so many pixels.
int LongerSideWanted(const PictureRef& ref, double boxPixels);

/// The whole picture as large as it fits. The white of a one-bit drawing shows lBackColor, or with no colour what is
/// beneath.
void PaintCentered(const PictureRef& ref, TellOnce& told, Surface& picDest, const QRectF& box, Color lBackColor);
/// The part that the user chose, stretched to the box; the middle where none was chosen. ScaleMode says in which
/// units picOriginal tells its size. True when it was painted.
bool PaintZoomed(const PictureRef& ref, TellOnce& told, Surface& objDest, PictureHolder& picOriginal,
                 ScaleModeKind ScaleMode, const QRectF& box, Color lBackColor);
/// Stretches the picture, which is a metafile, to a box of the context's units. True when it was played.
bool DrawMetafile(const PictureRef& ref, TellOnce& told, DeviceContext& hDC, const QRect& box);
/// Starts decoding on other processors what PaintZoomed will show in a box of a printer, its side in pixels.
void PrefetchForPaper(const PictureRef& ref, Surface& oPrinter, double side);
