// SPDX-License-Identifier: MIT
#pragma once

#include "game/DealtPhotos.h"

#include <QDialog>
#include <QSet>
#include <QTimer>

class PhotoGrid;
class QCheckBox;
class QComboBox;
class QLabel;
class QModelIndex;
class QPushButton;
class Session;

/// Deals the photos of a folder onto the free places of the board: shows which goes where before it is done, and does
/// it in one step.
class frmDealPhotos : public QDialog {
    Q_OBJECT

public:
    explicit frmDealPhotos(Session& session, QWidget* parent = nullptr);

    /// Modal; begins with the folder of the last time, or else with Pictures. True when the game has changed.
    bool ShowForm();
    /// The photos of another folder.
    void ShowFolder(const QString& sFolder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void cmdFolder_Click();
    void cboOrder_Click();
    void cmdShuffle_Click();
    void Choices_Click();
    void lstPhotos_Click(const QModelIndex& index);
    void timLook_Timer();
    void cmdOK_Click();
    void lstPhotos_Broken(const QString& sFile);

private:
    void BuildControls();
    void BuildChoices();
    void SortPhotos();
    void DealAgain();
    void ShowState();
    QString CaptionOf(int iRow) const;
    void ChangeWhatIsDealt();
    /// Looks at each photo that is dealt, also at those that never came into sight. True where one can't be shown.
    bool TakeOutBroken();
    /// Those that are dealt and lie on disks that may go away are kept among the games. False after a message.
    bool KeepDealt();

    Session& m_session;
    QString m_sFolder;
    /// Names of the folder that weren't looked at yet.
    QStringList m_unread;
    int m_iInFolder = 0;
    QTimer timLook;
    std::vector<DealtPhotos::Photo> m_photos;
    std::vector<PictureOwner> m_places;
    std::vector<int> m_dealt;
    /// Files that pieces of the game show.
    QSet<QString> m_inUse;
    /// Files that turned out to break off further on.
    QSet<QString> m_broken;
    quint32 m_iSeed = 1;
    bool m_bChanged = false;

    QLabel* lblFolder = nullptr;
    QLabel* lblState = nullptr;
    QComboBox* cboOrder = nullptr;
    QPushButton* cmdShuffle = nullptr;
    QCheckBox* chkNames = nullptr;
    QCheckBox* chkCorners = nullptr;
    PhotoGrid* lstPhotos = nullptr;
    QPushButton* cmdOK = nullptr;
};
