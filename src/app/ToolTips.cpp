// SPDX-License-Identifier: MIT
#include "app/ToolTips.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/WidgetLook.h"

#include <QLabel>

namespace {

// A tip that isn't wanted any more goes after a second's grace and seven more.
constexpr int kFirstInterval = 1000;
constexpr int kSecondInterval = 7000;

} // namespace

ToolTips::ToolTips(QWidget& parent) : txtToolTip(new QLabel(&parent)) {
    txtToolTip->setObjectName(QStringLiteral("txtToolTip"));
    txtToolTip->setTextFormat(Qt::PlainText);
    txtToolTip->hide();
    Timer1.setObjectName(QStringLiteral("Timer1"));
    connect(&Timer1, &QTimer::timeout, this, &ToolTips::Timer1_Timer);
}

void ToolTips::SetBoxText(const QString& sText) {
    if (!sText.isEmpty()) txtToolTip->setText(sText);
}

QSize ToolTips::BoxSize() const { return txtToolTip->sizeHint(); }

void ToolTips::MoveBox(QPoint at) {
    txtToolTip->move(at);
    // The desktop's own tips say the same, so the box stays out of sight.
    txtToolTip->hide();
}

void ToolTips::HideBox() { txtToolTip->hide(); }

void ToolTips::Restart(bool bTimed) {
    Timer1.stop();
    if (bTimed) Timer1.start(kFirstInterval);
}

void ToolTips::Timer1_Timer() try {
    switch (Timer1.interval()) {
        case kFirstInterval:
            Timer1.setInterval(kSecondInterval);
            break;
        case kSecondInterval:
            HideBox();
            Timer1.stop();
            for (QWidget* widget : m_widgets)
                WidgetLook::SetToolTip(*widget, QString());
            break;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Interval"), QStringLiteral("frmTAVL!Timer1_Timer"));
    }
} catch (...) {
    ErrTop("frmTAVL!", "Timer1_Timer");
}
