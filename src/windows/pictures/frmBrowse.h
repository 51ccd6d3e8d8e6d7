// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureRef.h"
#include "windows/pictures/BrowsePlaces.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QString>

#include <memory>

class ElidedLabel;
class PhotoGrid;
class PictureBox;
class PreviewLoader;
class QComboBox;
class QFrame;
class QListWidget;
class QModelIndex;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The picture chooser: places, folders, files and a preview. Its one duty beyond an ordinary file dialog: a
/// picture that isn't on the drive of the My Games directory is copied into that directory, so that a game
/// doesn't lose it when a disk is taken away.
class frmBrowse : public QDialog {
    Q_OBJECT
public:
    explicit frmBrowse(QWidget* parent = nullptr);
    ~frmBrowse() override;

    /// Shows the dialog and returns the path chosen (of the copy, where one was made), or sFilePath unchanged
    /// when it is cancelled. With an empty path it opens in the folder used last in this run, or in
    /// sStartFolder where the caller remembers another than the My Games directory. Metafiles are offered
    /// with bAllowWMF only.
    QString ShowForm(const QString& sFilePath, bool bAllowWMF, const QString& sStartFolder = QString());

    /// The picture last told to be bad: by the caller before ShowForm, or here. The preview doesn't tell it again,
    /// and whoever shows the picture chosen needn't either.
    const QString& BadPath() const { return m_sBadPath; }
    void SetBadPath(const QString& sFilePath) { m_sBadPath = sFilePath; }

    /// What was chosen last is remembered from here on over starts, once the settings can be read.
    static void ReadSettings();
    /// Folder that the last picture was taken from; empty before the first.
    static QString LastFolder();
    /// For tests: as at the start of a run.
    static void ResetForTest();

    /// Escape and the close button do what Cancel does.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building, in frmBrowse_controls.cpp.
    void BuildControls();
    void BuildLists();
    void BuildPreview();
    void Connect();

    void FillPlaces();
    void FillFilters(const QString& sInUse, bool bAllowWMF);
    void StartIn(const QString& sStartFolder);
    bool ShowPath(const QString& sFilePath, QString& sError);
    /// Lists a folder; nothing changes, and there is a sentence in sError, when it can't be listed.
    bool SetFolder(const QString& sFolder, QString& sError);
    void FillFolders(const QStringList& folders);
    void FillFiles();
    QTreeWidgetItem* AddFolder(QTreeWidgetItem* parent, const QString& sFolder, bool bOpen);
    void OpenFolder(const QString& sFolder);
    void SelectFile(const QString& sFilePath);
    void ShowFilePath(const QString& sFilePath);
    /// Number of the selected file; -1 for none.
    int ListIndex() const;
    void PaintPreview(int lW, int lH);
    /// Draws the preview now, or when its picture has been read.
    void AskForPreview();
    void ShowLoading();
    void ShowWhetherItCanBeTaken();
    bool IsRefused() const;
    void Redraw();
    /// False, after telling why, when the picture ought to be in the My Games directory and can't be.
    bool CopyFileToRoot();
    void TellCopy(const QString& sCopyName, bool bRenamed);

    void drvList_Change();
    void dirList_Change();
    void dirList_Activated(QTreeWidgetItem* item);
    void dirList_Click(QTreeWidgetItem* item);
    void lstGrid_Click(const QModelIndex& index);
    bool dirList_KeyDown(int key);
    bool filList_KeyDown(int key);
    void filList_Click();
    void filList_DblClick();
    void cboFilter_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void Preview_Arrived(const QString& sPath);
    void Preview_Vanished();

    QComboBox* drvList = nullptr;
    QTreeWidget* dirList = nullptr;
    QListWidget* filList = nullptr;
    PhotoGrid* lstGrid = nullptr;
    QComboBox* cboFilter = nullptr;
    ElidedLabel* lblCurrentDirectory = nullptr;
    ElidedLabel* lblFullFilePath = nullptr;
    QFrame* shpBitMapArea = nullptr;
    PictureBox* picBitMapArea = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    PreviewLoader* m_loader = nullptr;

    QList<BrowsePlaces::Place> m_places;
    /// The folder listed.
    QString m_sFolder;
    QString m_sOriginalPath;
    QString m_sFilePath;
    QString m_sBadPath;
    bool m_bOK = false;
    /// Since a folder was clicked.
    QElapsedTimer m_sinceClick;
    /// Made anew for each picture: what was told of one is no matter of the next.
    PictureRef m_oPreview;
};
