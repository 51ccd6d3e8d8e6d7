// SPDX-License-Identifier: MIT
#include "windows/sending/frmSendGame.h"

#include "pack/PackNames.h"
#include "pack/SmallPictures.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/TabWay.h"
#include "windowing/WidgetLook.h"
#include "windows/sending/SendTexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int kTextWidth = 420;
constexpr int kWhole = 1000;

QString FileName(const QString& sPath) {
    return sPath.mid(std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\')) + 1);
}

} // namespace

frmSendGame::frmSendGame(const Packing::Contents& contents, const QString& sFolder, QWidget* parent)
    : QDialog(parent), m_asTheyAre(contents), m_smaller(contents), m_sFolder(sFolder) {
    setObjectName(QStringLiteral("frmSendGame"));
    setWindowTitle(QStringLiteral("Send to a Friend"));
    BuildControls();
    ShowSizes();
    connect(&m_timer, &QTimer::timeout, this, &frmSendGame::MakeNextSmaller);
}

QLabel* frmSendGame::AddText(QVBoxLayout& column, const char* sName, const QString& sText) {
    auto* const label = new QLabel(sText, this);
    label->setObjectName(QString::fromLatin1(sName));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth);
    label->setVisible(!sText.isEmpty());
    column.addWidget(label);
    return label;
}

void frmSendGame::AddChoice(QVBoxLayout& column) {
    optAsTheyAre = new QRadioButton(this);
    optAsTheyAre->setObjectName(QStringLiteral("optAsTheyAre"));
    optSmaller = new QRadioButton(this);
    optSmaller->setObjectName(QStringLiteral("optSmaller"));
    optSmaller->setToolTip(QStringLiteral("Sharp on paper, but too small to be enlarged later."));
    optAsTheyAre->setChecked(true);
    for (QRadioButton* option : {optAsTheyAre, optSmaller}) {
        option->setVisible(!m_asTheyAre.pictures.isEmpty());
        column.addWidget(option);
    }
}

void frmSendGame::AddButtons(QVBoxLayout& column) {
    barProgress = new QProgressBar(this);
    barProgress->setObjectName(QStringLiteral("barProgress"));
    barProgress->setRange(0, kWhole);
    QSizePolicy policy = barProgress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    barProgress->setSizePolicy(policy);
    barProgress->hide();
    cmdSaveAs = new QPushButton(QStringLiteral("&Save As..."), this);
    cmdSaveAs->setObjectName(QStringLiteral("cmdSaveAs"));
    cmdSaveAs->setDefault(true);
    connect(cmdSaveAs, &QPushButton::clicked, this, &frmSendGame::cmdSaveAs_Click);
    cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdCancel, &QPushButton::clicked, this, &frmSendGame::cmdCancel_Click);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(barProgress);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdSaveAs);
    column.addLayout(buttons);
}

void frmSendGame::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    AddText(*column, "lblGoesIn", SendTexts::GoesIn(m_asTheyAre));
    QLabel* const stays = AddText(*column, "lblStaysBehind", SendTexts::StaysBehind(m_asTheyAre));
    WidgetLook::SetToolTip(*stays, SendTexts::MissingPaths(m_asTheyAre));
    AddChoice(*column);
    AddButtons(*column);
    TabAlongTheLayout(*this);
}

void frmSendGame::ShowSizes() {
    const auto size = [](const Packing::Contents& contents) {
        return SendTexts::Size(contents.PictureBytes() + contents.FontBytes());
    };
    optAsTheyAre->setText(QStringLiteral("Pictures as &they are (%1)").arg(size(m_asTheyAre)));
    const bool done = m_iNextSmaller >= m_smaller.pictures.size();
    optSmaller->setText(QStringLiteral("Pictures as small as &paper allows (%1)")
                            .arg(done ? size(m_smaller) : QStringLiteral("working it out...")));
}

