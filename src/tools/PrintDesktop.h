// SPDX-License-Identifier: MIT
#pragma once

#include "services/Desktop.h"

#include <functional>

/// The desktop of tavlora-print: a box becomes one line, a question is answered with its first button, and
/// the end of the program is thrown, so that the temporary folder is cleared away whatever happens. In force
/// while it lives.
class PrintDesktop : public ConsoleDesktop {
public:
    using Tell = std::function<void(const QString& sLine)>;

    explicit PrintDesktop(Tell tell) : m_tell(std::move(tell)), m_before(Desktop::Install(this)) {}
    ~PrintDesktop() override { Desktop::Install(m_before); }
    PrintDesktop(const PrintDesktop&) = delete;
    PrintDesktop& operator=(const PrintDesktop&) = delete;

    int MsgBox(const QString& sText, int iStyle, const QString& sTitle) override;
    [[noreturn]] void EndProgram(int iStatus) override { throw ProgramEnded(iStatus); }

private:
    Tell m_tell;
    Desktop* m_before;
};
