// SPDX-License-Identifier: MIT
#pragma once

#include "services/Desktop.h"
#include "windowing/ListOffer.h"

/// Among a dialog's flags: a folder is asked for, and no file.
constexpr int kChooseFolder = 2;

/// The desktop with a person in front of it: boxes and dialogs of the toolkit, all texts plain.
class DesktopWidgets : public Desktop {
public:
    int MsgBox(const QString& sText, int iStyle, const QString& sTitle) override;
    void MsgList(const QStringList& messages, int iStyle, const QString& sTitle) override;
    bool ShowOpen(CommonDialog& dialog) override;
    bool ShowSave(CommonDialog& dialog) override;
    bool ShowFont(CommonDialog& dialog) override;
    bool ShowPrinter(CommonDialog& dialog) override;
    /// Windows go on being painted and answering meanwhile.
    void Sleep(int milliseconds) override;
    void DoEvents() override;
    [[noreturn]] void EndProgram(int iStatus) override;

    /// From now on, in every desktop with a person in front of it.
    static void OfferBelowLists(ListOffer offer);

    /// Called last of all when the program ends.
    void SetAtEnd(std::function<void()> atEnd) { m_atEnd = std::move(atEnd); }

    /// "Games|*.gam|All files|*.*" in the toolkit's form, "Games (*.gam);;All files (*)".
    static QStringList NameFilters(const QString& sFilter);

private:
    std::function<void()> m_atEnd;
};
