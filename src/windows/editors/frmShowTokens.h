// SPDX-License-Identifier: MIT
#pragma once

#include "document/basTAVL.h"
#include "document/C_Token.h"
#include "platform/pictures/PictureHolder.h"

#include <QDialog>

#include <array>

class PictureBox;
class QLabel;
class QPushButton;
class Session;
class frmEditToken;

/// Shows the six tokens as large as the window lets them be. A click on one, or Enter on the one that the
/// arrow keys have framed, opens its editor; what is done there reaches the game while the window still stands.
class frmShowTokens : public QDialog {
    Q_OBJECT
public:
    explicit frmShowTokens(Session& session, QWidget* parent = nullptr);

    /// Shows the window modally; bChanged tells whether any token of the game has changed.
    void ShowForm(bool& bChanged);
    void EditToken(int iToken);
    /// Paints the tokens at the size that their places have.
    void Zoom();

    /// Escape and the close button do as Done does.
    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void Form_Resize();
    void DrawToken(int iToken);
    void DrawFocus(PictureBox& picToken);
    void picToken_Click(int Index);
    /// Whether the key is used up.
    bool picToken_KeyDown(int Index, const QKeyEvent& event);
    void picToken_MouseUp(int iButton, int iShift, float X, float Y);
    void picToken_BackingChanged();
    void cmdOK_Click();
    void Game_Edited();
    void LoadFromGame();

    Session& m_session;
    /// Copies of the game's tokens, which are what is shown.
    std::array<C_Token, basTAVL::kTokens> m_oTokens;
    bool m_bChanged = false;

    std::array<PictureBox*, basTAVL::kTokens> picToken{};
    PictureHolder picOriginal;
    QLabel* lblClick = nullptr;
    QPushButton* cmdOK = nullptr;
    frmEditToken* m_frmEditToken = nullptr;
};
