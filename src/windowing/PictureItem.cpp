// SPDX-License-Identifier: MIT
#include "windowing/PictureItem.h"

#include <QIcon>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>

QListWidgetItem* AddPictureItem(QListWidget& list, const Picture& picture, int side, const QString& sText) {
    QPixmap pixels(side, side);
    pixels.fill(Qt::transparent);
    if (picture.IsNull()) {
        QPainter frame(&pixels);
        frame.setPen(QPen(list.palette().color(QPalette::Mid), 1, Qt::DashLine));
        frame.drawRect(0, 0, side - 1, side - 1);
    } else {
        pixels = QPixmap::fromImage(picture.Image());
    }
    QIcon icon(pixels);
    // In its own colours where its line is chosen, too.
    icon.addPixmap(pixels, QIcon::Selected);
    return new QListWidgetItem(icon, sText, &list);
}
