// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

/// Welcomes at the start and tells where the assembly instructions are.
class frmPrintManual : public QDialog {
    Q_OBJECT

public:
    explicit frmPrintManual(QWidget* parent = nullptr);

    /// Modal. bStarting: the program is starting; otherwise the user has asked for the instructions.
    void ShowForm(bool bStarting);
    void reject() override;

private Q_SLOTS:
    void cmdAlreadyPrintedIt_Click();
    void cmdDoNotPrint_Click();
    void cmdOK_Click();
    void cmdShowPage_Click();

private:
    QLabel* Label1;
    QLabel* Label2;
    QPushButton* cmdAlreadyPrintedIt;
    QPushButton* cmdDoNotPrint;
    QPushButton* cmdOK;
    QPushButton* cmdShowPage;
    bool m_bStarting = false;
};
