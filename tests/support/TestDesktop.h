// SPDX-License-Identifier: MIT
#pragma once

#include "services/Desktop.h"

#include <QList>
#include <QStringList>

#include <functional>

/// A desktop that answers by itself and remembers what a person would have seen.
class TestDesktop : public Desktop {
public:
    struct Box {
        QString sText;
        int iStyle;
        QString sTitle;
    };

    TestDesktop();
    ~TestDesktop() override;

    int MsgBox(const QString& sText, int iStyle, const QString& sTitle) override;
    bool ShowOpen(CommonDialog& dialog) override;
    bool ShowSave(CommonDialog& dialog) override;
    bool ShowFont(CommonDialog& dialog) override;
    bool ShowPrinter(CommonDialog& dialog) override;
    void Sleep(int milliseconds) override { slept += milliseconds; }
    void DoEvents() override {
        ++pumped;
        if (onPump) onPump();
    }
    /// Throws ProgramEnded.
    [[noreturn]] void EndProgram(int iStatus) override;

    /// Boxes shown, in order.
    QList<Box> boxes;
    QStringList Texts() const;
    /// Answers for the boxes to come, first one first; then the box's first button.
    QList<int> answers;
    /// What happens while a box stands there, before it is answered.
    std::function<void()> onBox;
    /// What a file or font dialog does; none means it is cancelled.
    std::function<bool(CommonDialog&)> onDialog;
    int slept = 0;
    int pumped = 0;
    /// What happens while events run.
    std::function<void()> onPump;
    bool ended = false;

private:
    Desktop* m_before;
};
