// SPDX-License-Identifier: MIT
#include "app/MainMenu.h"

#include "game/Session.h"
#include "services/basErrLog.h"

#include <QMenuBar>
#include <QStyleOptionMenuItem>

#include <algorithm>
#include <utility>

namespace {

using Item = MainMenu::Item;

bool Always(const Session&) { return true; }
// For what does nothing.
bool Never(const Session&) { return false; }
bool CanUndo(const Session& session) { return session.CanUndo(); }
bool CanRedo(const Session& session) { return session.CanRedo(); }

// A name may hold an "&", which would underline what follows, and be longer than a menu.
QString Behind(const char* sWord, const QString& sName) {
    constexpr int kMostShown = 40;
    QString name = sName.size() > kMostShown ? sName.left(kMostShown) + QStringLiteral("...") : sName;
    name.replace(u'&', QStringLiteral("&&"));
    return (QString::fromLatin1(sWord) + u' ' + name).trimmed();
}
QString UndoCaption(const Session& session) { return Behind("&Undo", session.UndoName()); }
QString RedoCaption(const Session& session) { return Behind("&Redo", session.RedoName()); }

constexpr Item kFileItems[] = {
    {0, "&New...", "Ctrl+N", Always},
    {1, "New Geme &Wizard", "", Never},
    {2, "&Open...", "Ctrl+O", Always},
    {3, "&Save", "Ctrl+S", Always},
    {4, "Save &As...", "Ctrl+Shift+S", Always},
    {20, "&Duplicate", "", Always},
    {22, "Earlier &Versions...", "", Always},
    {50, "-", "", Never},
    {52, "Deal P&hotos...", "", Always},
    {51, "Find &Missing Pictures...", "", Always},
    {33, "-", "", Never},
    {30, "Send to a Fr&iend...", "", Always},
    {31, "Save a Picture of the &Board...", "", Always},
    {32, "Save a Picture of a Pie&ce...", "", Always},
    {5, "-", "", Never},
    {6, "P&rinter Setup", "", Always},
    {7, "&Print...", "Ctrl+P", Always},
    {21, "Print &Everything...", "Ctrl+Shift+P", Always},
    {23, "Chec&k the Printer...", "", Always},
    {8, "-", "", Never},
    {9, "E&xit", "Ctrl+Q", Always},
};
constexpr Item kEditItems[] = {
    {0, "&Undo", "Ctrl+Z", CanUndo, UndoCaption},
    {1, "&Redo", "Ctrl+Shift+Z; Ctrl+Y", CanRedo, RedoCaption},
    {2, "-", "", Never},
    {41, "Cop&y", "Ctrl+C", Always},
    {42, "&Paste", "Ctrl+V", Always},
    {43, "S&wap With...", "Ctrl+Shift+W", Always},
    {40, "-", "", Never},
    {3, "&Check My Game", "F7", Always},
    {30, "-", "", Never},
    {31, "Copy a Picture of the &Board", "Ctrl+Shift+C", Always},
};
constexpr Item kZoomItems[] = {
    {0, "&1X", "Ctrl+1", Always},
    {1, "&2X", "Ctrl+2", Always},
    {2, "&3X", "Ctrl+3", Always},
    {3, "&4X", "Ctrl+4", Always},
};
constexpr Item kViewItems[] = {
    {1, "&Money", "", Always},
    {2, "&Good News", "", Always},
    {3, "&Bad News", "", Always},
    {4, "&Token", "", Always},
    {5, "-", "", Never},
    {6, "&Tool Tips", "", Always},
    {7, "-", "", Never},
    {8, "&Setup", "", Always},
    {9, "&About...", "", Always},
    {20, "-", "", Never},
    {21, "Side &Panel", "F9", Always},
};
constexpr Item kHelpItems[] = {
    {0, "&About...", "", Always},
    {1, "A&ssembly Instructions", "", Always},
    {2, "&Print Instruction Manual", "", Never},
    {20, "-", "", Never},
    {21, "&First Evening", "", Always},
    {30, "About This &Window", "F1", Always},
    // Not a key of the menu's: in every window it tells about the control that has the focus.
    {31, "What &Is This?\tShift+F1", "", Always},
};

constexpr const char* kAway = "away";

// Draws what is away as what can't be chosen, and lets it be chosen all the same.
class ListMenu : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override {
        QMenu::initStyleOption(option, action);
        if (!action->property(kAway).toBool()) return;
        // Styles look at one or the other.
        option->state &= ~QStyle::State_Enabled;
        option->palette.setCurrentColorGroup(QPalette::Disabled);
    }
};

