// SPDX-License-Identifier: MIT
#include "document/GameSession.h"

#include "app/services/basErrLog.h"
#include "document/Autosave.h"
#include "document/GameFile.h"

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
