// SPDX-License-Identifier: MIT
#include "windows/print/frmPrntPrep.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace {

enum Button { Cancel, PrintTestSheet, Print };

constexpr std::array<const char*, 3> kAnswers = {"Cancel", "Print Test Sheet", "Print"};
constexpr std::array<const char*, 3> kCaptions = {"&Cancel", "Print &Test Sheet", "&Print"};
constexpr int kTextWidth = 380;

QLabel* MakeLabel(QWidget* parent, const char* sName) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(sName));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(kTextWidth);
    return label;
}

} // namespace

frmPrntPrep::frmPrntPrep(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmPrntPrep"));
    setWindowTitle(QStringLiteral("Select Test Sheet or Final "));
    BuildControls();
}

void frmPrntPrep::BuildControls() {
    lblMain = MakeLabel(this, "lblMain");
    lblAlternative = MakeLabel(this, "lblAlternative");
    lblAlternative->setText(QStringLiteral("To print a test sheet, position regular white paper in the printer and "
                                           "click the middle button below:"));
    cmd = new QButtonGroup(this);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const int index : {Print, PrintTestSheet, Cancel}) {
        auto* button = new QPushButton(QString::fromLatin1(kCaptions[size_t(index)]), this);
        button->setObjectName(QStringLiteral("cmd_") + QString::number(index));
        cmd->addButton(button, index);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    static_cast<QPushButton*>(cmd->button(Print))->setDefault(true);
    connect(cmd, &QButtonGroup::idClicked, this, &frmPrntPrep::cmd_Click);
    // Only a label that has a buddy shows the "&&" of a prompt as one ampersand.
    lblMain->setBuddy(cmd->button(Print));

    auto* all = new QVBoxLayout(this);
    const int gap = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing);
    all->addWidget(lblMain);
    all->addSpacing(gap);
    all->addWidget(lblAlternative);
    all->addSpacing(2 * gap);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

QString frmPrntPrep::ShowForm(const QString& sPrompt) try {
    lblMain->setText(sPrompt);
    m_sAnswer = QString::fromLatin1(kAnswers[Cancel]);
    cmd->button(Print)->setFocus();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
    return m_sAnswer;
} catch (...) {
    ErrTail("frmPrntPrep!", "ShowForm", sPrompt);
}

void frmPrntPrep::reject() { cmd_Click(Cancel); }

void frmPrntPrep::cmd_Click(int Index) try {
    m_sAnswer = QString::fromLatin1(kAnswers.at(size_t(Index)));
    // Shows for a moment what was pressed; the answer itself isn't read from a label.
    lblMain->setText(m_sAnswer);
    hide();
} catch (...) {
    ErrTop("frmPrntPrep!", "cmd_Click", Index);
}
