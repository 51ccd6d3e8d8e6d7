// SPDX-License-Identifier: MIT
#include "game/Session.h"

#include "game/Autosave.h"
#include "game/GameFile.h"
#include "game/RecoveredName.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

Session::Session() : m_device([this]() -> DeviceContext& { return m_scratch.hDC(); }), m_before(Install(this)) {
    constexpr int kMillisecondsBetweenTries = 60'000;
    m_retry.setInterval(kMillisecondsBetweenTries);
    connect(&m_retry, &QTimer::timeout, this, &Session::RetryAutosave);
}
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
    const QString file = sFileName;
    int result = -1;
    try {
        GameFile::GameLoad(sFileName, result);
    } catch (...) {
        BeginHistory();
        throw;
    }
    // Where nothing could be read, the game is still the one that the steps lead through.
    if (result == 0 || before != InHand()) BeginHistory();
    // Whatever a file calls itself, only the program's own two say what game they are; these are never a game's name.
    sFileName = Autosave::IsOneOf(file) ? RecoveredName::For(sFileName) : file;
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

void Session::SetAutosaveDue(bool bDue) {
    m_bAutosaveDue = bDue;
    if (bDue) {
        m_retry.start();
    } else {
        m_retry.stop();
    }
}

// Where the disk won't let the earlier state be moved or deleted, the newest is written all the same: it is what would
// be missed. The failure goes on, and says where the work lies.
std::optional<GameFile::Refusal> Session::WriteAutosave() {
    SetAutosaveDue(true);
    const QByteArray content = GameFile::Content();
    auto rotated = Autosave::Rotated::DataBecameBackup;
    std::optional<TavloraError> unmoved;
    try {
        rotated = Autosave::Rotate();
    } catch (const TavloraError& error) {
        unmoved = error;
    }
    const auto refusal = GameFile::Write(Autosave::DataPath(), content);
    if (!refusal) {
        Autosave::EndRotation(rotated, content);
        SetAutosaveDue(false);
    }
    if (!unmoved) return refusal;
    const QString where = Autosave::WhereItLies(content);
    ErrRaise(unmoved->Number(),
             unmoved->Description() + (where.isEmpty() ? where : QStringLiteral("\r\n\r\n") + where));
}

void Session::KeepOnDisk() {
    const std::optional<GameFile::Refusal> refusal = WriteAutosave();
    if (!refusal) return;
    const QString where = Autosave::WhereItLies(GameFile::Content());
    if (refusal->sDuring.isEmpty()) {
        MsgBox(
            QStringLiteral("Your last change could not be kept on the disk: %1\r\n\r\n%2").arg(refusal->sError, where),
            vbExclamation);
    } else {
        int result = 0;
        GameFile::ReportIOError(refusal->sError, QStringLiteral("save"), Autosave::DataPath(), refusal->sDuring, result,
                                where);
    }
}

void Session::SetSomethingChanged(bool bChanged) try {
    if (bChanged) {
        // Ahead of what may raise: the end of the program must ask about the change all the same.
        if (!IsUnsaved()) m_savedState.reset();
        SetAutosaveDue(true);
        Q_EMIT Changed();
        KeepOnDisk();
    } else {
        Autosave::Forget();
        const bool saved = !Autosave::IsStillToBeKept(m_sGameName);
        SetAutosaveDue(!saved);
        m_savedState.reset();
        if (saved) m_savedState = m_history.State();
        Q_EMIT Changed();
    }
} catch (...) {
    ErrTail("frmTAVL!", "SetSomethingChanged", bChanged);
}

void Session::GiveUp() {
    SetAutosaveDue(false);
    Autosave::GiveUp();
}

void Session::RetryAutosave() try {
    if (m_bAutosaveDue) WriteAutosave();
} catch (const TavloraError& error) {
    // It was told when it failed first.
    basErrLog::ErrDismiss(error.Description());
}
