// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

/// What the program is, and the splash while it starts.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);

    /// Modal, until it is closed.
    void ShowForm();
    /// Without a button, and without waiting.
    void ShowAsSplash();
    void EndSplash();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void cmdOK_Click();

private:
    void lblVersion_Click();

    QLabel* lblName;
    QLabel* lblVersion;
    QLabel* lblWarning;
    QLabel* lblLoading;
    QPushButton* cmdOK;
};
