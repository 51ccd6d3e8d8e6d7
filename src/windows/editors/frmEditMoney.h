// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"

#include <QDialog>

#include <array>
#include <optional>

class ElidedLabel;
class ImageGroup;
class PictureBox;
class QCheckBox;
class QLayout;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class Session;

/// Edits the texts and the picture of the four banknotes, shown as large as they print. Works on copies of
/// all four; nothing reaches the game before the window closes.
class frmEditMoney : public QDialog {
    Q_OBJECT
public:
    explicit frmEditMoney(Session& session, QWidget* parent = nullptr);

    /// Shows the notes modally and gives what was done to them, or nothing.
    std::optional<Edit> Ask();
    /// As Ask, hands what was done to the game and tells whether that has changed.
    bool ShowForm();

public Q_SLOTS:
    /// Escape and the close button do as Cancel does.
    void reject() override;

private Q_SLOTS:
    void optMoney_Click(int Index);
    void txtSpace_Change();
    void chkIncludeImage_Click();
    void cmdBitmap_Click();
    void cmdCropImage_Click();
    void txtBitmapPath_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void picNote_BackingChanged();

private:
    void BuildControls();
    QLayout* BuildChoice();
    QLayout* BuildTexts();
    QLayout* BuildRight();
    QPushButton* MakeButton(const char* sName, const QString& sCaption, void (frmEditMoney::*click)());

    void ChooseNote(int Index);
    void FillInForm();
    void ShowImagePath();
    void RedrawMoney();
    void RedrawTextOnly();
    static QRectF InMiddleOfNote(double dblDPI);
    void ShowPicture(const PictureRef& shown);
    void TakeDropped(const QStringList& files);
    void LoadFromGame();
    bool IsAnyDifferent() const;

    C_Money& Note();
    C_Image& FaceImage() { return Note().FaceImage; }
    /// Number of the note being edited, which cmdIndex keeps.
    int Index() const;

    Session& m_session;
    std::array<C_Money, basTAVL::kMoney> m_oMoney;
    /// While the window fills itself in, its change events are none of the user's.
    bool m_bFillingIn = false;

    std::array<QRadioButton*, basTAVL::kMoney> optMoney{};
    std::array<QPlainTextEdit*, C_Money::kTexts> txtSpace{};
    PictureBox* picNote = nullptr;
    ImageGroup* fraBitmap = nullptr;
    QCheckBox* chkIncludeImage = nullptr;
    QPushButton* cmdBitmap = nullptr;
    QPushButton* cmdCropImage = nullptr;
    ElidedLabel* txtBitmapPath = nullptr;
    /// Never shown.
    QPushButton* cmdIndex = nullptr;
};
