// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"

#include <QDialog>

#include <optional>

class C_FontInfo;
class PaperLine;
class PictureBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class Session;

/// Edits one Good News or Bad News card, the title of its deck and the fonts of the deck. The card shows as
/// it will look while its text is typed into plain boxes beside it. Nothing reaches the game before the
/// window closes, but for "Set All Fonts".
class frmEditNews : public QDialog {
    Q_OBJECT

public:
    explicit frmEditNews(Session& session, QWidget* parent = nullptr);

    /// Shows a card (0 to 11) of a deck (0 Good News, 1 Bad News) modally and gives what was done to it and its
    /// deck, or nothing. "Set All Fonts" is no part of that: the game has it at once. Raises the subscript error
    /// for any other card.
    std::optional<Edit> Ask(int iGoodOrBad, int iCard);
    /// Whether all cards got their fonts from this one since it was opened.
    bool ChangedAllFonts() const { return m_bChanged; }
    /// As Ask, and hands what was done to the game; bChanged tells whether that has changed.
    void ShowForm(int iGoodOrBad, int iCard, bool& bChanged);

public Q_SLOTS:
    /// Escape and the close button do as Cancel does.
    void reject() override;

private Q_SLOTS:
    void Redraw();
    void txtSpace_Change();
    void txtTitle_Change();
    void cmdBodyFont_Click();
    void cmdSetHeadFont_Click();
    void cmdSetAllFonts_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    QLayout* MakeCard();
    QLayout* MakeBoxes();
    QLayout* MakeButtons();
    QPushButton* MakeButton(const char* sName, const QString& sCaption, void (frmEditNews::*click)());
    void ConnectBoxes();
    void Fill();
    void ShowCardText();
    Edit ChangeOfGame() const;
    void TellOnPaper();
    std::optional<Edit> Change();
    void ChangeFont(C_FontInfo& oFont, const QString& sWhat);
    const C_News& Card() const;
    QString TitleOfDeck() const;

    Session& m_session;
    int m_iGoodOrBad = 0;
    int m_iCard = 0;
    /// The card being edited.
    C_News m_oNews;
    bool m_bChanged = false;
    /// While the boxes are filled, their change events are none of the user's.
    bool m_bLoading = false;

    /// Where the card is painted.
    PictureBox* cmdPlaceHolder;
    PaperLine* lblPaper;
    QLabel* lblPlace;
    QLabel* lblTitle;
    QLineEdit* txtTitle;
    QPlainTextEdit* txtSpace;
    QPushButton* cmdOK;
};
