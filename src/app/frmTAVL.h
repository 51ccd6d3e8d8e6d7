// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardPlace.h"
#include "app/MainLayout.h"
#include "app/ToolBar.h"
#include "app/ToolTips.h"
#include "game/GameSession.h"
#include "platform/paint/Color.h"
#include "services/Desktop.h"

#include <QMainWindow>
#include <QPointF>
#include <QTimer>

#include <array>

class frmAbout;
class PictureBox;
class QAction;
class QMenu;
class QPushButton;
class QScrollBar;

/// The main window, and the program's start: loading it starts the program, unloading it ends it. It shows
/// the board, on which everything is a door to an editor, and holds the commands on the game as a whole.
class frmTAVL : public QMainWindow, public GameSession {
    Q_OBJECT

public:
    frmTAVL();
    ~frmTAVL() override;

    /// The start in its fixed order; the window is shown by the caller afterwards.
    void Form_Load();
    void Form_Resize();
    /// Sets bCancel when the user wants to go on.
    void Form_QueryUnload(bool& bCancel);
    /// Ends the program.
    void Form_Unload();

    /// Board view: 1.0 shows it whole.
    float m_fZoom = 1.0F;
    /// Of the last load: 0 good, -1 failed.
    int m_iLoadResult = 0;
    /// While true, Redraw returns at once.
    bool m_bNoRedraw = false;
    /// Printing has been done; the printer can't be changed any more.
    bool m_bPrintedSomething = false;
    /// A page is being printed; the program can't be closed.
    bool bInPrint = false;
    /// Meanwhile the window takes no input, and the board isn't painted: sheets use the same drawing state.
    void SetInPrint(bool bNow);

    // Commands on the game.
    void BeginNewGame(int& iResult);
    /// The first "GameN.gam" of the My Games directory that doesn't exist.
    void GetNewGameName(QString& sName);
    /// Asks for a name; iResult is 0, or -1 when there is none.
    void SetNewGameName(int& iResult);
    void OkToEndProgram(bool& bOk);
    void SetSomethingChanged(bool bChanged) override;
    /// The question about unsaved changes, then this game instead of the current one.
    void OpenGame(const QString& sPath);

    void mnuFile_Click(int Index);
    void mnuView_Click(int Index);
    void mnuZoom_Click(int Index);
    void mnuHelp_Click(int Index);
    void cmd_Click(int Index);

    void EditCenterText();
    void EditCornerText(int iCorner);
    void EditSpaceText(int iSpace);
    void EditNews(int iGoodOrBad);
    void EditMoney();
    void EditToken();

    void Redraw();
    /// Finds what is at a place of picBoard, in twips.
    void WhatIsMouseOver(float X, float Y);
    const BoardPlace& Over() const { return m_over; }
    bool m_bOverChanged = false;
    bool m_bOverSomething = false;

    PictureBox& Board() { return *picBoard; }
    DeviceContext& MeasuringDevice() override;
    ToolTips& Tips() { return m_tips; }

public Q_SLOTS:
    void picBoard_MouseDown(int Button, int Shift, float X, float Y);
    void picBoard_MouseMove(int Button, int Shift, float X, float Y);
    void picBoard_Paint();
    /// Pastes pictures that have been decoded since the board was painted.
    void TimerPictures_Timer();
    void hscrl_Change();
    void vscrl_Change();
    /// Another start of the program wants this one, with a game to open or an empty text.
    void CalledByAnotherStart(const QString& sGame);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private Q_SLOTS:
    void MenuTriggered();
    void ButtonClicked();

private:
    // Building the window.
    void MakeControls();
    void MakeScrollBars();
    void MakeButtons();
    void MakeMenus();
    QMenu* MakeMenu(QMenu* menu, const QString& sCaption, const QString& sName);

    // The start.
    void SizeMainWindow();
    void WarnOfFewColors();
    void ShowSplash();
    void HideSplash();
    void Init();
    void InitColors();
    bool LoadAutosave(const QString& sPath, const QString& sMessage);
    void LoadLastGame();
    bool m_bSplash = false;
    bool m_bLoading = false;
    /// What another start asked for while this one was still loading.
    QString m_sGameToOpen;

    // The game.
    void GameLoad(QString& sFileName);
    void SetTitle();
    void NewGame();
    void OpenGameFromDialog();
    void AutosaveWhatStays();
    void LoadInstead(const QString& sPath);
    void Save();
    void SaveAs();
    void PrinterSetup();
    void Print();
    void ExitWithQuestion();
    void ChangedByEditor(bool bChanged, bool bRedraw);
    void ShowDialogError();

    // The view.
    void PaintBoard();
    void SetZoom(int iZoom);
    void ClearHitState();
    void ApplyLayout(const MainLayout& layout);
    int ScrollOffsetOf(const QScrollBar& bar) const;
    void ScrollBy(int iSteps, Qt::Orientation orientation, bool bPages);
    void ZoomAtMouse(int iZoom, QPointF position);

    void AwaitPictures(bool bAwaited);

    // Tips and toolbar.
    void ShowTips();
    void PlaceTipBox(float X, float Y);
    void RunToolBarButton(const ToolBarTable::Row& row);

    /// What the other parts of the window lie on.
    QWidget* const m_client;
    ToolTips m_tips;
    ToolBar m_toolBar;

    PictureBox* picBoard = nullptr;
    QScrollBar* hscrl = nullptr;
    QScrollBar* vscrl = nullptr;
    std::array<QPushButton*, MainLayout::kButtons> cmd{};
    QTimer TimerPictures;
    CommonDialog dlgCommon;
    std::unique_ptr<frmAbout> m_about;

    std::array<Color, 8> m_lColor{};
    BoardPlace m_over;
    QString m_sBoardTip;
    QPointF m_lastOnBoard{-1, -1};
    int m_wheelTurn = 0;
};
