// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QString>

class Recording;

/// A text as paper will show it. A line in several scripts comes as several texts.
struct WrittenText {
    QString sText;
    /// The font that was asked for; see FontFace for what stands in.
    QString sFamily;
    bool bBold = false;
    bool bItalic = false;
    /// Size of its letters, which is that of their font.
    double dblPoints = 0;
    /// Width of its letters in parts of their own: below 1 they are squeezed, above 1 stretched.
    double dblSqueeze = 1;
    /// The ink, in inches from the top left of the piece.
    QRectF box;
    /// Which way it reads, in degrees clockwise from left to right.
    double dblTurn = 0;
};

/// What is written in a recording that is printed so many inches wide and high, in the order in which it was drawn.
/// Letters more than six times as wide as high, or the other way round, are drawn as outlines and aren't among it.
QList<WrittenText> WrittenTextsOf(const Recording& recording, QSizeF inches);
