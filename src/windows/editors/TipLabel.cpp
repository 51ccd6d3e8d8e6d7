// SPDX-License-Identifier: MIT
#include "windows/editors/TipLabel.h"

#include <QStyle>
#include <QToolTip>

namespace {

constexpr int kMargin = 4;
constexpr int kFromControl = 4;

} // namespace

TipLabel::TipLabel(const char* sName, QWidget* parent) : QLabel(parent) {
    setObjectName(QString::fromLatin1(sName));
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(kMargin);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, [this] { ShowAt(text(), m_place); });
    hide();
}

void TipLabel::Take(const QString& sText) {
    QString text = sText;
    setText(text.remove(u'\r'));
    adjustSize();
}

void TipLabel::ShowAt(const QString& sText, QPoint place) {
    m_rest.stop();
    Take(sText);
    const QSize free = parentWidget()->size() - size();
    move(qBound(0, place.x(), std::max(free.width(), 0)), qBound(0, place.y(), std::max(free.height(), 0)));
    setVisible(!sText.isEmpty());
    raise();
}

void TipLabel::ShowUnder(const QString& sText, QPoint place) {
    Take(sText);
    ShowAt(sText, place - QPoint(width() / 2, 0));
}

// Beside a row of buttons one above the other: above or below it would lie on their neighbours.
void TipLabel::ShowBeside(const QString& sText, const QWidget& control) {
    const QString before = isVisible() ? text() : QString();
    Take(sText);
    if (text() == before) return;
    hide();
    const QPoint corner = control.mapTo(parentWidget(), QPoint(0, 0));
    const int left = corner.x() - width() - kFromControl;
    const int below = corner.y() + control.height() + kFromControl;
    const int above = corner.y() - height() - kFromControl;
    if (left >= 0) {
        m_place = {left, corner.y() + (control.height() - height()) / 2};
    } else {
        m_place = {corner.x(), below + height() <= parentWidget()->height() ? below : above};
    }
    m_rest.start(style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay, nullptr, this));
}
