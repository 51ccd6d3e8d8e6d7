// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QString>

/// What the desktop holds between a copy and a paste.
namespace Clipboard {

/// Empty when it holds something else.
QString Text();
void SetText(const QString& sText);
void SetPicture(const Picture& picture);

} // namespace Clipboard
