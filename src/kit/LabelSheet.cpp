// SPDX-License-Identifier: MIT
#include "kit/LabelSheet.h"

#include "services/Desktop.h"

namespace LabelSheet {

bool Tell(const char* sText) {
    MsgBox(QString::fromLatin1(sText));
    return false;
}

} // namespace LabelSheet
