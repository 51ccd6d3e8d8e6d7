// SPDX-License-Identifier: MIT
#include "services/basCommon.h"

#include "services/basAPI.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/ProgramSettings.h"
#include "support/TestFixture.h"

using namespace basCommon;

class CommonTest : public TavloraTest {
protected:
    CommonTest() {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        InitIniPath();
    }
    ~CommonTest() override { basCommon::ResetForTest(); }
    QByteArray Ini() const { return ReadFile(PathOf(QStringLiteral("tavlora.ini"))); }
};

TEST_F(CommonTest, Edge_GetColorFromStringReversesRedAndBlue) {
    const Color color = GetColorFromString(QStringLiteral("00FAD085"));
    EXPECT_EQ(color.Blue(), 0x85);
    EXPECT_EQ(color.Green(), 0xD0);
    EXPECT_EQ(color.Red(), 0xFA);
    EXPECT_EQ(color.Value(), 0x85D0FA);
}

TEST_F(CommonTest, Edge_GetColorFromStringOfAGRaises) {
    QString text = QStringLiteral("00FG0000");
    try {
        GetColorFromString(text);
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), 0x80040002U);
        EXPECT_TRUE(error.Description().endsWith(QStringLiteral("Illegal value for Color")));
    }
}

TEST_F(CommonTest, Edge_AnIniKeyWithAnEmptyValueCountsAsAbsent) {
    WriteFile(QStringLiteral("tavlora.ini"), "[tavlora]\r\nShowSplash=\r\n");
    EXPECT_EQ(GetIniStringWithDefault(QStringLiteral("ShowSplash"), QStringLiteral("True")), QStringLiteral("True"));
    EXPECT_TRUE(Ini().contains("ShowSplash=True"));
}

TEST_F(CommonTest, AColorStringIsConsumed) {
    QString text = QStringLiteral("00ff0000");
    EXPECT_EQ(GetColorFromString(text), Color::Rgb(255, 0, 0));
    EXPECT_EQ(text, QString());
    EXPECT_EQ(GetColorFromString(QString()), Color::Black());
}

TEST_F(CommonTest, ColorThatCantBeReadIsToldOnceByItsKeyAndStaysInTheFile) {
    const QByteArray ini = "[tavlora]\r\nPrintRedColor=red\r\nGoodNewsColor=00FFGG00\r\n";
    WriteFile(QStringLiteral("tavlora.ini"), ini);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(GetIniColor(QStringLiteral("PrintRedColor"), QStringLiteral("00FF0000")), Color::Rgb(255, 0, 0));
        EXPECT_EQ(GetIniColor(QStringLiteral("GoodNewsColor"), QStringLiteral("00FFFFFF")), Color::White());
    }
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Tavlora can't read the setting 'PrintRedColor', which is 'red', and uses the usual value "
                             "instead. The setting stays as it is in the file '%1' until you change it.")
                  .arg(PathOf(QStringLiteral("tavlora.ini"))));
    EXPECT_TRUE(desktop.boxes[1].sText.contains(QStringLiteral("'GoodNewsColor', which is '00FFGG00'")));
    EXPECT_EQ(Ini(), ini);
}

TEST_F(CommonTest, SettingThatNobodyCouldHaveTypedIsShownCutShort) {
    TellUnreadableSetting(QStringLiteral("PrintRedColor"), QString(2000, u'x'));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(u'\'' + QString(40, u'x') + QStringLiteral("...'")));
}

TEST_F(CommonTest, IniAccessBeforeTheStartRaises) {
    basCommon::ResetForTest();
    try {
        GetIniString(QStringLiteral("A"));
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kAssertion);
        EXPECT_TRUE(error.Description().endsWith(QStringLiteral("Program did not call InitIniPath")));
    }
}

