// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where other programs put files that are gone tomorrow, as a mail program does with what came along in a mail.
namespace TemporaryPlaces {

/// True for a file below the system's folder for temporary files, but for what lies at home.
bool Hold(const QString& sPath);
/// For tests, whose own files lie there; an empty path takes the system's folder again.
void Pretend(const QString& sFolder);

} // namespace TemporaryPlaces
