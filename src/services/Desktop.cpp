// SPDX-License-Identifier: MIT
#include "services/Desktop.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

ConsoleDesktop& DefaultDesktop() {
    static ConsoleDesktop desktop;
    return desktop;
}

Desktop*& CurrentDesktop() {
    static Desktop* current = &DefaultDesktop();
    return current;
}

} // namespace

Desktop* Desktop::Install(Desktop* desktop) {
    Desktop* const before = CurrentDesktop();
    CurrentDesktop() = desktop ? desktop : &DefaultDesktop();
    return before;
}

void Desktop::MsgList(const QStringList& messages, int iStyle, const QString& sTitle) {
    MsgBox(messages.join(QStringLiteral("\r\n")), iStyle, sTitle);
}

Desktop& Desktop::Current() { return *CurrentDesktop(); }

bool CommonDialog::ShowOpen() { return Desktop::Current().ShowOpen(*this); }
bool CommonDialog::ShowSave() { return Desktop::Current().ShowSave(*this); }
bool CommonDialog::ShowFont() { return Desktop::Current().ShowFont(*this); }
bool CommonDialog::ShowPrinter() { return Desktop::Current().ShowPrinter(*this); }

int MsgBox(const QString& sText, int iStyle, const QString& sTitle) {
    return Desktop::Current().MsgBox(sText, iStyle, sTitle);
}
void MsgList(const QStringList& messages, int iStyle, const QString& sTitle) {
    Desktop::Current().MsgList(messages, iStyle, sTitle);
}
void Sleep(int milliseconds) { Desktop::Current().Sleep(milliseconds); }
void DoEvents() { Desktop::Current().DoEvents(); }
void EndProgram(int iStatus) {
    Desktop::Current().EndProgram(iStatus);
    std::terminate(); // never reached; the compiler can't see that through the call
}

int ConsoleDesktop::MsgBox(const QString& sText, int iStyle, const QString& sTitle) {
    const QString line = sText.simplified();
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(sTitle), qUtf8Printable(line));
    switch (iStyle & 0xF) {
        case vbYesNo:
        case vbYesNoCancel:
            return vbYes;
        default:
            return vbOK;
    }
}

void ConsoleDesktop::MsgList(const QStringList& messages, int iStyle, const QString& sTitle) {
    for (const QString& message : messages)
        MsgBox(message, iStyle, sTitle);
}

bool ConsoleDesktop::ShowOpen(CommonDialog&) { return false; }
bool ConsoleDesktop::ShowSave(CommonDialog&) { return false; }
bool ConsoleDesktop::ShowFont(CommonDialog&) { return false; }
bool ConsoleDesktop::ShowPrinter(CommonDialog&) { return false; }

void ConsoleDesktop::Sleep(int milliseconds) { QThread::msleep(static_cast<unsigned long>(std::max(milliseconds, 0))); }

void ConsoleDesktop::DoEvents() { QCoreApplication::processEvents(); }

void ConsoleDesktop::EndProgram(int iStatus) {
    std::fflush(nullptr);
    // Destructors would run with windows half open; the work that must last is on disk by now.
    std::_Exit(iStatus);
}
