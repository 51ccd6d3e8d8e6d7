// SPDX-License-Identifier: MIT
#include "windowing/PictureBox.h"

#include "platform/paint/Painting.h"
#include "platform/paint/Units.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>

namespace {

double& PretendedRatio() {
    static double ratio = 0;
    return ratio;
}

int ButtonNumber(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return PictureBox::kLeftButton;
        case Qt::RightButton:
            return PictureBox::kRightButton;
        case Qt::MiddleButton:
            return PictureBox::kMiddleButton;
        default:
            return 0;
    }
}

int ButtonSum(Qt::MouseButtons buttons) {
    int sum = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (buttons.testFlag(button)) sum += ButtonNumber(button);
    }
    return sum;
}

int ShiftSum(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

float Twips(double pixels) { return float(pixels * kTwipsPerPixel); }

} // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    MakeBacking();
}

PictureBox::~PictureBox() = default;

double PictureBox::DotsPerInch() const { return kScreenDotsPerInch; }

DeviceContext& PictureBox::hDC() {
    KeepBackingFitting();
    // Whoever takes the context is about to draw.
    update();
    return *m_context;
}

Picture PictureBox::Reduced(int side) {
    QImage reduced = Image().scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    reduced.setDevicePixelRatio(1);
    return Picture(reduced);
}

const QImage& PictureBox::Image() {
    KeepBackingFitting();
    m_context->Flush();
    return m_image;
}

void PictureBox::PretendPixelRatio(double ratio) { PretendedRatio() = ratio; }

double PictureBox::WantedRatio() const { return PretendedRatio() > 0 ? PretendedRatio() : devicePixelRatioF(); }

QSize PictureBox::WantedSize() const { return (QSizeF(size().expandedTo(QSize(1, 1))) * WantedRatio()).toSize(); }

void PictureBox::KeepBackingFitting() {
    // The toolkit tells a hidden widget its new size only when it is shown.
    if (m_image.size() != WantedSize() || m_image.devicePixelRatio() != WantedRatio()) MakeBacking();
}

void PictureBox::MakeBacking() {
    QImage fresh(WantedSize(), QImage::Format_RGB32);
    fresh.setDevicePixelRatio(WantedRatio());
    fresh.fill(ToQColor(BackColor()));
    if (m_context) {
        m_context->Flush();
        QPainter(&fresh).drawImage(QPointF(0, 0), m_image);
        // The owner draws anew for the other screen, but not from inside a paint event.
        if (m_image.devicePixelRatio() != fresh.devicePixelRatio())
            QMetaObject::invokeMethod(this, &PictureBox::BackingChanged, Qt::QueuedConnection);
    }
    m_image = fresh;
    if (!m_context) m_context = std::make_unique<DeviceContext>(m_image);
}

void PictureBox::paintEvent(QPaintEvent* event) {
    const QImage& image = Image();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QPointF(0, 0), image);
}

void PictureBox::resizeEvent(QResizeEvent*) { KeepBackingFitting(); }

void PictureBox::mousePressEvent(QMouseEvent* event) {
    const bool soon = m_sinceDouble.isValid() && m_sinceDouble.elapsed() <= QApplication::doubleClickInterval();
    const QPoint moved = event->position().toPoint() - m_doubleAt;
    const bool third = soon && moved.manhattanLength() < QApplication::startDragDistance();
    m_sinceDouble.invalidate();
    m_clicks = third ? 3 : 1;
    TellPress(*event);
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    m_clicks = 2;
    m_sinceDouble.start();
    m_doubleAt = event->position().toPoint();
    TellPress(*event);
}

void PictureBox::TellPress(const QMouseEvent& event) {
    Q_EMIT MouseDown(ButtonNumber(event.button()), ShiftSum(event.modifiers()), Twips(event.position().x()),
                     Twips(event.position().y()));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT MouseMove(ButtonSum(event->buttons()), ShiftSum(event->modifiers()), Twips(event->position().x()),
                     Twips(event->position().y()));
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    Q_EMIT MouseUp(ButtonNumber(event->button()), ShiftSum(event->modifiers()), Twips(event->position().x()),
                   Twips(event->position().y()));
}

void PictureBox::leaveEvent(QEvent*) { Q_EMIT MouseLeft(); }
