// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QByteArray>
#include <QString>

class QMimeData;

/// What the desktop holds between a copy and a paste.
namespace Clipboard {

/// Empty when it holds something else.
QString Text();
void SetText(const QString& sText);
/// All that it holds, as a drop would hand it over; nothing where it holds nothing. Asked anew each time.
const QMimeData* Data();
void SetPicture(const Picture& picture);
/// Bytes of a program's own form, with words for those that don't know it.
void SetData(const QString& sForm, const QByteArray& bytes, const QString& sWords);
/// Empty when it holds nothing of that form.
QByteArray DataOf(const QString& sForm);

} // namespace Clipboard
