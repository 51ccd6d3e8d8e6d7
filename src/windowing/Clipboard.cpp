// SPDX-License-Identifier: MIT
#include "windowing/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Clipboard {

QString Text() { return QGuiApplication::clipboard()->text(); }

void SetText(const QString& sText) { QGuiApplication::clipboard()->setText(sText); }

const QMimeData* Data() { return QGuiApplication::clipboard()->mimeData(); }

void SetPicture(const Picture& picture) { QGuiApplication::clipboard()->setImage(picture.Image()); }

} // namespace Clipboard
