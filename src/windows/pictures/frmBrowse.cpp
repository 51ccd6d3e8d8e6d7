// SPDX-License-Identifier: MIT
#include "windows/pictures/frmBrowse.h"

#include "drawing/basBMP.h"
#include "drawing/basBMP_metafile.h"
#include "pictures/PaintPicture.h"
#include "pictures/PictureCheck.h"
#include "pictures/TellOnce.h"
#include "pictures/ThumbnailFile.h"
#include "platform/files/Files.h"
#include "platform/files/FolderListing.h"
#include "platform/files/Folders.h"
#include "platform/pictures/PreviewLoader.h"
#include "platform/text/NewLine.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basAPI_screen.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PhotoGrid.h"
#include "windowing/PictureBox.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>

namespace {

// A picture that takes longer than this (milliseconds) is waited for with the list free to move on.
constexpr int kPreviewPatience = 60;
// What a metafile's preview leaves free, in pixels: at the top and left, and of the whole.
constexpr int kMetafileMargin = 2;
constexpr int kMetafileFree = 5;

enum FilterNumber { kUsualPictures = 0, kAllPictures = 1 };

const QString kFolderKey = QStringLiteral("PictureFolder");
const QString kKindsKey = QStringLiteral("PictureKinds");

/// What the chooser remembers from one opening to the next, and from one start to the next.
struct Memory {
    QString sLastFolder;
    int iFilter = kAllPictures;
    /// The settings have it, too.
    bool bKept = false;
};

Memory& Remembered() {
    static Memory memory;
    return memory;
}

void Keep(const QString& sKey, const QString& sValue) {
    if (Remembered().bKept) basCommon::WriteIniString(sKey, sValue);
}

QStyle::StandardPixmap IconOf(const BrowsePlaces::Place& place) {
    switch (place.kind) {
        case BrowsePlaces::PlaceKind::Home:
            return QStyle::SP_DirHomeIcon;
        case BrowsePlaces::PlaceKind::Pictures:
        case BrowsePlaces::PlaceKind::MyGames:
            return QStyle::SP_DirIcon;
        case BrowsePlaces::PlaceKind::Volume:
            break;
    }
    return QStyle::SP_DriveHDIcon;
}

} // namespace

frmBrowse::frmBrowse(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmBrowse"));
    setWindowTitle(QStringLiteral("Image Browser"));
    BuildControls();
    Connect();
    // The toolkit's own adjusting leaves a third of the screen free, and on a small one cuts the captions short.
    resize(sizeHint());
    basCommon::ShowEntireForm(*this);
}

frmBrowse::~frmBrowse() = default;

QString frmBrowse::LastFolder() { return Remembered().sLastFolder; }
void frmBrowse::ResetForTest() { Remembered() = Memory{}; }

void frmBrowse::ReadSettings() {
    Memory& memory = Remembered();
    memory.bKept = true;
    memory.sLastFolder = basCommon::GetIniString(kFolderKey);
    if (basCommon::GetIniString(kKindsKey) == QString::number(kUsualPictures)) memory.iFilter = kUsualPictures;
}

QString frmBrowse::ShowForm(const QString& sFilePath, bool bAllowWMF, const QString& sStartFolder) try {
    m_sOriginalPath = sFilePath;
    m_bOK = false;
    FillPlaces();
    FillFilters(sFilePath, bAllowWMF);
    QString error;
    if (sFilePath.isEmpty()) {
        StartIn(sStartFolder);
    } else if (!ShowPath(sFilePath, error)) {
        MsgBox(QStringLiteral("The following error was encountered while attempting ") +
               QStringLiteral("to use file path '") + sFilePath + QStringLiteral("'.") + kNewLine + error + kNewLine +
               QStringLiteral("The system will use the application directory."));
        StartIn(Folders::ProgramDirectory());
    }
    AskForPreview();
    filList->setFocus();
    exec();
    return m_bOK ? m_sFilePath : m_sOriginalPath;
} catch (...) {
    ErrTail("frmBrowse!", "ShowForm", sFilePath, bAllowWMF, sStartFolder);
}

void frmBrowse::FillPlaces() {
    m_places = BrowsePlaces::Places();
    drvList->clear();
    for (const BrowsePlaces::Place& place : m_places) {
        drvList->addItem(style()->standardIcon(IconOf(place)), place.sName, place.sRoot);
        drvList->setItemData(drvList->count() - 1, place.sRoot, Qt::ToolTipRole);
    }
}

