// SPDX-License-Identifier: MIT
#include "app/GamesFolder.h"

#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "windowing/ProgramLock.h"

namespace GamesFolder {
namespace {

const QString kBlankLine = QStringLiteral("\r\n\r\n");

QString OnAnotherComputer(const ProgramLock& lock) {
    return QStringLiteral("Tavlora seems to be open on another computer, '%1'. Two that work in one folder write over "
                          "each other's changes.")
               .arg(lock.HoldersComputer()) +
           kBlankLine +
           QStringLiteral("The file '%1' says so. It also stays behind when that computer is switched off too early.")
               .arg(lock.FilePath());
}

QString DoesNotAnswer(const ProgramLock& lock) {
    return QStringLiteral("Tavlora is already running, but it does not answer. Please close it first.") + kBlankLine +
           QStringLiteral("The file '%1' says that it runs here as process %2. Two that work in one folder write over "
                          "each other's changes.")
               .arg(lock.FilePath())
               .arg(lock.Holder());
}

bool WantsToStartAnyway(const QString& sWhy) {
    return MsgBox(sWhy + kBlankLine + QStringLiteral("Start anyway?"), vbYesNo | vbExclamation | vbDefaultButton2) ==
           vbYes;
}

} // namespace

bool IsThere() try {
    basCommon::GetMyGamesDirectory();
    return true;
} catch (const TavloraError& error) {
    MsgBox(QStringLiteral("Tavlora can't start: there is no place for your games.") + kBlankLine +
               basErrLog::ErrDismiss(error.Description()) + kBlankLine +
               QStringLiteral("Please make room for that folder, then start Tavlora again."),
           vbCritical);
    return false;
}

Taking Take(ProgramLock& lock, const QString& sGame, int milliseconds) {
    switch (lock.TakeOrCall(sGame, milliseconds)) {
        case ProgramLock::Start::Taken:
            return Taking::GoesOn;
        case ProgramLock::Start::HandedOver:
            return Taking::HandedOver;
        case ProgramLock::Start::OtherComputer:
            if (!WantsToStartAnyway(OnAnotherComputer(lock))) return Taking::Refused;
            break;
        case ProgramLock::Start::NoAnswer:
            if (!WantsToStartAnyway(DoesNotAnswer(lock))) return Taking::Refused;
            break;
    }
    lock.TakeAnyway();
    return Taking::GoesOn;
}

} // namespace GamesFolder
