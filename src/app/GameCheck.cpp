// SPDX-License-Identifier: MIT
#include "app/GameCheck.h"

#include "check/FindingWords.h"
#include "services/basErrLog.h"
#include "windowing/CountLight.h"
#include "windows/check/frmCheck.h"
#include "windows/pictures/frmBrowse.h"

GameCheck::GameCheck(QWidget& window, Session& session, CheckList::Doors doors, std::function<bool()> isBusy)
    : m_window(window), m_doors(std::move(doors)), m_checker(session), m_light(new CountLight(&window)) {
    m_doors.findPicture = [this](const QString& sBad) {
        frmBrowse browse(&m_window);
        browse.SetBadPath(sBad);
        const QString found = browse.ShowForm(QString(), false);
        return found == sBad ? QString() : found;
    };
    m_checker.SetBusy(std::move(isBusy));
    connect(&m_checker, &GameChecker::Looked, this, &GameCheck::ShowLight);
    connect(m_light, &CountLight::clicked, this, &GameCheck::ShowList);
}

CheckList* GameCheck::MakeTab() {
    m_tab = new CheckList(m_checker, m_doors);
    return m_tab;
}

QWidget& GameCheck::Light() { return *m_light; }

void GameCheck::ShowLight() {
    const std::vector<Finding>& found = m_checker.Found();
    m_light->Show(FindingWords::SeriousOnes(found),
                  FindingWords::Summary(found) + QStringLiteral(". Click for the list."));
}

CheckList& GameCheck::OpenList() {
    m_checker.Look();
    if (m_tab && m_doors.showTab()) return *m_tab;
    if (!m_list) m_list = new frmCheck(m_checker, m_doors, &m_window);
    m_list->ShowForm();
    return m_list->List();
}

void GameCheck::ShowList() try { OpenList(); } catch (...) {
    ErrTop("GameCheck!", "ShowList");
}

void GameCheck::EndPrinting() {
    if (const std::optional<Finding> meant = m_question.TakeMeant()) OpenList().Choose(*meant);
}
