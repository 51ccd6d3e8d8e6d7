// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditNews.h"

#include "board/basPosit.h"
#include "board/basTAVL_news.h"
#include "check/PaperHint.h"
#include "document/basTAVL.h"
#include "document/Subscript.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ButtonKeys.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/BoxText.h"
#include "windows/editors/PaperLine.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>

namespace {

// Place of the card in the window, and the same distance on its other sides.
constexpr int kCardLeftTwips = 240;
constexpr int kCardTopTwips = 240;
// Boxes wide enough for a line of a card that is still easy to read.
constexpr int kBoxesWidth = 320;
// Shows some ten lines of text, and little but the card beside them.
constexpr int kHeight = 290;

QPoint CardCorner() {
    return {CLng(double(kCardLeftTwips) / kTwipsPerPixel), CLng(double(kCardTopTwips) / kTwipsPerPixel)};
}

} // namespace

frmEditNews::frmEditNews(Session& session, QWidget* parent)
    : QDialog(parent), m_session(session), cmdPlaceHolder(new PictureBox(this)), lblPaper(new PaperLine(this)),
      lblPlace(new QLabel(this)), lblTitle(new QLabel(this)), txtTitle(new QLineEdit(this)),
      txtSpace(new QPlainTextEdit(this)), cmdOK(nullptr) {
    setObjectName(QStringLiteral("frmEditNews"));
    setWindowTitle(QStringLiteral("Edit News"));
    auto* const top = new QHBoxLayout;
    top->addLayout(MakeCard());
    top->addLayout(MakeBoxes(), 1);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(top, 1);
    all->addLayout(MakeButtons());
    ConnectBoxes();
    resize(sizeHint().width(), kHeight);
    basCommon::ShowEntireForm(*this);
}

QLayout* frmEditNews::MakeCard() {
    cmdPlaceHolder->setObjectName(QStringLiteral("cmdPlaceHolder"));
    cmdPlaceHolder->setFixedSize(basTAVL::kNewsCardWidth + 2 * CardCorner().x(),
                                 basTAVL::kNewsCardHeight + 2 * CardCorner().y());
    lblPaper->KeepRoom(basTAVL::kNewsCardWidth);
    auto* const card = new QVBoxLayout;
    lblPlace->setObjectName(QStringLiteral("lblPlace"));
    card->addWidget(cmdPlaceHolder);
    card->addWidget(lblPlace, 0, Qt::AlignHCenter);
    card->addWidget(lblPaper, 0, Qt::AlignHCenter);
    card->addStretch();
    return card;
}

QLayout* frmEditNews::MakeBoxes() {
    txtTitle->setObjectName(QStringLiteral("txtTitle"));
    txtSpace->setObjectName(QStringLiteral("txtSpace"));
    // Lines end where Enter was pressed, as they do on the card.
    txtSpace->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtSpace->setTabChangesFocus(true);
    txtSpace->setMinimumWidth(kBoxesWidth);
    LimitText(*txtTitle);
    lblTitle->setBuddy(txtTitle);
    auto* const lblText = new QLabel(QStringLiteral("Te&xt of this card (Enter starts a new line):"), this);
    lblText->setBuddy(txtSpace);

    auto* const boxes = new QVBoxLayout;
    boxes->setContentsMargins(0, CardCorner().y(), CardCorner().x(), 0);
    boxes->addWidget(lblTitle);
    boxes->addWidget(txtTitle);
    boxes->addWidget(lblText);
    boxes->addWidget(txtSpace, 1);
    return boxes;
}

QLayout* frmEditNews::MakeButtons() {
    auto* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(CardCorner().x(), 0, CardCorner().x(), CardCorner().y());
    buttons->addWidget(MakeButton("cmdBodyFont", QStringLiteral("Change &Font"), &frmEditNews::cmdBodyFont_Click));
    buttons->addWidget(MakeButton("cmdSetHeadFont", QStringLiteral("&Title Font"), &frmEditNews::cmdSetHeadFont_Click));
    buttons->addWidget(
        MakeButton("cmdSetAllFonts", QStringLiteral("Set &All Fonts"), &frmEditNews::cmdSetAllFonts_Click));
    buttons->addStretch();
    cmdOK = MakeButton("cmdOK", QStringLiteral("&OK"), &frmEditNews::cmdOK_Click);
    buttons->addWidget(cmdOK);
    buttons->addWidget(MakeButton("cmdCancel", QStringLiteral("&Cancel"), &frmEditNews::cmdCancel_Click));
    return buttons;
}

