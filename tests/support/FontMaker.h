// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Font files as tests need them: a free font of this machine under a name that no machine knows.
namespace FontMaker {

/// As long as the name in the font that it is made of.
inline const QString kFamily = QStringLiteral("Quill Letter");

/// DejaVu Serif under that name; empty where it isn't installed. Bits of embedding as given; without a licence it says
/// nothing of one.
QByteArray Font(int bits = 0, bool bWithLicence = true);

} // namespace FontMaker
