// SPDX-License-Identifier: MIT
#pragma once

#include "windows/check/CheckList.h"
#include "windows/check/GameChecker.h"
#include "windows/check/PrintQuestion.h"

#include <QPointer>

class CountLight;
class frmCheck;
class Session;

/// Check My Game in the main window: looks after each edit, lights a light, opens the list of what there is to mend,
/// and asks before that is printed.
class GameCheck : public QObject {
    Q_OBJECT

public:
    GameCheck(QWidget& window, Session& session, CheckList::Doors doors, std::function<bool()> isBusy);

    /// The list for the panel beside the board; the caller keeps it.
    CheckList* MakeTab();
    /// In the panel or, where that has no room, in a window of its own.
    void ShowList();
    /// For a corner of the window: green, or how much there is to mend. A click opens the list.
    QWidget& Light();

    /// The print console opens, and closes.
    void BeginPrinting() { m_question.Begin(); }
    void EndPrinting();
    /// Before these sheets are printed, by their words.
    PrintQuestion::Answer BeforePrinting(const QStringList& sheets, QWidget* parent) {
        return m_question.Ask(sheets, parent);
    }

private:
    CheckList& OpenList();
    void ShowLight();

    QWidget& m_window;
    CheckList::Doors m_doors;
    GameChecker m_checker;
    PrintQuestion m_question{m_checker};
    QPointer<CheckList> m_tab;
    QPointer<frmCheck> m_list;
    CountLight* m_light;
};
