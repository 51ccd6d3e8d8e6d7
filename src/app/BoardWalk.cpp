// SPDX-License-Identifier: MIT
#include "app/BoardWalk.h"

#include "app/BoardView.h"
#include "app/ToolBarTable.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const QString kBoard = QStringLiteral("Game board");
constexpr int kFromToolBar = 12;

// Dark within light, so that it is seen on every colour of the board.
QFrame* MakeFrame(QWidget* board) {
    auto* const frame = new QFrame(board);
    frame->setObjectName(QStringLiteral("frmWalk"));
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->setStyleSheet(QStringLiteral("QFrame#frmWalk { border: 2px solid white; background: transparent; }"
                                        "QFrame#frmWalkInner { border: 3px solid #B00020; background: transparent; }"));
    auto* const inner = new QFrame(frame);
    inner->setObjectName(QStringLiteral("frmWalkInner"));
    auto* const layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(inner);
    frame->hide();
    return frame;
}

bool IsArrow(int iKey) {
    return iKey == Qt::Key_Left || iKey == Qt::Key_Right || iKey == Qt::Key_Up || iKey == Qt::Key_Down;
}

// An editor that opens over the board, and a menu, give the focus back to it, and the frame stays for that.
bool ComesBack(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

BoardWalk::BoardWalk(QWidget& client, BoardView& view, const Session& session)
    : m_view(view), m_session(session), m_frame(MakeFrame(&view.Board())), lblPlace(new QLabel(&client)) {
    lblPlace->setObjectName(QStringLiteral("lblPlace"));
    lblPlace->setTextFormat(Qt::PlainText);
    view.Board().installEventFilter(this);
    connect(&view, &BoardView::Painted, this, &BoardWalk::LayOut);
    connect(&session, &Session::Edited, this, &BoardWalk::Say);
    connect(&session, &Session::Changed, this, &BoardWalk::Say);
}

void BoardWalk::LayOut() {
    const int left = ToolBarTable::kPictureWidth + kFromToolBar;
    lblPlace->setGeometry(left, 0, std::max(0, lblPlace->parentWidget()->width() - left), ToolBarTable::kPictureHeight);
    if (m_at.IsSomething()) m_frame->setGeometry(m_view.SeenBox(m_at));
}

bool BoardWalk::eventFilter(QObject* watched, QEvent* event) try {
    if (event->type() == QEvent::KeyPress && TakesKey(static_cast<QKeyEvent&>(*event))) return true;
    if (event->type() == QEvent::FocusOut && !ComesBack(static_cast<QFocusEvent&>(*event).reason())) Leave();
    if (event->type() == QEvent::MouseButtonPress) Leave();
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent&>(*event).reason();
        if (reason == Qt::TabFocusReason) StandOn(BoardWays::Places().front());
        if (reason == Qt::BacktabFocusReason) StandOn(BoardWays::Places().back());
    }
    return QObject::eventFilter(watched, event);
} catch (...) {
    ErrTop("frmTAVL!", "BoardWalk");
    return true;
}

bool BoardWalk::TakesKey(const QKeyEvent& event) {
    const int key = event.key();
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return TakesTab(key == Qt::Key_Backtab);
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
    if (IsArrow(key)) return TakesArrow(key);
    if (!m_at.IsSomething()) return false;
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        m_view.Open(m_at);
        return true;
    }
    if (key != Qt::Key_Escape) return false;
    Leave();
    return true;
}

// Behind the last place it is the toolkit's, which goes on to the buttons.
bool BoardWalk::TakesTab(bool bBack) {
    const std::optional<BoardPlace> next = BoardWays::Next(m_at, bBack);
    if (next) StandOn(*next);
    return next.has_value();
}

// Without a frame they scroll a board that is zoomed.
bool BoardWalk::TakesArrow(int iArrow) {
    if (!m_at.IsSomething()) {
        if (m_view.Zoom() > 1.0F) return false;
        StandOn(BoardWays::Places().front());
    } else if (const std::optional<BoardPlace> next = BoardWays::Towards(m_at, iArrow)) {
        StandOn(*next);
    }
    return true;
}

void BoardWalk::StandOn(const BoardPlace& place) {
    m_at = place;
    m_view.ScrollTo(place);
    m_frame->show();
    m_frame->raise();
    LayOut();
    Say();
}

void BoardWalk::Leave() {
    m_at = BoardPlace{};
    m_frame->hide();
    Say();
}

void BoardWalk::Tell(const QString& sText) {
    if (sText.isEmpty()) return Say();
    lblPlace->setText(sText);
    m_view.Board().setAccessibleName(sText);
}

void BoardWalk::Say() {
    const QString says = BoardWays::Spoken(m_at, m_session.InHand());
    lblPlace->setText(says);
    m_view.Board().setAccessibleName(says.isEmpty() ? kBoard : kBoard + QStringLiteral(": ") + says);
}
