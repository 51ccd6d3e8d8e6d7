// SPDX-License-Identifier: MIT
#include "services/basErrLog.h"

#include "platform/files/Files.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QMimeData>
#include <QRect>
#include <QRegularExpression>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace basErrLog;

namespace {

const char* const kModule = "basTest!";

void Innermost(int number) try {
    if (number > 0) ErrRaise(1234, QStringLiteral("The photo is upside down"));
} catch (...) {
    ErrTail(kModule, "Innermost", number);
}

void Middle(const QString& sName, bool bAgain) try { Innermost(bAgain ? 2 : 1); } catch (...) {
    ErrTail(kModule, "Middle", sName, bAgain);
}

void Outer() try { Middle(QStringLiteral("Oma"), true); } catch (...) {
    ErrTail(kModule, "Outer");
}

void EventHandler() try { Outer(); } catch (...) {
    ErrTop("frmTest!", "cmdTest_Click");
}

void EndingRoutine() try { EndProgram(3); } catch (...) {
    ErrTail(kModule, "EndingRoutine");
}

void EndingHandler() try { EndingRoutine(); } catch (...) {
    ErrTop("frmTest!", "cmdEnd_Click");
}

void FailInTheLibrary() try { std::vector<int>(3).at(7); } catch (...) {
    ErrTail(kModule, "Library");
}

} // namespace

class ErrLogTest : public TavloraTest {
protected:
    ErrLogTest() { ResetForTest(); }
    ~ErrLogTest() override { ResetForTest(); }
    QString LogPath() const { return PathOf(QStringLiteral("tavlora.log")); }
    QString Log() const { return QString::fromUtf8(ReadFile(LogPath())); }
};

TEST_F(ErrLogTest, Edge_ALogOf60001BytesIsDeletedAtStartAndOneOf60000IsKept) {
    WriteFile(QStringLiteral("tavlora.log"), QByteArray(60000, 'x'));
    EXPECT_EQ(ErrInit(60000), 0);
    EXPECT_TRUE(Files::Exists(LogPath()));
    WriteFile(QStringLiteral("tavlora.log"), QByteArray(60001, 'x'));
    EXPECT_EQ(ErrInit(60000), 0);
    EXPECT_FALSE(Files::Exists(LogPath()));
}

TEST_F(ErrLogTest, Edge_AFailureThreeRoutinesDeepShowsTheTextAndLogsTheWholeStack) {
    ErrInit(60000);
    QString description;
    try {
        Outer();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), 1234U);
        description = error.Description();
    }
    EXPECT_EQ(description,
              QStringLiteral("basTest!Outer\r\nbasTest!Middle(\"Oma\", True)\r\nbasTest!Innermost(2)\r\n\r\n"
                             "The photo is upside down"));
    ErrReport(1234, description, 48);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(
        desktop.boxes[0].sText,
        QStringLiteral("The following error has occurred in your application: \r\n\r\nThe photo is upside down\r\n\r\n"
                       "You may be able to continue using the program anyway, even though you are apparently unable to "
                       "use this particular feature at this time. For additional information, look at the end of the "
                       "log file named '") +
            LogPath() +
            QStringLiteral("'. \r\n\r\nClick 'OK' below if you would like to keep going or 'Cancel' if not. "));
    EXPECT_TRUE(Log().contains(desktop.boxes[0].sText)) << "and in the log";
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
    for (const char* line : {"--->basTest!Innermost(2)", "--->basTest!Middle(\"Oma\", True)", "--->basTest!Outer",
                             "***The photo is upside down***", "See the call stack below", "Continuing"}) {
        EXPECT_TRUE(Log().contains(QString::fromLatin1(line))) << line;
    }
}

TEST_F(ErrLogTest, Edge_ARoutineWithoutArgumentsStandsWithoutBrackets) {
    ErrInit(60000);
    EXPECT_EQ(ErrAddToStack(QStringLiteral("basTest!"), QStringLiteral("Plain"), QString(), QStringLiteral("why")),
              QStringLiteral("basTest!Plain\r\n\r\nwhy"));
}

