// SPDX-License-Identifier: MIT
#include "windows/pictures/frmFileName.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ButtonKeys.h"
#include "windowing/ElidedLabel.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// Kept for names that old programs can read, whatever the disk would allow.
constexpr qsizetype kLongestName = 8;
constexpr int kTextWidth = 420;

const char* const kCaptions[] = {"&Cancel - leave the original image", "&Overwrite current file",
                                 "&Use the new name entered above"};

bool IsNameLetter(QChar c) {
    const QChar upper = c.toUpper();
    return (upper >= u'A' && upper <= u'Z') || (upper >= u'0' && upper <= u'9') || upper == u'_' || upper == u'~';
}

} // namespace

frmFileName::frmFileName(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFileName"));
    setWindowTitle(QStringLiteral("File Already Exists"));
    BuildControls();
    adjustSize();
    basCommon::ShowEntireForm(*this);
}

void frmFileName::BuildControls() {
    auto* explanation = new QLabel(
        QStringLiteral("The program copies the images you use to the main TAVL directory on the local disk. "
                       "However, a file by this name already exists in this directory. Please select one of the "
                       "choices below:"),
        this);
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    explanation->setMinimumWidth(kTextWidth);
    lblCurrentName = new ElidedLabel(this);
    lblCurrentName->setObjectName(QStringLiteral("lblCurrentName"));
    txtNewName = new QLineEdit(this);
    txtNewName->setObjectName(QStringLiteral("txtNewName"));
    txtNewName->installEventFilter(this);
    auto* newName = new QLabel(QStringLiteral("&New Name:"), this);
    newName->setBuddy(txtNewName);

    auto* grid = new QGridLayout(this);
    grid->addWidget(explanation, 0, 0, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Current Name:"), this), 1, 0);
    grid->addWidget(lblCurrentName, 1, 1);
    grid->addWidget(newName, 2, 0);
    grid->addWidget(txtNewName, 2, 1);
    grid->setColumnStretch(1, 1);
    cmdGo = new QButtonGroup(this);
    for (int index = LeaveOriginal; index <= UseNewName; ++index) {
        auto* button = new QPushButton(QString::fromLatin1(kCaptions[index]), this);
        button->setObjectName(QStringLiteral("cmdGo_") + QString::number(index));
        LetEnterPressWithFocusOnly(*button);
        // A click leaves the focus on the name: a bad one would hold back whoever wants to leave without it.
        button->setFocusPolicy(Qt::TabFocus);
        cmdGo->addButton(button, index);
        grid->addWidget(button, 3 + index, 0, 1, 2);
    }
    connect(cmdGo, &QButtonGroup::idClicked, this, &frmFileName::cmdGo_Click);
    QWidget::setTabOrder(txtNewName, cmdGo->button(LeaveOriginal));
}

QString frmFileName::ShowForm(const QString& sFile) try {
    QString drive, dir, base;
    m_sFile = sFile;
    m_sExtension.clear();
    m_sResult.clear();
    basCommon::FileNameFactor(sFile, drive, dir, base, m_sExtension);
    lblCurrentName->SetWholeText(m_sExtension.isEmpty() ? base : base + u'.' + m_sExtension);
    txtNewName->clear();
    txtNewName->setFocus();
    exec();
    return m_sResult;
} catch (...) {
    ErrTail("frmFileName!", "ShowForm", sFile);
}

void frmFileName::reject() { cmdGo_Click(LeaveOriginal); }

void frmFileName::cmdGo_Click(int Index) try {
    switch (Index) {
        case LeaveOriginal:
            m_sResult.clear();
            hide();
            break;
        case Overwrite:
            m_sResult = m_sFile;
            hide();
            break;
        case UseNewName:
            UseTheNewName();
            break;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmFileName!cmdGo_Click"));
    }
} catch (...) {
    ErrTop("frmFileName!", "cmdGo_Click", Index);
}

void frmFileName::UseTheNewName() {
    if (txtNewName->text().isEmpty()) {
        MsgBox(QStringLiteral("Please enter a new name and try again."));
        txtNewName->setFocus();
        return;
    }
    // The shortcut of this button leaves the focus on the name, so it hasn't been looked at yet.
    if (!txtNewName_LostFocus()) return;
    m_sResult = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), txtNewName->text() + u'.' + m_sExtension);
    hide();
}

QString frmFileName::FaultOf(const QString& sNewName) {
    if (sNewName.contains(u'.')) return QStringLiteral("Please do not include a file extension in the new name.");
    for (const QChar c : sNewName) {
        if (!IsNameLetter(c)) return QStringLiteral("The new file name should include letters and numbers only.");
    }
    if (sNewName.size() > kLongestName)
        return QStringLiteral("Please limit the length of the new name to 8 characters.");
    return {};
}

bool frmFileName::txtNewName_LostFocus() try {
    const QString fault = FaultOf(txtNewName->text());
    if (fault.isEmpty()) return true;
    MsgBox(fault);
    // Not at once: the focus is on its way to another control and would arrive there all the same.
    QMetaObject::invokeMethod(txtNewName, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
    return false;
} catch (...) {
    ErrTop("frmFileName!", "txtNewName_LostFocus");
    return false;
}

bool frmFileName::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QDialog::eventFilter(watched, event);
    if (watched != txtNewName || event->type() != QEvent::FocusOut || !isVisible()) return handled;
    // Not when the whole window loses the focus, which the box about a fault does as well.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) txtNewName_LostFocus();
    return handled;
}
