// SPDX-License-Identifier: MIT
#include "services/basErrLog.h"

#include "platform/files/Files.h"
#include "platform/text/NewLine.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"

#include <QDateTime>
#include <QMimeData>
#include <QObject>

#include <new>

namespace basErrLog {
namespace {

// Nothing sets m_bQuiet or m_iLogLevel in this program; they are the module's switches all the same.
struct State {
    QString m_sLogPath;
    bool m_bQuiet = false;
    bool m_bFirstEntry = false;
    QString m_sErrStack;
    int m_iLogLevel = 0;
};

State& Module() {
    static State state;
    return state;
}

const QString kStars = QStringLiteral("**********");

QString TimeStampLine() {
    const QString now = QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("M/d/yyyy h:mm:ss AP"));
    return kStars + now + kStars + kNewLine;
}

QString Version() {
    return QStringLiteral("%1.%2.%3")
        .arg(TAVLORA_VERSION_MAJOR)
        .arg(TAVLORA_VERSION_MINOR)
        .arg(TAVLORA_VERSION_REVISION);
}

QString HeadOfRun() {
    return kNewLine + kNewLine + kNewLine + TimeStampLine() + QStringLiteral("Log File Started - Verstion ") +
           Version() + kNewLine;
}

[[noreturn]] void Terminate() {
    ErrLogToFile(QStringLiteral("Program Terminated by ErrReport"), true);
    Module().m_sErrStack.clear();
    EndProgram(1);
}

void GoOn() { ErrLogToFile(QStringLiteral("Continuing"), true); }

int Show(const QString& sText, int iStyle) { return Module().m_bQuiet ? vbOK : MsgBox(sText, iStyle); }

QString LookIntoTheLog() {
    return QStringLiteral("For additional information, look at the end of the log file named '") + Module().m_sLogPath +
           QStringLiteral("'. ") + kNewLine + kNewLine;
}

// The end of the sentence that says whether the user may go on.
const QString kWithoutThisFeature =
    QStringLiteral("even though you are apparently unable to use this particular feature at this time. ");

// The sentence that a failure began with, without the routines it has passed since.
QString BehindStack(const QString& sDescription) {
    const qsizetype end = sDescription.indexOf(kNewLine + kNewLine);
    return end < 0 ? sDescription : sDescription.mid(end + 2 * kNewLine.size());
}

QString DateText(QDate day) {
    return day.isValid() ? QLocale::c().toString(day, QStringLiteral("MM/dd/yyyy")) : QStringLiteral("NOT_DATE");
}

QString DateText(const QDateTime& moment) {
    // At midnight there is no time part to be shown.
    if (!moment.isValid() || moment.time().msecsSinceStartOfDay() == 0) return DateText(moment.date());
    return QLocale::c().toString(moment, QStringLiteral("MM/dd/yyyy hh:mm:ss ap"));
}

QString DateText(QTime time) {
    return time.isValid() ? QLocale::c().toString(time, QStringLiteral("hh:mm:ss ap")) : QStringLiteral("NOT_DATE");
}

QString NumberText(double value) {
    return qIsNaN(value) ? QStringLiteral("NULL") : QString::number(value, 'g', QLocale::FloatingPointShortest);
}

// Objects, errors and what else is no plain value; empty when the kind isn't known.
QString OtherText(const QVariant& vValue) {
    if (vValue.canConvert<QMimeData*>() && vValue.value<QMimeData*>()) return QStringLiteral("DATA_OBJECT");
    if (vValue.canConvert<QObject*>()) return QStringLiteral("OBJECT");
    if (vValue.metaType() == QMetaType::fromType<TavloraError*>()) return vValue.value<TavloraError*>()->Description();
    return {};
}

} // namespace

int ErrInit(qint64 lMaxSize, const QString& sFileName, bool bDeleteIfLarge) {
    State& module = Module();
    module.m_bFirstEntry = true;
    const QString name = sFileName.isEmpty() ? Settings().sProgramName + QStringLiteral(".log") : sFileName;
    module.m_sLogPath = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), name);
    const bool large = Files::Exists(module.m_sLogPath) && Files::Size(module.m_sLogPath) > std::abs(lMaxSize);
    if (!large || !(lMaxSize > 0 || bDeleteIfLarge)) return 0;
    QString error;
    return Files::Remove(module.m_sLogPath, error) ? 0 : -int(ErrNumber::kFileAccess);
}

QString ErrLogPath() { return Module().m_sLogPath; }

void ErrLogToFile(const QString& sText, bool bTimeStamp, int iLevel) {
    State& module = Module();
    if (module.m_iLogLevel > iLevel) return;
    if (module.m_sLogPath.isEmpty()) {
        MsgBox(QStringLiteral("Log File was not Initialized."));
        return;
    }
    QString entry;
    if (module.m_bFirstEntry) entry += HeadOfRun();
    if (bTimeStamp) entry += TimeStampLine();
    entry += sText + kNewLine;
    QString error;
    if (Files::Append(module.m_sLogPath, entry.toUtf8(), error)) module.m_bFirstEntry = false;
}

