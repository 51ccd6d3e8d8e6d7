// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Recording;

/// A drawing as a PDF page of so many inches square, which stays sharp at every size: text as text, lines as lines.
/// False, and a sentence in sError, when the file can't be written whole; the one that stood there before then stands.
bool SaveAsPdf(const Recording& drawing, double inches, const QString& sTitle, const QString& sPath, QString& sError);
