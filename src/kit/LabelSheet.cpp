// SPDX-License-Identifier: MIT
#include "kit/LabelSheet.h"

#include "services/Desktop.h"

namespace LabelSheet {

bool TellTitle(SheetJob& job, TitlePictures::Title title, const char* sText) {
    MsgBox(QString::fromLatin1(sText));
    return job.LacksPicture(title == TitlePictures::kTitle ? QStringLiteral("The title")
                                                           : QStringLiteral("The subtitle"));
}

} // namespace LabelSheet