// The picture in use is always among those listed.
void frmBrowse::FillFilters(const QString& sInUse, bool bAllowWMF) {
    const int bits = basAPI::ScreenBitsPerPixel();
    const QString usual = BrowsePlaces::UsualFilter(bAllowWMF, bits);
    cboFilter->clear();
    cboFilter->addItem(QStringLiteral("Pictures (") + BrowsePlaces::PatternsOf(usual).join(u' ') + u')', usual);
    cboFilter->addItem(QStringLiteral("All pictures"), BrowsePlaces::AllPicturesFilter(bAllowWMF, bits));
    const bool hidden = !sInUse.isEmpty() && !BrowsePlaces::IsListed(usual, sInUse);
    cboFilter->setCurrentIndex(hidden ? kAllPictures : Remembered().iFilter);
}

// Nothing is chosen yet. Callers that remember no folder hand over My Games; the one used last is nearer then, and
// ahead of the first use the one where people keep photos.
void frmBrowse::StartIn(const QString& sStartFolder) {
    const bool remembered = !sStartFolder.isEmpty() && sStartFolder != basCommon::GetMyGamesDirectory();
    QStringList wanted{Remembered().sLastFolder};
    if (remembered) {
        wanted.prepend(sStartFolder);
    } else if (!sStartFolder.isEmpty()) {
        wanted << Folders::Pictures() << sStartFolder;
    }
    QString error;
    bool found = false;
    for (const QString& folder : wanted + QStringList{basCommon::GetMyGamesDirectory(), Folders::ProgramDirectory()}) {
        if (!found && !folder.isEmpty()) found = SetFolder(folder, error);
    }
    m_sFilePath.clear();
    lblFullFilePath->SetWholeText(QString());
}

bool frmBrowse::ShowPath(const QString& sFilePath, QString& sError) {
    if (!SetFolder(BrowsePlaces::FolderOf(sFilePath), sError)) return false;
    SelectFile(sFilePath);
    m_sFilePath = basCommon::DoesFileExist(sFilePath) ? sFilePath : QString();
    lblFullFilePath->SetWholeText(sFilePath);
    return true;
}

bool frmBrowse::SetFolder(const QString& sFolder, QString& sError) {
    const std::optional<QStringList> folders = FolderListing::Folders(sFolder, sError);
    if (!folders) return false;
    m_sFolder = sFolder;
    drvList->setCurrentIndex(int(BrowsePlaces::PlaceOf(m_places, sFolder)));
    lblCurrentDirectory->SetWholeText(sFolder);
    FillFolders(*folders);
    FillFiles();
    return true;
}

QTreeWidgetItem* frmBrowse::AddFolder(QTreeWidgetItem* parent, const QString& sFolder, bool bOpen) {
    auto* item = new QTreeWidgetItem(QStringList{BrowsePlaces::NameOfFolder(sFolder)});
    item->setIcon(0, style()->standardIcon(bOpen ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon));
    item->setData(0, Qt::UserRole, sFolder);
    item->setToolTip(0, sFolder);
    if (parent) {
        parent->addChild(item);
        parent->setExpanded(true);
    } else {
        dirList->addTopLevelItem(item);
    }
    return item;
}

// From the place down to the folder, each a step further in, then what is in the folder.
void frmBrowse::FillFolders(const QStringList& folders) {
    const QSignalBlocker quiet(dirList);
    dirList->clear();
    const qsizetype place = BrowsePlaces::PlaceOf(m_places, m_sFolder);
    QTreeWidgetItem* at = nullptr;
    for (const QString& folder : BrowsePlaces::ChainTo(place < 0 ? QString() : m_places[place].sRoot, m_sFolder))
        at = AddFolder(at, folder, true);
    QTreeWidgetItem* const current = at;
    for (const QString& name : folders)
        AddFolder(current, basCommon::JoinPath(m_sFolder, name), false);
    dirList->setCurrentItem(current);
    dirList->scrollToItem(current, QAbstractItemView::PositionAtTop);
}

void frmBrowse::FillFiles() {
    const QSignalBlocker quiet(filList);
    filList->clear();
    QString error;
    const QStringList patterns = BrowsePlaces::PatternsOf(cboFilter->currentData().toString());
    const std::optional<QStringList> names = FolderListing::Files(m_sFolder, patterns, error);
    QStringList files;
    for (const QString& name : names.value_or(QStringList())) {
        // Made by the program, and made anew at any time.
        const QString file = BrowsePlaces::FileIn(m_sFolder, name);
        if (ThumbnailFile::IsThumbnail(file)) continue;
        filList->addItem(name);
        files.append(file);
    }
    lstGrid->ShowFiles(files);
}

void frmBrowse::SelectFile(const QString& sFilePath) {
    const QSignalBlocker quiet(filList);
    for (int row = 0; row < filList->count(); ++row) {
        const QString path = BrowsePlaces::FileIn(m_sFolder, filList->item(row)->text());
        if (path.compare(sFilePath, Qt::CaseInsensitive) == 0) filList->setCurrentRow(row);
    }
}

