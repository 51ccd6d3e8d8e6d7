// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Opens a file or a folder as a double click on it would. False when nothing on this desktop opens it.
bool OpenPath(const QString& sPath);

/// The same, and says where it lies when nothing opens it.
void OpenOrTell(const QString& sPath);
