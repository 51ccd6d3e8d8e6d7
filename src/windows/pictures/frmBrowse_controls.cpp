// SPDX-License-Identifier: MIT
// The window's controls: what they are, where they stand, and what they set off.
#include "platform/pictures/PreviewLoader.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PhotoGrid.h"
#include "windowing/PictureBox.h"
#include "windows/pictures/frmBrowse.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// Pixels.
constexpr int kPreviewSide = 260;
constexpr int kFoldersWidth = 200;
constexpr int kFilesWidth = 210;
constexpr int kListsHeight = 260;
// A small picture and the bar; there is room for more where the screen has it.
constexpr int kGridWidth = PhotoGrid::kSide + 50;

template <typename Control>
Control* Named(Control* control, const char* name, const QString& sToolTip) {
    control->setObjectName(QString::fromLatin1(name));
    control->setToolTip(sToolTip);
    return control;
}

QLabel* LabelFor(QWidget* control, const QString& sText, QWidget* parent) {
    auto* label = new QLabel(sText, parent);
    label->setBuddy(control);
    control->setAccessibleName(QString(sText).remove(u'&').remove(u':'));
    return label;
}

} // namespace

void frmBrowse::BuildLists() {
    drvList = Named(new QComboBox(this), "drvList", QStringLiteral("Where to look for pictures"));
    dirList = Named(new QTreeWidget(this), "dirList", QStringLiteral("Click a folder to open it"));
    dirList->setHeaderHidden(true);
    dirList->setRootIsDecorated(false);
    dirList->setItemsExpandable(false);
    dirList->setIndentation(14);
    dirList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    dirList->header()->setStretchLastSection(false);
    dirList->setMinimumSize(kFoldersWidth, kListsHeight);
    dirList->installEventFilter(this);
    filList = Named(new QListWidget(this), "filList", QStringLiteral("Click a picture to see it"));
    filList->setUniformItemSizes(true);
    filList->installEventFilter(this);
    filList->setMinimumSize(kFilesWidth, kListsHeight);
    lstGrid = Named(new PhotoGrid(this), "lstGrid", QString());
    lstGrid->setMinimumSize(kGridWidth, kListsHeight);
    lstGrid->setSelectionMode(QAbstractItemView::SingleSelection);
    lstGrid->setAccessibleName(QStringLiteral("Pictures, small"));
    cboFilter = Named(new QComboBox(this), "cboFilter", QStringLiteral("Which kinds of picture are listed"));
    // On a small screen its column gives way to none of the others.
    cboFilter->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboFilter->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    lblCurrentDirectory = Named(new ElidedLabel(this), "lblCurrentDirectory", QString());
    lblFullFilePath = Named(new ElidedLabel(this), "lblFullFilePath", QString());
}

void frmBrowse::BuildPreview() {
    shpBitMapArea = Named(new QFrame(this), "shpBitMapArea", QString());
    shpBitMapArea->setFrameShape(QFrame::StyledPanel);
    shpBitMapArea->setFrameShadow(QFrame::Sunken);
    picBitMapArea = Named(new PictureBox(shpBitMapArea), "picBitMapArea", QStringLiteral("The picture as it is"));
    picBitMapArea->setFixedSize(kPreviewSide, kPreviewSide);
    auto* inside = new QVBoxLayout(shpBitMapArea);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(picBitMapArea);
    m_loader = new PreviewLoader(this);
}

void frmBrowse::BuildControls() {
    BuildLists();
    BuildPreview();
    auto* buttons = new QDialogButtonBox(this);
    cmdOK = Named(buttons->addButton(QStringLiteral("&OK"), QDialogButtonBox::AcceptRole), "cmdOK",
                  QStringLiteral("Use this picture"));
    cmdCancel = Named(buttons->addButton(QStringLiteral("&Cancel"), QDialogButtonBox::RejectRole), "cmdCancel",
                      QStringLiteral("Keep the picture there was"));
    cmdOK->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->addWidget(LabelFor(drvList, QStringLiteral("&Place:"), this), 0, 0);
    grid->addWidget(drvList, 1, 0);
    grid->addWidget(LabelFor(dirList, QStringLiteral("Fol&ders:"), this), 2, 0);
    grid->addWidget(dirList, 3, 0);
    grid->addWidget(LabelFor(cboFilter, QStringLiteral("&Kinds:"), this), 0, 1);
    grid->addWidget(cboFilter, 1, 1);
    grid->addWidget(LabelFor(filList, QStringLiteral("Pic&tures:"), this), 2, 1);
    grid->addWidget(filList, 3, 1);
    grid->addWidget(lblCurrentDirectory, 1, 2, 1, 2);
    grid->addWidget(lstGrid, 3, 2);
    grid->addWidget(shpBitMapArea, 3, 3, Qt::AlignTop | Qt::AlignHCenter);
    auto* file = new QHBoxLayout;
    file->addWidget(new QLabel(QStringLiteral("File:"), this));
    file->addWidget(lblFullFilePath, 1);
    grid->addLayout(file, 4, 0, 1, 4);
    grid->addWidget(buttons, 5, 0, 1, 4);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 2);
    setTabOrder(drvList, dirList);
    setTabOrder(dirList, cboFilter);
    setTabOrder(cboFilter, filList);
    setTabOrder(filList, lstGrid);
    setTabOrder(lstGrid, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

void frmBrowse::Connect() {
    connect(drvList, &QComboBox::activated, this, &frmBrowse::drvList_Change);
    connect(dirList, &QTreeWidget::itemClicked, this, &frmBrowse::dirList_Click);
    connect(lstGrid, &QListView::clicked, this, &frmBrowse::lstGrid_Click);
    connect(lstGrid, &QListView::doubleClicked, this, &frmBrowse::filList_DblClick);
    connect(filList, &QListWidget::itemSelectionChanged, this, &frmBrowse::filList_Click);
    connect(filList, &QListWidget::itemDoubleClicked, this, &frmBrowse::filList_DblClick);
    connect(cboFilter, &QComboBox::activated, this, &frmBrowse::cboFilter_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmBrowse::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmBrowse::cmdCancel_Click);
    connect(m_loader, &PreviewLoader::Arrived, this, &frmBrowse::Preview_Arrived);
    connect(picBitMapArea, &PictureBox::BackingChanged, this, &frmBrowse::AskForPreview);
}
