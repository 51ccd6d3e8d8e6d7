// SPDX-License-Identifier: MIT
#include "windowing/Screen.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <utility>

namespace Screen {
namespace {

struct State {
    int pretendedBits = 0;
    MousePointer pointer = MousePointer::Default;
};

State& TheState() {
    static State state;
    return state;
}

const QScreen* Primary() { return QGuiApplication::primaryScreen(); }

} // namespace

QSize Size() { return Primary() ? Primary()->size() : QSize(1280, 1024); }

QRect FreeArea() { return Primary() ? Primary()->availableGeometry() : QRect(QPoint(0, 0), Size()); }

int BitsPerPixel() {
    if (TheState().pretendedBits > 0) return TheState().pretendedBits;
    return Primary() ? Primary()->depth() : 32;
}

double PixelRatio() { return Primary() ? Primary()->devicePixelRatio() : 1.0; }

QSize FrameBorder() {
    const int width = QApplication::style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return QSize(width, width);
}

void PretendBitsPerPixel(int bits) { TheState().pretendedBits = bits; }

namespace {

// What the desktop puts round a window; an estimate until the window has been shown once.
QSize FrameOf(const QWidget& window) {
    const QSize known = window.frameGeometry().size() - window.size();
    if (!known.isNull()) return known;
    return FrameBorder() * 2 + QSize(0, QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

// Before a window has been shown some desktops take the place of its frame for that of its inner part, which would
// push the title out of the screen's top. So the inner part is placed, and room left for the frame.
void MoveFrameTo(QWidget& window, QPoint at, QSize size, QSize frame) {
    if (window.frameGeometry().size() != window.size()) {
        window.resize(size);
        window.move(at);
        return;
    }
    const int border = frame.width() / 2;
    window.setGeometry(QRect(at + QPoint(border, frame.height() - border), size));
}

} // namespace

void PlaceWindow(QWidget& window, QRect wanted) {
    const QRect area = FreeArea();
    const QSize frame = FrameOf(window);
    wanted.setSize(wanted.size().boundedTo(area.size() - frame) + frame);
    if (wanted.right() > area.right()) wanted.moveRight(area.right());
    if (wanted.bottom() > area.bottom()) wanted.moveBottom(area.bottom());
    if (wanted.left() < area.left()) wanted.moveLeft(area.left());
    if (wanted.top() < area.top()) wanted.moveTop(area.top());
    MoveFrameTo(window, wanted.topLeft(), wanted.size() - frame, frame);
}

MousePointer CurrentMousePointer() { return TheState().pointer; }

void SetMousePointer(MousePointer pointer) {
    if (std::exchange(TheState().pointer, pointer) == pointer) return;
    if (pointer == MousePointer::HourGlass) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

void PlaceAtFraction(QWidget& window, double ofFreeWidth, double ofFreeHeight) {
    const QRect area = FreeArea();
    const QSize size = window.size() + FrameOf(window);
    const QPoint at(area.left() + int((area.width() - size.width()) * ofFreeWidth),
                    area.top() + int((area.height() - size.height()) * ofFreeHeight));
    PlaceWindow(window, QRect(at, window.size()));
}

} // namespace Screen
