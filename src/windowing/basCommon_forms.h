// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace basCommon {

/// Places a window a quarter of the free width from the left and a third of the free height from the top.
void ShowEntireForm(QWidget& objForm);

} // namespace basCommon
