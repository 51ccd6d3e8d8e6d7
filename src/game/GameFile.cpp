// SPDX-License-Identifier: MIT
#include "game/GameFile.h"

#include "document/GameHost.h"
#include "document/GameText.h"
#include "game/Autosave.h"
#include "game/Rescue.h"
#include "platform/files/Files.h"
#include "platform/files/TextFile.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

#include <array>

namespace GameFile {
namespace {

// The lines that are written one by one; a failure at each has words of its own.
constexpr std::array<const char*, 3> kHeadLines = {"trying to print the header line", "trying to print the title line",
                                                   "trying to print the 'News' line"};

// Takes one line with its end off the front of the bytes.
QByteArray TakeLine(QByteArray& bytes) {
    const qsizetype end = bytes.indexOf("\r\n") + 2;
    const QByteArray line = bytes.left(end);
    bytes.remove(0, end);
    return line;
}

struct Failure {
    QString sError;
    QString sDuring;
};

// Open and head lines, each of them tested. What is left in the bytes is yet to be written.
std::optional<Failure> WriteHead(Files::WholeFile& file, const QString& sFileName, QByteArray& bytes) {
    QString error;
    if (!Rescue::KeepUnread(sFileName, error) || !file.Open(error))
        return Failure{error, QStringLiteral("opening the file")};
    for (const char* during : kHeadLines) {
        if (!file.Write(TakeLine(bytes), error)) return Failure{error, QString::fromLatin1(during)};
    }
    return std::nullopt;
}

// Whether the file was put in place. No message: the routine has never told about a failure this late.
bool WriteRecords(Files::WholeFile& file, const QByteArray& bytes, const QString& sFileName) {
    QString error;
    if (file.Write(bytes, error) && file.Commit(error)) return true;
    basErrLog::ErrLogToFile(QStringLiteral("The game file could not be completed: ") + sFileName + u' ' + error, true);
    return false;
}

} // namespace

void GameSave(const QString& sFileName, bool& bResult) try {
    bResult = false;
    GameHost& host = GameHost::Current();
    const bool underItsName = sFileName == host.GameName();
    const QByteArray content = TextFile::Encode(TextFile::JoinLines(ComposeLines(TheGame(), host.GameName())));
    QByteArray rest = content;
    Files::WholeFile file(sFileName);
    if (const std::optional<Failure> failure = WriteHead(file, sFileName, rest)) {
        if (underItsName) Autosave::NoteSave(false, sFileName, content);
        int result = 0;
        ReportIOError(failure->sError, QStringLiteral("save"), sFileName, failure->sDuring, result);
        return;
    }
    const bool inPlace = WriteRecords(file, rest, sFileName);
    bResult = true;
    if (!underItsName) return;
    Autosave::NoteSave(inPlace, sFileName, content);
    basCommon::WriteIniString(QStringLiteral("GameName"), sFileName);
    host.SetSomethingChanged(false);
} catch (...) {
    ErrTail("frmTAVL!", "GameSave", sFileName);
}

void ReportIOError(const QString& sError, const QString& sAction, const QString& sFileName, const QString& sDuring,
                   int& iResult) {
    const QString blankLine = QStringLiteral("\r\n\r\n");
    MsgBox(QStringLiteral("The following error occurred while trying to ") + sAction + QStringLiteral(" the game ") +
               QStringLiteral("to the file named '") + sFileName + QStringLiteral("'.") + blankLine + sError +
               blankLine + QStringLiteral("The problem occurred while ") + sDuring + QStringLiteral(". ") +
               QStringLiteral("The file was NOT successfully processed. "),
           vbCritical);
    iResult = -1;
}

} // namespace GameFile
