// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

/// A home folder, and starts of the program in it.
class StartProcessTest : public TavloraTest {
protected:
    StartProcessTest() {
        QDir(folder.path()).mkdir(QStringLiteral("session"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QDir(folder.path()).mkpath(QStringLiteral("home"));
    }

    QString InHome(const QString& sName) const { return PathOf(QStringLiteral("home/") + sName); }
    QString InGames(const QString& sName) const { return InHome(QStringLiteral("Documents/My Games/") + sName); }
    /// The folder of games, with settings that bring the short splash.
    void MakeGames() const {
        QDir(folder.path()).mkpath(QStringLiteral("home/Documents/My Games"));
        QFile ini(InGames(QStringLiteral("tavlora.ini")));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write("[tavlora]\r\nShowSplash=False\r\n");
    }
    QString MakeGame(const QString& sName) const {
        const QString path = InGames(sName);
        QFile::copy(QStringLiteral(TAVLORA_DATA_DIR "/Town_US.gam"), path);
        return path;
    }
    void Begin(QProcess& start, const QStringList& words, const QString& sHome) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), sHome);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), InHome(QStringLiteral(".config")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), PathOf(QStringLiteral("session")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (auto each = extra.begin(); each != extra.end(); ++each)
            environment.insert(each.key(), each.value());
        start.setProcessEnvironment(environment);
        start.start(QStringLiteral(TAVLORA_BIN_DIR "/answered_start"), words);
    }
    struct Seen {
        int status = -1;
        QStringList lines;
        QStringList Boxes() const { return lines.filter(QStringLiteral("box: ")); }
    };
    static Seen End(QProcess& start) {
        EXPECT_TRUE(start.waitForFinished(30000));
        EXPECT_EQ(start.exitStatus(), QProcess::NormalExit);
        return {start.exitCode(), QString::fromUtf8(start.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)};
    }
    Seen Run(const QStringList& words, const QString& sHome = QString()) const {
        QProcess start;
        Begin(start, words, sHome.isEmpty() ? PathOf(QStringLiteral("home")) : sHome);
        return End(start);
    }
    static bool WaitFor(QProcess& start, const QByteArray& line) {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < 20000) {
            if (start.canReadLine() && start.readLine().trimmed() == line) return true;
            if (!start.canReadLine()) start.waitForReadyRead(100);
        }
        return false;
    }
    /// Variables that the next starts get beside the usual ones.
    QMap<QString, QString> extra;
    const QStringList kPlainStart = {QStringLiteral("no"), QStringLiteral("0")};
};
