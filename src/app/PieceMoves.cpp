// SPDX-License-Identifier: MIT
#include "app/PieceMoves.h"

#include "app/BoardView.h"
#include "app/BoardWalk.h"
#include "board/basPosit.h"
#include "game/PieceContent.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/Clipboard.h"
#include "windowing/PictureBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QScopedValueRollback>

using Kind = PictureOwner::Kind;

namespace {

const QString kFormat = QStringLiteral("application/x-tavlora-piece");

PictureOwner PieceOf(const BoardPlace& place) {
    PictureOwner piece;
    if (place.m_iOverSpace >= 0) piece = {Kind::Space, qint16(place.m_iOverSpace)};
    if (place.m_iOverCorner >= 0) piece = {Kind::Corner, qint16(place.m_iOverCorner)};
    return PieceContents::Has(piece) ? piece : PictureOwner();
}

BoardPlace PlaceOf(const PictureOwner& piece) {
    BoardPlace place;
    (piece.kind == Kind::Space ? place.m_iOverSpace : place.m_iOverCorner) = piece.iNumber;
    return place;
}

QRubberBand* MakeLight(const char* sName, QWidget& board) {
    auto* const light = new QRubberBand(QRubberBand::Rectangle, &board);
    light->setObjectName(QString::fromLatin1(sName));
    return light;
}

} // namespace

PieceMoves::PieceMoves(BoardView& view, BoardWalk& walk, Session& session)
    : m_view(view), m_walk(walk), m_session(session), m_from(MakeLight("shpSwapFrom", view.Board())),
      m_light(MakeLight("shpSwapTo", view.Board())) {
    view.Board().installEventFilter(this);
    // A scrolled board has it elsewhere.
    connect(&view, &BoardView::Painted, this, [this] {
        if (m_from->isVisible()) ShowFrom();
    });
    // What was to be swapped may be another one by now.
    connect(&session, &Session::Changed, this, [this] {
        if (m_state == State::Choosing) End();
    });
}

BoardPlace PieceMoves::PlaceInHand() {
    if (m_walk.At().IsSomething()) return m_walk.At();
    if (!m_bOver) return {};
    // Anew, as the board may have been scrolled under a mouse that rests.
    PieceAt(m_mouse);
    return m_view.Over();
}

PictureOwner PieceMoves::PieceInHand() { return PieceOf(PlaceInHand()); }

PictureOwner PieceMoves::PieceAt(QPoint at) {
    m_view.WhatIsMouseOver(float(at.x() * kTwipsPerPixel), float(at.y() * kTwipsPerPixel));
    return PieceOf(m_view.Over());
}

bool PieceMoves::TellNoPiece(const PictureOwner& piece) const {
    if (piece.IsPiece()) return false;
    MsgBox(QStringLiteral("Point at a space or a corner of your own first, or walk to one with the arrow keys."),
           vbInformation);
    return true;
}

void PieceMoves::Copy() {
    const PictureOwner piece = PieceInHand();
    if (TellNoPiece(piece)) return;
    const PieceContent content = PieceContents::Of(m_session.InHand(), piece);
    QString words = content.sText;
    Clipboard::SetData(kFormat, PieceContents::Written(content), words.remove(u'\r'));
    m_walk.Tell(QStringLiteral("Copied: ") + PieceContents::NameOf(m_session.InHand(), piece));
}

bool PieceMoves::Paste() {
    const std::optional<PieceContent> content = PieceContents::Read(Clipboard::DataOf(kFormat));
    if (!content) return false;
    const PictureOwner piece = PieceInHand();
    if (TellNoPiece(piece)) return true;
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    m_session.Do(PieceContents::Copy(m_session.InHand(), *content, piece));
    m_view.Redraw();
    return true;
}

void PieceMoves::SwapWith() {
    const PictureOwner piece = PieceInHand();
    if (TellNoPiece(piece)) return;
    m_piece = piece;
    m_state = State::Choosing;
    ShowFrom();
    m_walk.Tell(QStringLiteral("Swap %1 with: click another one, or walk to it and press Enter.")
                    .arg(PieceContents::NameOf(m_session.InHand(), piece)));
}

bool PieceMoves::eventFilter(QObject* watched, QEvent* event) try {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            m_bOver = true;
            m_mouse = static_cast<QMouseEvent&>(*event).position().toPoint();
            if (!m_bHandingOn && TakesMouse(static_cast<QMouseEvent&>(*event))) return true;
            break;
        case QEvent::KeyPress:
            if (TakesKey(static_cast<QKeyEvent&>(*event))) return true;
            break;
        case QEvent::Leave:
            m_bOver = false;
            break;
        case QEvent::FocusOut:
            if (m_state == State::Dragging) End(State::Over);
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
} catch (...) {
    End();
    ErrTop("frmTAVL!", "PieceMoves");
    return true;
}

