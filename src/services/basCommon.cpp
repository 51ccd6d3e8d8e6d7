// SPDX-License-Identifier: MIT
#include "services/basCommon.h"

#include "platform/files/ProfileFile.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"

#include <QSet>

#include <algorithm>

namespace basCommon {
namespace {

QString& IniPath() {
    static QString path;
    return path;
}

int HexDigit(QChar c) {
    if (c >= u'0' && c <= u'9') return c.unicode() - u'0';
    if (c >= u'A' && c <= u'F') return c.unicode() - u'A' + 10;
    return -1;
}

bool IsColorString(const QString& sText) {
    const QString text = sText.toUpper();
    return std::all_of(text.begin(), text.end(), [](QChar c) { return HexDigit(c) >= 0; });
}

// Keys of settings that can't be read, each of them told.
QSet<QString>& ToldKeys() {
    static QSet<QString> keys;
    return keys;
}

} // namespace

void InitIniPath() try {
    const ProgramSettings& settings = Settings();
    const QString folder = settings.sIniDirectory.isEmpty() ? GetMyGamesDirectory() : settings.sIniDirectory;
    IniPath() = JoinPath(folder, settings.sProgramName + QStringLiteral(".ini"));
} catch (...) {
    ErrTail("basCommon!", "InitIniPath");
}

QString GetIniPath() try {
    basErrLog::ErrAssert(!IniPath().isEmpty(), QStringLiteral("Program did not call InitIniPath"));
    return IniPath();
} catch (...) {
    ErrTail("basCommon!", "GetIniPath");
}

QString GetIniString(const QString& sKey) try {
    return ProfileFile::Read(GetIniPath(), Settings().sProgramName, sKey);
} catch (...) {
    ErrTail("basCommon!", "GetIniString", sKey);
}

QString GetIniStringWithDefault(const QString& sKey, const QString& sDefault) try {
    const QString value = GetIniString(sKey);
    if (!value.isEmpty()) return value;
    WriteIniString(sKey, sDefault);
    return sDefault;
} catch (...) {
    ErrTail("basCommon!", "GetIniStringWithDefault", sKey, sDefault);
}

Color GetIniColor(const QString& sKey, const QString& sDefault) try {
    const QString value = GetIniStringWithDefault(sKey, sDefault);
    if (IsColorString(value)) return GetColorFromString(QString(value));
    TellUnreadableSetting(sKey, value);
    return GetColorFromString(QString(sDefault));
} catch (...) {
    ErrTail("basCommon!", "GetIniColor", sKey, sDefault);
}

void TellUnreadableSetting(const QString& sKey, const QString& sValue) {
    constexpr int kMostShown = 40;
    if (ToldKeys().contains(sKey)) return;
    ToldKeys().insert(sKey);
    const QString shown = sValue.size() > kMostShown ? LeftStr(sValue, kMostShown) + QStringLiteral("...") : sValue;
    const QString text = QStringLiteral("Tavlora can't read the setting '%1', which is '%2', and uses the usual value "
                                        "instead. The setting stays as it is in the file '%3' until you change it.")
                             .arg(sKey, shown, GetIniPath());
    basErrLog::ErrLogToFile(text, true);
    basMsgQueue::MsgQueue_Post(text, vbExclamation);
}

bool WriteIniString(const QString& sKey, const QString& sValue) try {
    const QString path = GetIniPath();
    return !Settings().bIniReadOnly && ProfileFile::Write(path, Settings().sProgramName, sKey, sValue);
} catch (...) {
    ErrTail("basCommon!", "WriteIniString", sKey, sValue);
}

Color GetColorFromString(QString& sColor) try {
    quint32 value = 0;
    sColor = sColor.toUpper();
    while (!sColor.isEmpty()) {
        const int digit = HexDigit(sColor.front());
        if (digit < 0) ErrRaise(ErrNumber::kIllegalValue, QStringLiteral("Illegal value for Color"));
        value = value * 16 + quint32(digit);
        sColor.remove(0, 1);
    }
    return Color::FromValue(qint32(value)).Reversed();
} catch (...) {
    ErrTail("basCommon!", "GetColorFromString", sColor);
}

Color GetColorFromString(QString&& sColor) { return GetColorFromString(sColor); }

QString InsertLineBreaks(const QString& sText) {
    QString text = sText;
    qsizetype at = text.indexOf(u'\\');
    while (at >= 0) {
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        if (next == u'\\') text.replace(at, 2, QStringLiteral("\\"));
        if (next == u'n') text.replace(at, 2, QStringLiteral("\r\n"));
        if (next == u'q') text.replace(at, 2, QStringLiteral("\""));
        at = text.indexOf(u'\\', at + 1);
    }
    return text;
}

void ResetForTest() {
    IniPath().clear();
    ToldKeys().clear();
}

} // namespace basCommon
