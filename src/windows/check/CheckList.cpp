// SPDX-License-Identifier: MIT
#include "windows/check/CheckList.h"

#include "check/Checks.h"
#include "check/FindingWords.h"
#include "check/PieceParts.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "windows/check/FindingTree.h"
#include "windows/check/GameChecker.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

CheckList::CheckList(GameChecker& checker, const Doors& doors, QWidget* parent)
    : QWidget(parent), m_checker(checker), m_doors(doors) {
    BuildControls();
    connect(&m_checker, &GameChecker::Looked, this, &CheckList::Fill);
    Fill();
}

void CheckList::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    lblSummary = new QLabel(this);
    lblSummary->setObjectName(QStringLiteral("lblSummary"));
    lblSummary->setTextFormat(Qt::PlainText);
    lblSummary->setWordWrap(true);
    column->addWidget(lblSummary);
    tvwFindings = new FindingTree(this);
    column->addWidget(tvwFindings);
    auto* const buttons = new QGridLayout;
    cmdFix = MakeButton("cmdFix", "F&ix", &CheckList::cmdFix_Click);
    cmdNoProblem = MakeButton("cmdNoProblem", "&Not a Problem", &CheckList::cmdNoProblem_Click);
    cmdTellAll = MakeButton("cmdTellAll", "Tell &All Again", &CheckList::cmdTellAll_Click);
    // Letters that the menus of the window around it don't use.
    buttons->addWidget(cmdFix, 0, 0);
    buttons->addWidget(cmdNoProblem, 0, 1);
    buttons->addWidget(cmdTellAll, 1, 1);
    column->addLayout(buttons);
    connect(tvwFindings, &QTreeWidget::currentItemChanged, this, &CheckList::tvwFindings_Click);
    connect(tvwFindings, &QTreeWidget::itemActivated, this, &CheckList::tvwFindings_DblClick);
}

QPushButton* CheckList::MakeButton(const char* sName, const char* sCaption, void (CheckList::*click)()) {
    auto* const made = new QPushButton(QString::fromLatin1(sCaption), this);
    made->setObjectName(QString::fromLatin1(sName));
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, click);
    return made;
}

void CheckList::Choose(const Finding& finding) { tvwFindings->Choose(finding); }

void CheckList::Fill() {
    tvwFindings->Fill(m_checker.InHand().InHand(), m_checker.Found());
    ShowWhatCanBeDone();
}

void CheckList::ShowWhatCanBeDone() {
    const Finding* const chosen = tvwFindings->Chosen();
    cmdFix->setEnabled(chosen && m_checker.CanMend(*chosen));
    cmdNoProblem->setEnabled(chosen != nullptr);
    cmdTellAll->setEnabled(m_checker.PutAside() > 0);
    lblSummary->setText(FindingWords::Summary(tvwFindings->Shown()) +
                        (chosen ? QStringLiteral(". ") + chosen->sAdvice : QStringLiteral(".")));
}

void CheckList::tvwFindings_Click(QTreeWidgetItem* item) try {
    ShowWhatCanBeDone();
    if (const Finding* const finding = tvwFindings->FirstOf(item)) m_doors.show(finding->piece);
} catch (...) {
    ErrTop("CheckList!", "tvwFindings_Click");
}

void CheckList::tvwFindings_DblClick(QTreeWidgetItem* item) try {
    // A copy: the list is filled anew while the editor stands.
    if (const Finding* const finding = tvwFindings->FirstOf(item)) m_doors.open(GamePiece(finding->piece));
} catch (...) {
    ErrTop("CheckList!", "tvwFindings_DblClick");
}

void CheckList::cmdFix_Click() try {
    const Finding* const chosen = tvwFindings->Chosen();
    if (!chosen) return;
    const Finding finding = *chosen;
    const Mending mending = MendingOf(finding);
    if (mending == Mending::BySearch) return m_doors.findMissing(finding.piece);
    QString picture;
    if (mending == Mending::ByPicture) {
        picture = m_doors.findPicture(PieceParts::PictureOf(m_checker.InHand().InHand(), finding.piece).sPath);
        if (picture.isEmpty()) return;
    }
    if (!m_checker.MendNow(finding, picture)) return;
    m_doors.mended();
    m_doors.show(finding.piece);
} catch (...) {
    ErrTop("CheckList!", "cmdFix_Click");
}

void CheckList::cmdNoProblem_Click() try {
    if (const Finding* const finding = tvwFindings->Chosen()) m_checker.CallNoProblem(Finding(*finding));
} catch (...) {
    ErrTop("CheckList!", "cmdNoProblem_Click");
}

void CheckList::cmdTellAll_Click() try { m_checker.TellAllAgain(); } catch (...) {
    ErrTop("CheckList!", "cmdTellAll_Click");
}
