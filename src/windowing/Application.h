// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

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
