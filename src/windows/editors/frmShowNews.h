// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class frmEditNews;
class PictureBox;
class QPushButton;
class QScrollBar;
class Session;

/// Shows the twelve cards of a deck as a grid that scrolls when the window is small. A click on a card, or
/// Enter on the one that the arrow keys have framed, opens its editor; what is done there reaches the game while
/// the deck still stands.
class frmShowNews : public QDialog {
    Q_OBJECT

public:
    explicit frmShowNews(Session& session, QWidget* parent = nullptr);

    /// Shows a deck (0 Good News, 1 Bad News) modally; bChanged tells whether the game has changed.
    void ShowForm(int iGoodOrBad, bool& bChanged);

    /// Card that was hit last, -1 when none was.
    int Card() const { return m_iCard; }

public Q_SLOTS:
    /// Escape and the close button do as Done does.
    void reject() override;

private Q_SLOTS:
    void Redraw();
    void Form_MouseDown(int Button, int Shift, float X, float Y);
    void Form_DblClick();
    void cmdDone_Click();
    void Game_Edited();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollBar* MakeBar(const char* sName, Qt::Orientation orientation);
    void Form_Resize();
    void DrawCards();
    QPoint CornerOf(int iCard) const;
    void EditCard();
    /// The card that keys go to; none while others have the focus.
    int Framed() const;
    void SayFramed();
    void MoveToCard(int iCard);
    void ScrollToCard();

    Session& m_session;
    int m_iGoodOrBad = 0;
    int m_iCard = -1;
    bool m_bChanged = false;

    PictureBox* picCards;
    QScrollBar* hscrl;
    QScrollBar* vscrl;
    QPushButton* cmdDone;
    QPushButton* cmdHoleFiller;
    frmEditNews* m_frmEditNews;
};
