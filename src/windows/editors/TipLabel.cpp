// SPDX-License-Identifier: MIT
#include "windows/editors/TipLabel.h"

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
    hide();
}

void TipLabel::Take(const QString& sText) {
    QString text = sText;
    setText(text.remove(u'\r'));
    adjustSize();
}

void TipLabel::ShowAt(const QString& sText, QPoint place) {
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

void TipLabel::ShowBeside(const QString& sText, const QWidget& control) {
    Take(sText);
    const QPoint corner = control.mapTo(parentWidget(), QPoint(0, 0));
    const int below = corner.y() + control.height() + kFromControl;
    const int above = corner.y() - height() - kFromControl;
    ShowAt(sText, {corner.x(), below + height() <= parentWidget()->height() ? below : above});
}
