// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/EditWindow.h"

/// Edits one space of the board: its name, the name's font and its picture.
class frmEditSpace : public EditWindow {
    Q_OBJECT
public:
    explicit frmEditSpace(Session& session, QWidget* parent = nullptr);

    /// Shows the window modally. bChanged becomes true if the game has changed; with ChangedAllFonts every
    /// space and corner may have.
    void ShowForm(int iSpace, bool& bChanged);
};
