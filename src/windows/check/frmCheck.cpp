// SPDX-License-Identifier: MIT
#include "windows/check/frmCheck.h"

#include "check/FindingWords.h"
#include "game/Session.h"
#include "services/basErrLog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize kFirstSize(520, 420);

// A word beside the colour of the sign, for whoever doesn't see colours.
QString SignOf(Severity severity) {
    switch (severity) {
        case Severity::Must:
            return QStringLiteral("Missing on paper");
        case Severity::Should:
            return QStringLiteral("Mend it");
        default:
            return QStringLiteral("Hint");
    }
}

} // namespace

frmCheck::frmCheck(Session& session, Doors doors, QWidget* parent)
    : QDialog(parent), m_checker(session), m_doors(std::move(doors)) {
    setObjectName(QStringLiteral("frmCheck"));
    setWindowTitle(QStringLiteral("Check My Game"));
    BuildControls();
    resize(kFirstSize);
    connect(&m_checker, &GameChecker::Looked, this, &frmCheck::Fill);
    m_checker.SetBusy([this] { return !isVisible() || m_doors.isBusy(); });
}

void frmCheck::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    lblSummary = new QLabel(this);
    lblSummary->setObjectName(QStringLiteral("lblSummary"));
    lblSummary->setTextFormat(Qt::PlainText);
    lblSummary->setWordWrap(true);
    column->addWidget(lblSummary);
    tvwFindings = new QTreeWidget(this);
    tvwFindings->setObjectName(QStringLiteral("tvwFindings"));
    tvwFindings->setHeaderHidden(true);
    tvwFindings->setColumnCount(2);
    tvwFindings->setWordWrap(true);
    tvwFindings->setExpandsOnDoubleClick(false);
    tvwFindings->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    column->addWidget(tvwFindings);
    auto* const row = new QHBoxLayout;
    const auto button = [&](const char* sName, const char* sCaption) {
        auto* const made = new QPushButton(QString::fromLatin1(sCaption), this);
        made->setObjectName(QString::fromLatin1(sName));
        made->setAutoDefault(false);
        return made;
    };
    cmdNoProblem = button("cmdNoProblem", "&Not a Problem");
    cmdTellAll = button("cmdTellAll", "Tell &All Again");
    QPushButton* const close = button("cmdClose", "Close");
    row->addWidget(cmdNoProblem);
    row->addWidget(cmdTellAll);
    row->addStretch();
    row->addWidget(close);
    column->addLayout(row);
    connect(tvwFindings, &QTreeWidget::currentItemChanged, this, &frmCheck::tvwFindings_Click);
    connect(tvwFindings, &QTreeWidget::itemActivated, this, &frmCheck::tvwFindings_DblClick);
    connect(cmdNoProblem, &QPushButton::clicked, this, &frmCheck::cmdNoProblem_Click);
    connect(cmdTellAll, &QPushButton::clicked, this, &frmCheck::cmdTellAll_Click);
    connect(close, &QPushButton::clicked, this, &frmCheck::hide);
}

void frmCheck::ShowForm() try {
    m_checker.Look();
    show();
    raise();
    activateWindow();
} catch (...) {
    ErrTail("frmCheck!", "ShowForm");
}

// The row that is chosen stays chosen as long as it is there.
void frmCheck::Fill() {
    const Finding* const before = FindingOf(tvwFindings->currentItem());
    const QString key = before ? before->Key() : QString();
    const QSignalBlocker quiet(tvwFindings);
    tvwFindings->clear();
    m_shown = m_checker.Found();
    QTreeWidgetItem* piece = nullptr;
    for (size_t i = 0; i < m_shown.size(); ++i) {
        const Finding& finding = m_shown[i];
        if (i == 0 || !(m_shown[i - 1].piece == finding.piece)) {
            piece = new QTreeWidgetItem(tvwFindings, {finding.piece.NameIn(m_checker.InHand().InHand())});
            piece->setFirstColumnSpanned(true);
            piece->setExpanded(true);
        }
        auto* const row = new QTreeWidgetItem(piece, {SignOf(finding.severity), finding.sText});
        row->setData(0, Qt::UserRole, int(i));
        row->setToolTip(1, finding.sAdvice);
        if (finding.Key() == key) tvwFindings->setCurrentItem(row);
    }
    ShowWhatCanBeDone();
}

void frmCheck::ShowWhatCanBeDone() {
    const Finding* const chosen = FindingOf(tvwFindings->currentItem());
    cmdNoProblem->setEnabled(chosen != nullptr);
    cmdTellAll->setEnabled(m_checker.PutAside() > 0);
    lblSummary->setText(FindingWords::Summary(m_shown) +
                        (chosen ? QStringLiteral(". ") + chosen->sAdvice : QStringLiteral(".")));
}

const Finding* frmCheck::FindingOf(const QTreeWidgetItem* item) const {
    const QVariant number = item ? item->data(0, Qt::UserRole) : QVariant();
    return number.isValid() ? &m_shown.at(size_t(number.toInt())) : nullptr;
}

const Finding* frmCheck::FirstOf(const QTreeWidgetItem* item) const {
    const Finding* const finding = FindingOf(item);
    return finding || !item || item->childCount() == 0 ? finding : FindingOf(item->child(0));
}

void frmCheck::tvwFindings_Click(QTreeWidgetItem* item) try {
    ShowWhatCanBeDone();
    if (const Finding* const finding = FirstOf(item)) m_doors.show(finding->piece);
} catch (...) {
    ErrTop("frmCheck!", "tvwFindings_Click");
}

void frmCheck::tvwFindings_DblClick(QTreeWidgetItem* item) try {
    // A copy: the list is filled anew while the editor stands.
    if (const Finding* const finding = FirstOf(item)) m_doors.open(GamePiece(finding->piece));
} catch (...) {
    ErrTop("frmCheck!", "tvwFindings_DblClick");
}

void frmCheck::cmdNoProblem_Click() try {
    if (const Finding* const finding = FindingOf(tvwFindings->currentItem()))
        m_checker.CallNoProblem(Finding(*finding));
} catch (...) {
    ErrTop("frmCheck!", "cmdNoProblem_Click");
}

void frmCheck::cmdTellAll_Click() try { m_checker.TellAllAgain(); } catch (...) {
    ErrTop("frmCheck!", "cmdTellAll_Click");
}
