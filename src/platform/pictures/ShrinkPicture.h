// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A picture with fewer pixels, as a file of its own.
struct SmallerPicture {
    /// JPEG, or PNG where it has transparent places.
    QByteArray bytes;
    /// What its name ends in.
    QString sEnding;
    /// Of its pixels to those of the picture that it was made of, along a side; 1 at most.
    double factor = 1;
};

/// The photo of a file with a longer side of so many pixels, upright. Nothing where that makes the file no smaller, or
/// where it is no photo: drawings of lines lose what makes them sharp, and what can't be read stays as it is.
std::optional<SmallerPicture> ShrinkPicture(const QString& sPath, int longerSide);
