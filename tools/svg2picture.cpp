// SPDX-License-Identifier: MIT
// Turns a drawing (SVG) into a picture file while the program is built. Run by data/CMakeLists.txt only.
// Drawings hold no text: without a display there are no fonts, and letters would depend on the machine.

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

namespace {

constexpr int kPaletteSize = 256;
// Two colours nearer than this in every channel share a place in the palette, so that it isn't spent on the many
// shades of one soft edge. A soft passage would show steps: of a picture with some, half the palette goes to what is
// frequent and only just another colour.
constexpr int kLikeEnough = 9;
constexpr int kHardlyDifferent = 1;
constexpr int kSoftColors = kPaletteSize / 2;

struct Order {
    QString sDrawing;
    QString sPicture;
    int lWidth = 0;
    int lHeight = 0;
    // "PNG" keeps transparency, "BMP" gets a white ground, "PALETTE" is a PNG of at most 256 colours: a third of
    // the size for drawings in flat colours. "FINE" is the same for one that has some soft passages.
    QByteArray format;
    int iTurn = 0; // clockwise, in degrees
};

bool ReadOrder(int argc, char** argv, Order& order) {
    if (argc != 7) return false;
    bool bWidth = false;
    bool bHeight = false;
    bool bTurn = false;
    order.sDrawing = QString::fromLocal8Bit(argv[1]);
    order.sPicture = QString::fromLocal8Bit(argv[2]);
    order.lWidth = QString::fromLatin1(argv[3]).toInt(&bWidth);
    order.lHeight = QString::fromLatin1(argv[4]).toInt(&bHeight);
    order.format = argv[5];
    order.iTurn = QString::fromLatin1(argv[6]).toInt(&bTurn);
    return bWidth && bHeight && bTurn && order.lWidth > 0 && order.lHeight > 0 &&
           (order.format == "PNG" || order.format == "BMP" || order.format == "PALETTE" || order.format == "FINE");
}

QImage Paint(QSvgRenderer& drawing, const Order& order) {
    QImage picture(order.lWidth, order.lHeight, QImage::Format_ARGB32_Premultiplied);
    picture.fill(order.format == "BMP" ? Qt::white : Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(order.lWidth / 2.0, order.lHeight / 2.0);
    painter.rotate(order.iTurn);
    painter.translate(-order.lWidth / 2.0, -order.lHeight / 2.0);
    drawing.render(&painter, QRectF(0, 0, order.lWidth, order.lHeight));
    painter.end();
    return picture.convertToFormat(order.format == "BMP" ? QImage::Format_RGB888 : QImage::Format_ARGB32);
}

int Distance(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

int NearestIn(const QList<QRgb>& palette, QRgb color) {
    const auto nearest = std::min_element(palette.begin(), palette.end(), [color](QRgb one, QRgb other) {
        return Distance(one, color) < Distance(other, color);
    });
    return int(nearest - palette.begin());
}

// How often each colour of a picture of 32 bits stands in it, the most frequent first.
QList<std::pair<int, QRgb>> ColorsByFrequency(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            ++counts[row[x]];
    }
    QList<std::pair<int, QRgb>> colors;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        colors.append({it.value(), it.key()});
    // The colour decides between equals, so that every build writes the same file.
    std::sort(colors.begin(), colors.end(), std::greater<>());
    return colors;
}

// The drawing's flat colours come first, as they are the frequent ones, and stay exact; edges take what is nearest.
QImage WithPalette(const QImage& picture, bool fine) {
    const QList<std::pair<int, QRgb>> colors = ColorsByFrequency(picture);
    QList<QRgb> palette;
    for (const auto& [count, color] : colors) {
        if (palette.size() == kPaletteSize) break;
        const int likeEnough = fine && palette.size() < kSoftColors ? kHardlyDifferent : kLikeEnough;
        if (palette.isEmpty() || Distance(palette[NearestIn(palette, color)], color) > likeEnough)
            palette.append(color);
    }
    QHash<QRgb, int> places;
    for (const auto& [count, color] : colors)
        places[color] = NearestIn(palette, color);
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = uchar(places[from[x]]);
    }
    return indexed;
}

bool Write(const QImage& picture, const Order& order) {
    if (order.format == "PNG" || order.format == "BMP") return picture.save(order.sPicture, order.format.constData());
    return WithPalette(picture, order.format == "FINE").save(order.sPicture, "PNG");
}

} // namespace

int main(int argc, char** argv) {
    QTextStream errors(stderr);
    Order order;
    if (!ReadOrder(argc, argv, order)) {
        errors << "usage: svg2picture DRAWING.svg PICTURE WIDTH HEIGHT PNG|PALETTE|FINE|BMP TURN\n";
        return 2;
    }
    QSvgRenderer drawing;
    if (!drawing.load(order.sDrawing)) {
        errors << "svg2picture: cannot read the drawing " << order.sDrawing << "\n";
        return 1;
    }
    if (!Write(Paint(drawing, order), order)) {
        errors << "svg2picture: cannot write the picture " << order.sPicture << "\n";
        return 1;
    }
    return 0;
}
