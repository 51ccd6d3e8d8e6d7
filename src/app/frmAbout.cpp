// SPDX-License-Identifier: MIT
#include "app/frmAbout.h"

#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/WidgetLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int kIconSide = 96;
constexpr double kNameSize = 2.2;
constexpr int kTextWidth = 420;

const QString kWarning = QStringLiteral(
    "Tavlora is free software under the MIT licence. You may use, copy, change and pass it on, as long as the "
    "notice of its licence goes with it. It comes without any warranty.\n\n"
    "The games that you make are yours. Please use pictures and names only if you may, above all when you give a "
    "game away or show it in public.");

QLabel* MakeLabel(QWidget* parent, const char* sName, const QString& sText) {
    auto* label = new QLabel(WidgetLook::WithoutMnemonics(sText), parent);
    label->setObjectName(QString::fromLatin1(sName));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QString Version() { return QStringLiteral("Version %1.%2").arg(TAVLORA_VERSION_MAJOR).arg(TAVLORA_VERSION_MINOR); }

} // namespace

frmAbout::frmAbout(QWidget* parent)
    : QDialog(parent), lblName(MakeLabel(this, "lblName", QStringLiteral("Tavlora"))),
      lblVersion(MakeLabel(this, "lblVersion", Version())), lblWarning(MakeLabel(this, "lblWarning", kWarning)),
      lblLoading(MakeLabel(this, "lblLoading", QStringLiteral("Loading . . ."))),
      cmdOK(new QPushButton(QStringLiteral("&OK"), this)) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Tavlora"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
    WidgetLook::ScaleFont(*lblName, kNameSize);
    lblWarning->setWordWrap(true);
    lblWarning->setFixedWidth(kTextWidth);
    lblLoading->hide();
    auto* icon = MakeLabel(this, "imgIcon", QString());
    WidgetLook::SetPicture(*icon, basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("tavlora.png")),
                           kIconSide);
    auto* texts = new QVBoxLayout;
    texts->addWidget(lblName);
    texts->addWidget(lblVersion);
    texts->addSpacing(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    texts->addWidget(lblWarning);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(kIconSide / 6);
    top->addLayout(texts);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblLoading);
    bottom->addStretch();
    bottom->addWidget(cmdOK);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addSpacing(kIconSide / 6);
    all->addLayout(bottom);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbout::ShowForm() try {
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
} catch (...) {
    ErrTail("frmAbout!", "ShowForm");
}

void frmAbout::ShowAsSplash() {
    cmdOK->hide();
    lblLoading->show();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    show();
}

void frmAbout::EndSplash() {
    hide();
    cmdOK->show();
    lblLoading->hide();
}

void frmAbout::mousePressEvent(QMouseEvent* event) {
    if (lblVersion->geometry().contains(event->position().toPoint())) lblVersion_Click();
}

void frmAbout::lblVersion_Click() try {
    MsgBox(QStringLiteral("Version %1.%2.%3")
               .arg(TAVLORA_VERSION_MAJOR)
               .arg(TAVLORA_VERSION_MINOR)
               .arg(TAVLORA_VERSION_REVISION));
} catch (...) {
    ErrTop("frmAbout!", "lblVersion_Click");
}

void frmAbout::cmdOK_Click() { accept(); }
