// SPDX-License-Identifier: MIT
#pragma once

class QPushButton;

/// Takes the button out of those that Enter presses from anywhere in the window, as it would while a text is
/// typed there. On the button itself Enter presses it, as Space does.
void LetEnterPressWithFocusOnly(QPushButton& button);
