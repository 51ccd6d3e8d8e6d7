// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

class QWidget;

/// The display. Layout is told in twips, of which 15 make a pixel; pixels are the toolkit's
/// device-independent ones.
namespace Screen {

constexpr int kTwipsPerPixel = 15;

constexpr int TwipsToPixels(int twips) { return twips / kTwipsPerPixel; }

/// Width and height of the whole screen in pixels.
QSize Size();
/// The part of the screen that windows may cover.
QRect FreeArea();
int BitsPerPixel();
/// Dots of the display to a pixel.
double PixelRatio();
/// Thickness of a sizable window's frame.
QSize FrameBorder();

/// Largest size, in pixels, that a hidden drawing surface may take. The same on every display, so that
/// what is printed never depends on the monitor.
QSize SurfaceLimit();
void SetSurfaceLimit(QSize limit);
/// Tests say what the display is: 0 gives the true depth again.
void PretendBitsPerPixel(int bits);

/// Sizes and places a window, never larger than the free area nor left of or above it. Pixels.
void PlaceWindow(QWidget& window, QRect wanted);

/// What the mouse pointer shows over all of the program's windows.
enum class MousePointer { Default = 0, HourGlass = 11 };
MousePointer CurrentMousePointer();
void SetMousePointer(MousePointer pointer);

/// Places a window at these fractions of the width and height that it leaves free.
void PlaceAtFraction(QWidget& window, double ofFreeWidth, double ofFreeHeight);

} // namespace Screen
