// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"

#include <QString>

class Picture;

/// Makes the picture that all notes of a denomination (0 to 3) are printed from, and names its file in sPath.
/// False, after it has said so, when that fails: no money may be printed then.
bool MakeMoneyImage(int iMoney, QString& sPath);

/// Prints ten notes from their picture on a page that the caller has set upright, without ending the document.
/// The progress is that of copy iCopy, from 0, of nCopies.
void PrintMoneySheet(SheetJob& job, int iMoney, const Picture& picture, int iCopy, int nCopies);
