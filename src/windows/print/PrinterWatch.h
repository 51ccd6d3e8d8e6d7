// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class Printer;

/// Looks after pages that have gone to a printer, which the desktop takes without a word even when nothing comes out:
/// what keeps it from printing is told within ten seconds.
class PrinterWatch : public QObject {
public:
    static constexpr int kLookEveryMs = 2000;
    /// A printer that is just waking up has troubles that pass.
    static constexpr int kLooksThatAgree = 3;
    static constexpr int kLooks = 15;

    explicit PrinterWatch(QObject* parent);

    /// A page has gone to the printer, which lives longer.
    void PageSent(const Printer& printer);
    /// What the timer does.
    void Look();

    /// False while it may not be told; the watch then looks on.
    std::function<bool()> MayTell = [] { return true; };
    std::function<void(const QString& sTrouble)> Tell = [](const QString&) {};

private:
    QTimer m_timer;
    const Printer* m_printer = nullptr;
    int m_looks = 0;
    int m_agreed = 0;
    QString m_last;
};
