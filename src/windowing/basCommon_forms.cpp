// SPDX-License-Identifier: MIT
#include "windowing/basCommon_forms.h"

#include "windowing/Screen.h"

namespace basCommon {

void ShowEntireForm(QWidget& objForm) { Screen::PlaceAtFraction(objForm, 1.0 / 4, 1.0 / 3); }

} // namespace basCommon
