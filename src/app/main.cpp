// SPDX-License-Identifier: MIT
#include "app/EditorWindows.h"
#include "app/frmTAVL.h"
#include "app/services/basErrLog.h"
#include "app/services/basPath.h"
#include "images/frmBMP.h"
#include "platform/Application.h"
#include "platform/DesktopWidgets.h"
#include "platform/Folders.h"
#include "platform/ProgramLock.h"
#include "platform/ProgramSettings.h"

#include <QIcon>

namespace {

void ReportUncaught() try { throw; } catch (...) {
    ErrTop("main!", "notify");
}

} // namespace

int main(int argc, char** argv) {
    Settings().sProgramName = ProgramNameFromArgv0(QString::fromLocal8Bit(argv[0]));
    Application application(argc, argv);
    application.SetLastNet(&ReportUncaught);
    DesktopWidgets desktop;
    Desktop::Install(&desktop);
    Application::setWindowIcon(QIcon(basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("tavlora.png"))));

    const QStringList arguments = Application::arguments();
    const QString game = arguments.size() > 1 ? Folders::CompletePath(arguments.at(1)) : QString();
    ProgramLock lock(basCommon::GetMyGamesDirectory());
    if (!lock.Take()) {
        if (lock.CallHolder(game)) return 0;
        MsgBox(QStringLiteral("Tavlora is already running, but it does not answer. Please close it first."),
               vbExclamation);
        return 1;
    }
    desktop.SetAtEnd(std::bind(&ProgramLock::Release, &lock));

    frmBMP::InstallAsThumbnailMaker();
    frmTAVL window;
    EditorWindows editors(window);
    EditorRoutes::Install(&editors);
    QObject::connect(&lock, &ProgramLock::Called, &window, &frmTAVL::CalledByAnotherStart);
    window.Form_Load();
    window.show();
    if (!game.isEmpty()) window.CalledByAnotherStart(game);
    return Application::exec();
}
