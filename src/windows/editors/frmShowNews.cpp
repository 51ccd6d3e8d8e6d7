// SPDX-License-Identifier: MIT
#include "windows/editors/frmShowNews.h"

#include "board/basTAVL_news.h"
#include "check/GameWords.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ButtonKeys.h"
#include "windowing/HourGlass.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/frmEditNews.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kNoCard = -1;
constexpr int kAcross = 3;
constexpr int kDown = 4;

// Lengths of the window in twips, as its bars count.
constexpr int kGridWidth = kAcross * basTAVL::kNewsCardWidth * kTwipsPerPixel;
constexpr int kGridHeight = kDown * basTAVL::kNewsCardHeight * kTwipsPerPixel;
constexpr int kBarThickness = 300;
// A bar takes a little less than its thickness when it is asked whether it forces the other to show, so a
// few dots of the last cards may lie under a bar; kept on purpose.
constexpr int kRoomForBar = 240;
constexpr int kBarStep = 20 * kTwipsPerPixel;

// Pixels round the button below the cards.
constexpr int kButtonMargin = 8;

const Color kFrameColor = Color::Rgb(0, 96, 192);
constexpr int kFramePen = 3;

} // namespace

frmShowNews::frmShowNews(Session& session, QWidget* parent)
    : QDialog(parent), m_session(session), picCards(new PictureBox(this)), hscrl(MakeBar("hscrl", Qt::Horizontal)),
      vscrl(MakeBar("vscrl", Qt::Vertical)), cmdDone(new QPushButton(QStringLiteral("&Done"), this)),
      cmdHoleFiller(new QPushButton(this)), m_frmEditNews(new frmEditNews(session, this)) {
    setObjectName(QStringLiteral("frmShowNews"));
    picCards->setObjectName(QStringLiteral("picCards"));
    picCards->setFocusPolicy(Qt::StrongFocus);
    picCards->installEventFilter(this);
    cmdDone->setObjectName(QStringLiteral("cmdDone"));
    LetEnterPressWithFocusOnly(*cmdDone);
    cmdHoleFiller->setObjectName(QStringLiteral("cmdHoleFiller"));
    cmdHoleFiller->setFocusPolicy(Qt::NoFocus);
    cmdHoleFiller->setEnabled(false);
    connect(picCards, &PictureBox::MouseDown, this, &frmShowNews::Form_MouseDown);
    connect(picCards, &PictureBox::BackingChanged, this, &frmShowNews::Redraw);
    connect(&m_session, &Session::Edited, this, &frmShowNews::Game_Edited);
    connect(cmdDone, &QPushButton::clicked, this, &frmShowNews::cmdDone_Click);
    resize(TwipsToPixels(kGridWidth), TwipsToPixels(kGridHeight) + cmdDone->sizeHint().height() + 2 * kButtonMargin);
    basCommon::ShowEntireForm(*this);
}

QScrollBar* frmShowNews::MakeBar(const char* sName, Qt::Orientation orientation) {
    auto* const bar = new QScrollBar(orientation, this);
    bar->setObjectName(QString::fromLatin1(sName));
    bar->setSingleStep(kBarStep);
    connect(bar, &QScrollBar::valueChanged, this, &frmShowNews::Redraw);
    return bar;
}

void frmShowNews::ShowForm(int iGoodOrBad, bool& bChanged) try {
    bChanged = false;
    m_iGoodOrBad = iGoodOrBad;
    m_iCard = kNoCard;
    m_bChanged = false;
    setWindowTitle(basTAVL::NewsDeckName(iGoodOrBad));
    hscrl->setValue(0);
    vscrl->setValue(0);
    Form_Resize();
    picCards->setFocus();
    exec();
    bChanged = m_bChanged;
} catch (...) {
    ErrTail("frmShowNews!", "ShowForm", iGoodOrBad);
}

