// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

class Picture;
class PictureBox;
class frmTavlPrint;

/// The door to the print console, and a window that shows a sheet as it would be on paper, for looking at a
/// job without spending any.
class frmPrintTest : public QDialog {
    Q_OBJECT

public:
    explicit frmPrintTest(QWidget* parent = nullptr);
    ~frmPrintTest() override;

    /// Opens the console, see frmTavlPrint::ShowForm.
    bool ShowForm(bool bPrintStarted);
    frmTavlPrint& Console() const { return *m_frmTavlPrint; }
    /// Modal: a page that was painted for the screen.
    void ShowPage(const Picture& page);

private:
    // The main window's child as this is, and ended with whichever of the two ends first.
    QPointer<frmTavlPrint> m_frmTavlPrint;
    PictureBox* picPage;
};
