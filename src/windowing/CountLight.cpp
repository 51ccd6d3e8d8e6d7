// SPDX-License-Identifier: MIT
#include "windowing/CountLight.h"

#include "windowing/WidgetLook.h"

#include <QPainter>

namespace {

// White on each of them can be read by people with weak eyes, and each shows on a light and on a dark desktop.
constexpr QColor kGreen(0x2B, 0x80, 0x3E);
constexpr QColor kRed(0xC0, 0x39, 0x2B);
constexpr QColor kDark(0x80, 0x80, 0x80);
constexpr int kMostShown = 99;
constexpr int kAir = 2;

} // namespace

CountLight::CountLight(QWidget* parent) : QAbstractButton(parent) {
    setObjectName(QStringLiteral("CountLight"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

void CountLight::Show(int iCount, const QString& sMeaning) {
    m_count = iCount;
    setText(iCount > kMostShown ? QStringLiteral("%1+").arg(kMostShown) : QString::number(iCount));
    setAccessibleName(sMeaning);
    WidgetLook::SetToolTip(*this, sMeaning);
    updateGeometry();
    update();
}

// No higher than a line, so that the menu bar it stands in stays as it is.
QSize CountLight::sizeHint() const {
    const int height = fontMetrics().height();
    const int width = std::max(2 * height, fontMetrics().horizontalAdvance(text()) + height);
    return {width + 2 * kAir, height + kAir};
}

void CountLight::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(rect()).adjusted(kAir, kAir / 2.0, -kAir, -kAir / 2.0);
    const QColor fill = !m_count ? kDark : *m_count == 0 ? kGreen : kRed;
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() ? fill.lighter(112) : fill);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    if (!m_count) return;
    if (*m_count > 0) {
        painter.setPen(Qt::white);
        painter.drawText(pill, Qt::AlignCenter, text());
        return;
    }
    const double unit = pill.height() / 8;
    const QPointF middle = pill.center();
    painter.setPen(QPen(Qt::white, unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {middle + QPointF(-2 * unit, 0), middle + QPointF(-unit / 2, 1.5 * unit),
                            middle + QPointF(2 * unit, -1.5 * unit)};
    painter.drawPolyline(tick, int(std::size(tick)));
}
