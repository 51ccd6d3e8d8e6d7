// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"

#include <QThread>

#include <optional>

/// Counts the files that this thread opens for reading while it stands: what a window reads itself keeps whoever sits
/// there waiting, on every machine, and takes a time that no test could name.
class ReadsOfThisThread {
public:
    ReadsOfThisThread() {
        m_before = Files::SetFaultHook([this](Files::Operation operation, const QString&) -> std::optional<QString> {
            if (operation == Files::Operation::OpenRead && QThread::currentThread() == m_thread) ++m_count;
            return std::nullopt;
        });
    }
    ~ReadsOfThisThread() { Files::SetFaultHook(m_before); }
    ReadsOfThisThread(const ReadsOfThisThread&) = delete;
    ReadsOfThisThread& operator=(const ReadsOfThisThread&) = delete;

    int Count() const { return m_count; }

private:
    QThread* m_thread = QThread::currentThread();
    int m_count = 0;
    Files::FaultHook m_before;
};
