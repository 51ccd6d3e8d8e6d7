// SPDX-License-Identifier: MIT
#include "app/RunProgram.h"

#include "app/EditorWindows.h"
#include "app/frmTAVL.h"
#include "app/GamesFolder.h"
#include "app/MainLayout.h"
#include "app/StartArguments.h"
#include "board/basPositTables.h"
#include "kit/ConsoleSheets.h"
#include "pictures/PicturePlaces.h"
#include "pieces/frmBMP.h"
#include "platform/files/Folders.h"
#include "platform/files/Temporaries.h"
#include "platform/paint/Units.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/PrinterCorrections.h"
#include "services/ProgramSettings.h"
#include "windowing/Application.h"
#include "windowing/DesktopWidgets.h"
#include "windowing/ProgramLock.h"
#include "windowing/Screen.h"
#include "windowing/SystemPrinter.h"
#include "windowing/WidgetLook.h"
#include "windows/help/WindowHelp.h"

#include <iostream>

namespace {

void ReportUncaught() try { throw; } catch (...) {
    ErrTop("main!", "notify");
}

QString OwnFile(const char* sName) {
    return basCommon::JoinPath(Folders::ProgramDirectory(), QString::fromLatin1(sName));
}

// What the board will measure, near enough: a picture wanted in another size later would be decoded a second time.
double RoughBoardSide() {
    constexpr int kSmallWindow = 600;
    constexpr int kMenusAndButtons = 90;
    constexpr int kTwips = kTwipsPerPixel;
    const int wanted = MainWindowSizeWanted(Screen::Size().height() * kTwips, kTwips) / kTwips;
    return std::min(wanted > 0 ? wanted : kSmallWindow, Screen::FreeArea().height()) - kMenusAndButtons;
}

// What the first paint shows of the program's own pictures is decoded on other processors meanwhile.
void PrefetchOwnPictures() {
    for (const char* name : {"tavlora.png", "toolbar.dat"})
        PrefetchPicture(OwnFile(name));
    const double corner = double(basPosit::kFateImage) * RoughBoardSide() * Screen::PixelRatio();
    PrefetchPicture(PicturePlaces::Fate(), CLng(corner));
}

constexpr int kNotStarted = 1;
constexpr int kWrongUsage = 2;

// What can be told without a window is told where there may be no display. Words of the toolkit's own may stand among
// the others.
bool IsTold(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        QString error;
        const auto word = StartArguments::Parse({QString::fromLocal8Bit(argv[i])}, error);
        if (word && word->bHelp) std::cout << qPrintable(StartArguments::Usage());
        if (word && word->bVersion) std::cout << qPrintable(StartArguments::Version());
        if (word && (word->bHelp || word->bVersion)) return true;
    }
    return false;
}

int Start(DesktopWidgets& desktop) {
    QString error;
    const std::optional<StartArguments> arguments = StartArguments::Parse(Application::arguments().mid(1), error);
    if (!arguments) {
        std::cerr << "tavlora: " << qPrintable(error) << " (tavlora --help tells how)" << std::endl;
        return kWrongUsage;
    }
    const QString& game = arguments->sRequest;
    if (!GamesFolder::IsThere()) return kNotStarted;
    ProgramLock lock(basCommon::GetMyGamesDirectory());
    const GamesFolder::Taking taking = GamesFolder::Take(lock, game);
    if (taking != GamesFolder::Taking::GoesOn) return taking == GamesFolder::Taking::HandedOver ? 0 : kNotStarted;
    desktop.SetAtEnd([&lock] {
        lock.Release();
        Temporaries::RemoveHeld();
    });
    // Not before: a start that only hands over its game would end amid the decoding.
    PrefetchOwnPictures();

    WidgetLook::SetWindowIcon(OwnFile("tavlora.png"));
    SystemPrinter printer(ConsoleSheets::PrintedFolder());
    printer.Correct(PrinterCorrections::Of);
    Printer::Install(&printer);
    frmBMP::InstallAsThumbnailMaker();
    EditorWindows doors;
    frmTAVL window(doors);
    // Queued, so that the caller has its answer whatever questions the window asks.
    QObject::connect(&lock, &ProgramLock::Called, &window, &frmTAVL::CalledByAnotherStart, Qt::QueuedConnection);
    window.CalledByAnotherStart(game);
    window.Form_Load();
    window.show();
    window.EndStart();
    return Application::exec();
}

} // namespace

int RunProgram(int argc, char** argv, DesktopWidgets& desktop) {
    if (IsTold(argc, argv)) return 0;
    Settings().sProgramName = ProgramNameFromArgv0(QString::fromLocal8Bit(argv[0]));
    Application application(argc, argv);
    application.SetLastNet(&ReportUncaught);
    WindowHelp help;
    application.installEventFilter(&help);
    SecondPressFilter secondPress;
    application.installEventFilter(&secondPress);
    Desktop::Install(&desktop);
    try {
        return Start(desktop);
    } catch (const ProgramEnded&) {
        throw;
    } catch (const std::exception& error) {
        // Whatever it is, no program ends without a word.
        MsgBox(QStringLiteral("Tavlora can't start.\r\n\r\n") + basErrLog::ErrDismiss(QString::fromUtf8(error.what())),
               vbCritical);
        return kNotStarted;
    }
}
