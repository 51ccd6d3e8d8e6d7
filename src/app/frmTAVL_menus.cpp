// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/EditorRoutes.h"
#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "windows/print/ChangePrinter.h"

#include <QMenuBar>

namespace {

// A caption of "-" is a separator; one that does nothing is grey.
struct Item {
    const char* sMenu;
    int Index;
    const char* sCaption;
    const char* sShortcut;
    bool bActs;
};

constexpr Item kFileItems[] = {
    {"mnuFile", 0, "&New...", "Ctrl+N", true},
    {"mnuFile", 1, "New Geme &Wizard", "", false},
    {"mnuFile", 2, "&Open...", "Ctrl+O", true},
    {"mnuFile", 3, "&Save", "Ctrl+S", true},
    {"mnuFile", 4, "Save &As...", "Ctrl+Shift+S", true},
    {"mnuFile", 5, "-", "", false},
    {"mnuFile", 6, "P&rinter Setup", "", true},
    {"mnuFile", 7, "&Print...", "Ctrl+P", true},
    {"mnuFile", 8, "-", "", false},
    {"mnuFile", 9, "E&xit", "Ctrl+Q", true},
};
constexpr Item kZoomItems[] = {
    {"mnuZoom", 0, "&1X", "Ctrl+1", true},
    {"mnuZoom", 1, "&2X", "Ctrl+2", true},
    {"mnuZoom", 2, "&3X", "Ctrl+3", true},
    {"mnuZoom", 3, "&4X", "Ctrl+4", true},
};
constexpr Item kViewItems[] = {
    {"mnuView", 1, "&Money", "", true}, {"mnuView", 2, "&Good News", "", true}, {"mnuView", 3, "&Bad News", "", true},
    {"mnuView", 4, "&Token", "", true}, {"mnuView", 5, "-", "", false},         {"mnuView", 6, "&Tool Tips", "", true},
    {"mnuView", 7, "-", "", false},     {"mnuView", 8, "&Setup", "", true},     {"mnuView", 9, "&About...", "", true},
};
constexpr Item kHelpItems[] = {
    {"mnuHelp", 0, "&About...", "", true},
    {"mnuHelp", 1, "A&ssembly Instructions", "", true},
    {"mnuHelp", 2, "&Print Instruction Manual", "", false},
};

constexpr const char* kMenuProperty = "menu";
constexpr const char* kIndexProperty = "index";

QString ItemName(const Item& item) { return QString::fromLatin1(item.sMenu) + u'_' + QString::number(item.Index); }

} // namespace

QMenu* frmTAVL::MakeMenu(QMenu* menu, const QString& sCaption, const QString& sName) {
    QMenu* const made = menu ? menu->addMenu(sCaption) : menuBar()->addMenu(sCaption);
    made->menuAction()->setObjectName(sName);
    return made;
}

void frmTAVL::MakeMenus() {
    const auto fill = [this](QMenu* menu, std::span<const Item> items) {
        for (const Item& item : items) {
            const bool separator = qstrcmp(item.sCaption, "-") == 0;
            QAction* const action =
                separator ? menu->addSeparator() : menu->addAction(QString::fromLatin1(item.sCaption));
            action->setObjectName(ItemName(item));
            action->setShortcut(QKeySequence(QString::fromLatin1(item.sShortcut)));
            action->setEnabled(item.bActs);
            action->setProperty(kMenuProperty, QString::fromLatin1(item.sMenu));
            action->setProperty(kIndexProperty, item.Index);
            connect(action, &QAction::triggered, this, &frmTAVL::MenuTriggered);
        }
    };
    fill(MakeMenu(nullptr, QStringLiteral("&File"), QStringLiteral("mnuTop_0")), kFileItems);
    QMenu* const view = MakeMenu(nullptr, QStringLiteral("&View"), QStringLiteral("mnuTop_1"));
    fill(MakeMenu(view, QStringLiteral("&Zoom..."), QStringLiteral("mnuView_0")), kZoomItems);
    fill(view, kViewItems);
    fill(MakeMenu(nullptr, QStringLiteral("&Help"), QStringLiteral("mnuTop_2")), kHelpItems);
}

