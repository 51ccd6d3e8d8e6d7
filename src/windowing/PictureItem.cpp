// SPDX-License-Identifier: MIT
#include "windowing/PictureItem.h"

#include <QIcon>
#include <QListWidget>
#include <QPixmap>

QListWidgetItem* AddPictureItem(QListWidget& list, const Picture& picture, int side, const QString& sText) {
    QPixmap icon(side, side);
    icon.fill(Qt::transparent);
    if (!picture.IsNull()) icon = QPixmap::fromImage(picture.Image());
    return new QListWidgetItem(QIcon(icon), sText, &list);
}
