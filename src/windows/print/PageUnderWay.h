// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class DeviceContext;
class Printer;

/// As long as it lives, pages are being printed: the windows behind the given one take no input. A document that is
/// then still open is thrown away, and drawing goes on where it was before, whatever has failed amid a page.
class PageUnderWay {
public:
    /// tellInPrint disables the main window and, with it, all that it owns; this window lives on.
    PageUnderWay(QWidget& window, Printer& printer, const std::function<void(bool)>& tellInPrint);
    ~PageUnderWay();
    PageUnderWay(const PageUnderWay&) = delete;
    PageUnderWay& operator=(const PageUnderWay&) = delete;

private:
    Printer& m_printer;
    const std::function<void(bool)>& m_tellInPrint;
    QPointer<QWidget> m_focus;
    DeviceContext* m_hDC;
};