TEST_F(CommonTest, TheIniFileAndItsSectionAreNamedAfterTheProgram) {
    Settings().sProgramName = QStringLiteral("tavlora2a");
    InitIniPath();
    EXPECT_EQ(GetIniPath(), PathOf(QStringLiteral("tavlora2a.ini")));
    WriteIniString(QStringLiteral("GameVersion"), QStringLiteral("2A"));
    EXPECT_TRUE(ReadFile(GetIniPath()).contains("[tavlora2a]"));
    EXPECT_EQ(GetIniString(QStringLiteral("gameversion")), QStringLiteral("2A"));
}

TEST_F(CommonTest, ReadOnlySettingsAreNeverWritten) {
    Settings().bIniReadOnly = true;
    EXPECT_EQ(GetIniStringWithDefault(QStringLiteral("GameVersion"), QStringLiteral("8")), QStringLiteral("8"));
    EXPECT_TRUE(Ini().isEmpty());
}

TEST_F(CommonTest, AColorKeyIsWrittenWithItsDefault) {
    EXPECT_EQ(GetIniColor(QStringLiteral("PrintRedColor"), QStringLiteral("00FF0000")), Color::Rgb(255, 0, 0));
    EXPECT_TRUE(Ini().contains("PrintRedColor=00FF0000"));
}

TEST_F(CommonTest, EscapesOfRecordTextAreUndone) {
    EXPECT_EQ(InsertLineBreaks(QStringLiteral("a\\nb\\qc\\\\d\\x")), QStringLiteral("a\r\nb\"c\\d\\x"));
    EXPECT_EQ(InsertLineBreaks(QStringLiteral("\\\\n")), QStringLiteral("\\n"))
        << "scanning goes on behind the one kept";
    EXPECT_EQ(InsertLineBreaks(QStringLiteral("end\\")), QStringLiteral("end\\"));
}

TEST_F(CommonTest, MessagesWaitUntilThePaintingIsDone) {
    basMsgQueue::MsgQueue_Init();
    basMsgQueue::MsgQueue_Post(QStringLiteral("first"), vbInformation);
    basMsgQueue::MsgQueue_Post(QStringLiteral("second"), vbInformation);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    basMsgQueue::MsgQueue_Display();
    EXPECT_EQ(desktop.Texts(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
    EXPECT_FALSE(basMsgQueue::MsgQueue_IsOpen());
    basMsgQueue::MsgQueue_Post(QStringLiteral("at once"), vbInformation);
    EXPECT_EQ(desktop.boxes.size(), 3);
}

TEST_F(CommonTest, MoreThanThreeMessagesComeAsOneBox) {
    basMsgQueue::MsgQueue_Init();
    for (int i = 1; i <= 4; ++i)
        basMsgQueue::MsgQueue_Post(QStringLiteral("m%1").arg(i), vbExclamation);
    basMsgQueue::MsgQueue_Display();
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("m1\r\nm2\r\nm3\r\nm4")});
}

TEST_F(CommonTest, WhatAMessageAnnouncesIsDoneWhenItWasAnswered) {
    for (const int others : {0, 1, 5}) {
        QStringList order;
        desktop.onBox = [&order] { order.append(QStringLiteral("box")); };
        const bool queued = others > 0;
        if (queued) basMsgQueue::MsgQueue_Init();
        basMsgQueue::MsgQueue_Post(QStringLiteral("told"), vbQuestion,
                                   [&order] { order.append(QStringLiteral("done")); });
        for (int i = 1; i < others; ++i)
            basMsgQueue::MsgQueue_Post(QStringLiteral("m%1").arg(i), vbExclamation);
        EXPECT_EQ(order.isEmpty(), queued) << others;
        basMsgQueue::MsgQueue_Display();
        EXPECT_EQ(order, (QStringList{QStringLiteral("box"), QStringLiteral("done")})) << others;
    }
}

TEST_F(CommonTest, ThePlatformTellsAboutItself) {
    int major = 0, minor = 0, build = 0, platform = 0;
    EXPECT_TRUE(basAPI::GetOsVersion(major, minor, build, platform));
    EXPECT_GT(major, 0);
    EXPECT_GT(basAPI::FreeSpaceOnDisk(folder.path()), 0.0);
    EXPECT_GT(basAPI::FreeSpaceOnDisk(QStringLiteral("C:\\")), 0.0);
}
