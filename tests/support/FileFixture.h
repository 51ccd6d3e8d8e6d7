// SPDX-License-Identifier: MIT
#pragma once

#include "game/Autosave.h"
#include "game/GameFile.h"
#include "game/Session.h"
#include "services/basCommon.h"
#include "support/BoardFixture.h"

#include <QFile>

/// A session with the board set up, as at the start of the program, and everything that a load looks for.
class GameFileTest : public BoardTest {
protected:
    GameFileTest() {
        Autosave::ResetForTest();
        basCommon::ResetForTest();
        basCommon::InitIniPath();
        basErrLog::ErrInit(60000);
        for (const char* name : {"BLNK100", "BLNK500", "BLNK1000", "BLNK5000", "fate"})
            WriteFile(QStringLiteral("program/") + QString::fromLatin1(name) + QStringLiteral(".dat"), "picture");
        basPosit::PosInit();
    }
    ~GameFileTest() override {
        Autosave::ResetForTest();
        basCommon::ResetForTest();
    }

    /// The 69 lines of a plain game, without their ends.
    static QStringList PlainLines() {
        QStringList lines{QStringLiteral("\"TavloraGameBoard\", 8.0.0, Plain.gam"),
                          QStringLiteral("\"Our\", \"Sub\", \"Day\""), QStringLiteral("\"Good News\", \"Bad News\"")};
        for (int i = 0; i < 28; ++i)
            lines += QStringLiteral("%1, \"Space\\n%1\", \"\",0,0,0, \"Arial\",R,12").arg(i);
        for (int i = 0; i < 4; ++i)
            lines += QStringLiteral("%1, \"Corner %1\", \"Two\", \"\",0,0,0, \"Arial\",B,24").arg(i);
        for (int i = 0; i < 24; ++i)
            lines += QStringLiteral("%1, \"Card %2\", \"Arial\",R,12,\"Arial\",B,14").arg(i % 12).arg(i);
        for (int i = 0; i < 4; ++i)
            lines += QStringLiteral("%1, \"Bank\", \"Note %1\",\"\",0,0,0").arg(i);
        for (int i = 0; i < 6; ++i)
            lines += QStringLiteral("%1, \"Token %1\", \"\",0,0,0, \"Arial\",I,48").arg(i);
        return lines;
    }
    QString WriteGame(const QStringList& lines, const QString& name = QStringLiteral("Plain.gam")) const {
        return WriteFile(QStringLiteral("games/") + name,
                         lines.isEmpty() ? QByteArray() : lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n");
    }
    /// The result; the name is as GameLoad leaves it.
    static int Load(QString& name) {
        int result = 99;
        GameFile::GameLoad(name, result);
        return result;
    }
    static int Load(QString&& name) { return Load(name); }
    static bool Save(const QString& name) {
        bool result = false;
        GameFile::GameSave(name, result);
        return result;
    }
    static QString IOError(const char* action, const QString& file, const QString& error, const char* during) {
        return QStringLiteral("The following error occurred while trying to ") + QString::fromLatin1(action) +
               QStringLiteral(" the game to the file named '") + file + QStringLiteral("'.\r\n\r\n") + error +
               QStringLiteral("\r\n\r\nThe problem occurred while ") + QString::fromLatin1(during) +
               QStringLiteral(". The file was NOT successfully processed. ");
    }
    QString InGames(const QString& name) const { return PathOf(QStringLiteral("games/") + name); }
    QStringList GamesFolder() const {
        return QDir(PathOf(QStringLiteral("games")))
            .entryList({QStringLiteral("*.gam"), QStringLiteral("~*")}, QDir::Files);
    }
    const QString autosave = InGames(QStringLiteral("~AutoSave.dat"));
    const QString backup = InGames(QStringLiteral("~AutoSave.bak"));
    Session session;
};
