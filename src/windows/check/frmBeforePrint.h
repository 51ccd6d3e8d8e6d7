// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <QDialog>

#include <vector>

class FindingTree;
class QPushButton;
struct Game;

/// The question ahead of the first drop of ink: what would come out badly, and whether to print nevertheless.
class frmBeforePrint : public QDialog {
    Q_OBJECT

public:
    enum class Answer { PrintAnyway, ShowMe, Cancel };

    /// There is at least one finding; the sheets that are about to be printed are counted only.
    frmBeforePrint(const Game& game, const std::vector<Finding>& findings, qsizetype nSheets, QWidget* parent);

    Answer Ask();
    /// What whoever wants to be shown something means.
    const Finding& Meant() const;

private:
    QPushButton* MakeButton(const char* sName, const char* sCaption, Answer answer);

    FindingTree* tvwFindings;
    Answer m_answer = Answer::Cancel;
};
