// SPDX-License-Identifier: MIT
#include "app/frmPrintManual.h"

#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Guide.h"
#include "windowing/basCommon_forms.h"
#include "windowing/TabWay.h"
#include "windowing/WebPage.h"
#include "windowing/WidgetLook.h"
#include "windows/help/OpenGuide.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int kTextWidth = 460;
constexpr int kIconSide = 64;
constexpr double kHeadSize = 1.6;
const QString kShowSplashKey = QStringLiteral("ShowSplash");

QString LocalPage() { return Guide::PathOf(QString::fromLatin1(Guide::kStepsPage)); }

// A build may name a page on the net; the page that is installed with the program has an address in any case.
QString HelpAddress() {
    const QString named = QStringLiteral(TAVLORA_HELP_URL);
    return named.isEmpty() ? WebPage::AddressOf(LocalPage()) : named;
}

QPushButton* MakeButton(QWidget* parent, const char* sName, const char* sCaption) {
    auto* button = new QPushButton(QString::fromLatin1(sCaption), parent);
    button->setObjectName(QString::fromLatin1(sName));
    return button;
}

} // namespace

frmPrintManual::frmPrintManual(QWidget* parent)
    : QDialog(parent), Label1(new QLabel(this)), Label2(new QLabel(this)),
      cmdAlreadyPrintedIt(MakeButton(this, "cmdAlreadyPrintedIt", "&Already printed it")),
      cmdDoNotPrint(MakeButton(this, "cmdDoNotPrint", "&Not now. Maybe later")),
      cmdOK(MakeButton(this, "cmdOK", "&OK")), cmdShowPage(MakeButton(this, "cmdShowPage", "&Show the instructions")) {
    setObjectName(QStringLiteral("frmPrintManual"));
    Label1->setObjectName(QStringLiteral("Label1"));
    Label2->setObjectName(QStringLiteral("Label2"));
    for (QLabel* label : {Label1, Label2}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(kTextWidth);
    }
    WidgetLook::ScaleFont(*Label1, kHeadSize);
    Label2->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(cmdAlreadyPrintedIt, &QPushButton::clicked, this, &frmPrintManual::cmdAlreadyPrintedIt_Click);
    connect(cmdDoNotPrint, &QPushButton::clicked, this, &frmPrintManual::cmdDoNotPrint_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmPrintManual::cmdOK_Click);
    connect(cmdShowPage, &QPushButton::clicked, this, &frmPrintManual::cmdShowPage_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdShowPage);
    buttons->addStretch();
    for (QPushButton* button : {cmdAlreadyPrintedIt, cmdDoNotPrint, cmdOK})
        buttons->addWidget(button);
    auto* icon = new QLabel(this);
    WidgetLook::SetPicture(*icon, basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("tavlora.png")),
                           kIconSide);
    auto* texts = new QVBoxLayout;
    texts->addWidget(Label1);
    texts->addWidget(Label2);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(kIconSide / 6);
    top->addLayout(texts);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addSpacing(2 * style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    TabAlongTheLayout(*this);
}

void frmPrintManual::ShowForm(bool bStarting) try {
    m_bStarting = bStarting;
    const QString head = bStarting ? QStringLiteral("Welcome to Tavlora") : QStringLiteral("Assembly Instructions");
    const QString text =
        bStarting ? QStringLiteral("If you have not already done so, please print the assembly instructions that are "
                                   "available on your cd-rom or at ")
                  : QStringLiteral("Assembly instructions are available on your cd-rom or at ");
    setWindowTitle(bStarting ? QStringLiteral("Tavlora") : head);
    Label1->setText(head);
    Label2->setText(text + HelpAddress());
    cmdAlreadyPrintedIt->setVisible(bStarting);
    cmdDoNotPrint->setVisible(bStarting);
    cmdOK->setVisible(!bStarting);
    (bStarting ? cmdDoNotPrint : cmdOK)->setDefault(true);
    (bStarting ? cmdDoNotPrint : cmdOK)->setFocus();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
} catch (...) {
    ErrTail("frmPrintManual!", "ShowForm", bStarting);
}

void frmPrintManual::cmdAlreadyPrintedIt_Click() try {
    basCommon::WriteIniString(kShowSplashKey, QStringLiteral("False"));
    accept();
} catch (...) {
    ErrTop("frmPrintManual!", "cmdAlreadyPrintedIt_Click");
}

void frmPrintManual::cmdDoNotPrint_Click() { accept(); }

void frmPrintManual::cmdOK_Click() try {
    basCommon::WriteIniString(kShowSplashKey, QStringLiteral("True"));
    accept();
} catch (...) {
    ErrTop("frmPrintManual!", "cmdOK_Click");
}

void frmPrintManual::cmdShowPage_Click() try {
    OpenGuide(QString::fromLatin1(Guide::kStepsPage), HelpAddress());
} catch (...) {
    ErrTop("frmPrintManual!", "cmdShowPage_Click");
}

// The close button and Escape mean the button that changes least.
void frmPrintManual::reject() {
    if (m_bStarting) {
        cmdDoNotPrint_Click();
    } else {
        cmdOK_Click();
    }
}
