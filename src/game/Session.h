// SPDX-License-Identifier: MIT
#pragma once

#include "document/GameHost.h"
#include "game/GameFile.h"
#include "game/History.h"
#include "platform/paint/Surface.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

/// The work on one game: the game in hand, its name, what was done to it, whether that is saved, and the autosave
/// that each change writes. Serves as host of the game file while it lives.
///
/// That the game was edited and that it is unsaved are two things: undone edits can lead back to what was saved,
/// and a game that was read only in part isn't its file any more though nobody has edited it.
class Session : public QObject, public GameHost {
    Q_OBJECT

public:
    Session();
    ~Session() override;

    /// Windows show it, and change it by Do only.
    const Game& InHand() const { return TheGame(); }

    /// Full path.
    QString GameName() const override { return m_sGameName; }
    void SetGameName(const QString& sName) { m_sGameName = sName; }

    /// Another game, whose edits begin anew: 0, or -1 after a message. A game that could be read only in part
    /// stays in hand as it is then. The session keeps its name; that of the file becomes, for an autosave, the
    /// name of the game that was being edited.
    int Load(QString& sFileName);
    /// Takes up what an autosave holds, under the name that it was edited by, as unsaved: 0, or -1 after a
    /// message.
    int Recover(const QString& sAutosave);
    /// Under its name. False after a message; what wasn't put in place is still in the autosave.
    bool Save();

    /// The only road by which a window changes the game. Autosaves it; raises as SetSomethingChanged does, with
    /// the edit in force.
    void Do(const Edit& edit);
    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }
    /// What would be undone or redone, to stand behind these words; empty where there is nothing.
    QString UndoName() const { return m_history.UndoName(); }
    QString RedoName() const { return m_history.RedoName(); }
    /// Autosave as Do does, or where they lead to what was saved, leave no autosave behind.
    void Undo();
    void Redo();

    bool IsUnsaved() const { return m_savedState != m_history.State(); }
    /// With true, the game is unsaved though it wasn't edited, unless it is already; writes the autosave. With
    /// false, it is saved as it stands; deletes the autosave. A game whose save failed and that could not be rescued
    /// either stays unsaved. Raises when an autosave file can't be deleted or moved; one that can't be written is
    /// told and changes nothing else.
    void SetSomethingChanged(bool bChanged) override;
    /// The user wants the changes no longer; deletes the autosave. They stay unsaved for as long as they are in hand.
    void GiveUp();

    DeviceContext& MeasuringDevice() override { return m_device(); }
    /// Has texts measured on another device than a scratch one.
    void MeasureOn(std::function<DeviceContext&()> device) { m_device = std::move(device); }

public Q_SLOTS:
    /// Writes the autosave if the last one failed. Runs by itself every minute as long as it does; says nothing.
    void RetryAutosave();

Q_SIGNALS:
    /// An edit is in force, or was taken back or brought again; comes ahead of the autosave, so that what shows the
    /// game shows it though that should fail.
    void Edited();
    /// The steps, or whether the game is saved, may have changed.
    void Changed();

private:
    void BeginHistory();
    void FollowStep();
    void SetAutosaveDue(bool bDue);
    std::optional<GameFile::Refusal> WriteAutosave();
    void KeepOnDisk();

    QString m_sGameName;
    /// The disk doesn't hold the game as it stands, though it should.
    bool m_bAutosaveDue = false;
    QTimer m_retry{this};
    History m_history;
    /// None where no state of the history is the saved one.
    std::optional<quint64> m_savedState = m_history.State();
    ScratchForm m_scratch{QSize(1, 1)};
    std::function<DeviceContext&()> m_device;
    GameHost* m_before;
};