TEST_F(ErrLogTest, AFailureBeginsInTheLogWithDateTextAndStack) {
    ErrInit(60000);
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    ErrAddToStack(QStringLiteral("basTest!"), QStringLiteral("Plain"), QString(), QStringLiteral("why"));
    const QRegularExpression entry(QStringLiteral(
        "\r\nThe following error occurred at (\\d\\d/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d)\r\n\\*\\*\\*why\\*\\*\\*\r\n"
        "See the call stack below\r\n--->basTest!Plain\r\n$"));
    const QRegularExpressionMatch match = entry.match(Log());
    ASSERT_TRUE(match.hasMatch()) << qPrintable(Log());
    const QDateTime told = QDateTime::fromString(match.captured(1), QStringLiteral("MM/dd/yy hh:mm:ss")).addYears(100);
    EXPECT_GE(told, before) << "month, day, year";
    EXPECT_LE(told, QDateTime::currentDateTime());
}

TEST_F(ErrLogTest, AnEntryThatCantBeWrittenIsLostWithoutAWord) {
    ErrInit(60000);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::OpenAppend) return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    ErrLogToFile(QStringLiteral("lost"), true);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_FALSE(Files::Exists(LogPath()));
}

#ifdef Q_OS_UNIX
// Whoever opened it would wait for a reader for ever.
TEST_F(ErrLogTest, LogThatIsAPipeLosesItsEntriesAtOnceAndNothingIsSaid) {
    ASSERT_EQ(mkfifo(qPrintable(LogPath()), 0600), 0);
    ErrInit(60000);
    ErrLogToFile(QStringLiteral("lost"), true);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}
#endif

TEST_F(ErrLogTest, CancelEndsTheProgramAndTouchesNoAutosave) {
    ErrInit(60000);
    const QString autosave = WriteFile(QStringLiteral("~AutoSave.dat"), "unsaved work");
    desktop.answers = {vbCancel};
    EXPECT_THROW(EventHandler(), ProgramEnded);
    EXPECT_TRUE(Log().contains(QStringLiteral("Program Terminated by ErrReport")));
    EXPECT_EQ(ReadFile(autosave), QByteArray("unsaved work"));
}

TEST_F(ErrLogTest, AnEventHandlerReportsAndTheNextFailureStartsAfresh) {
    ErrInit(60000);
    EventHandler();
    EventHandler();
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].sText, desktop.boxes[1].sText);
    EXPECT_EQ(Log().count(QStringLiteral("See the call stack below")), 2);
}

TEST_F(ErrLogTest, TheEndOfTheProgramIsNoFailure) {
    ErrInit(60000);
    EXPECT_THROW(EndingHandler(), ProgramEnded);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_FALSE(Log().contains(QStringLiteral("--->")));
}

TEST_F(ErrLogTest, ASwallowedFailureStandsBehindTheNextOne) {
    ErrInit(60000);
    ErrAddToStack(QStringLiteral("a!"), QStringLiteral("A"), QString(), QStringLiteral("first"));
    EXPECT_EQ(ErrAddToStack(QStringLiteral("b!"), QStringLiteral("B"), QString(), QStringLiteral("second")),
              QStringLiteral("b!B\r\nsecond"));
}

TEST_F(ErrLogTest, CriticalReportsEndTheProgram) {
    ErrInit(60000);
    EXPECT_THROW(ErrReport(1, QStringLiteral("x"), 16), ProgramEnded);
    EXPECT_EQ(
        desktop.boxes[0].sText,
        QStringLiteral("The following critical error has occurred in your application: \r\n\r\nx\r\n\r\nFor additional "
                       "information, look at the end of the log file named '") +
            LogPath() + QStringLiteral("'. \r\n\r\nThis problem is critical and the program cannot continue. "));
    EXPECT_EQ(desktop.boxes[0].iStyle, 16);
    EXPECT_THROW(ErrReport(1, QStringLiteral("x"), 7), ProgramEnded);
    EXPECT_EQ(desktop.boxes[1].sText, QStringLiteral("ErrReport was called with an unexpected value for iCritical. The "
                                                     "program is being terminated."));
    EXPECT_EQ(desktop.boxes[1].iStyle, 16);
}

TEST_F(ErrLogTest, AReportForInformationSaysThatAllGoesOn) {
    ErrInit(60000);
    ErrReport(1, QStringLiteral("x"), 64);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("The following error has occurred in your application: \r\n\r\nx\r\n\r\nYou can continue "
                             "using the program anyway, even though you are apparently unable to use this particular "
                             "feature at this time. For additional information, look at the end of the log file named "
                             "'") +
                  LogPath() + QStringLiteral("'. \r\n\r\n"));
    EXPECT_EQ(desktop.boxes[0].iStyle, 64);
}