QPushButton* frmEditNews::MakeButton(const char* sName, const QString& sCaption, void (frmEditNews::*click)()) {
    auto* const button = new QPushButton(sCaption, this);
    button->setObjectName(QString::fromLatin1(sName));
    LetEnterPressWithFocusOnly(*button);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmEditNews::ConnectBoxes() {
    connect(txtTitle, &QLineEdit::textChanged, this, &frmEditNews::txtTitle_Change);
    connect(txtTitle, &QLineEdit::returnPressed, cmdOK, &QPushButton::click);
    connect(txtSpace, &QPlainTextEdit::textChanged, this, &frmEditNews::txtSpace_Change);
    connect(cmdPlaceHolder, &PictureBox::BackingChanged, this, &frmEditNews::Redraw);
}

const C_News& frmEditNews::Card() const {
    const size_t set = CheckedSubscript(m_iGoodOrBad, basTAVL::kNewsSets);
    return m_session.InHand().news[set][CheckedSubscript(m_iCard, basTAVL::kCards)];
}

QString frmEditNews::TitleOfDeck() const {
    return m_session.InHand().titles.Text(basTAVL::NewsTitleRecord(m_iGoodOrBad)).sText;
}

void frmEditNews::ShowForm(int iGoodOrBad, int iCard, bool& bChanged) try {
    const std::optional<Edit> edit = Ask(iGoodOrBad, iCard);
    bChanged = edit.has_value() || ChangedAllFonts();
    if (edit) m_session.Do(*edit);
} catch (...) {
    ErrTail("frmEditNews!", "ShowForm", iGoodOrBad, iCard);
}

std::optional<Edit> frmEditNews::Ask(int iGoodOrBad, int iCard) {
    m_iGoodOrBad = iGoodOrBad;
    m_iCard = iCard;
    m_bChanged = false;
    m_oNews.LoadFromObject(Card());
    Fill();
    Redraw();
    txtSpace->setFocus();
    exec();
    return Change();
}

void frmEditNews::Fill() {
    lblPlace->setText(QStringLiteral("Card %1 of %2").arg(m_iCard + 1).arg(basTAVL::kCards));
    lblTitle->setText(QStringLiteral("Title of all ") + basTAVL::NewsDeckName(m_iGoodOrBad) +
                      QStringLiteral(" car&ds:"));
    ShowCardText();
    txtSpace->moveCursor(QTextCursor::End);
}

// A text box keeps no carriage return and its change event would hand the text back altered, so no change
// is listened to while the boxes are filled.
void frmEditNews::ShowCardText() {
    m_bLoading = true;
    txtTitle->setText(TitleOfDeck());
    txtSpace->setPlainText(m_oNews.Text());
    m_bLoading = false;
}

// Nothing where neither the title nor the card was changed.
std::optional<Edit> frmEditNews::Change() {
    const bool otherTitle = txtTitle->text() != TitleOfDeck();
    if (!otherTitle && !Card().IsDifferentFrom(m_oNews)) return std::nullopt;
    return ChangeOfGame();
}

Edit frmEditNews::ChangeOfGame() const {
    const int record = basTAVL::NewsTitleRecord(m_iGoodOrBad);
    SpecialText head = m_session.InHand().titles.Text(record);
    if (txtTitle->text() != head.sText) {
        basDraw::Draw_SetHdc(&cmdPlaceHolder->hDC());
        basPosit::SetSpecialText(head, record, txtTitle->text());
    }
    return Edits::OfCard(m_session.InHand(), m_iGoodOrBad, m_iCard, m_oNews, head);
}

void frmEditNews::Redraw() try {
    DeviceContext& hDC = cmdPlaceHolder->hDC();
    const int depth = hDC.SaveDC();
    cmdPlaceHolder->SetBackColor(WidgetLook::FillOf(*this));
    basDraw::Draw_SetSelection(-1, -1, -1, -1);
    const QPoint at = CardCorner();
    basTAVL::NewsDrawBackgroundToScreen(&hDC, at.x(), at.y());
    basTAVL::NewsDrawTitleToScreen(&hDC, at.x(), at.y(), m_iGoodOrBad, txtTitle->text(), m_oNews.FontHead);
    basTAVL::NewsDrawTextToScreen(&hDC, at.x(), at.y(), m_iGoodOrBad, m_oNews);
    hDC.RestoreDC(depth);
    cmdPlaceHolder->Refresh();
    TellOnPaper();
} catch (...) {
    ErrTop("frmEditNews!", "Redraw");
}

// Of the box that is typed in.
void frmEditNews::TellOnPaper() {
    const GamePiece piece =
        txtTitle->hasFocus() ? GamePiece::Deck(m_iGoodOrBad) : GamePiece::Card(m_iGoodOrBad, m_iCard);
    const Game game = ChangeOfGame().after;
    basDraw::Draw_SetHdc(&cmdPlaceHolder->hDC());
    lblPaper->Tell(PaperHint(game, piece));
}

void frmEditNews::txtSpace_Change() try {
    if (m_bLoading || !MayKeep(*txtSpace)) return;
    m_oNews.Let_Text(BoxText(*txtSpace));
    Redraw();
} catch (...) {
    ErrTop("frmEditNews!", "txtSpace_Change");
}

void frmEditNews::txtTitle_Change() try {
    if (!m_bLoading) Redraw();
} catch (...) {
    ErrTop("frmEditNews!", "txtTitle_Change");
}

void frmEditNews::ChangeFont(C_FontInfo& oFont, const QString& sWhat) {
    CommonDialog cdlgFont;
    cdlgFont.sDialogTitle = QStringLiteral("Font used for ") + basTAVL::NewsDeckName(m_iGoodOrBad) + u' ' + sWhat;
    basTAVL::FontToDialog(cdlgFont, oFont);
    if (!cdlgFont.ShowFont()) return;
    basTAVL::FontFromDialog(cdlgFont, oFont);
    Redraw();
}

void frmEditNews::cmdBodyFont_Click() try { ChangeFont(m_oNews.FontBody, QStringLiteral("cards")); } catch (...) {
    ErrTop("frmEditNews!", "cmdBodyFont_Click");
}

void frmEditNews::cmdSetHeadFont_Click() try { ChangeFont(m_oNews.FontHead, QStringLiteral("Titles")); } catch (...) {
    ErrTop("frmEditNews!", "cmdSetHeadFont_Click");
}

void frmEditNews::cmdSetAllFonts_Click() try {
    // The question speaks of spaces and corners, as the space editor's does; kept on purpose.
    const QString question = QStringLiteral("Clicking 'Yes' below will force the font and max size") + kNewLine +
                             QStringLiteral("in use on this space to be used for all spaces and corners.") + kNewLine +
                             kNewLine + QStringLiteral("This action CANNOT be undone. Do you wish to continue?");
    if (MsgBox(question, vbYesNoCancel | vbExclamation, QStringLiteral("Set All Fonts?")) != vbYes) return;
    m_bChanged = true;
    m_session.Do(Edits::OfNewsFonts(m_session.InHand(), m_oNews));
    MsgBox(QStringLiteral("All fonts have been changed. The change will be visible as soon as you exit the "
                          "current form."),
           vbInformation);
} catch (...) {
    ErrTop("frmEditNews!", "cmdSetAllFonts_Click");
}

void frmEditNews::cmdOK_Click() { hide(); }

void frmEditNews::cmdCancel_Click() try {
    m_oNews.LoadFromObject(Card());
    ShowCardText();
    hide();
} catch (...) {
    ErrTop("frmEditNews!", "cmdCancel_Click");
}

void frmEditNews::reject() { cmdCancel_Click(); }