QString ErrAddToStack(const QString& sModule, const QString& sRoutine, const QString& vArguments,
                      const QString& sDescription) {
    try {
        State& module = Module();
        const bool first = module.m_sErrStack.isEmpty();
        if (first) {
            const QString now =
                QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("MM/dd/yy hh:mm:ss"));
            ErrLogToFile(QStringLiteral("The following error occurred at ") + now + kNewLine + QStringLiteral("***") +
                             sDescription + QStringLiteral("***") + kNewLine +
                             QStringLiteral("See the call stack below"),
                         false);
        }
        const QString arguments = ErrAny2String(vArguments);
        const QString sCall = sModule + sRoutine + (arguments.isEmpty() ? QString() : u'(' + arguments + u')');
        ErrLogToFile(QStringLiteral("--->") + sCall, false);
        module.m_sErrStack = sCall + kNewLine + (first ? kNewLine : QString()) + sDescription;
        return module.m_sErrStack;
    } catch (const ProgramEnded&) {
        throw;
    } catch (const std::exception& error) {
        const QStringList arguments{ErrArgument(sModule), ErrArgument(sRoutine), ErrArgument(vArguments),
                                    ErrArgument(sDescription)};
        const QString text = ErrAddToStack(QStringLiteral("basErrLog!"), QStringLiteral("ErrAddToStack"),
                                           arguments.join(QStringLiteral(", ")), QString::fromUtf8(error.what()));
        ErrRaise(ErrNumber::kInvalidCall, text);
    }
}

void ErrReport(quint32 /*lNumber*/, const QString& sDescription, int iCritical) {
    const QString sShort = BehindStack(sDescription);
    const QString head = QStringLiteral(" error has occurred in your application: ") + kNewLine + kNewLine + sShort +
                         kNewLine + kNewLine;
    const auto tell = [](const QString& sText, int iStyle) {
        ErrLogToFile(sText, true);
        return Show(sText, iStyle);
    };
    switch (iCritical) {
        case vbCritical:
            tell(QStringLiteral("The following critical") + head + LookIntoTheLog() +
                     QStringLiteral("This problem is critical and the program cannot continue. "),
                 vbCritical);
            Terminate();
        case vbExclamation: {
            const int answer =
                tell(QStringLiteral("The following") + head +
                         QStringLiteral("You may be able to continue using the program anyway, ") +
                         kWithoutThisFeature + LookIntoTheLog() +
                         QStringLiteral("Click 'OK' below if you would like to keep going or 'Cancel' if not. "),
                     vbOKCancel | vbExclamation);
            if (answer != vbOK) Terminate();
            GoOn();
            break;
        }
        case vbInformation:
            tell(QStringLiteral("The following") + head +
                     QStringLiteral("You can continue using the program anyway, ") + kWithoutThisFeature +
                     LookIntoTheLog(),
                 vbInformation);
            GoOn();
            break;
        default:
            tell(QStringLiteral("ErrReport was called with an unexpected value for iCritical. ") +
                     QStringLiteral("The program is being terminated."),
                 vbCritical);
            Terminate();
    }
    Module().m_sErrStack.clear();
}

QString ErrDismiss(const QString& sDescription) {
    Module().m_sErrStack.clear();
    return BehindStack(sDescription);
}

QString ErrAny2String(const QVariant& vValue) try {
    if (!vValue.isValid()) return QStringLiteral("EMPTY");
    switch (vValue.typeId()) {
        case QMetaType::Nullptr:
            return QStringLiteral("NULL");
        case QMetaType::QString:
            return vValue.toString();
        case QMetaType::Bool:
            return vValue.toBool() ? QStringLiteral("True") : QStringLiteral("False");
        case QMetaType::Float:
        case QMetaType::Double:
            return NumberText(vValue.toDouble());
        case QMetaType::Char:
        case QMetaType::UChar:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::LongLong:
            return QString::number(vValue.toLongLong());
        case QMetaType::ULong:
        case QMetaType::ULongLong:
            return QString::number(vValue.toULongLong());
        case QMetaType::QDateTime:
            return DateText(vValue.toDateTime());
        case QMetaType::QDate:
            return DateText(vValue.toDate());
        case QMetaType::QTime:
            return DateText(vValue.toTime());
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
        case QMetaType::QByteArray:
            return QStringLiteral("ARRAY");
        default:
            break;
    }
    const QString text = OtherText(vValue);
    if (text.isNull()) {
        ErrReport(ErrNumber::kIllegalValue, QStringLiteral("Unexpected Case in basErrLog!ErrAny2String"), vbCritical);
    }
    return text;
} catch (...) {
    ErrTail("basErrLog!", "ErrAny2String", vValue);
}

void ErrAssert(bool bCondition, const QString& sMessage) {
    if (bCondition) return;
    const QString message = QStringLiteral("Assertion Failure: ") + sMessage;
    ErrLogToFile(message, true);
    ErrRaise(ErrNumber::kAssertion, message);
}

void ErrUnexVal(const QString& sVariableName, const QVariant& vValue) {
    const QString sMessage = QStringLiteral("Internal variable not within expected range") + QStringLiteral(": '") +
                             sVariableName + QStringLiteral("' held the following value: '") + ErrAny2String(vValue) +
                             u'\'';
    ErrLogToFile(sMessage, true);
    ErrRaise(ErrNumber::kOutOfRange, sMessage);
}

void ResetForTest() { Module() = State{}; }

TavloraError AddCurrentToStack(const QString& sModule, const QString& sRoutine, const QString& sArguments) {
    quint32 number = ErrNumber::kInvalidCall;
    QString description;
    try {
        throw;
    } catch (const ProgramEnded&) {
        throw;
    } catch (const TavloraError& error) {
        number = error.Number();
        description = error.Description();
    } catch (const std::bad_alloc&) {
        number = ErrNumber::kOutOfMemory;
        description = QStringLiteral("Out of memory");
    } catch (const std::out_of_range& error) {
        number = ErrNumber::kSubscript;
        description = QStringLiteral("Subscript out of range (%1)").arg(QString::fromUtf8(error.what()));
    } catch (const std::exception& error) {
        description = QString::fromUtf8(error.what());
    } catch (...) {
        description = QStringLiteral("Unknown error");
    }
    return TavloraError(number, ErrAddToStack(sModule, sRoutine, sArguments, description));
}

} // namespace basErrLog
