// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

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

} // namespace Clipboard
