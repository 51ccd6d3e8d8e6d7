// SPDX-License-Identifier: MIT
#pragma once

#include "document/GameHost.h"
#include "platform/paint/Surface.h"

/// The game being edited: its name, whether it holds unsaved changes, and the autosave that each change
/// writes. Serves as host of the game file while it lives.
class GameSession : public GameHost {
public:
    GameSession();
    ~GameSession() override;
    GameSession(const GameSession&) = delete;
    GameSession& operator=(const GameSession&) = delete;

    QString m_sGameName;
    bool m_bChanged = false;

    QString GameName() const override { return m_sGameName; }
    /// With true, writes the autosave; with false, deletes it. A game that could be saved nowhere at all stays
    /// changed: it is in memory only. Raises when an autosave file can't be deleted
    /// or moved; one that can't be written is told and changes nothing else.
    void SetSomethingChanged(bool bChanged) override;
    DeviceContext& MeasuringDevice() override { return m_scratch.hDC(); }

private:
    ScratchForm m_scratch{QSize(1, 1)};
    GameHost* m_before;
};
