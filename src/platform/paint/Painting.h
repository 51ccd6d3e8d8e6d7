// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QColor>

/// The only crossing between the program's colour values and the toolkit's.
inline QColor ToQColor(Color color) { return QColor(color.Red(), color.Green(), color.Blue()); }
inline Color FromQRgb(QRgb rgb) { return Color::Rgb(qRed(rgb), qGreen(rgb), qBlue(rgb)); }
