// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QButtonGroup;
class QLabel;

/// Asks for the right paper before a sheet is printed, and whether to print.
class frmPrntPrep : public QDialog {
    Q_OBJECT

public:
    explicit frmPrntPrep(QWidget* parent = nullptr);

    /// Modal. Gives the caption of the button pressed: "Print", "Print Test Sheet" or "Cancel".
    QString ShowForm(const QString& sPrompt);
    /// Closing the window answers "Cancel".
    void reject() override;

private Q_SLOTS:
    void cmd_Click(int Index);

private:
    void BuildControls();

    QLabel* lblMain = nullptr;
    QLabel* lblAlternative = nullptr;
    QButtonGroup* cmd = nullptr;
    QString m_sAnswer;
};
