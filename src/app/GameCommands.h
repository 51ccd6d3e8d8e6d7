// SPDX-License-Identifier: MIT
#pragma once

#include "game/Session.h"
#include "services/Desktop.h"

class BoardView;
class QWidget;

/// The commands on the game as a whole: new, open, save, save under a new name, and the question about unsaved
/// changes. Owns the session. The window's title shows the game's name and whether it holds any.
class GameCommands {
public:
    GameCommands(QWidget& window, BoardView& view);

    Session& InHand() { return m_session; }

    /// What the start goes on with: an autosave, its backup, the game that it was asked for, the last game, or else a
    /// new one. What ended the start before is asked about first. False when an autosave has come ahead of the game
    /// that was asked for, which is then still to be opened.
    bool TakeUpGame(const QString& sAskedFor);
    void BeginNewGame(int& iResult);
    /// The first "GameN.gam" of the My Games directory that doesn't exist.
    void GetNewGameName(QString& sName);
    /// Asks for a name; iResult is 0, or -1 when there is none.
    void SetNewGameName(int& iResult);
    /// Offers to save unsaved changes; bOk is false when the user wants to go on with the game.
    void OkToEndProgram(bool& bOk);

    /// What another start, or the desktop, asks for: a game's path, or one of the requests of StartArguments.
    void Carry(const QString& sRequest);

    // The commands of the file menu. What would replace the game asks about unsaved changes first.
    void New();
    void Open();
    void OpenGame(const QString& sPath);
    void Save();
    void SaveAs();
    /// One of the games that come with the program, as a new one without a name.
    void NewFrom(const QString& sSample);
    /// The game as it stands as a new one without a name, still to be saved; the file of the old one stays as it was
    /// saved last.
    void Duplicate();
    /// Shows what the saves of this game have replaced, and opens what is chosen of it as a new game.
    void OpenEarlier();
    /// One of the games that were opened or saved before; offers to look for one that isn't there any more.
    void OpenRecent(const QString& sPath);

    // The commands of the edit menu.
    void Undo();
    void Redo();

    /// Of the last load: 0 good, -1 failed.
    int LoadResult() const { return m_iLoadResult; }

private:
    bool MayGo();
    bool LoadAutosave(const QString& sPath, const QString& sMessage);
    bool LoadAskedFor(const QString& sPath);
    void LoadLastGame();
    bool MayOpenLastGame(const QString& sPath) const;
    /// True when it ended the start before, and the user doesn't want to try again: it is then out of the way.
    bool IsPutAside(const QString& sAutosave);
    static bool WantsItAgain(const QString& sWhat, const QString& sElse = QString());
    void LoadUnderItsName();
    bool SaveUnderItsName();
    void BeginGameFrom(const QString& sFile);
    /// True when a game was chosen and read.
    bool OpenAskedFor(const QString& sFolder, const QString& sFile);
    void LoadInstead(const QString& sPath);
    void NoteInUse();
    void ShowStep();
    void AutosaveWhatStays();
    void KeepBoardOf(const QString& sGame);
    void ShowState();
    void ShowDialogError();

    QWidget& m_window;
    BoardView& m_view;
    Session m_session;
    CommonDialog dlgCommon;
    int m_iLoadResult = 0;
    /// What the start before was opening when it ended.
    QString m_sBrokenOff;
};
