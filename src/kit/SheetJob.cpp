// SPDX-License-Identifier: MIT
#include "kit/SheetJob.h"

#include "pieces/frmBMP.h"

void SheetJob::Drawn(const QString& sPath) const {
    if (ahead) ahead->Drawn(sPath);
}

bool SheetJob::Lacks(const QString& sPiece, const QString& sWhy) {
    lacking.append(sPiece + QStringLiteral(" could not be made: ") + sWhy);
    return false;
}

bool SheetJob::LacksPicture(const QString& sPiece) { return Lacks(sPiece, frmBMP::Instance().WhyNotMade()); }
