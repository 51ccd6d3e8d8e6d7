// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"

#include <QMutex>
#include <QStringList>

#include <string>

/// Refuses the operations on files that some steps take, one after the other, for every reason a disk has: once, then
/// that and all of its kind that follow, then that and whatever follows.
class RefusedInTurn {
public:
    enum class Lasts { Once, ForItsKind, ForAll };
    struct Case {
        const char* sReason;
        bool bReadsToo;
        Lasts lasts;
        int at;
        /// What was refused.
        QStringList paths;

        std::string Told() const {
            return std::string(sReason) + " at operation " + std::to_string(at) + ", lasting " +
                   std::to_string(int(lasts)) + ": " + paths.first().toStdString();
        }
    };

    /// Runs the steps as long as they take another operation, and has each run checked. Gives the number of runs.
    template <typename Steps, typename Check>
    static int Run(Steps steps, Check check) {
        constexpr std::pair<const char*, bool> kReasons[] = {
            {"No space left on device", false}, {"Permission denied", false}, {"Input/output error", true}};
        int runs = 0;
        for (const auto& [reason, readsToo] : kReasons) {
            for (const Lasts lasts : {Lasts::Once, Lasts::ForItsKind, Lasts::ForAll}) {
                for (int at = 0;; ++at) {
                    Case now{reason, readsToo, lasts, at, {}};
                    Refuse(now, steps);
                    if (now.paths.isEmpty()) break;
                    check(now);
                    ++runs;
                }
            }
        }
        return runs;
    }

private:
    template <typename Steps>
    static void Refuse(Case& now, Steps steps) {
        // Pictures are read on other threads as well.
        QMutex mutex;
        int count = 0;
        Files::Operation kind{};
        const auto before = Files::SetFaultHook([&](Files::Operation operation, const QString& path) {
            const QMutexLocker lock(&mutex);
            const bool reading = operation == Files::Operation::OpenRead || operation == Files::Operation::Read;
            if (reading && !now.bReadsToo) return std::optional<QString>();
            const int number = count++;
            if (number == now.at) kind = operation;
            const bool hit = number == now.at ||
                             (number > now.at &&
                              (now.lasts == Lasts::ForAll || (now.lasts == Lasts::ForItsKind && operation == kind)));
            if (!hit) return std::optional<QString>();
            now.paths.append(path);
            return std::optional(QString::fromLatin1(now.sReason));
        });
        steps();
        Files::SetFaultHook(before);
    }
};
