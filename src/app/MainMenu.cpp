// SPDX-License-Identifier: MIT
#include "app/MainMenu.h"

#include "services/basErrLog.h"

#include <QMenuBar>

#include <utility>

namespace {

using Item = MainMenu::Item;

bool Always(const Session&) { return true; }
// For what does nothing.
bool Never(const Session&) { return false; }

constexpr Item kFileItems[] = {
    {0, "&New...", "Ctrl+N", Always},  {1, "New Geme &Wizard", "", Never},         {2, "&Open...", "Ctrl+O", Always},
    {3, "&Save", "Ctrl+S", Always},    {4, "Save &As...", "Ctrl+Shift+S", Always}, {5, "-", "", Never},
    {6, "P&rinter Setup", "", Always}, {7, "&Print...", "Ctrl+P", Always},         {8, "-", "", Never},
    {9, "E&xit", "Ctrl+Q", Always},
};
constexpr Item kZoomItems[] = {
    {0, "&1X", "Ctrl+1", Always},
    {1, "&2X", "Ctrl+2", Always},
    {2, "&3X", "Ctrl+3", Always},
    {3, "&4X", "Ctrl+4", Always},
};
constexpr Item kViewItems[] = {
    {1, "&Money", "", Always}, {2, "&Good News", "", Always}, {3, "&Bad News", "", Always},
    {4, "&Token", "", Always}, {5, "-", "", Never},           {6, "&Tool Tips", "", Always},
    {7, "-", "", Never},       {8, "&Setup", "", Always},     {9, "&About...", "", Always},
};
constexpr Item kHelpItems[] = {
    {0, "&About...", "", Always},
    {1, "A&ssembly Instructions", "", Always},
    {2, "&Print Instruction Manual", "", Never},
};

} // namespace

MainMenu::MainMenu(QMenuBar& bar, const Session& session, std::function<void(Menu, int)> choose)
    : m_session(session), m_choose(std::move(choose)) {
    const auto add = [this](QMenu* menu, const char* sName) {
        menu->menuAction()->setObjectName(QString::fromLatin1(sName));
        connect(menu, &QMenu::aboutToShow, this, &MainMenu::Update);
        return menu;
    };
    Fill(*add(bar.addMenu(QStringLiteral("&File")), "mnuTop_0"), Menu::File, "mnuFile_", kFileItems);
    QMenu* const view = add(bar.addMenu(QStringLiteral("&View")), "mnuTop_1");
    Fill(*add(view->addMenu(QStringLiteral("&Zoom...")), "mnuView_0"), Menu::Zoom, "mnuZoom_", kZoomItems);
    Fill(*view, Menu::View, "mnuView_", kViewItems);
    Fill(*add(bar.addMenu(QStringLiteral("&Help")), "mnuTop_2"), Menu::Help, "mnuHelp_", kHelpItems);
    Update();
}

void MainMenu::Fill(QMenu& menu, Menu which, const char* sName, std::span<const Item> items) {
    for (const Item& item : items) {
        const bool separator = qstrcmp(item.sCaption, "-") == 0;
        QAction* const action = separator ? menu.addSeparator() : menu.addAction(QString::fromLatin1(item.sCaption));
        action->setObjectName(QString::fromLatin1(sName) + QString::number(item.Index));
        action->setShortcut(QKeySequence(QString::fromLatin1(item.sShortcut)));
        connect(action, &QAction::triggered, this, [this, which, &item] { Choose(which, item.Index); });
        m_entries.push_back({action, &item});
    }
}

void MainMenu::Choose(Menu menu, int Index) try { m_choose(menu, Index); } catch (...) {
    ErrTop("frmTAVL!", "MenuTriggered");
}

void MainMenu::Update() {
    for (const Entry& entry : m_entries)
        entry.action->setEnabled(entry.item->canBeChosen(m_session));
}
