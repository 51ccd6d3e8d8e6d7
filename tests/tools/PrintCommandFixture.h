// SPDX-License-Identifier: MIT
// Runs the printing program's command in a folder of its own, with a plain game, and keeps what it said.
#pragma once

#include "support/FileFixture.h"
#include "tools/PrintCommand.h"

#include <QDir>
#include <QMap>
#include <QProcess>

#include <sstream>

class PrintCommandTest : public GameFileTest {
protected:
    PrintCommandTest() {
        QDir(folder.path()).mkdir(QStringLiteral("out"));
        WriteFile(QStringLiteral("program/GamePlay.dat"), "<Head>\r\ntimes,20,C,B:<TAVLORA> of <START>\r\n"
                                                          "<Col1>\r\narial,10,L,R:<GOOD NEWS> and <BAD NEWS>\r\n");
        Settings().sIniDirectory = PathOf(QStringLiteral("games"));
        Settings().sRelativePictureBase = PathOf(QStringLiteral("games"));
        game = WriteGame(PlainLines());
    }
    int Run(const QStringList& words, bool bShowProgress = false) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int status = PrintCommand(outStream, errStream, bShowProgress).Run(words);
        out = QString::fromStdString(outStream.str());
        errors = QString::fromStdString(errStream.str()).split(u'\n', Qt::SkipEmptyParts);
        return status;
    }
    int PrintRules(const QString& gameFile) {
        return Run({gameFile, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), pdf});
    }
    // The sample game with all the data that the program is installed with.
    int PrintKit(const QStringList& options = {}) {
        return Run(QStringList{kFamily, QStringLiteral("-o"), pdf, QStringLiteral("--data"), kData} + options);
    }
    QStringList OutFolder() const { return QDir(PathOf(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden); }
    // All files of a folder with their content, to see that nothing has changed.
    QMap<QString, QByteArray> Content(const QString& name) const {
        QMap<QString, QByteArray> content;
        const QDir dir(PathOf(name));
        for (const QString& file : dir.entryList(QDir::Files | QDir::Hidden))
            content[file] = ReadFile(dir.filePath(file));
        return content;
    }
    static QString TextOf(const QString& pdfFile) {
        QProcess process;
        process.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdfFile, QStringLiteral("-")});
        return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
    }
    const QString kLabelsLeftOut = QStringLiteral(
        "tavlora-print: The label sheets of this kit are not part of this build. Kit \"8\" has all of its sheets; its "
        "labels are printed on white label paper. Left out: ");
    const QString kData = QStringLiteral(TAVLORA_DATA_DIR);
    const QString kFamily = kData + QStringLiteral("/Family_US.gam");
    QString game;
    const QString pdf = PathOf(QStringLiteral("out/sheet.pdf"));
    QString out;
    QStringList errors;
};
