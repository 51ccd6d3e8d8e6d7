// SPDX-License-Identifier: MIT
#include "game/GameSession.h"

#include "game/Autosave.h"
#include "game/GameFile.h"
#include "services/basErrLog.h"

GameSession::GameSession() : m_before(GameHost::Install(this)) {}
GameSession::~GameSession() { GameHost::Install(m_before); }

void GameSession::SetSomethingChanged(bool bChanged) try {
    if (bChanged) {
        Autosave::Rotate();
        bool written = false;
        GameFile::GameSave(Autosave::DataPath(), written);
    } else {
        Autosave::Forget();
    }
    m_bChanged = bChanged;
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}
