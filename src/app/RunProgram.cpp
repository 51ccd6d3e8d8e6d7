// SPDX-License-Identifier: MIT
#include "app/RunProgram.h"

#include "app/EditorWindows.h"
#include "app/frmTAVL.h"
#include "platform/Application.h"
#include "platform/DesktopWidgets.h"
#include "platform/Folders.h"
#include "platform/LoadPicture.h"
#include "platform/ProgramLock.h"
#include "platform/ProgramSettings.h"
#include "platform/SystemPrinter.h"
#include "platform/WidgetLook.h"
#include "rendering/frmBMP.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace {

void ReportUncaught() try { throw; } catch (...) {
    ErrTop("main!", "notify");
}

QString OwnFile(const char* sName) {
    return basCommon::JoinPath(Folders::ProgramDirectory(), QString::fromLatin1(sName));
}

// What the first paint shows of the program's own pictures is decoded on other processors meanwhile.
void PrefetchOwnPictures() {
    for (const char* name : {"tavlora.png", "toolbar.dat", "fate.dat"})
        PrefetchPicture(OwnFile(name));
}

} // namespace

int RunProgram(int argc, char** argv, DesktopWidgets& desktop) {
    Settings().sProgramName = ProgramNameFromArgv0(QString::fromLocal8Bit(argv[0]));
    Application application(argc, argv);
    application.SetLastNet(&ReportUncaught);
    Desktop::Install(&desktop);

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
    // Not before: a start that only hands over its game would end amid the decoding.
    PrefetchOwnPictures();

    WidgetLook::SetWindowIcon(OwnFile("tavlora.png"));
    SystemPrinter printer(basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Printed")));
    Printer::Install(&printer);
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
