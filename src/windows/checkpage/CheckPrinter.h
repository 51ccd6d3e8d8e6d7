// SPDX-License-Identifier: MIT
#pragma once

#include "calibration/CheckPage.h"

#include <QDialog>
#include <QString>

#include <functional>

class ElidedLabel;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

/// Leads through the check of a printer: prints the page, tells how the sheet is turned, takes what was read on it, and
/// corrects all sheets that go to this printer on this paper from then on.
class CheckPrinter : public QDialog {
    Q_OBJECT

public:
    explicit CheckPrinter(QWidget* parent = nullptr);

    /// Modal.
    void ShowForm();

    /// Told when the page is begun and when it is finished, so that the program isn't closed in between.
    std::function<void(bool bInPrint)> TellInPrint = [](bool) {};

public Q_SLOTS:
    void cmdPrint_Click();
    void cmdOpen_Click();
    void cmdCorrect_Click();
    void cmdClear_Click();
    void ShowWhatIsRead();

private:
    void BuildControls();
    QLayout* BuildSteps();
    QLayout* BuildReading();
    QLayout* BuildButtons();
    QLineEdit* MakeField(const char* sName, const char* sWhat);

    /// The printer in force, its paper as the page wants it.
    static class Printer& ThePrinter();
    static PaperOfPage Paper();
    static PageCorrection InForce();
    void ForgetReading();
    void ShowPrinter();
    CheckPage::Reading WhatWasTyped() const;
    void Print();

    QLabel* m_printer = nullptr;
    QLineEdit* m_sideways = nullptr;
    QLineEdit* m_upAndDown = nullptr;
    QLineEdit* m_across = nullptr;
    QLineEdit* m_down = nullptr;
    QLabel* m_told = nullptr;
    QLabel* m_inForce = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_open = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_correct = nullptr;
    QString m_pdf;
};