void ChooseOf(const std::function<void(int)>& choose, int iEntry) try { choose(iEntry); } catch (...) {
    ErrTop("frmTAVL!", "MenuTriggered");
}

} // namespace

MainMenu::MainMenu(QMenuBar& bar, const Session& session, std::function<void(Menu, int)> choose)
    : m_session(session), m_choose(std::move(choose)) {
    const auto add = [this](QMenu* menu, const char* sName) {
        menu->menuAction()->setObjectName(QString::fromLatin1(sName));
        connect(menu, &QMenu::aboutToShow, this, &MainMenu::Update);
        return menu;
    };
    m_file = add(bar.addMenu(QStringLiteral("&File")), "mnuTop_0");
    Fill(*m_file, Menu::File, "mnuFile_", kFileItems);
    Fill(*add(bar.addMenu(QStringLiteral("&Edit")), "mnuEdit"), Menu::Edit, "mnuEdit_", kEditItems);
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
        action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(item.sShortcut)));
        connect(action, &QAction::triggered, this, [this, which, &item] { Choose(which, item.Index); });
        m_entries.push_back({action, &item});
    }
}

void MainMenu::Choose(Menu menu, int Index) try { m_choose(menu, Index); } catch (...) {
    ErrTop("frmTAVL!", "MenuTriggered");
}

void MainMenu::Update() {
    for (const Shown& entry : m_entries) {
        entry.action->setEnabled(entry.item->canBeChosen(m_session));
        if (entry.item->caption) entry.action->setText(entry.item->caption(m_session));
    }
}

void MainMenu::SetChecked(const char* sName, bool bChecked) {
    for (const Shown& entry : m_entries) {
        if (entry.action->objectName() != QLatin1String(sName)) continue;
        entry.action->setCheckable(true);
        entry.action->setChecked(bChecked);
    }
}

void MainMenu::AddList(QMenu& menu, List list) {
    auto* const sub = new ListMenu(QString::fromLatin1(list.sCaption), &menu);
    sub->menuAction()->setObjectName(QString::fromLatin1(list.sName));
    const QList<QAction*> actions = menu.actions();
    const auto before = std::find_if(actions.begin(), actions.end(), [&list](const QAction* action) {
        return action->objectName() == QLatin1String(list.sAheadOf);
    });
    menu.insertMenu(before == actions.end() ? nullptr : *before, sub);
    connect(sub, &QMenu::aboutToShow, this, [this, sub, list = std::move(list)] { FillList(*sub, list); });
}

void MainMenu::FillList(QMenu& menu, const List& list) try {
    menu.clear();
    const std::vector<Entry> entries = list.entries();
    for (int i = 0; i < int(entries.size()); ++i) {
        const Entry& entry = entries[size_t(i)];
        QAction* const action = menu.addAction(entry.sCaption);
        action->setProperty(kAway, entry.bAway);
        action->setObjectName(QString::fromLatin1(list.sName) + u'_' + QString::number(i));
        connect(action, &QAction::triggered, this, [choose = list.choose, i] { ChooseOf(choose, i); });
    }
    if (entries.empty()) menu.addAction(QStringLiteral("None yet"))->setEnabled(false);
} catch (...) {
    ErrTop("frmTAVL!", "FillList");
}
