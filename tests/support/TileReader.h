// SPDX-License-Identifier: MIT
#pragma once

#include "support/PageMarks.h"
#include "support/PdfReader.h"

#include <QImage>

/// A page of a PDF file with a part of something larger on it, told by the marks that are printed beside the part and
/// by nothing that the program knows of it.
class TileReader {
public:
    static constexpr int kDpi = 150;

    TileReader(const QString& sPath, int iPage);

    /// What lies between the cut marks.
    QImage Cut() const;
    /// From the left and upper cut to the blue marks, or to the other cuts where there are none, in pixels.
    QSizeF Step() const;
    QRectF CutBox() const { return m_cut; }
    bool HasMarks() const { return !m_cut.isEmpty(); }

private:
    QString m_path;
    int m_page;
    QRectF m_cut;
    QPointF m_join;
};

/// The share of pixels for which the other picture has no like one, not a pixel away either.
double UnlikePixels(const QImage& one, const QImage& other);
