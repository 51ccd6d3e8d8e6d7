// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"
#include "windows/check/GameChecker.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// What there is to mend before a game is printed, by piece. It may stay open while the game is edited, and looks again
/// after each edit.
class frmCheck : public QDialog {
    Q_OBJECT

public:
    /// What the window around does with a piece: show where it lies, and open its editor.
    struct Doors {
        std::function<void(const GamePiece&)> show = [](const GamePiece&) {};
        std::function<void(const GamePiece&)> open = [](const GamePiece&) {};
        /// While this says so, nothing is looked at.
        std::function<bool()> isBusy = [] { return false; };
    };

    frmCheck(Session& session, Doors doors, QWidget* parent = nullptr);

    /// Looks, and comes to the front.
    void ShowForm();

public Q_SLOTS:
    void tvwFindings_Click(QTreeWidgetItem* item);
    void tvwFindings_DblClick(QTreeWidgetItem* item);
    void cmdNoProblem_Click();
    void cmdTellAll_Click();

private:
    void BuildControls();
    void Fill();
    void ShowWhatCanBeDone();
    /// Nothing for the row of a piece.
    const Finding* FindingOf(const QTreeWidgetItem* item) const;
    const Finding* FirstOf(const QTreeWidgetItem* item) const;

    GameChecker m_checker;
    Doors m_doors;
    /// As the list shows it.
    std::vector<Finding> m_shown;
    QLabel* lblSummary = nullptr;
    QTreeWidget* tvwFindings = nullptr;
    QPushButton* cmdNoProblem = nullptr;
    QPushButton* cmdTellAll = nullptr;
};