// The window's inner size is what the row with the button leaves to the cards and their bars.
void frmShowNews::Form_Resize() try {
    const QSize button = cmdDone->sizeHint();
    const int rowTop = height() - button.height() - 2 * kButtonMargin;
    cmdDone->setGeometry(QRect(QPoint(width() - button.width() - kButtonMargin, rowTop + kButtonMargin), button));

    const int W = width() * kTwipsPerPixel;
    const int H = std::max(rowTop, 1) * kTwipsPerPixel;
    const bool both =
        (W < kGridWidth && H < kGridHeight + kRoomForBar) || (W < kGridWidth + kRoomForBar && H < kGridHeight);
    const bool horizontal = both || W < kGridWidth;
    const bool vertical = both || H < kGridHeight;
    const int visibleWidth = W - (vertical ? kBarThickness : 0);
    const int visibleHeight = H - (horizontal ? kBarThickness : 0);

    const int thickness = TwipsToPixels(kBarThickness);
    const QSize area(TwipsToPixels(visibleWidth), TwipsToPixels(visibleHeight));
    picCards->setGeometry(QRect(QPoint(0, 0), area));
    hscrl->setGeometry(0, area.height(), area.width(), thickness);
    vscrl->setGeometry(area.width(), 0, thickness, area.height());
    cmdHoleFiller->setGeometry(area.width(), area.height(), thickness, thickness);
    hscrl->setVisible(horizontal);
    vscrl->setVisible(vertical);
    cmdHoleFiller->setVisible(both);
    hscrl->setPageStep(visibleWidth);
    vscrl->setPageStep(visibleHeight);
    hscrl->setRange(0, horizontal ? std::max(kGridWidth - visibleWidth, 0) : 0);
    vscrl->setRange(0, vertical ? std::max(kGridHeight - visibleHeight, 0) : 0);
    Redraw();
} catch (...) {
    ErrTop("frmShowNews!", "Form_Resize");
}

QPoint frmShowNews::CornerOf(int iCard) const {
    const double scrolledX = double(hscrl->value()) / kTwipsPerPixel;
    const double scrolledY = double(vscrl->value()) / kTwipsPerPixel;
    const int column = iCard % kAcross;
    const int row = iCard / kAcross;
    return {CLng(column * basTAVL::kNewsCardWidth - scrolledX), CLng(row * basTAVL::kNewsCardHeight - scrolledY)};
}

void frmShowNews::Redraw() try {
    const HourGlass working;
    DeviceContext& hDC = picCards->hDC();
    const int depth = hDC.SaveDC();
    picCards->SetBackColor(WidgetLook::FillOf(*this));
    DrawCards();
    hDC.RestoreDC(depth);
    picCards->Refresh();
    SayFramed();
} catch (...) {
    ErrTop("frmShowNews!", "Redraw");
}

void frmShowNews::DrawCards() {
    DeviceContext& hDC = picCards->hDC();
    basDraw::Draw_SetSelection(-1, -1, -1, -1);
    const Game& game = m_session.InHand();
    const QString title = game.titles.Text(basTAVL::NewsTitleRecord(m_iGoodOrBad)).sText;
    for (int i = 0; i < basTAVL::kCards; ++i) {
        const C_News& card = game.news[size_t(m_iGoodOrBad)][size_t(i)];
        const QPoint at = CornerOf(i);
        basTAVL::NewsDrawBackgroundToScreen(&hDC, at.x(), at.y());
        basTAVL::NewsDrawTitleToScreen(&hDC, at.x(), at.y(), m_iGoodOrBad, title, card.FontHead);
        basTAVL::NewsDrawTextToScreen(&hDC, at.x(), at.y(), m_iGoodOrBad, card);
    }
    const int framed = Framed();
    if (framed == kNoCard) return;
    const QRect frame = QRect(CornerOf(framed), QSize(basTAVL::kNewsCardWidth, basTAVL::kNewsCardHeight))
                            .adjusted(kFramePen, kFramePen, -kFramePen, -kFramePen);
    basDraw::Draw_SetHdc(&hDC);
    basDraw::Draw_SetPen(PenStyle::Solid, kFramePen, kFrameColor);
    basDraw::Draw_SetBrush(Color::None());
    basDraw::Draw_Rect(frame.left(), frame.top(), frame.right(), frame.bottom());
    basDraw::Draw_ReleaseObjects();
}

