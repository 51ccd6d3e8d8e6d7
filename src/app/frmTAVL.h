// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardView.h"
#include "app/BoardWalk.h"
#include "app/GameCheck.h"
#include "app/GameCommands.h"
#include "app/GameSharing.h"
#include "app/MainLayout.h"
#include "app/MainMenu.h"
#include "app/PictureCommands.h"
#include "app/PictureDrop.h"
#include "app/PieceMoves.h"
#include "app/SideField.h"
#include "app/StartRequests.h"
#include "app/ToolBar.h"
#include "app/ToolTips.h"
#include "check/FirstSteps.h"
#include "game/AwayPictures.h"
#include "platform/paint/Color.h"
#include "services/Desktop.h"

#include <QMainWindow>
#include <QTimer>

#include <array>

class EditorRoutes;
class frmAbout;
class GuideTab;
class QPushButton;

/// The main window, and the program's start: loading it starts the program, unloading it ends it. Builds what
/// stands on it, joins the parts, and opens the doors to the editors.
class frmTAVL : public QMainWindow {
    Q_OBJECT

public:
    /// The doors have to live as long as the window.
    explicit frmTAVL(EditorRoutes& doors);
    ~frmTAVL() override;

    /// The start in its fixed order; the window is shown by the caller afterwards. Whatever fails on the way is
    /// reported, and the rest goes on.
    void Form_Load();
    /// After the window is shown: opens what starts have asked for that could not be opened before.
    void EndStart();
    void Form_Resize();
    /// Sets bCancel when the user wants to go on.
    void Form_QueryUnload(bool& bCancel);
    /// Ends the program.
    void Form_Unload();

    /// A page is being printed: the program can't be closed, the window takes no input, and the board isn't
    /// painted, as sheets use the same drawing state.
    bool IsInPrint() const { return bInPrint; }
    void SetInPrint(bool bNow);
    /// The printer can't be changed any more.
    bool HasPrintedSomething() const { return m_bPrintedSomething; }

    void mnuFile_Click(int Index);
    void mnuEdit_Click(int Index);
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

    BoardView& View() { return m_view; }
    ToolTips& Tips() { return m_tips; }
    GameCommands& Commands() { return m_commands; }
    GameCheck& Check() { return m_check; }

public Q_SLOTS:
    /// A start of the program, this one or a later one, wants this window with a game to open or an empty text.
    void CalledByAnotherStart(const QString& sGame);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void ButtonClicked();
    void TakeDropped();
    /// Shows pictures whose folder has come back.
    void TimerAway_Timer();

private:
    void MakeButtons();
    QSize LeastClient() const;
    void OrderTabs();
    void MakeLists();
    /// What stands beside the board: a tab is one call.
    void MakeTabs();

    // The start, in frmTAVL_start.cpp.
    void PrepareStart();
    void ReadSideSettings();
    void StartWithGame();
    void SizeMainWindow();
    void WarnOfFewColors();
    void ShowSplash();
    void HideSplash();
    void Init();
    void TakeUp(const QString& sRequest);
    void InitColors();

    void OpenPlace(const BoardPlace& place);
    /// A step of the guide; the piece at which it goes on, if there is one.
    void OpenStep(FirstSteps::Step step, const std::optional<GamePiece>& piece);
    void ShowGuide(bool bShown);
    void Choose(Menu menu, int Index);
    CheckList::Doors DoorsOfCheck();
    void PrinterSetup();
    void Paste();
    void Print();
    void PrintEverything();
    void PrintBy(bool (EditorRoutes::*door)(frmTAVL&));
    bool IsSavedForPrinting();
    void ExitWithQuestion();

    EditorRoutes& m_doors;
    /// What the other parts of the window lie on.
    QWidget* const m_client;
    ToolTips m_tips;
    ToolBar m_toolBar;
    BoardView m_view;
    SideField m_side;
    GameCommands m_commands;
    GameSharing m_sharing;
    PictureCommands m_pictures;
    GameCheck m_check;
    StartRequests m_requests;
    BoardWalk m_walk;
    PieceMoves m_moves;
    MainMenu m_menu;
    PictureDrop m_drop;
    QStringList m_dropped;
    QPoint m_droppedAt;
    AwayPictures m_away;
    QTimer TimerAway;

    std::array<QPushButton*, MainLayout::kButtons> cmd{};
    CommonDialog dlgCommon;
    std::unique_ptr<frmAbout> m_about;
    GuideTab* m_guide = nullptr;

    bool bInPrint = false;
    bool m_bPrintedSomething = false;
    bool m_bSplash = false;
    std::array<Color, 8> m_lColor{};
};
