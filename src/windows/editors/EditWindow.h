// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/PictureHolder.h"
#include "services/Desktop.h"
#include "windows/editors/Likeness.h"
#include "windows/editors/TypingWindow.h"

#include <QString>

#include <memory>
#include <optional>

class ElidedLabel;
class ImageGroup;
class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class Session;

/// What the editor of a space and that of a corner have in common: a likeness to type on and click on, and
/// the buttons beside it. Works on the likeness's private copy; what was done reaches the game only when the
/// window closes.
class EditWindow : public TypingWindow {
    Q_OBJECT
public:
    void Redraw() override;
    Likeness::Spot WhereIsMouse(float X, float Y);
    QStringList GetTextArray() const override { return m_likeness.GetTextArray(); }

    /// Shows a piece modally and gives what was done to it, or nothing. "Set All Fonts" is no part of that: the
    /// game has it at once.
    std::optional<Edit> Ask(int iIndex);
    /// Whether other pieces than the one shown got another font since it was opened.
    bool ChangedAllFonts() const { return m_bChangeAllFonts; }

    /// Escape and the close button do what Cancel does.
    void reject() override;

protected:
    /// What differs between the two windows.
    struct Wording {
        const char* sModule; ///< Prefix of the error stack, with "!".
        const char* sName;
        const char* sCaption;
        const char* sImageFrame;
        const char* sImageTip;  ///< Second line of the tip over the picture.
        const char* sThisPiece; ///< As it stands in the question about all fonts.
        const char* sPlace;     ///< Which one of how many it is, with a place for its number.
        int iPieces;
    };

    EditWindow(Session& session, std::unique_ptr<Likeness> likeness, const Wording& wording, QWidget* parent);
    ~EditWindow() override;

    /// Shows a piece modally and hands what was done to the game; true if that has changed.
    bool EditPiece(int iIndex);
    bool IsLoading() const { return m_bLoading; }
    void cmdBitmap_Click();

    std::optional<QPoint> TextPlaceAt(QPoint at) override;
    void KeepTyped(const QStringList& sTextLines) override;
    TypedText::LineRoom Room() const override { return m_likeness.Room(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building, in EditWindow_controls.cpp.
    void BuildControls();
    QWidget* BuildLikeness();
    ImageGroup* BuildImageGroup();
    QGroupBox* BuildTextGroup();
    QBoxLayout* BuildClosing();
    QPushButton* MakeButton(const char* sName, const QString& sCaption);
    void Prepare(QWidget& control);
    void BuildHidden();
    void ShowLegend();
    void TellOnPaper();
    void Connect();

    // Mouse and tips, in EditWindow_mouse.cpp.
    void picDest_MouseDown(int iButton, int iShift, float X, float Y);
    void picDest_MouseMove(int iButton, int iShift, float X, float Y);
    void picDest_MouseUp(int iButton, int iShift, float X, float Y);
    void picDest_MouseLeft();
    void picDest_BackingChanged();
    void ShowSpotTip(const Likeness::Spot& spot, QPoint at);
    QString TipOf(const QObject* control) const;
    void SetToolTip(const QString& sText, QPoint at = {});
    void Control_MouseMove(const QWidget& control);

    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdChangeFont_Click();
    void cmdSetAllFonts_Click();
    void cmdCropImage_Click();
    void chkIncludeImage_Click();
    void txtBitmapPath_Click();
    void TakeDropped(const QStringList& files);

    void txtSpace_Change();

    void FitText(const QString& sText);
    void SetImagePath(const QString& sFullPath);
    void DropSelection();
    bool IsNameless() const;
    bool LacksName() const;

    Session& m_session;
    const std::unique_ptr<Likeness> m_ownLikeness;
    Likeness& m_likeness;
    const Wording m_wording;
    bool m_bLoading = false;
    bool m_bChangeAllFonts = false;
    /// Whether the piece had no name but blanks from the start.
    bool m_bNameless = false;
    /// Pictures were dropped that went onto other pieces.
    bool m_bChangedOthers = false;

    CommonDialog cdlgFont;
    PictureHolder picScratch;
    QLabel* txtlegend = nullptr;
    QLabel* lblPlace = nullptr;
    ImageGroup* fraBitmap = nullptr;
    ElidedLabel* txtBitmapPath = nullptr;
    QPlainTextEdit* txtSpace = nullptr;
    QCheckBox* chkIncludeImage = nullptr;
    QPushButton* cmdBitmap = nullptr;
    QPushButton* cmdCropImage = nullptr;
    QPushButton* cmdChangeFont = nullptr;
    QPushButton* cmdSetAllFonts = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
