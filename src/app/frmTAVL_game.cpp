// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/GameNames.h"
#include "document/Locale.h"
#include "game/Autosave.h"
#include "game/GameFile.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <QApplication>

namespace {

const QString kGameFilter = QStringLiteral("Tavlora games|*.gam|All files|*.*");
const QString kGameExtension = QStringLiteral("gam");

} // namespace

DeviceContext& frmTAVL::MeasuringDevice() { return m_view.Board().hDC(); }

void frmTAVL::GameLoad(QString& sFileName) { GameFile::GameLoad(sFileName, m_iLoadResult); }

void frmTAVL::SetTitle() {
    setWindowTitle(WidgetLook::WindowTitle(QStringLiteral("Tavlora: ") + m_sGameName));
    setWindowModified(m_bChanged);
}

void frmTAVL::SetSomethingChanged(bool bChanged) try {
    if (bChanged) setWindowModified(true);
    GameSession::SetSomethingChanged(bChanged);
    setWindowModified(m_bChanged);
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}

void frmTAVL::BeginNewGame(int& iResult) try {
    const QString folder = Folders::ProgramDirectory();
    QString game = basCommon::JoinPath(folder, QStringLiteral("Default.dat"));
    if (!basCommon::DoesFileExist(game)) game = basCommon::JoinPath(folder, QString::fromLatin1(Locale::kDefaultGame));
    GameLoad(game);
    iResult = m_iLoadResult;
    GetNewGameName(m_sGameName);
    SetTitle();
    m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "BeginNewGame", iResult);
}

void frmTAVL::GetNewGameName(QString& sName) try {
    sName = GameNames::FirstFreeName(basCommon::GetMyGamesDirectory());
} catch (...) {
    ErrTail("frmTAVL!", "GetNewGameName", sName);
}

void frmTAVL::SetNewGameName(int& iResult) try {
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

void frmTAVL::ShowDialogError() {
    if (dlgCommon.sError.isEmpty()) return;
    const QString blankLine = QStringLiteral("\r\n\r\n");
    MsgBox(QStringLiteral("The following error was encountered while processing the File Dialog: ") + blankLine +
           dlgCommon.sError + blankLine + QStringLiteral("The game was NOT saved."));
}

void frmTAVL::NewGame() try {
    bool ok = false;
    OkToEndProgram(ok);
    if (!ok) return;
    BeginNewGame(m_iLoadResult);
    AutosaveWhatStays();
} catch (...) {
    ErrTail("frmTAVL!", "NewGame");
}

// After No to the question about changes nothing of them is left on the disk, and then no other game came: what is
// still being worked on must outlive a crash as before.
void frmTAVL::AutosaveWhatStays() {
    if (m_bChanged) SetSomethingChanged(true);
}

void frmTAVL::OpenGameFromDialog() try {
    bool ok = false;
    OkToEndProgram(ok);
    if (!ok) return;
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
} catch (...) {
    ErrTail("frmTAVL!", "OpenGameFromDialog");
}

void frmTAVL::OpenGame(const QString& sPath) try {
    bool ok = false;
    OkToEndProgram(ok);
    if (ok) LoadInstead(sPath);
} catch (...) {
    ErrTail("frmTAVL!", "OpenGame", sPath);
}

void frmTAVL::LoadInstead(const QString& sPath) try {
    m_sGameName = sPath;
    GameLoad(m_sGameName);
    SetTitle();
    // A game that was read only in part isn't the file any more.
    SetSomethingChanged(m_iLoadResult != 0);
    basCommon::WriteIniString(QStringLiteral("GameName"), m_sGameName);
    m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "LoadInstead", sPath);
}

void frmTAVL::Save() try {
    if (GameNames::IsUnnamed(m_sGameName)) {
        SaveAs();
        return;
    }
    bool result = false;
    GameFile::GameSave(m_sGameName, result);
} catch (...) {
    ErrTail("frmTAVL!", "Save");
}

void frmTAVL::SaveAs() try {
    int iResult = 0;
    SetNewGameName(iResult);
    if (iResult < 0) return;
    bool result = false;
    GameFile::GameSave(m_sGameName, result);
    SetTitle();
} catch (...) {
    ErrTail("frmTAVL!", "SaveAs");
}

void frmTAVL::OkToEndProgram(bool& bOk) try {
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

void frmTAVL::CalledByAnotherStart(const QString& sGame) try {
    if (m_bLoading) {
        // A start that only wants this one to come to the front takes back no game.
        if (!sGame.isEmpty()) m_sGameToOpen = sGame;
        return;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    if (sGame.isEmpty()) return;
    if (QApplication::activeModalWidget() || bInPrint) {
        MsgBox(QStringLiteral("Please close the window you are working in, then open the game again."), vbInformation);
        return;
    }
    OpenGame(sGame);
} catch (...) {
    ErrTop("frmTAVL!", "CalledByAnotherStart", sGame);
}
