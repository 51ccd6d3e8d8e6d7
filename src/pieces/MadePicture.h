// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QRect;
class Surface;

/// A picture of a piece that lies among the working files while its sheet is printed.
namespace MadePicture {

QString PathOf(const QString& sName);

/// Paints the file stretched to a box of pixels. Raises for one that can't be read.
void Paint(Surface& surface, const QString& sFile, const QRect& box);

/// One that can't be deleted is only logged: a temporary file that stays is no reason to stop a print.
void Delete(const QString& sFile);

} // namespace MadePicture