void frmShowNews::Form_MouseDown(int Button, int Shift, float X, float Y) try {
    const int column = Int((hscrl->value() + X) / (kTwipsPerPixel * basTAVL::kNewsCardWidth));
    const int row = Int((vscrl->value() + Y) / (kTwipsPerPixel * basTAVL::kNewsCardHeight));
    const bool hit = Button == PictureBox::kLeftButton && column >= 0 && column < kAcross && row >= 0 && row < kDown;
    MoveToCard(hit ? row * kAcross + column : kNoCard);
    if (hit) EditCard();
} catch (...) {
    ErrTop("frmShowNews!", "Form_MouseDown", Button, Shift, X, Y);
}

void frmShowNews::Form_DblClick() try {
    if (m_iCard != kNoCard) EditCard();
} catch (...) {
    ErrTop("frmShowNews!", "Form_DblClick");
}

void frmShowNews::EditCard() {
    bool changed = false;
    m_frmEditNews->ShowForm(m_iGoodOrBad, m_iCard, changed);
}

// Whoever comes by keyboard sees from the start what the keys will move from.
int frmShowNews::Framed() const {
    if (m_iCard != kNoCard) return m_iCard;
    return focusWidget() == picCards ? 0 : kNoCard;
}

void frmShowNews::SayFramed() {
    const int card = std::max(Framed(), 0);
    picCards->setAccessibleName(QStringLiteral("%1, card %2 of %3: %4")
                                    .arg(basTAVL::NewsDeckName(m_iGoodOrBad))
                                    .arg(card + 1)
                                    .arg(basTAVL::kCards)
                                    .arg(GameWords::OfCard(m_session.InHand(), m_iGoodOrBad, card)));
}

void frmShowNews::Game_Edited() {
    if (!isVisible()) return;
    m_bChanged = true;
    Redraw();
}

void frmShowNews::MoveToCard(int iCard) {
    if (m_iCard == iCard) return;
    m_iCard = iCard;
    Redraw();
}

// Moves the bars no further than it takes to show all of the card.
void frmShowNews::ScrollToCard() {
    const int left = m_iCard % kAcross * basTAVL::kNewsCardWidth * kTwipsPerPixel;
    const int top = m_iCard / kAcross * basTAVL::kNewsCardHeight * kTwipsPerPixel;
    const int right = left + basTAVL::kNewsCardWidth * kTwipsPerPixel;
    const int bottom = top + basTAVL::kNewsCardHeight * kTwipsPerPixel;
    hscrl->setValue(std::min(std::max(hscrl->value(), right - hscrl->pageStep()), left));
    vscrl->setValue(std::min(std::max(vscrl->value(), bottom - vscrl->pageStep()), top));
}

void frmShowNews::keyPressEvent(QKeyEvent* event) try {
    int card = Framed();
    switch (event->key()) {
        case Qt::Key_Left:
            card -= 1;
            break;
        case Qt::Key_Right:
            card += 1;
            break;
        case Qt::Key_Up:
            card -= kAcross;
            break;
        case Qt::Key_Down:
            card += kAcross;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (focusWidget() == picCards) {
                MoveToCard(Framed());
                EditCard();
                return;
            }
            [[fallthrough]];
        default:
            QDialog::keyPressEvent(event);
            return;
    }
    picCards->setFocus();
    if (card < 0 || card >= basTAVL::kCards) return;
    MoveToCard(card);
    ScrollToCard();
} catch (...) {
    ErrTop("frmShowNews!", "Form_KeyDown", event->key());
}

void frmShowNews::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(vscrl->isVisible() ? vscrl : hscrl, event);
}

// The toolkit takes the second press of a double click for another press.
bool frmShowNews::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) Redraw();
    if (watched != picCards || event->type() != QEvent::MouseButtonDblClick) return false;
    Form_DblClick();
    return true;
}

void frmShowNews::resizeEvent(QResizeEvent*) { Form_Resize(); }

void frmShowNews::cmdDone_Click() { hide(); }

void frmShowNews::reject() { cmdDone_Click(); }