void frmTAVL::MenuTriggered() try {
    const QString menu = sender()->property(kMenuProperty).toString();
    const int Index = sender()->property(kIndexProperty).toInt();
    if (menu == QStringLiteral("mnuFile")) mnuFile_Click(Index);
    if (menu == QStringLiteral("mnuZoom")) mnuZoom_Click(Index);
    if (menu == QStringLiteral("mnuView")) mnuView_Click(Index);
    if (menu == QStringLiteral("mnuHelp")) mnuHelp_Click(Index);
} catch (...) {
    ErrTop("frmTAVL!", "MenuTriggered");
}

void frmTAVL::mnuFile_Click(int Index) try {
    switch (Index) {
        case 0:
            return m_commands.New();
        case 2:
            return m_commands.Open();
        case 3:
            return m_commands.Save();
        case 4:
            return m_commands.SaveAs();
        case 6:
            return PrinterSetup();
        case 7:
            return Print();
        case 9:
            return ExitWithQuestion();
        case 1:
        case 5:
        case 8:
            return;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected mnu_File"), QStringLiteral("frmTAVL!mnuFile_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuFile_Click", Index);
}

void frmTAVL::mnuZoom_Click(int Index) try { m_view.SetZoom(Index + 1); } catch (...) {
    ErrTail("frmTAVL!", "mnuZoom_Click", Index);
}

void frmTAVL::mnuView_Click(int Index) try {
    switch (Index) {
        case 0:
            m_view.SetZoom(1);
            return m_view.Redraw();
        case 1:
            return EditMoney();
        case 2:
            return EditNews(0);
        case 3:
            return EditNews(1);
        case 4:
            return EditToken();
        case 5:
        case 7:
            return;
        case 6:
            return m_tips.Toggle();
        case 8:
            return EditorRoutes::Current().Setup();
        case 9:
            return m_about->ShowForm();
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!mnuView_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuView_Click", Index);
}

void frmTAVL::mnuHelp_Click(int Index) try {
    switch (Index) {
        case 0:
            return m_about->ShowForm();
        case 1:
            return frmPrintManual(this).ShowForm(false);
        case 2:
            return;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!mnuHelp_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuHelp_Click", Index);
}

void frmTAVL::RunToolBarButton(const ToolBarTable::Row& row) {
    switch (row.menu) {
        case ToolBarTable::Menu::File:
            return mnuFile_Click(row.iItem);
        case ToolBarTable::Menu::View:
            return mnuView_Click(row.iItem);
        case ToolBarTable::Menu::Zoom:
            return mnuZoom_Click(row.iItem);
    }
}

void frmTAVL::cmd_Click(int Index) try {
    switch (Index) {
        case 0:
            return EditMoney();
        case 1:
        case 2:
            // Both open Good News, on purpose: so it has always been.
            return EditNews(0);
        case 3:
            return Print();
        case 4:
            // No question but the one about unsaved changes.
            close();
            return;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!cmd_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "cmd_Click", Index);
}

void frmTAVL::Print() try {
    if (m_commands.m_bChanged) {
        MsgBox(QStringLiteral("Please save your changes before printing."));
        return;
    }
    m_bPrintedSomething = EditorRoutes::Current().Print();
} catch (...) {
    ErrTail("frmTAVL!", "Print");
}

void frmTAVL::PrinterSetup() try { ChangePrinter(dlgCommon, m_bPrintedSomething); } catch (...) {
    ErrTail("frmTAVL!", "PrinterSetup");
}

void frmTAVL::ExitWithQuestion() try {
    const int answer =
        MsgBox(QStringLiteral("Are you certain you want to exit Tavlora at this time?"), vbYesNo | vbQuestion);
    if (answer == vbYes) close();
} catch (...) {
    ErrTail("frmTAVL!", "ExitWithQuestion");
}