bool frmSendGame::ShowForm() try {
    m_timer.start(0);
    // Sentences that break make the window higher than the toolkit takes into account by itself.
    const int width = sizeHint().width();
    resize(width, layout()->totalHeightForWidth(width));
    basCommon::ShowEntireForm(*this);
    exec();
    m_timer.stop();
    return m_bSent;
} catch (...) {
    ErrTail("frmSendGame!", "ShowForm");
}

// One at a time, so that the window stays alive.
void frmSendGame::MakeNextSmaller() try {
    if (m_bWorking) return;
    if (m_iNextSmaller < m_smaller.pictures.size()) {
        SmallPictures::MakeOne(m_smaller, m_iNextSmaller++);
    } else {
        m_timer.stop();
    }
    ShowSizes();
} catch (...) {
    m_timer.stop();
    ErrTop("frmSendGame!", "MakeNextSmaller");
}

bool frmSendGame::AskForPath(QString& sPath) {
    CommonDialog dlgCommon;
    dlgCommon.sDialogTitle = QStringLiteral("Send to a Friend");
    dlgCommon.sInitDir = m_sFolder;
    dlgCommon.sFileName = m_asTheyAre.sName + PackNames::kEnding;
    dlgCommon.sFilter = QStringLiteral("Tavlora games with their pictures|*.tavlora|All files|*.*");
    dlgCommon.sDefaultExt = PackNames::kEnding.mid(1);
    if (!dlgCommon.ShowSave()) {
        if (!dlgCommon.sError.isEmpty()) MsgBox(dlgCommon.sError, vbExclamation);
        return false;
    }
    sPath = dlgCommon.sFileName;
    return true;
}

bool frmSendGame::ShowProgress(int iThousandths) {
    barProgress->setValue(iThousandths);
    DoEvents();
    return !m_bStopped;
}

bool frmSendGame::FinishSmaller() {
    while (m_iNextSmaller < m_smaller.pictures.size()) {
        if (!ShowProgress(int(m_iNextSmaller * kWhole / m_smaller.pictures.size()))) return false;
        SmallPictures::MakeOne(m_smaller, m_iNextSmaller++);
    }
    ShowSizes();
    return true;
}

void frmSendGame::WriteTo(const QString& sPath) {
    QString error;
    const bool small = optSmaller->isChecked();
    const auto tell = [this](int iThousandths) { return ShowProgress(iThousandths); };
    m_bSent = (!small || FinishSmaller()) && Packing::Write(small ? m_smaller : m_asTheyAre, sPath, tell, error);
    EndWork();
    if (m_bSent) {
        MsgBox(QStringLiteral("'%1' is ready to be sent. Your friend opens it in Tavlora.").arg(FileName(sPath)),
               vbInformation);
    } else if (!m_bStopped) {
        MsgBox(QStringLiteral("'%1' could not be written: %2.").arg(FileName(sPath), error), vbExclamation);
    }
}

void frmSendGame::EndWork() {
    m_bWorking = false;
    barProgress->hide();
    for (QWidget* control : std::initializer_list<QWidget*>{optAsTheyAre, optSmaller, cmdSaveAs})
        control->setEnabled(true);
}

void frmSendGame::cmdSaveAs_Click() try {
    QString path;
    if (!AskForPath(path)) return;
    m_bWorking = true;
    m_bStopped = false;
    barProgress->setValue(0);
    barProgress->show();
    for (QWidget* control : std::initializer_list<QWidget*>{optAsTheyAre, optSmaller, cmdSaveAs})
        control->setEnabled(false);
    WriteTo(path);
    if (m_bSent) accept();
} catch (...) {
    EndWork();
    ErrTop("frmSendGame!", "cmdSaveAs_Click");
}

// While the file is being written it stops that first.
void frmSendGame::cmdCancel_Click() { reject(); }

void frmSendGame::reject() {
    if (m_bWorking) {
        m_bStopped = true;
        return;
    }
    QDialog::reject();
}
