// SPDX-License-Identifier: MIT
#include "app/GameCommands.h"

#include "app/BoardView.h"
#include "app/GameNames.h"
#include "document/Locale.h"
#include "game/Autosave.h"
#include "game/GameFile.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

namespace {

const QString kGameFilter = QStringLiteral("Tavlora games|*.gam|All files|*.*");
const QString kGameExtension = QStringLiteral("gam");

} // namespace

DeviceContext& GameCommands::MeasuringDevice() { return m_view.Board().hDC(); }

void GameCommands::GameLoad(QString& sFileName) { GameFile::GameLoad(sFileName, m_iLoadResult); }

void GameCommands::ShowState() {
    m_window.setWindowTitle(WidgetLook::WindowTitle(QStringLiteral("Tavlora: ") + m_sGameName));
    m_window.setWindowModified(m_bChanged);
}

void GameCommands::SetSomethingChanged(bool bChanged) try {
    if (bChanged) m_window.setWindowModified(true);
    GameSession::SetSomethingChanged(bChanged);
    m_window.setWindowModified(m_bChanged);
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}

void GameCommands::TakeUpGame() {
    const bool recovered =
        LoadAutosave(Autosave::DataPath(),
                     QStringLiteral("An Autosave version of a previous game has been found on your disk. ")) ||
        LoadAutosave(
            Autosave::BackupPath(),
            QStringLiteral("The backup of an autosave version of a previous game has been found on your disk. "));
    if (!recovered) LoadLastGame();
}

bool GameCommands::LoadAutosave(const QString& sPath, const QString& sMessage) {
    if (!basCommon::DoesFileExist(sPath)) return false;
    MsgBox(sMessage + QStringLiteral("This game is being loaded."));
    QString name = sPath;
    GameLoad(name);
    if (m_iLoadResult != 0) return false;
    m_sGameName = name;
    m_bChanged = true;
    ShowState();
    return true;
}

void GameCommands::LoadLastGame() {
    m_sGameName = basCommon::GetIniString(QStringLiteral("GameName"));
    if (m_sGameName.isEmpty() || !basCommon::ResolveFullPath(m_sGameName)) {
        BeginNewGame(m_iLoadResult);
    } else {
        GameLoad(m_sGameName);
    }
    ShowState();
}

void GameCommands::BeginNewGame(int& iResult) try {
    const QString folder = Folders::ProgramDirectory();
    QString game = basCommon::JoinPath(folder, QStringLiteral("Default.dat"));
    if (!basCommon::DoesFileExist(game)) game = basCommon::JoinPath(folder, QString::fromLatin1(Locale::kDefaultGame));
    GameLoad(game);
    iResult = m_iLoadResult;
    GetNewGameName(m_sGameName);
    ShowState();
    m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "BeginNewGame", iResult);
}

void GameCommands::GetNewGameName(QString& sName) try {
    sName = GameNames::FirstFreeName(basCommon::GetMyGamesDirectory());
} catch (...) {
    ErrTail("frmTAVL!", "GetNewGameName", sName);
}

void GameCommands::SetNewGameName(int& iResult) try {
    QString name;
    GetNewGameName(name);
    dlgCommon.sDialogTitle = QStringLiteral("Save Game Under New Name");
    dlgCommon.sInitDir = GameNames::FolderOf(name);
    dlgCommon.sFileName = GameNames::FileNameOf(name);
    dlgCommon.sFilter = kGameFilter;
    dlgCommon.sDefaultExt = kGameExtension;
    dlgCommon.bOverwritePrompt = true;
    dlgCommon.sError.clear();
    iResult = -1;
    if (!dlgCommon.ShowSave()) {
        ShowDialogError();
        return;
    }
    m_sGameName = dlgCommon.sFileName;
    iResult = 0;
} catch (...) {
    ErrTail("frmTAVL!", "SetNewGameName", iResult);
}

void GameCommands::ShowDialogError() {
    if (dlgCommon.sError.isEmpty()) return;
    const QString blankLine = QStringLiteral("\r\n\r\n");
    MsgBox(QStringLiteral("The following error was encountered while processing the File Dialog: ") + blankLine +
           dlgCommon.sError + blankLine + QStringLiteral("The game was NOT saved."));
}

bool GameCommands::MayGo() {
    bool ok = false;
    OkToEndProgram(ok);
    return ok;
}

void GameCommands::New() {
    if (!MayGo()) return;
    BeginNewGame(m_iLoadResult);
    AutosaveWhatStays();
}

// After No to the question about changes nothing of them is left on the disk, and then no other game came: what is
// still being worked on must outlive a crash as before.
void GameCommands::AutosaveWhatStays() {
    if (m_bChanged) SetSomethingChanged(true);
}

void GameCommands::Open() {
    if (!MayGo()) return;
    dlgCommon.sDialogTitle = QStringLiteral("Open Game");
    dlgCommon.sInitDir = GameNames::FolderOf(m_sGameName);
    dlgCommon.sFileName = GameNames::IsUnnamed(m_sGameName) ? QString() : GameNames::FileNameOf(m_sGameName);
    dlgCommon.sFilter = kGameFilter;
    dlgCommon.sDefaultExt = kGameExtension;
    dlgCommon.sError.clear();
    if (!dlgCommon.ShowOpen()) {
        ShowDialogError();
        AutosaveWhatStays();
        return;
    }
    LoadInstead(dlgCommon.sFileName);
}

void GameCommands::OpenGame(const QString& sPath) {
    if (MayGo()) LoadInstead(sPath);
}

void GameCommands::LoadInstead(const QString& sPath) {
    m_sGameName = sPath;
    GameLoad(m_sGameName);
    ShowState();
    // A game that was read only in part isn't the file any more.
    SetSomethingChanged(m_iLoadResult != 0);
    basCommon::WriteIniString(QStringLiteral("GameName"), m_sGameName);
    m_view.Redraw();
}

void GameCommands::Save() {
    if (GameNames::IsUnnamed(m_sGameName)) {
        SaveAs();
        return;
    }
    bool result = false;
    GameFile::GameSave(m_sGameName, result);
}

void GameCommands::SaveAs() {
    int iResult = 0;
    SetNewGameName(iResult);
    if (iResult < 0) return;
    bool result = false;
    GameFile::GameSave(m_sGameName, result);
    ShowState();
}

void GameCommands::OkToEndProgram(bool& bOk) try {
    bOk = !m_bChanged;
    if (bOk) return;
    const int answer = MsgBox(QStringLiteral("Do you want to save the changes pending on the current game.?"),
                              vbYesNoCancel | vbQuestion, QStringLiteral("Save Changes"));
    switch (answer) {
        case vbYes:
            GameFile::GameSave(m_sGameName, bOk);
            SetSomethingChanged(false);
            break;
        case vbNo:
            Autosave::Forget();
            bOk = true;
            break;
        case vbCancel:
            bOk = false;
            break;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Response"), QStringLiteral("frmTAVL!OkToEndProgram"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "OkToEndProgram", bOk);
}
