// SPDX-License-Identifier: MIT
#include "game/Session.h"

#include "game/Autosave.h"
#include "game/GameFile.h"
#include "services/basErrLog.h"

Session::Session() : m_device([this]() -> DeviceContext& { return m_scratch.hDC(); }), m_before(Install(this)) {}
Session::~Session() { Install(m_before); }

int Session::Recover(const QString& sAutosave) {
    QString name = sAutosave;
    if (Load(name) != 0) return -1;
    m_sGameName = name;
    m_savedState.reset();
    Q_EMIT Changed();
    return 0;
}

int Session::Load(QString& sFileName) {
    const Game before = InHand();
    int result = -1;
    try {
        GameFile::GameLoad(sFileName, result);
    } catch (...) {
        BeginHistory();
        throw;
    }
    // Where nothing could be read, the game is still the one that the steps lead through.
    if (result == 0 || before != InHand()) BeginHistory();
    return result;
}

void Session::BeginHistory() {
    const bool unsaved = IsUnsaved();
    m_history.Begin();
    m_savedState.reset();
    if (!unsaved) m_savedState = m_history.State();
    Q_EMIT Changed();
}

bool Session::Save() {
    bool result = false;
    GameFile::GameSave(m_sGameName, result);
    return result;
}

void Session::Do(const Edit& edit) {
    m_history.Do(TheGame(), edit);
    Q_EMIT Edited();
    SetSomethingChanged(true);
}

void Session::Undo() {
    if (!CanUndo()) return;
    m_history.Undo(TheGame());
    FollowStep();
}

void Session::Redo() {
    if (!CanRedo()) return;
    m_history.Redo(TheGame());
    FollowStep();
}

void Session::FollowStep() {
    Q_EMIT Edited();
    SetSomethingChanged(IsUnsaved());
}

void Session::SetSomethingChanged(bool bChanged) try {
    if (bChanged) {
        // Ahead of what may raise: the end of the program must ask about the change all the same.
        if (!IsUnsaved()) m_savedState.reset();
        m_bAutosaveDue = true;
        Q_EMIT Changed();
        const Autosave::Rotated rotated = Autosave::Rotate();
        bool written = false;
        GameFile::GameSave(Autosave::DataPath(), written);
        Autosave::EndRotation(rotated);
        m_bAutosaveDue = false;
    } else {
        Autosave::Forget();
        m_bAutosaveDue = false;
        m_savedState.reset();
        if (!Autosave::IsKeptNowhere(m_sGameName)) m_savedState = m_history.State();
        Q_EMIT Changed();
    }
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}

void Session::RetryAutosave() {
    if (m_bAutosaveDue) SetSomethingChanged(true);
}
