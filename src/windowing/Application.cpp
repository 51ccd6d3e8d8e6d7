// SPDX-License-Identifier: MIT
#include "windowing/Application.h"

#include "services/Desktop.h"

#include <QMouseEvent>
#include <QWidget>

#include <utility>

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    // Only EndProgram ends the program: a welcome window may close before the main window shows.
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        if (!m_lastNet) throw;
        m_lastNet();
        return true;
    }
}

bool SecondPressFilter::TakesPress(const QWidget& window, const QMouseEvent& event) {
    const QPoint at = event.globalPosition().toPoint();
    // Not when it is handled: the second press waits while a window is slow to come.
    const bool soon = event.timestamp() - m_when <= quint64(QApplication::doubleClickInterval());
    const bool there = (at - m_at).manhattanLength() < QApplication::startDragDistance();
    m_when = event.timestamp();
    m_at = at;
    if (soon && there && m_opened == &window) return true;
    m_opened = nullptr;
    return false;
}

bool SecondPressFilter::eventFilter(QObject* watched, QEvent* event) {
    const auto* const widget = qobject_cast<const QWidget*>(watched);
    if (!widget) return false;
    switch (event->type()) {
        case QEvent::Show:
            // Lists and menus that fold out are used with the mouse still where it opened them.
            if (widget->windowType() == Qt::Dialog) m_opened = widget;
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            m_bTaken = TakesPress(*widget->window(), static_cast<QMouseEvent&>(*event));
            return m_bTaken;
        case QEvent::MouseButtonRelease:
            return std::exchange(m_bTaken, false);
        default:
            return false;
    }
}
