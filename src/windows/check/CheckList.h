// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <QWidget>

#include <functional>

class FindingTree;
class GameChecker;
class QLabel;
class QPushButton;
class QTreeWidgetItem;

/// What there is to mend before a game is printed, by piece, and what can be done about it. Follows each edit.
class CheckList : public QWidget {
    Q_OBJECT

public:
    /// Of the tab that holds it, in settings and scripts.
    static constexpr const char* kName = "check";

    /// What the window around does with a piece.
    struct Doors {
        /// Shows where it lies.
        std::function<void(const GamePiece&)> show = [](const GamePiece&) {};
        /// Opens its editor.
        std::function<void(const GamePiece&)> open = [](const GamePiece&) {};
        /// The game was changed.
        std::function<void()> mended = [] {};
        /// Brings the list beside the board to the front; false where there is no room for it.
        std::function<bool()> showTab = [] { return false; };
        /// Asks for the picture that stands for a bad one; empty for none.
        std::function<QString(const QString& sBad)> findPicture = [](const QString&) { return QString(); };
        /// Looks for the picture of a piece that is away, and for all others with it.
        std::function<void(const GamePiece&)> findMissing = [](const GamePiece&) {};
    };

    CheckList(GameChecker& checker, const Doors& doors, QWidget* parent = nullptr);

    void Choose(const Finding& finding);

public Q_SLOTS:
    void tvwFindings_Click(QTreeWidgetItem* item);
    void tvwFindings_DblClick(QTreeWidgetItem* item);
    void cmdFix_Click();
    void cmdNoProblem_Click();
    void cmdTellAll_Click();

private:
    void BuildControls();
    QPushButton* MakeButton(const char* sName, const char* sCaption, void (CheckList::*click)());
    void Fill();
    void ShowWhatCanBeDone();

    GameChecker& m_checker;
    const Doors m_doors;
    QLabel* lblSummary = nullptr;
    FindingTree* tvwFindings = nullptr;
    QPushButton* cmdFix = nullptr;
    QPushButton* cmdNoProblem = nullptr;
    QPushButton* cmdTellAll = nullptr;
};
