// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Why a file can't be taken for a piece's picture, in a sentence for the user; empty where it can. Looks at no more
/// than its head: one that is damaged further on is found out by WhyNotShown, or when it is painted.
QString WhyNoPicture(const QString& sFile);
/// The same, and decodes the picture as small as it can.
QString WhyNotShown(const QString& sFile);
