// SPDX-License-Identifier: MIT
#include "game/GameFile.h"

#include "document/GameHost.h"
#include "document/GameText.h"
#include "game/Autosave.h"
#include "game/EarlierVersions.h"
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

} // namespace

QByteArray Content() {
    return TextFile::Encode(TextFile::JoinLines(ComposeLines(TheGame(), GameHost::Current().GameName())));
}

std::optional<Refusal> Write(const QString& sFileName, const QByteArray& content) {
    QString error;
    Files::WholeFile file(sFileName);
    if (!Rescue::KeepUnread(sFileName, error) || !file.Open(error))
        return Refusal{error, QStringLiteral("opening the file")};
    QByteArray rest = content;
    for (const char* during : kHeadLines) {
        if (!file.Write(TakeLine(rest), error)) return Refusal{error, QString::fromLatin1(during)};
    }
    if (!file.Write(rest, error) || !file.Commit(error)) return Refusal{error, QString()};
    return std::nullopt;
}

void GameSave(const QString& sFileName, bool& bResult) try {
    bResult = false;
    GameHost& host = GameHost::Current();
    const bool underItsName = sFileName == host.GameName();
    const QByteArray content = Content();
    const EarlierVersions::Replaced replaced(underItsName ? sFileName : QString());
    const std::optional<Refusal> refusal = Write(sFileName, content);
    if (underItsName) Autosave::NoteSave(sFileName, content, refusal);
    if (refusal && !refusal->sDuring.isEmpty()) {
        replaced.KeepIfGone();
        int result = 0;
        ReportIOError(refusal->sError, QStringLiteral("save"), sFileName, refusal->sDuring, result,
                      underItsName ? Autosave::WhereItLies(content) : QString());
        return;
    }
    bResult = true;
    if (!underItsName) return;
    const auto keepReplaced = [&] { refusal ? replaced.KeepIfGone() : replaced.Keep(content); };
    try {
        basCommon::WriteIniString(QStringLiteral("GameName"), sFileName);
        host.SetSomethingChanged(false);
    } catch (...) {
        // An autosave that can't be removed changes nothing of what was saved.
        keepReplaced();
        throw;
    }
    // Last, so that nothing of it stands in the way of the save.
    keepReplaced();
} catch (...) {
    ErrTail("frmTAVL!", "GameSave", sFileName);
}

void ReportIOError(const QString& sError, const QString& sAction, const QString& sFileName, const QString& sDuring,
                   int& iResult, const QString& sBesides) {
    const QString blankLine = QStringLiteral("\r\n\r\n");
    MsgBox(QStringLiteral("The following error occurred while trying to ") + sAction + QStringLiteral(" the game ") +
               QStringLiteral("to the file named '") + sFileName + QStringLiteral("'.") + blankLine + sError +
               blankLine + QStringLiteral("The problem occurred while ") + sDuring + QStringLiteral(". ") +
               QStringLiteral("The file was NOT successfully processed. ") +
               (sBesides.isEmpty() ? QString() : blankLine + sBesides),
           vbCritical);
    iResult = -1;
}

} // namespace GameFile
