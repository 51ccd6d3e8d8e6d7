// SPDX-License-Identifier: MIT
#pragma once

#include "windows/print/frmTavlPrint.h"

#include "board/basPositFit.h"
#include "game/Session.h"
#include "kit/ConsoleSheets.h"
#include "kit/GameKit.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "support/BoardFixture.h"
#include "support/ModalSteps.h"
#include "support/TestPrinter.h"
#include "windowing/Screen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

#include <memory>

/// As long as it lives nothing can be written under the name of a made picture, as a folder bears it.
class Blocked {
public:
    explicit Blocked(const char* sName) : m_path(MadePicture::PathOf(QString::fromLatin1(sName))) {
        QFile::remove(m_path);
        QDir().mkpath(m_path);
    }
    ~Blocked() { QDir().rmdir(m_path); }
    Blocked(const Blocked&) = delete;
    Blocked& operator=(const Blocked&) = delete;

private:
    QString m_path;
};

/// The console with a printer that remembers, a game called "Ours" and plenty of room on the disk.
class ConsoleTest : public BoardTest {
protected:
    ConsoleTest() {
        frmBMP::InstallAsThumbnailMaker();
        Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
        basCommon::InitIniPath();
        basErrLog::ErrInit(60000);
        GameKit::SetUp(QStringLiteral("tavlora"));
        basPosit::PosInit();
        basPosit::SetSpecialText(1, QStringLiteral("Our Own Town"));
        session.SetGameName(PathOf(QStringLiteral("games/Ours.gam")));
        Folders::PretendFreeBytes(1e12);
        Open();
    }
    ~ConsoleTest() override {
        console.reset();
        Folders::PretendFreeBytes(-1);
        Screen::SetMousePointer(Screen::MousePointer::Default);
        basCommon::ResetForTest();
    }

    /// A console of a kit, on the screen.
    frmTavlPrint& Open(const char* variant = "8") {
        basTAVL::Let_g_sGameVersion(QString::fromLatin1(variant));
        console = std::make_unique<frmTavlPrint>();
        console->TellInPrint = [this](bool now) { pages.append(now); };
        console->show();
        return *console;
    }
    /// Opens the frame that a sheet's button stands in, clicks it, and answers the question about the paper.
    void Print(int index, const char* answer = "cmd_2") {
        ModalSteps person;
        person.In("frmPrntPrep", [answer](QWidget& window) { Click(window, answer); });
        ClickSheet(index);
    }
    void ClickSheet(int index) {
        Click(*console, qPrintable(QStringLiteral("cmdNav_%1").arg(int(*ConsoleSheets::SheetOf(index).frame))));
        Press(index);
    }
    void Press(int index) { Click(*console, qPrintable(QStringLiteral("cmdPrint_%1").arg(index))); }

    QWidget& Control(const char* name) { return Find<QWidget>(*console, name); }
    QAbstractButton& Button(const char* name) {
        return *console->findChild<QAbstractButton*>(QString::fromLatin1(name));
    }
    QString Text(const char* name) { return Find<QLabel>(*console, name).text(); }
    bool Shows(const char* name) { return Control(name).isVisible(); }
    static bool Hourglass() { return Screen::CurrentMousePointer() == Screen::MousePointer::HourGlass; }

    static constexpr const char* kNoChange =
        "Sorry, but you can't change printers once you have started the printing process.\r\n"
        "Please stop and restart the program before changing printers.";

    Session session;
    TestPrinter printer;
    std::unique_ptr<frmTavlPrint> console;
    /// What the console told about a page being under way.
    QList<bool> pages;
};
