// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

class Recording;

/// A drawing as a file of so many inches: by the ending of the path a PDF page (".pdf") or an SVG drawing (".svg"),
/// which both stay sharp at every size, or else a PNG picture of so many dots an inch.
/// False, and a sentence in sError, when the file can't be written whole; the one that stood there before then stands.
bool SaveDrawing(const Recording& drawing, QSizeF inches, int iDotsPerInch, const QString& sTitle, const QString& sPath,
                 QString& sError);
