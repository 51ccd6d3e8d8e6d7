// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "services/TavloraError.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <type_traits>

/// The road of every failure. A routine that fails adds a line about itself to a growing call-stack text
/// and passes the failure on; the event handler on top reports it, and the user decides whether to go on.
/// All of it is in the log file.
namespace basErrLog {

/// Starts the log in the My Games directory, named after the program unless a name is given. A log larger
/// than the absolute value of lMaxSize (bytes) is deleted when lMaxSize is positive or bDeleteIfLarge is
/// set. Gives 0, or the negative error number of a deletion that failed.
int ErrInit(qint64 lMaxSize, const QString& sFileName = QString(), bool bDeleteIfLarge = true);

/// Full path of the log; empty before ErrInit.
QString ErrLogPath();

/// Appends an entry; one that can't be written is lost silently. Entries below the log level are passed over.
void ErrLogToFile(const QString& sText, bool bTimeStamp, int iLevel = 0);

/// Adds a routine to the call stack of the failure under way and returns the new text, outermost first.
QString ErrAddToStack(const QString& sModule, const QString& sRoutine, const QString& vArguments,
                      const QString& sDescription);

/// Reports a failure and ends it. iCritical: 16 ends the program, 48 asks whether to go on, 64 goes on.
void ErrReport(quint32 lNumber, const QString& sDescription, int iCritical);

/// Ends a failure whose catcher tells it in words of its own: the next one starts a new call stack. Gives
/// the sentence that the failure began with.
QString ErrDismiss(const QString& sDescription);

/// The text of any value, for logs and messages.
QString ErrAny2String(const QVariant& vValue);

/// Raises 0x80040003 when the condition is false.
void ErrAssert(bool bCondition, const QString& sMessage);

/// Logs and raises 0x80040004: a variable holds what it never may.
[[noreturn]] void ErrUnexVal(const QString& sVariableName, const QVariant& vValue);

/// For tests: forgets the log and any failure under way.
void ResetForTest();

/// What a routine shows of one of its arguments.
template <typename T>
QString ErrArgument(const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        return value ? QStringLiteral("True") : QStringLiteral("False");
    } else if constexpr (std::is_enum_v<T>) {
        return QString::number(qint64(value));
    } else if constexpr (std::is_arithmetic_v<T>) {
        return QString::number(value);
    } else if constexpr (std::is_same_v<T, Color>) {
        return QString::number(value.Value());
    } else if constexpr (std::is_convertible_v<T, QString>) {
        return u'"' + QString(value) + u'"';
    } else if constexpr (std::is_same_v<T, QStringList>) {
        return QStringLiteral("ARRAY");
    } else {
        return QStringLiteral("OBJECT");
    }
}

/// Used by ErrTail and ErrTop; they turn what is being thrown into a number and the grown text. What ends
/// the program is thrown on untouched.
TavloraError AddCurrentToStack(const QString& sModule, const QString& sRoutine, const QString& sArguments);

} // namespace basErrLog

/// Last line of each routine that can fail, in its catch-all: adds the routine to the stack text and passes
/// the failure on. sModule is the module's name with "!".
template <typename... Arguments>
[[noreturn]] void ErrTail(const char* sModule, const char* sRoutine, const Arguments&... arguments) {
    const QStringList texts{basErrLog::ErrArgument(arguments)...};
    throw basErrLog::AddCurrentToStack(QString::fromLatin1(sModule), QString::fromLatin1(sRoutine),
                                       texts.join(QStringLiteral(", ")));
}

/// Last line of each event handler of a window: reports the failure and returns.
template <typename... Arguments>
void ErrTop(const char* sModule, const char* sRoutine, const Arguments&... arguments) {
    const QStringList texts{basErrLog::ErrArgument(arguments)...};
    const TavloraError error = basErrLog::AddCurrentToStack(QString::fromLatin1(sModule), QString::fromLatin1(sRoutine),
                                                            texts.join(QStringLiteral(", ")));
    constexpr int kAskWhetherToGoOn = 48;
    basErrLog::ErrReport(error.Number(), error.Description(), kAskWhetherToGoOn);
}
