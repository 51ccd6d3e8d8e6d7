// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

/// What a control is for, in a sentence or two, for whoever asks "What is this?".
namespace WhatIsThis {

struct Row {
    /// Object name of the window; "*" for all windows.
    const char* sWindow;
    /// Object name of the control. One that ends in "_" stands for a whole control array, and an empty one for the
    /// window itself, which answers for all that has no text of its own.
    const char* sControl;
    const char* sText;
};

/// The rows, by what the windows are about.
std::span<const Row> OfMainWindow();
std::span<const Row> OfMenus();
std::span<const Row> OfEditors();
std::span<const Row> OfPicturesAndPrinting();

/// A row of the window's own goes before one of all windows, a control's own before that of its array. Empty when there
/// is none.
QString TextOf(const QString& sWindow, const QString& sControl);

} // namespace WhatIsThis
