// SPDX-License-Identifier: MIT
#pragma once

#include "windows/check/CheckList.h"

#include <QDialog>

/// The list of what there is to mend in a window of its own, where there is no room beside the board. It may stay open
/// while the game is edited.
class frmCheck : public QDialog {
    Q_OBJECT

public:
    frmCheck(GameChecker& checker, const CheckList::Doors& doors, QWidget* parent = nullptr);

    CheckList& List() { return *m_list; }
    /// Comes to the front.
    void ShowForm();

private:
    CheckList* m_list;
};
