// SPDX-License-Identifier: MIT
#include "windowing/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Clipboard {

QString Text() { return QGuiApplication::clipboard()->text(); }

void SetText(const QString& sText) { QGuiApplication::clipboard()->setText(sText); }

const QMimeData* Data() { return QGuiApplication::clipboard()->mimeData(); }

void SetPicture(const Picture& picture) { QGuiApplication::clipboard()->setImage(picture.Image()); }

void SetData(const QString& sForm, const QByteArray& bytes, const QString& sWords) {
    auto* const data = new QMimeData;
    data->setData(sForm, bytes);
    data->setText(sWords);
    QGuiApplication::clipboard()->setMimeData(data);
}

QByteArray DataOf(const QString& sForm) {
    const QMimeData* const data = Data();
    return data ? data->data(sForm) : QByteArray();
}

} // namespace Clipboard
