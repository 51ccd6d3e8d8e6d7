// SPDX-License-Identifier: MIT
// Turns a drawing (SVG) into a picture file while the program is built. Run by data/CMakeLists.txt only.
// Drawings hold no text: without a display there are no fonts, and letters would depend on the machine.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

struct Order {
    QString sDrawing;
    QString sPicture;
    int lWidth = 0;
    int lHeight = 0;
    QByteArray format; // "PNG" keeps transparency, "BMP" gets a white ground
    int iTurn = 0;     // clockwise, in degrees
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
           (order.format == "PNG" || order.format == "BMP");
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

} // namespace

int main(int argc, char** argv) {
    QTextStream errors(stderr);
    Order order;
    if (!ReadOrder(argc, argv, order)) {
        errors << "usage: svg2picture DRAWING.svg PICTURE WIDTH HEIGHT PNG|BMP TURN\n";
        return 2;
    }
    QSvgRenderer drawing;
    if (!drawing.load(order.sDrawing)) {
        errors << "svg2picture: cannot read the drawing " << order.sDrawing << "\n";
        return 1;
    }
    if (!Paint(drawing, order).save(order.sPicture, order.format.constData())) {
        errors << "svg2picture: cannot write the picture " << order.sPicture << "\n";
        return 1;
    }
    return 0;
}
