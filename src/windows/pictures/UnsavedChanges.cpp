// SPDX-License-Identifier: MIT
#include "windows/pictures/UnsavedChanges.h"

#include "services/basErrLog.h"
#include "services/Desktop.h"

UnsavedChanges AskAboutUnsavedChanges() {
    const int lResponse = MsgBox(QStringLiteral("There are unsaved changes. Do you want to save them?"), vbYesNoCancel,
                                 QStringLiteral("Save Changes"));
    switch (lResponse) {
        case vbCancel:
            return UnsavedChanges::Stay;
        case vbYes:
            return UnsavedChanges::Keep;
        case vbNo:
            return UnsavedChanges::Drop;
        default:
            basErrLog::ErrUnexVal(QStringLiteral("lResponse"), lResponse);
    }
}
