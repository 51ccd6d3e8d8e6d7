// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>

#include <functional>

/// Reads a printed PDF file back with the tools of poppler, which know nothing of this program. Pages count
/// from 1; all places are inches from the printable origin, so that they compare with those of a layout.
class PdfReader {
public:
    struct Word {
        QString sText;
        QRectF box;
    };
    struct StoredImage {
        int iWidth = 0;
        int iHeight = 0;
        bool bMask = false; ///< Transparency of the image before it.
        QString sEncoding;  ///< "jpeg", or "image" for what is stored without loss.
        int iObject = 0;    ///< The same for pictures that are stored once and drawn often.
        double dblDpiX = 0;
        double dblDpiY = 0;
    };

    explicit PdfReader(const QString& sPath) : m_path(sPath) {}

    /// False where the tools are missing; a test then skips itself with a word.
    static bool IsInstalled();

    int Pages() const;
    /// Width and height of the whole paper.
    QSizeF PaperInches(int iPage) const;

    /// Text in reading order; letters are text only where they weren't painted as a picture.
    QString Text(int iPage) const;
    QList<Word> Words(int iPage) const;
    /// Boxes of words in a row, in the order of the page; none where they don't stand.
    QList<QRectF> BoxesOf(int iPage, const QString& sWords) const;
    /// The box of words that stand once; empty where they don't.
    QRectF BoxOf(int iPage, const QString& sWords) const;

    /// Every drawing of a picture, in painting order.
    QList<StoredImage> Images(int iPage) const;

    /// The page in pixels, with its margin.
    QImage Pixels(int iPage, int iDpi = kDpi) const;
    /// Box of the pixels within a part of the page that are wanted; empty when there are none.
    QRectF BoxOfPixels(int iPage, const QRectF& within, const std::function<bool(QRgb)>& wanted) const;
    /// Box of all but white paper.
    QRectF InkBox(int iPage, const QRectF& within) const;
    /// Box of one colour.
    QRectF ColorBox(int iPage, const QRectF& within, QColor color) const;
    /// Colour at a place.
    QColor ColorAt(int iPage, double dblX, double dblY) const;

    /// Pixels an inch of all that is measured in pixels.
    static constexpr int kDpi = 400;

private:
    QString m_path;
    mutable int m_pageOfPixels = 0;
    mutable QImage m_pixels;
};
