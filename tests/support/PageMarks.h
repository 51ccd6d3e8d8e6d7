// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPolygonF>
#include <QRectF>
#include <QString>

/// One thing painted on a page. Places and lengths are in the units that the page was read in, from its printable
/// origin, y downwards.
struct PageMark {
    enum class Kind { Area, Line, Text, Picture };
    Kind kind = Kind::Area;
    /// Of the filling, the line or the letters; of a picture its middle.
    QColor color;
    /// The points of an area's edge or of a line, the corners of a picture and of a text's box.
    QPolygonF points;
    /// Width of a line.
    double pen = 0;

    // Of a text only.
    QString sText;
    /// As the file names it, such as "LiberationSans-BoldItalic".
    QString sFace;
    /// Top left of the text's box, about which it is turned.
    QPointF start;
    double em = 0;
    /// From the ascent to the descent.
    double height = 0;
    /// Sum of the advances.
    double width = 0;
    /// How many times wider than the font's own the letters are.
    double stretch = 1;
    /// Tenths of a degree, counter-clockwise.
    double angle = 0;

    /// Of a picture only.
    QImage picture;

    QRectF Box() const { return points.boundingRect(); }
    bool operator==(const PageMark&) const = default;
};

/// What stands on a page of a PDF file that this program wrote, in the order in which it was painted. Read from the
/// file's own objects, so it needs no tools, and what is hidden under something else is found as well. Clips are
/// passed over.
QList<PageMark> ReadPageMarks(const QString& sPath, int iPage, double dUnitsPerInch);
