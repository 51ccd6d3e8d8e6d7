// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PicturePlaces.h"

#include <QString>

#include <functional>

class C_FontInfo;
class C_Image;

/// Stands for a text that nobody has written yet.
extern const QString kNotFilledIn;

/// The index of a record as its field holds it. Raises for a text that is no number, naming the variable,
/// and the overflow error outside 16 bits.
qint16 IndexFromField(const QString& sVariable, const QString& sField);

/// The smaller of a fitted line height and the one that the font's size allows: 12 points cap it at 0.012
/// of the board's width.
float CappedTextSize(const C_FontInfo& font, float fTextSize);

/// Whether both show the same part of the same picture, whoever owns them.
bool ShowTheSame(const C_Image& a, const C_Image& b);

/// Takes a record's picture off the front of what is left of its line, and returns what is left then.
using ImageReader = std::function<QString(C_Image& image, const QString& sRest, const PictureOwner& owner)>;
/// Looks for the picture where the program looks for pictures, and tells a missing one.
QString ReadImageAndTell(C_Image& image, const QString& sRest, const PictureOwner& owner);
/// Asks what is given, and tells nothing.
ImageReader ReaderFinding(const PicturePlaces::Finder& find);