TEST_F(ErrLogTest, TheLogBeginsWithAHeadOnce) {
    ErrInit(60000);
    ErrLogToFile(QStringLiteral("one"), false);
    ErrLogToFile(QStringLiteral("two"), true);
    EXPECT_TRUE(Log().startsWith(QStringLiteral("\r\n\r\n\r\n**********")));
    EXPECT_EQ(Log().count(QStringLiteral("Log File Started - Verstion 8.0.0\r\n")), 1);
    EXPECT_TRUE(Log().contains(QStringLiteral("\r\none\r\n**********")));
    EXPECT_TRUE(Log().endsWith(QStringLiteral("**********\r\ntwo\r\n")));
}

TEST_F(ErrLogTest, WithoutAStartTheLogSaysSo) {
    ErrLogToFile(QStringLiteral("x"), false);
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Log File was not Initialized.")});
}

TEST_F(ErrLogTest, ADeletionThatFailsGivesItsNegativeNumber) {
    WriteFile(QStringLiteral("tavlora.log"), QByteArray(60001, 'x'));
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove) return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    EXPECT_LT(ErrInit(60000), 0);
    EXPECT_EQ(ErrInit(-60000, QString(), false), 0) << "nobody asked for the deletion";
}

TEST_F(ErrLogTest, AnyValueHasAText) {
    ErrInit(60000);
    QObject object;
    QMimeData data;
    TavloraError error(9, QStringLiteral("bad luck"));
    EXPECT_EQ(ErrAny2String(QVariant()), QStringLiteral("EMPTY"));
    EXPECT_EQ(ErrAny2String(QVariant::fromValue(nullptr)), QStringLiteral("NULL"));
    EXPECT_EQ(ErrAny2String(12), QStringLiteral("12"));
    EXPECT_EQ(ErrAny2String(-1.5), QStringLiteral("-1.5"));
    EXPECT_EQ(ErrAny2String(std::nan("")), QStringLiteral("NULL"));
    EXPECT_EQ(ErrAny2String(true), QStringLiteral("True"));
    EXPECT_EQ(ErrAny2String(QStringLiteral("text")), QStringLiteral("text"));
    EXPECT_EQ(ErrAny2String(QDate(2026, 3, 9)), QStringLiteral("03/09/2026"));
    EXPECT_EQ(ErrAny2String(QTime(15, 4, 5)), QStringLiteral("03:04:05 pm"));
    EXPECT_EQ(ErrAny2String(QDateTime(QDate(2026, 3, 9), QTime(15, 4, 5))), QStringLiteral("03/09/2026 03:04:05 pm"));
    EXPECT_EQ(ErrAny2String(QDateTime(QDate(2026, 3, 9), QTime(0, 0))), QStringLiteral("03/09/2026")) << "midnight";
    EXPECT_EQ(ErrAny2String(QDate()), QStringLiteral("NOT_DATE"));
    EXPECT_EQ(ErrAny2String(QVariant::fromValue(&object)), QStringLiteral("OBJECT"));
    EXPECT_EQ(ErrAny2String(QVariant::fromValue(&data)), QStringLiteral("DATA_OBJECT"));
    EXPECT_EQ(ErrAny2String(QVariant::fromValue(&error)), QStringLiteral("bad luck"));
    EXPECT_EQ(ErrAny2String(QVariantList{1, 2}), QStringLiteral("ARRAY"));
    EXPECT_THROW(ErrAny2String(QRect(0, 0, 1, 1)), ProgramEnded) << "an unknown kind is critical";
}

TEST_F(ErrLogTest, AssertAndUnexpectedValueRaiseTheirNumbers) {
    ErrInit(60000);
    ErrAssert(true, QStringLiteral("fine"));
    try {
        ErrAssert(false, QStringLiteral("no font"));
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), 0x80040003U);
        EXPECT_EQ(error.Description(), QStringLiteral("Assertion Failure: no font"));
    }
    try {
        ErrUnexVal(QStringLiteral("sSpace"), QStringLiteral("x"));
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), 0x80040004U);
        EXPECT_EQ(
            error.Description(),
            QStringLiteral("Internal variable not within expected range: 'sSpace' held the following value: 'x'"));
    }
    EXPECT_TRUE(Log().contains(QStringLiteral("Assertion Failure: no font")));
}

TEST_F(ErrLogTest, FailuresOfTheLibraryTakeTheSameRoad) {
    ErrInit(60000);
    try {
        FailInTheLibrary();
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kSubscript);
        EXPECT_TRUE(error.Description().startsWith(QStringLiteral("basTest!Library\r\n\r\nSubscript out of range")));
    }
}
