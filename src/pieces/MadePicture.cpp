// SPDX-License-Identifier: MIT
#include "pieces/MadePicture.h"

#include "platform/files/Files.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basErrLog.h"
#include "services/FileRefused.h"
#include "services/WorkFiles.h"

#include <QRect>

namespace MadePicture {

QString PathOf(const QString& sName) { return WorkFiles::PathOf(sName); }

void Paint(Surface& surface, const QString& sFile, const QRect& box) {
    QString error;
    const Picture picture = surface.IsPrinter() ? LoadForPaper(sFile, error) : LoadPicture(sFile, error);
    if (picture.IsNull()) ErrRaiseNoPicture(sFile, error);
    surface.PaintPicture(picture, box.x(), box.y(), box.width(), box.height());
}

void Delete(const QString& sFile) {
    QString error;
    if (!Files::Remove(sFile, error)) basErrLog::ErrLogToFile(error, true);
}

} // namespace MadePicture
