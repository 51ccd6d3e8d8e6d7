// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class QDialog;

/// Whether to print sheets, by their words, for a window of printing. Whoever answers may close that window.
using MayPrintQuestion = std::function<bool(QDialog& window, const QStringList& sheets)>;
