// SPDX-License-Identifier: MIT
#include "game/GameSession.h"

#include "game/Autosave.h"
#include "game/GameFile.h"
#include "services/basErrLog.h"

GameSession::GameSession() : m_before(GameHost::Install(this)) {}
GameSession::~GameSession() { GameHost::Install(m_before); }

void GameSession::SetSomethingChanged(bool bChanged) try {
    if (bChanged) {
        // Ahead of what may raise: the end of the program must ask about the change all the same.
        m_bChanged = true;
        const Autosave::Rotated rotated = Autosave::Rotate();
        bool written = false;
        GameFile::GameSave(Autosave::DataPath(), written);
        Autosave::EndRotation(rotated);
    } else {
        Autosave::Forget();
        m_bChanged = Autosave::IsKeptNowhere(m_sGameName);
    }
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}