void frmBrowse::ShowFilePath(const QString& sFilePath) {
    m_sFilePath = sFilePath;
    lblFullFilePath->SetWholeText(sFilePath);
}

int frmBrowse::ListIndex() const {
    const QList<QListWidgetItem*> selected = filList->selectedItems();
    return selected.isEmpty() ? -1 : filList->row(selected.front());
}

void frmBrowse::drvList_Change() try {
    const QString drive = drvList->currentData().toString();
    QString error;
    if (SetFolder(drive, error)) {
        dirList_Change();
        return;
    }
    if (!basCommon::DoesDirExist(drive)) {
        MsgBox(
            QStringLiteral("No device can be found at disk drive '") + drive + QStringLiteral("'. ") +
            QStringLiteral("If this is a drive for a removable disk, please be sure there is a disk in the drive. ") +
            QStringLiteral("Otherwise, please try another disk drive."));
    } else {
        MsgBox(QStringLiteral("The following error has occurred while attempting to use drive '") + drive +
               QStringLiteral("'. ") + kNewLine + kNewLine + error);
    }
    if (SetFolder(basCommon::GetMyGamesDirectory(), error)) dirList_Change();
} catch (...) {
    ErrTop("frmBrowse!", "drvList_Change");
}

void frmBrowse::dirList_Change() try {
    lblCurrentDirectory->SetWholeText(m_sFolder);
    ShowFilePath(m_sFolder);
    picBitMapArea->Cls();
    ShowWhetherItCanBeTaken();
} catch (...) {
    ErrTop("frmBrowse!", "dirList_Change");
}

void frmBrowse::dirList_Activated(QTreeWidgetItem* item) { OpenFolder(item->data(0, Qt::UserRole).toString()); }

// The second click of a double click would open whatever has come to lie under the pointer.
void frmBrowse::dirList_Click(QTreeWidgetItem* item) {
    const bool second = m_sinceClick.isValid() && m_sinceClick.elapsed() < QApplication::doubleClickInterval();
    if (second) return;
    m_sinceClick.start();
    dirList_Activated(item);
}

void frmBrowse::lstGrid_Click(const QModelIndex& index) try {
    const QString file = lstGrid->FileAt(index);
    if (file.isEmpty() || file == m_sFilePath) return;
    SelectFile(file);
    filList_Click();
} catch (...) {
    ErrTop("frmBrowse!", "lstGrid_Click");
}

void frmBrowse::OpenFolder(const QString& sFolder) try {
    QString error;
    if (sFolder.isEmpty()) return;
    if (SetFolder(sFolder, error)) {
        dirList_Change();
    } else {
        MsgBox(QStringLiteral("The folder '") + sFolder + QStringLiteral("' can't be opened.") + kNewLine + error,
               vbExclamation);
    }
} catch (...) {
    ErrTop("frmBrowse!", "OpenFolder", sFolder);
}

void frmBrowse::filList_Click() try {
    const int index = ListIndex();
    if (index < 0) {
        dirList_Change();
        return;
    }
    ShowFilePath(BrowsePlaces::FileIn(m_sFolder, filList->item(index)->text()));
    lstGrid->Choose(m_sFilePath);
    ShowWhetherItCanBeTaken();
    AskForPreview();
} catch (...) {
    ErrTop("frmBrowse!", "filList_Click");
}

void frmBrowse::filList_DblClick() { cmdOK_Click(); }

void frmBrowse::cboFilter_Click() try {
    Remembered().iFilter = cboFilter->currentIndex();
    Keep(kKindsKey, QString::number(Remembered().iFilter));
    const QString chosen = m_sFilePath;
    FillFiles();
    SelectFile(chosen);
    filList_Click();
} catch (...) {
    ErrTop("frmBrowse!", "cboFilter_Click");
}

void frmBrowse::AskForPreview() {
    const QSize size = picBitMapArea->size() * picBitMapArea->devicePixelRatioF();
    const bool later = basCommon::DoesFileExist(m_sFilePath) && !basBMP::IsWMF(m_sFilePath) &&
                       !m_loader->Ask(m_sFilePath, std::max(size.width(), size.height()), kPreviewPatience);
    if (later) {
        ShowLoading();
    } else {
        Redraw();
    }
}

