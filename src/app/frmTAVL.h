// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardView.h"
#include "app/MainLayout.h"
#include "app/ToolBar.h"
#include "app/ToolTips.h"
#include "game/GameSession.h"
#include "platform/paint/Color.h"
#include "services/Desktop.h"

#include <QMainWindow>

#include <array>

class frmAbout;
class QAction;
class QMenu;
class QPushButton;

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

    /// Of the last load: 0 good, -1 failed.
    int m_iLoadResult = 0;
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

    BoardView& View() { return m_view; }
    ToolTips& Tips() { return m_tips; }
    DeviceContext& MeasuringDevice() override;

public Q_SLOTS:
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

    // What the parts of the window ask for.
    void OpenPlace(const BoardPlace& place);
    void RunToolBarButton(const ToolBarTable::Row& row);

    /// What the other parts of the window lie on.
    QWidget* const m_client;
    ToolTips m_tips;
    ToolBar m_toolBar;
    BoardView m_view;

    std::array<QPushButton*, MainLayout::kButtons> cmd{};
    CommonDialog dlgCommon;
    std::unique_ptr<frmAbout> m_about;

    std::array<Color, 8> m_lColor{};
};
