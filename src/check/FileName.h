// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Name of a picture's file in quotes, for a sentence.
QString FileNameOf(const QString& sPath);
