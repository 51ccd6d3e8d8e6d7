// SPDX-License-Identifier: MIT
#include "windows/games/frmEarlierVersions.h"

#include "game/GameNames.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureItem.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kBoardSide = 96;
constexpr QSize kListSize(480, 520);
constexpr int kAroundItem = 4;

QString TextOf(const QDateTime& when) {
    const QLocale locale = QLocale::system();
    return locale.toString(when.date(), QLocale::LongFormat) + QStringLiteral(", ") +
           locale.toString(when.time(), QLocale::ShortFormat);
}

} // namespace

frmEarlierVersions::frmEarlierVersions(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmEarlierVersions"));
    setWindowTitle(QStringLiteral("Earlier Versions"));
    BuildControls();
}

void frmEarlierVersions::BuildControls() {
    lblMain = new QLabel(this);
    lblMain->setObjectName(QStringLiteral("lblMain"));
    lblMain->setTextFormat(Qt::PlainText);
    lblMain->setWordWrap(true);
    lstVersions = new QListWidget(this);
    lstVersions->setObjectName(QStringLiteral("lstVersions"));
    lstVersions->setAccessibleName(QStringLiteral("Earlier versions of this game"));
    lstVersions->setIconSize(QSize(kBoardSide, kBoardSide));
    lstVersions->setUniformItemSizes(true);
    lstVersions->setSpacing(kAroundItem);
    connect(lstVersions, &QListWidget::itemClicked, this, &frmEarlierVersions::lstVersions_Click);
    connect(lstVersions, &QListWidget::itemActivated, this, &frmEarlierVersions::lstVersions_Click);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const all = new QVBoxLayout(this);
    all->addWidget(lblMain);
    all->addWidget(lstVersions);
    all->addWidget(buttons);
    resize(kListSize);
}

void frmEarlierVersions::Fill(const QString& sGame) {
    const QList<EarlierVersions::Version> versions = EarlierVersions::Of(sGame);
    lstVersions->clear();
    for (const EarlierVersions::Version& version : versions) {
        // One that nobody has drawn, or that can't be read, is passed over.
        QString error;
        QListWidgetItem* const item =
            AddPictureItem(*lstVersions, LoadPicture(version.sBoard, error), kBoardSide, TextOf(version.when));
        item->setData(Qt::UserRole, version.sPath);
        item->setToolTip(version.sPath);
    }
    lstVersions->setCurrentRow(0);
    lblMain->setText(versions.isEmpty()
                         ? QStringLiteral("There is no earlier version of this game yet. Each save keeps the one that "
                                          "it replaces.")
                         : QStringLiteral("Click a version to open it as a new game. '%1' stays as it is.")
                               .arg(GameNames::FileNameOf(sGame)));
}

QString frmEarlierVersions::ShowForm(const QString& sGame) try {
    m_sChosen.clear();
    Fill(sGame);
    lstVersions->setFocus();
    basCommon::ShowEntireForm(*this);
    exec();
    return m_sChosen;
} catch (...) {
    ErrTail("frmEarlierVersions!", "ShowForm", sGame);
}

void frmEarlierVersions::lstVersions_Click(QListWidgetItem* item) try {
    m_sChosen = item->data(Qt::UserRole).toString();
    accept();
} catch (...) {
    ErrTop("frmEarlierVersions!", "lstVersions_Click");
}
