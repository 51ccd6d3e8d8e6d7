// SPDX-License-Identifier: MIT
#include "PeakMemory.h"

#include <QFile>

double PeakMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
    }
    return 0;
}
