// SPDX-License-Identifier: MIT
#pragma once

#include "pack/Packing.h"
#include "services/Desktop.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Sends the game in hand to a friend: tells what goes into the one file and what can't, how large it would be, and
/// writes it where the user says.
class frmSendGame : public QDialog {
    Q_OBJECT

public:
    /// sFolder is where the file is proposed to go.
    frmSendGame(const Packing::Contents& contents, const QString& sFolder, QWidget* parent = nullptr);

    /// Modal. True when the file was written.
    bool ShowForm();
    /// Closing the window means Cancel.
    void reject() override;

private Q_SLOTS:
    void cmdSaveAs_Click();
    void cmdCancel_Click();
    void MakeNextSmaller();

private:
    void BuildControls();
    QLabel* AddText(QVBoxLayout& column, const char* sName, const QString& sText);
    void AddChoice(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    void ShowSizes();
    bool AskForPath(QString& sPath);
    bool FinishSmaller();
    bool ShowProgress(int iThousandths);
    void WriteTo(const QString& sPath);
    void EndWork();

    Packing::Contents m_asTheyAre;
    /// The same with smaller pictures, made one by one while the window stands.
    Packing::Contents m_smaller;
    int m_iNextSmaller = 0;
    QString m_sFolder;
    QTimer m_timer;
    bool m_bWorking = false;
    bool m_bStopped = false;
    bool m_bSent = false;

    QRadioButton* optAsTheyAre = nullptr;
    QRadioButton* optSmaller = nullptr;
    QProgressBar* barProgress = nullptr;
    QPushButton* cmdSaveAs = nullptr;
    QPushButton* cmdCancel = nullptr;
};
