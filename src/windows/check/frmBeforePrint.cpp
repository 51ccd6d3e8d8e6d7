// SPDX-License-Identifier: MIT
#include "windows/check/frmBeforePrint.h"

#include "check/FindingWords.h"
#include "windows/check/FindingTree.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(520, 320);

QString QuestionOf(const std::vector<Finding>& findings, qsizetype nSheets) {
    return QStringLiteral("%1 before %2 printed:")
        .arg(FindingWords::Summary(findings),
             nSheets == 1 ? QStringLiteral("this sheet is") : QStringLiteral("these sheets are"));
}

} // namespace

frmBeforePrint::frmBeforePrint(const Game& game, const std::vector<Finding>& findings, qsizetype nSheets,
                               QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmBeforePrint"));
    setWindowTitle(QStringLiteral("Check My Game"));
    auto* const column = new QVBoxLayout(this);
    auto* const question = new QLabel(QuestionOf(findings, nSheets), this);
    question->setObjectName(QStringLiteral("lblQuestion"));
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    column->addWidget(question);
    tvwFindings = new FindingTree(this);
    tvwFindings->Fill(game, findings);
    column->addWidget(tvwFindings);
    auto* const row = new QHBoxLayout;
    row->addWidget(MakeButton("cmdPrintAnyway", "&Print Anyway", Answer::PrintAnyway));
    row->addStretch();
    row->addWidget(MakeButton("cmdCancel", "Cancel", Answer::Cancel));
    QPushButton* const show = MakeButton("cmdShowMe", "&Show Me", Answer::ShowMe);
    show->setDefault(true);
    row->addWidget(show);
    column->addLayout(row);
    resize(kFirstSize);
    show->setFocus();
}

QPushButton* frmBeforePrint::MakeButton(const char* sName, const char* sCaption, Answer answer) {
    auto* const button = new QPushButton(QString::fromLatin1(sCaption), this);
    button->setObjectName(QString::fromLatin1(sName));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        m_answer = answer;
        hide();
    });
    return button;
}

frmBeforePrint::Answer frmBeforePrint::Ask() {
    m_answer = Answer::Cancel;
    exec();
    return m_answer;
}

const Finding& frmBeforePrint::Meant() const {
    const Finding* const chosen = tvwFindings->FirstOf(tvwFindings->currentItem());
    return chosen ? *chosen : tvwFindings->Shown().front();
}
