// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"
#include "platform/pictures/PictureHolder.h"
#include "services/Desktop.h"
#include "windows/editors/TypingWindow.h"
#include "windows/pictures/ShownParts.h"

#include <array>
#include <optional>

class QBoxLayout;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class Session;

/// Edits one token: either its text, typed straight onto it, or its picture. Works on a copy that reaches
/// the game only when the window closes.
class frmEditToken : public TypingWindow {
    Q_OBJECT
public:
    explicit frmEditToken(Session& session, QWidget* parent = nullptr);

    /// Shows a token (0 to 5) modally and gives what was done to it, or nothing.
    std::optional<Edit> Ask(int iToken);
    /// As Ask, and hands what was done to the game.
    void ShowForm(int iToken);
    /// The copy, as the window left it.
    const C_Token& Token() const { return m_oToken; }
    /// Whether the user has asked for this token's font on all tokens since ShowForm. It's for the caller to
    /// do that once the window is closed, however it was closed.
    bool SetsAllFonts() const { return m_bSetAllFonts; }

    void Redraw() override;
    QStringList GetTextArray() const override { return m_oToken.LinesShown(); }
    /// The place in the text nearest to a point of the picture, in twips; false outside the text.
    bool WhereIsMouse(float X, float Y, int& iCol, int& iRow);

    /// Escape and the close button do what Cancel does.
    void reject() override;

protected:
    std::optional<QPoint> TextPlaceAt(QPoint at) override;
    void KeepTyped(const QStringList& sTextLines) override;

private:
    /// What stands on the token; also the indexes of optInclude.
    enum Include { kImage = 0, kText = 1 };
    static constexpr int kIncludes = 2;

    // Building, in frmEditToken_controls.cpp.
    void BuildControls();
    QBoxLayout* BuildPicture();
    QGroupBox* BuildIncludeGroup();
    QGroupBox* BuildImageGroup();
    QGroupBox* BuildTextGroup();
    QBoxLayout* BuildClosing();
    QRadioButton* MakeOption(Include iIndex, const QString& sCaption, const QString& sTip);
    QPushButton* MakeButton(const char* sName, const QString& sCaption, const QString& sTip);
    void BuildHidden();
    void Connect();

    // Keyboard and mouse, in frmEditToken_text.cpp.
    bool EnterText(const QString& sText);
    bool MayClearImage();
    void txtToken_Change();
    void picDest_MouseDown(int iButton, int iShift, float X, float Y);
    void picDest_MouseMove(int iButton, int iShift, float X, float Y);
    void picDest_MouseUp(int iButton, int iShift, float X, float Y);
    void picDest_BackingChanged();

    void optInclude_Click(int Index);
    void cmdBitmap_Click();
    void cmdCropImage_Click();
    void cmdChangeFont_Click();
    void cmdSetAllFonts_Click();
    void cmdHelp_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    /// Number of the token being edited, which cmdIndex keeps.
    int Index() const;
    bool HasImage() const { return !m_oToken.Image.FullPath().isEmpty(); }
    void LoadFromGame();
    void ShowInclude(Include include);
    void ChooseImage();
    void ShowImage(const PictureRef& shown);
    void TakeDropped(const QStringList& files);
    void SetText(const QString& sText);
    void SetImagePath(const QString& sFullPath);

    const C_Token& InGame() const;
    Edit ChangeOfGame() const;

    Session& m_session;
    C_Token m_oToken;
    bool m_bLoading = false;
    bool m_bSetAllFonts = false;
    /// The folder last browsed; empty at first.
    QString m_sLastFolder;
    /// The last picture comes back when the token gets one again after a text.
    ShownParts m_shown;

    CommonDialog cdlgFont;
    PictureHolder picScratch;
    QLabel* lblHint = nullptr;
    QLabel* lblPlace = nullptr;
    QPlainTextEdit* txtToken = nullptr;
    std::array<QRadioButton*, kIncludes> optInclude{};
    QPushButton* cmdBitmap = nullptr;
    QPushButton* cmdCropImage = nullptr;
    QPushButton* cmdChangeFont = nullptr;
    QPushButton* cmdSetAllFonts = nullptr;
    /// Never shown.
    QPushButton* cmdIndex = nullptr;
    QPushButton* cmdHelp = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
