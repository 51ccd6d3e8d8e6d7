// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPointer>

class QMouseEvent;

/// The toolkit's application with a last net: a failure that no event handler has caught is handed to a
/// routine instead of ending the program.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    /// Called inside the catch clause of the failure, which it may rethrow to look at.
    using LastNet = void (*)();
    void SetLastNet(LastNet net) { m_lastNet = net; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    LastNet m_lastNet = nullptr;
};

/// A press that opens a window ends there: the second press of a double click isn't handed to the window that has just
/// come up under the mouse, where it might close it again or press what nobody aimed at. Watches the whole program.
class SecondPressFilter : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakesPress(const QWidget& window, const QMouseEvent& event);

    /// When the last press was, by the screen's own clock, and where on the screen.
    quint64 m_when = 0;
    QPoint m_at;
    /// A window that came up since then.
    QPointer<const QWidget> m_opened;
    bool m_bTaken = false;
};
