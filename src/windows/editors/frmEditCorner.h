// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/EditWindow.h"

/// Edits one corner of the board: the first block of its text, the font and the picture.
class frmEditCorner : public EditWindow {
    Q_OBJECT
public:
    explicit frmEditCorner(Session& session, QWidget* parent = nullptr);

    /// Shows the window modally. bChanged becomes true if the game has changed; with ChangedAllFonts every
    /// space and corner may have.
    void ShowForm(int iCorner, bool& bChanged);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