void frmBrowse::ShowLoading() {
    const QString text = QStringLiteral("Loading...");
    picBitMapArea->Cls();
    picBitMapArea->ScaleMode = ScaleModeKind::Pixels;
    picBitMapArea->ForeColor = Color::Rgb(0x60, 0x60, 0x60);
    picBitMapArea->CurrentX = (picBitMapArea->width() - picBitMapArea->TextWidth(text)) / 2;
    picBitMapArea->CurrentY = (picBitMapArea->height() - picBitMapArea->TextHeight(text)) / 2;
    picBitMapArea->Print(text);
    picBitMapArea->ScaleMode = ScaleModeKind::Twips;
    picBitMapArea->Refresh();
}

// A file that was refused can't be taken; the picture in use stays what it is.
void frmBrowse::ShowWhetherItCanBeTaken() {
    const bool refused = !m_sFilePath.isEmpty() && m_sFilePath == m_sBadPath && m_sFilePath != m_sOriginalPath;
    cmdOK->setEnabled(!refused);
}

void frmBrowse::Preview_Arrived(const QString& sPath) {
    if (isVisible() && sPath == m_sFilePath) Redraw();
}

void frmBrowse::Redraw() try {
    picBitMapArea->Cls();
    picBitMapArea->ScaleMode = ScaleModeKind::Pixels;
    const int lW = picBitMapArea->width();
    const int lH = picBitMapArea->height();
    if (!m_sFilePath.isEmpty() && m_sFilePath != m_sFolder) PaintPreview(lW, lH);
    picBitMapArea->ScaleMode = ScaleModeKind::Twips;
    picBitMapArea->Refresh();
    ShowWhetherItCanBeTaken();
} catch (...) {
    ErrTop("frmBrowse!", "Redraw");
}

void frmBrowse::PaintPreview(int lW, int lH) {
    if (basBMP::IsWMF(m_sFilePath)) {
        basBMP::BMP_DrawWMF(picBitMapArea->hDC(), m_sFilePath, m_sBadPath, kMetafileMargin, kMetafileMargin,
                            lW - kMetafileFree, lH - kMetafileFree);
        return;
    }
    m_oPreview = PictureRef{m_sFilePath};
    // Told for itself: what is looked at here is nobody's picture yet.
    TellOnce told;
    told.Note(TellOnce::Fault::Picture, m_sBadPath);
    PaintCentered(m_oPreview, told, *picBitMapArea, QRectF(0, 0, lW, lH), Color::None());
    m_sBadPath = told.LastTold(TellOnce::Fault::Picture);
    // Later: the list may be in the middle of a click.
    if (!basCommon::DoesFileExist(m_sFilePath))
        QMetaObject::invokeMethod(this, &frmBrowse::Preview_Vanished, Qt::QueuedConnection);
}

// What is gone by now can't be chosen any more.
void frmBrowse::Preview_Vanished() try {
    FillFiles();
    filList_Click();
} catch (...) {
    ErrTop("frmBrowse!", "Preview_Vanished");
}

// Also where its preview hasn't come up yet.
bool frmBrowse::IsRefused() const {
    if (!cmdOK->isEnabled()) return true;
    const QString why = m_sFilePath == m_sOriginalPath ? QString() : WhyNoPicture(m_sFilePath);
    if (!why.isEmpty()) MsgBox(why, vbInformation);
    return !why.isEmpty();
}

void frmBrowse::cmdOK_Click() try {
    if (ListIndex() < 0) {
        MsgBox(QStringLiteral("Please select a file before clicking OK"));
        return;
    }
    if (IsRefused() || !CopyFileToRoot()) return;
    Remembered().sLastFolder = m_sFolder;
    Keep(kFolderKey, m_sFolder);
    m_bOK = true;
    hide();
} catch (...) {
    ErrTop("frmBrowse!", "cmdOK_Click");
}

void frmBrowse::cmdCancel_Click() try {
    m_sFilePath = m_sOriginalPath;
    hide();
} catch (...) {
    ErrTop("frmBrowse!", "cmdCancel_Click");
}

void frmBrowse::reject() { cmdCancel_Click(); }

// In the list of folders Enter opens the folder and Backspace the one above; the OK button, which Enter
// would press elsewhere, is for a picture.
bool frmBrowse::dirList_KeyDown(int key) {
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && dirList->currentItem()) {
        dirList_Activated(dirList->currentItem());
        return true;
    }
    if (key != Qt::Key_Backspace) return false;
    OpenFolder(BrowsePlaces::FolderAbove(m_sFolder));
    return true;
}

// The toolkit would begin its way through the list behind the first picture.
bool frmBrowse::filList_KeyDown(int key) {
    const bool moves = key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
    if (!moves || ListIndex() >= 0 || filList->count() == 0) return false;
    filList->setCurrentRow(0);
    return true;
}

bool frmBrowse::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (watched == dirList && dirList_KeyDown(key)) return true;
        if (watched == filList && filList_KeyDown(key)) return true;
    }
    return QDialog::eventFilter(watched, event);
}
