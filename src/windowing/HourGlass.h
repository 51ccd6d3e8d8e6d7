// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>

/// As long as it lives, the mouse pointer shows that the program is working.
class HourGlass {
public:
    HourGlass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourGlass() { QGuiApplication::restoreOverrideCursor(); }
    HourGlass(const HourGlass&) = delete;
    HourGlass& operator=(const HourGlass&) = delete;
};
