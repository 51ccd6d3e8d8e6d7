// SPDX-License-Identifier: MIT
#include "windows/check/PrintQuestion.h"

#include "game/Session.h"
#include "windows/check/GameChecker.h"

#include <utility>

void PrintQuestion::Begin() {
    m_accepted.clear();
    m_meant.reset();
}

PrintQuestion::Answer PrintQuestion::Ask(const QStringList& sheets, QWidget* parent) {
    std::vector<Finding> asked;
    for (const Finding& finding : m_checker.Look()) {
        if (finding.IsSerious() && finding.ShowsOn(sheets) && !m_accepted.contains(finding.Key()))
            asked.push_back(finding);
    }
    if (!asked.empty()) {
        frmBeforePrint question(m_checker.InHand().InHand(), asked, sheets.size(), parent);
        const Answer answer = question.Ask();
        if (answer == Answer::ShowMe) m_meant = question.Meant();
        if (answer != Answer::PrintAnyway) return answer;
    }
    for (const Finding& finding : asked)
        m_accepted.insert(finding.Key());
    m_checker.NotePicturesAway();
    return Answer::PrintAnyway;
}

std::optional<Finding> PrintQuestion::TakeMeant() { return std::exchange(m_meant, std::nullopt); }
