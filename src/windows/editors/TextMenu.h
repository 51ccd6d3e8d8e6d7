// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/TypedText.h"

#include <functional>

class QPoint;
class QWidget;

/// The menu that a text shows where it is clicked with the other button, as any text box does.
namespace TextMenu {

struct Can {
    bool bUndo = false;
    bool bRedo = false;
    bool bCut = false;
};

/// Shows it at a place of the screen, and tells what is chosen.
void Show(QWidget& parent, QPoint at, const Can& can, const std::function<void(TypedText::Key::Kind)>& choose);

} // namespace TextMenu
