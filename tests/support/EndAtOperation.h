// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"

#include <QMutex>

#include <atomic>
#include <cstdlib>

/// For programs that tests run as processes of their own, to be ended amid their work as by a power cut.
namespace EndAtOperation {

constexpr const char* kVariable = "TAVLORA_END_AT";
constexpr int kStatus = 7;

/// Counts what is about to change on the disk. Of a file that is written in many pieces the first two count: before
/// the first it is empty, before the second half written, as before all others.
class Changes {
public:
    /// False where it doesn't count.
    bool Take(Files::Operation operation, const QString& sPath) {
        if (operation == Files::Operation::OpenRead || operation == Files::Operation::Read) return false;
        const QMutexLocker locked(&m_mutex);
        m_inARow = operation == m_last && sPath == m_path ? m_inARow + 1 : 1;
        m_last = operation;
        m_path = sPath;
        return m_inARow <= 2;
    }

private:
    QMutex m_mutex; ///< Pictures are decoded on other threads.
    Files::Operation m_last = Files::Operation::Read;
    QString m_path;
    int m_inARow = 0;
};

/// Where the variable holds a number, the program ends at once, with the status above, when it is about to change
/// something on the disk for that time, counted from 0.
inline void AsTold() {
    bool isTold = false;
    static const int s_end = qEnvironmentVariableIntValue(kVariable, &isTold);
    static Changes s_changes;
    static std::atomic<int> s_count = 0;
    if (!isTold) return;
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (s_changes.Take(operation, sPath) && s_count++ == s_end) std::_Exit(kStatus);
        return std::nullopt;
    });
}

} // namespace EndAtOperation
