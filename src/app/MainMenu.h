// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <span>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class Session;

/// The menus that hold entries.
enum class Menu { File, Edit, View, Zoom, Help };

/// The menus of the main window: their entries, the keys of these, and which of them can be chosen just now.
class MainMenu : public QObject {
    Q_OBJECT

public:
    /// Row of a menu's table.
    struct Item {
        int Index;
        /// "-" is a separator.
        const char* sCaption;
        /// Several are parted by "; ".
        const char* sShortcut;
        bool (*canBeChosen)(const Session&);
        /// What the entry is called just now, where that changes.
        QString (*caption)(const Session&) = nullptr;
    };
    struct Entry {
        QString sCaption;
        /// Greyed, though it can be chosen.
        bool bAway = false;
    };
    /// A submenu whose entries are asked for whenever it opens.
    struct List {
        const char* sName;
        const char* sCaption;
        /// Object name of the entry that it stands ahead of.
        const char* sAheadOf;
        std::function<std::vector<Entry>()> entries;
        std::function<void(int)> choose;
    };

    /// What a chosen entry does is for choose, which is told the entry's menu and its index in it.
    MainMenu(QMenuBar& bar, const Session& session, std::function<void(Menu, int)> choose);

    void AddList(QMenu& menu, List list);
    /// Gives an entry a check mark, or takes it; by its object name.
    void SetChecked(const char* sName, bool bChecked);
    QMenu& FileMenu() const { return *m_file; }

public Q_SLOTS:
    /// Greys what can't be chosen now. Done whenever a menu opens; a key opens none, so whoever changes what can
    /// be chosen calls it too.
    void Update();

private:
    void Choose(Menu menu, int Index);
    void FillList(QMenu& menu, const List& list);
    void Fill(QMenu& menu, Menu which, const char* sName, std::span<const Item> items);

    struct Shown {
        QAction* action;
        const Item* item;
    };

    QMenu* m_file;
    const Session& m_session;
    std::function<void(Menu, int)> m_choose;
    std::vector<Shown> m_entries;
};
