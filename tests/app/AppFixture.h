// SPDX-License-Identifier: MIT
#pragma once

#include "app/EditorRoutes.h"
#include "app/frmTAVL.h"
#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "game/Autosave.h"
#include "pieces/frmBMP.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/ProgramSettings.h"
#include "support/ModalSteps.h"
#include "support/TestFixture.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// Doors that remember which were opened, and say whether the game has changed.
class RecordingRoutes : public EditorRoutes {
public:
    bool EditSpace(frmTAVL&, int iSpace) override { return Note(QStringLiteral("space %1").arg(iSpace)); }
    bool EditCorner(frmTAVL&, int iCorner) override { return Note(QStringLiteral("corner %1").arg(iCorner)); }
    bool EditCenter(frmTAVL&) override { return Note(QStringLiteral("titles")); }
    bool ShowNews(frmTAVL&, int iGoodOrBad) override { return Note(QStringLiteral("news %1").arg(iGoodOrBad)); }
    bool EditMoney(frmTAVL&) override { return Note(QStringLiteral("money")); }
    bool ShowTokens(frmTAVL&) override { return Note(QStringLiteral("tokens")); }
    bool Print(frmTAVL&) override { return Note(QStringLiteral("print")); }
    bool PrintEverything(frmTAVL&) override { return Note(QStringLiteral("print everything")); }
    void CheckPrinter(frmTAVL&) override { Note(QStringLiteral("check printer")); }
    void Setup(frmTAVL&) override { Note(QStringLiteral("setup")); }

    /// All doors opened since the last call.
    QStringList Take() { return std::exchange(m_opened, {}); }
    /// What the editors do and answer.
    std::function<bool()> onEdit;

private:
    bool Note(const QString& what) {
        m_opened.append(what);
        return onEdit && onEdit();
    }

    QStringList m_opened;
};

/// A fresh home for the program, and starts of the program in it.
class AppTest : public TavloraTest {
protected:
    AppTest() {
        QDir(folder.path()).mkdir(QStringLiteral("games"));
        Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
        frmBMP::InstallAsThumbnailMaker();
        ForgetTheRun();
    }
    ~AppTest() override {
        window.reset();
        ForgetTheRun();
        Screen::PretendBitsPerPixel(0);
    }

    /// As if the program had ended.
    void ForgetTheRun() {
        window.reset();
        basDraw::Draw_Abandon();
        basTAVL::ResetForTest();
        basPosit::ResetForTest();
        basCommon::ResetForTest();
        basErrLog::ResetForTest();
        Autosave::ResetForTest();
    }
    /// Starts the program under a name, past its splash, with a game to open if one is given, and shows its window.
    frmTAVL& Start(const QString& name = QStringLiteral("tavlora"), const QString& showSplash = QStringLiteral("false"),
                   const QString& game = QString()) {
        ForgetTheRun();
        Settings().sProgramName = name;
        if (!showSplash.isEmpty()) SetIni(QStringLiteral("ShowSplash"), showSplash);
        window = std::make_unique<frmTAVL>(*doors);
        window->CalledByAnotherStart(game);
        window->Form_Load();
        window->show();
        window->EndStart();
        return *window;
    }
    void SetIni(const QString& key, const QString& value) const {
        basCommon::InitIniPath();
        basCommon::WriteIniString(key, value);
    }
    static QString Ini(const char* key) { return basCommon::GetIniString(QString::fromLatin1(key)); }
    QString InGames(const QString& name) const { return PathOf(QStringLiteral("games/") + name); }
    bool HasFile(const QString& name) const { return QFileInfo::exists(InGames(name)); }
    bool HasAutosave() const { return HasFile(QStringLiteral("~AutoSave.dat")); }
    bool HasBackup() const { return HasFile(QStringLiteral("~AutoSave.bak")); }
    QString Log() const {
        return QString::fromUtf8(ReadFile(InGames(Settings().sProgramName + QStringLiteral(".log"))));
    }

    /// Writes a game whose space 4 carries the text; a good game without pictures otherwise.
    void WriteGame(const QString& name, const QString& text, const QString& nameInHeader = QString()) const {
        static const QRegularExpression picture(QStringLiteral("\"town/[^\"]+\", 320, 320, 0"));
        QByteArray bytes = QString::fromLatin1(ReadFile(QStringLiteral(TAVLORA_DATA_DIR "/Town_US.gam")))
                               .replace(picture, QStringLiteral("\"\", 0, 0, 0"))
                               .toLatin1();
        const qsizetype header = bytes.indexOf("\r\n");
        bytes.replace(0, header, "\"TavloraGameBoard\", 8.0.0, " + nameInHeader.toUtf8());
        bytes.replace("Feed\\nStore", text.toUtf8());
        WriteFile(QStringLiteral("games/") + name, bytes);
    }
    static QString TextOfSpace4() { return basTAVL::g_oSpaces(4).TextAll(); }

    /// An edit that an editor hands back.
    void Edit(const QString& text) const {
        Session& session = window->Commands().InHand();
        C_Space space = session.InHand().spaces[4];
        space.SetText(text);
        session.Do(Edits::OfSpace(session.InHand(), 4, space));
    }

    template <typename Widget>
    Widget& Find(const char* name) const {
        auto* const found = window->findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(std::string("no such control: ") + name);
        return *found;
    }
    void ClickButton(int index) const {
        QTest::mouseClick(&Find<QPushButton>(qPrintable(QStringLiteral("cmd_%1").arg(index))), Qt::LeftButton);
    }
    void ChooseMenu(const char* name) const { Find<QAction>(name).trigger(); }
    /// A click on a place of the board, given as fractions of what is visible.
    void ClickBoard(double fX, double fY) const {
        PictureBox& board = window->View().Board();
        QTest::mouseClick(&board, Qt::LeftButton, {}, PointOnBoard(fX, fY));
    }
    void MoveOnBoard(double fX, double fY) const { QTest::mouseMove(&window->View().Board(), PointOnBoard(fX, fY)); }
    QPoint PointOnBoard(double fX, double fY) const {
        const PictureBox& board = window->View().Board();
        return QPoint(int(board.width() * fX), int(board.height() * fY));
    }

    /// Does this to the next modal window, found by its object name, once it stands.
    void WithModal(const char* name, const ModalSteps::Step& act) { m_steps.OnceIn(name, act); }
    static void ClickIn(QWidget& modal, const char* button) {
        auto* const found = modal.findChild<QPushButton*>(QString::fromLatin1(button));
        ASSERT_TRUE(found) << button;
        EXPECT_TRUE(found->isVisible()) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }

    RecordingRoutes routes;
    /// What the next start's window opens.
    EditorRoutes* doors = &routes;
    std::unique_ptr<frmTAVL> window;

private:
    ModalSteps m_steps;
};
