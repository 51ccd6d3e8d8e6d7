// SPDX-License-Identifier: MIT
#include "windows/photos/PhotoTab.h"

#include "game/PieceImages.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/DesktopWidgets.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PhotoGrid.h"
#include "windows/photos/PhotoFolder.h"
#include "windows/pictures/BrowsePlaces.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PhotoTab::PhotoTab(const Session& session)
    : m_session(session), lblFolder(new ElidedLabel(this)), lblHint(new QLabel(this)),
      cmdFolder(new QPushButton(QStringLiteral("F&older..."), this)), lstPhotos(new PhotoGrid(this)) {
    setObjectName(QStringLiteral("tabPhotos"));
    lblFolder->setObjectName(QStringLiteral("lblFolder"));
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setWordWrap(true);
    lstPhotos->setObjectName(QStringLiteral("lstTray"));
    lstPhotos->setAccessibleName(QStringLiteral("Photos of this folder"));
    lstPhotos->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstPhotos->LetDrag();
    cmdFolder->setObjectName(QStringLiteral("cmdFolder"));
    cmdFolder->setToolTip(QStringLiteral("Show the photos of another folder"));
    auto* const top = new QHBoxLayout;
    top->addWidget(cmdFolder);
    top->addWidget(lblFolder, 1);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(lstPhotos, 1);
    column->addWidget(lblHint);
    connect(cmdFolder, &QPushButton::clicked, this, &PhotoTab::cmdFolder_Click);
    connect(&session, &Session::Edited, this, &PhotoTab::Update);
    connect(&session, &Session::Changed, this, &PhotoTab::Update);
    lstPhotos->SetLooks([this](const QString& sFile, int) {
        return PhotoGrid::Look{
            .sCaption = BrowsePlaces::NameOfFolder(sFile), .bFaded = false, .bTicked = m_inUse.contains(sFile)};
    });
}

void PhotoTab::ShowFolder(const QString& sFolder) {
    PhotoFolder::Remember(sFolder);
    List(sFolder);
}

void PhotoTab::List(const QString& sFolder) {
    m_sFolder = sFolder;
    const QStringList files = PhotoFolder::Pictures(sFolder);
    lblFolder->SetWholeText(sFolder);
    lblHint->setText(files.isEmpty() ? QStringLiteral("There are no pictures in this folder.")
                                     : QStringLiteral("Drag a photo onto a space. Those with a tick are in use."));
    lstPhotos->ShowFiles(files);
    Update();
}

void PhotoTab::Update() {
    const QStringList files = PieceImages::Files(m_session.InHand());
    const QSet<QString> inUse(files.begin(), files.end());
    if (inUse == m_inUse) return;
    m_inUse = inUse;
    lstPhotos->Refresh();
}

// Settings can be read by then, and a tab that nobody opens costs nothing.
void PhotoTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_sFolder.isEmpty()) List(PhotoFolder::Last());
}

void PhotoTab::cmdFolder_Click() try {
    CommonDialog dlgCommon;
    dlgCommon.sDialogTitle = QStringLiteral("Choose a Folder of Photos");
    dlgCommon.sInitDir = m_sFolder;
    dlgCommon.iFlags = kChooseFolder;
    if (dlgCommon.ShowOpen()) ShowFolder(dlgCommon.sFileName);
} catch (...) {
    ErrTop("PhotoTab!", "cmdFolder_Click");
}
