// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QDialog>

#include <array>

class PictureBox;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// Setup: chooses a very dark colour that prints in place of black.
class frmColor : public QDialog {
    Q_OBJECT

public:
    /// Shows what the settings file holds.
    explicit frmColor(QWidget* parent = nullptr);

    /// Modal. True when the user pressed OK; the choice is then in the settings file.
    bool ShowForm();
    /// The colour chosen.
    Color ChosenColor() const { return m_lColor; }
    /// Closing the window means Cancel.
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void chkUseDefaults_Click();
    void picColorSample_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    static constexpr size_t kBoxes = 3;

    void BuildControls();
    QVBoxLayout* BuildBoxes();
    QPushButton* MakeButton(const char* sName, const char* sCaption);
    void Form_Initialize();
    /// False for an entry that is no part of a colour.
    bool txtColor_LostFocus(int Index);
    void RebuildSample();

    QLabel* lblExplain = nullptr;
    std::array<QLineEdit*, kBoxes> txtColor{};
    PictureBox* picColorSample = nullptr;
    QCheckBox* chkUseDefaults = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    Color m_lColor;
    bool m_bOK = false;
};
