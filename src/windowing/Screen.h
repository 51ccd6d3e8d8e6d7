// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

class QWidget;

/// The display. Pixels are the toolkit's device-independent ones.
namespace Screen {

/// Width and height of the whole screen in pixels.
QSize Size();
/// The part of the screen that windows may cover.
QRect FreeArea();
int BitsPerPixel();
/// Dots of the display to a pixel.
double PixelRatio();
/// Thickness of a sizable window's frame.
QSize FrameBorder();

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
