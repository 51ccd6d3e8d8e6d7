// SPDX-License-Identifier: MIT
#include "windowing/Application.h"

#include "services/Desktop.h"

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