bool PieceMoves::TakesMouse(const QMouseEvent& event) {
    switch (event.type()) {
        case QEvent::MouseMove:
            return TakesMove(event);
        case QEvent::MouseButtonRelease:
            return TakesRelease(event);
        default:
            return TakesPress(event);
    }
}

bool PieceMoves::TakesPress(const QMouseEvent& event) {
    const QPoint at = event.position().toPoint();
    if (m_state == State::Choosing) {
        SwapOnto(PieceAt(at));
        return true;
    }
    const bool another = event.buttons() != event.button();
    if (m_state != State::None) End(another ? State::Over : State::None);
    // It ends a drag, and does nothing else.
    if (m_state == State::Over) return true;
    const bool mayDrag = event.button() == Qt::LeftButton && event.type() == QEvent::MouseButtonPress;
    const PictureOwner piece = mayDrag ? PieceAt(at) : PictureOwner();
    if (!piece.IsPiece()) return false;
    m_state = State::Pressed;
    m_piece = piece;
    m_pressedAt = at;
    m_pressedWhen = event.timestamp();
    return true;
}

bool PieceMoves::TakesMove(const QMouseEvent& event) {
    const QPoint at = event.position().toPoint();
    // Somebody else was given the release.
    if (m_state != State::None && m_state != State::Choosing && !event.buttons().testFlag(Qt::LeftButton)) End();
    if (m_state == State::Pressed && (at - m_pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        m_state = State::Dragging;
        ShowFrom();
    }
    if (m_state == State::Dragging || m_state == State::Choosing) LightUp(PieceAt(at));
    return m_state == State::Pressed || m_state == State::Dragging;
}

bool PieceMoves::TakesRelease(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return m_state != State::None;
    const QPoint at = event.position().toPoint();
    if (m_state == State::Dragging) {
        SwapOnto(PieceAt(at));
        return true;
    }
    if (m_state == State::Over) {
        End();
        return true;
    }
    if (m_state != State::Pressed) return false;
    End();
    // It was a click: what it opens is the board's.
    const QScopedValueRollback handingOn(m_bHandingOn, true);
    QMouseEvent press(QEvent::MouseButtonPress, m_pressedAt, m_view.Board().mapToGlobal(m_pressedAt), Qt::LeftButton,
                      Qt::LeftButton, event.modifiers());
    // Whoever looks for double clicks goes by it.
    press.setTimestamp(m_pressedWhen);
    QCoreApplication::sendEvent(&m_view.Board(), &press);
    return false;
}

bool PieceMoves::TakesKey(const QKeyEvent& event) {
    if (m_state != State::Dragging && m_state != State::Choosing) return false;
    if (event.key() == Qt::Key_Escape) {
        End(m_state == State::Dragging ? State::Over : State::None);
        return true;
    }
    const bool enters = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
    if (m_state != State::Choosing || !enters || !m_walk.At().IsSomething()) return false;
    SwapOnto(PieceOf(m_walk.At()));
    return true;
}

void PieceMoves::ShowFrom() {
    m_from->setGeometry(m_view.SeenBox(PlaceOf(m_piece)));
    m_from->show();
}

void PieceMoves::LightUp(const PictureOwner& piece) {
    const bool can = PieceContents::CanSwap(m_piece, piece);
    if (can) m_light->setGeometry(m_view.SeenBox(PlaceOf(piece)));
    m_light->setVisible(can);
    if (m_state == State::Dragging) m_view.Board().setCursor(can ? Qt::DragMoveCursor : Qt::ForbiddenCursor);
}

void PieceMoves::SwapOnto(const PictureOwner& piece) {
    const PictureOwner from = m_piece;
    const bool chosen = m_state == State::Choosing;
    End();
    if (PieceContents::CanSwap(from, piece)) {
        basPosit::PosSethDC(&m_session.MeasuringDevice());
        m_session.Do(PieceContents::Swap(m_session.InHand(), from, piece));
        m_view.Redraw();
    } else if (chosen && piece != from) {
        MsgBox(QStringLiteral("A space swaps with another space, and a corner with another corner. Those that belong "
                              "to the kit stay where they are."),
               vbInformation);
    }
}

void PieceMoves::End(State state) {
    m_state = state;
    m_from->hide();
    m_light->hide();
    m_view.Board().unsetCursor();
    m_walk.Tell({});
}
