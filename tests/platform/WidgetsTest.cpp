// SPDX-License-Identifier: MIT
// Picture boxes, looks with a trap in them, the forms of dialogs, and one program at a time.
#include "support/TestFixture.h"
#include "windowing/Application.h"
#include "windowing/DesktopWidgets.h"
#include "windowing/PictureBox.h"
#include "windowing/ProgramLock.h"
#include "windowing/WidgetLook.h"

#include <QApplication>
#include <QLabel>
#include <QLockFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

class PictureBoxTest : public TavloraTest {
protected:
    ~PictureBoxTest() override { PictureBox::PretendPixelRatio(0); }
};

TEST_F(PictureBoxTest, WhatIsDrawnStaysAndIsShownByAPaint) {
    PictureBox box;
    box.resize(40, 30);
    box.hDC().FillRect(10, 10, 20, 20, Color::Rgb(1, 2, 3));
    box.show();
    const QImage shown = box.grab().toImage();
    EXPECT_EQ(shown.pixelColor(15, 15), QColor(1, 2, 3));
    EXPECT_EQ(shown.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(box.hDC().GetPixel(15, 15), Color::Rgb(1, 2, 3));
}

TEST_F(PictureBoxTest, ResizingKeepsThePictureAndFillsTheRest) {
    PictureBox box;
    box.resize(40, 30);
    box.SetBackColor(Color::Rgb(200, 0, 0));
    box.hDC().FillRect(10, 10, 20, 20, Color::Rgb(1, 2, 3));
    box.resize(80, 60);
    EXPECT_EQ(box.hDC().GetPixel(15, 15), Color::Rgb(1, 2, 3));
    EXPECT_EQ(box.hDC().GetPixel(79, 59), Color::Rgb(200, 0, 0));
    box.resize(15, 12);
    EXPECT_EQ(box.Image().size(), QSize(15, 12));
}

TEST_F(PictureBoxTest, SelectedObjectsOutliveAResize) {
    PictureBox box;
    box.resize(40, 30);
    const PenHandle pen = box.hDC().CreatePen(PenStyle::Solid, 3, Color::Black());
    box.hDC().SelectPen(pen);
    box.resize(80, 60);
    EXPECT_EQ(box.hDC().CurrentPen(), pen);
}

TEST_F(PictureBoxTest, DenseScreenGetsAPictureOfItsOwnDots) {
    PictureBox::PretendPixelRatio(2);
    PictureBox box;
    box.resize(40, 30);
    box.hDC().FillRect(10, 10, 11, 11, Color::Black());
    EXPECT_EQ(box.Image().size(), QSize(80, 60));
    EXPECT_EQ(box.SizeInPixels(), QSize(40, 30));
    EXPECT_EQ(box.Image().pixelColor(21, 21), QColor(Qt::black));
    EXPECT_EQ(box.Image().pixelColor(22, 22), QColor(Qt::white));
}

TEST_F(PictureBoxTest, AnotherScreenIsToldOutsideThePaint) {
    PictureBox box;
    box.resize(40, 30);
    QSignalSpy changed(&box, &PictureBox::BackingChanged);
    PictureBox::PretendPixelRatio(2);
    box.grab();
    EXPECT_EQ(changed.count(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(box.Image().size(), QSize(80, 60));
}

TEST_F(PictureBoxTest, MouseIsToldInTwips) {
    PictureBox box;
    box.resize(100, 100);
    box.show();
    QSignalSpy down(&box, &PictureBox::MouseDown);
    QSignalSpy move(&box, &PictureBox::MouseMove);
    QTest::mousePress(&box, Qt::RightButton, Qt::ShiftModifier, QPoint(10, 20));
    ASSERT_EQ(down.count(), 1);
    EXPECT_EQ(down[0][0].toInt(), PictureBox::kRightButton);
    EXPECT_EQ(down[0][1].toInt(), 1);
    EXPECT_EQ(down[0][2].toFloat(), 150.0F);
    EXPECT_EQ(down[0][3].toFloat(), 300.0F);
    QTest::mouseMove(&box, QPoint(30, 30));
    EXPECT_GE(move.count(), 1);
}

TEST(WidgetLookTest, NothingIsTakenForMarkupOrAMnemonic) {
    QWidget widget;
    WidgetLook::SetToolTip(widget, QStringLiteral("<b>Ann</b> & Co"));
    EXPECT_EQ(widget.toolTip(), QStringLiteral("&lt;b&gt;Ann&lt;/b&gt; &amp; Co"));
    WidgetLook::SetToolTip(widget, QStringLiteral("Ann & Co"));
    EXPECT_EQ(widget.toolTip(), QStringLiteral("Ann & Co"));
    EXPECT_EQ(WidgetLook::WithoutMnemonics(QStringLiteral("A & B")), QStringLiteral("A && B"));
    EXPECT_EQ(WidgetLook::WindowTitle(QStringLiteral("x[*].gam")), QStringLiteral("x[*][*].gam[*]"));
}

TEST(DesktopWidgetsTest, FiltersTakeTheToolkitsForm) {
    EXPECT_EQ(DesktopWidgets::NameFilters(QStringLiteral("Games|*.gam|Pictures|*.bmp;*.jpg|All files|*.*")),
              (QStringList{QStringLiteral("Games (*.gam)"), QStringLiteral("Pictures (*.bmp *.jpg)"),
                           QStringLiteral("All files (*)")}));
    EXPECT_EQ(DesktopWidgets::NameFilters(QString()), QStringList{QStringLiteral("All files (*)")});
}

// Shows a box of a style, closes it with a button or the keyboard, and gives the answer.
int AnswerOf(int style, QMessageBox::StandardButton button, QString* text = nullptr) {
    QTimer::singleShot(0, [=] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        if (text) *text = box->text();
        if (button == QMessageBox::NoButton) {
            box->close();
        } else {
            box->button(button)->click();
        }
    });
    DesktopWidgets desktop;
    return desktop.MsgBox(QStringLiteral("<b>1</b>\r\n2"), style, QStringLiteral("Title"));
}

TEST(DesktopWidgetsTest, BoxesAnswerWithTheButtonThatClosedThem) {
    QString text;
    EXPECT_EQ(AnswerOf(vbOKOnly, QMessageBox::Ok, &text), vbOK);
    EXPECT_EQ(text, QStringLiteral("<b>1</b>\n2"));
    EXPECT_EQ(AnswerOf(vbYesNoCancel | vbQuestion, QMessageBox::Yes), vbYes);
    EXPECT_EQ(AnswerOf(vbYesNoCancel, QMessageBox::No), vbNo);
    EXPECT_EQ(AnswerOf(vbYesNoCancel, QMessageBox::NoButton), vbCancel) << "the close button";
    EXPECT_EQ(AnswerOf(vbOKCancel | vbExclamation, QMessageBox::Cancel), vbCancel);
    EXPECT_EQ(AnswerOf(vbYesNo, QMessageBox::No), vbNo);
}

TEST(DesktopWidgetsTest, BoxOfManyMessagesShowsTheFirstAndHasTheRestBehindAButton) {
    QStringList messages;
    for (int i = 1; i <= 40; ++i)
        messages.append(
            QStringLiteral("The file named '/home/somebody/Documents/My Games/picture %1.jpg' is invalid or "
                           "does not exist. Area will be left empty.")
                .arg(i));
    QString shown, details;
    int height = 0;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        shown = box->text();
        details = box->detailedText();
        height = box->height();
        box->close();
    });
    DesktopWidgets().MsgList(messages, vbExclamation, QStringLiteral("Title"));
    EXPECT_EQ(shown,
              messages.mid(0, 8).join(u'\n') + QStringLiteral("\n\nThere are 32 more; the details hold them all."));
    EXPECT_EQ(details, messages.join(u'\n'));
    EXPECT_LT(height, 600) << "it fits the smallest screens";

    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        shown = box->text();
        EXPECT_EQ(box->detailedText(), QString());
        box->close();
    });
    DesktopWidgets().MsgList(messages.mid(0, 12), vbExclamation, QStringLiteral("Title"));
    EXPECT_EQ(shown, messages.mid(0, 12).join(u'\n'));
}

TEST(DesktopWidgetsTest, SleepLetsWindowsLive) {
    bool ticked = false;
    QTimer::singleShot(5, [&] { ticked = true; });
    DesktopWidgets().Sleep(50);
    EXPECT_TRUE(ticked);
}

class ProgramLockTest : public TavloraTest {
protected:
    void LeaveLockOfAProcessThatIsGone() const {
        QProcess gone;
        gone.start(QStringLiteral("true"), {});
        const qint64 process = gone.processId();
        ASSERT_TRUE(gone.waitForFinished());
        WriteFile(QStringLiteral(".tavlora.lock"),
                  QByteArray::number(process) + "\ntavlora\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    }
};

TEST_F(ProgramLockTest, SecondProgramIsKeptOutUntilTheFirstGoes) {
    ProgramLock first(folder.path());
    ASSERT_TRUE(first.Take());
    EXPECT_EQ(first.Holder(), QCoreApplication::applicationPid());
    ProgramLock second(folder.path());
    EXPECT_FALSE(second.Take());
    first.Release();
    EXPECT_TRUE(second.Take());
}

TEST_F(ProgramLockTest, FileOfAProcessThatIsGoneIsIgnored) {
    ASSERT_NO_FATAL_FAILURE(LeaveLockOfAProcessThatIsGone());
    ProgramLock lock(folder.path());
    EXPECT_TRUE(lock.Take());
}

TEST_F(ProgramLockTest, FileThatCantBeDeletedKeepsNobodyOut) {
    const auto owner = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
    ASSERT_NO_FATAL_FAILURE(LeaveLockOfAProcessThatIsGone());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), owner));
    const bool refused = !QFileInfo(folder.path()).isWritable();
    const bool taken = ProgramLock(folder.path()).Take();
    ASSERT_TRUE(QFile::setPermissions(folder.path(), owner | QFileDevice::WriteOwner));
    if (!refused) GTEST_SKIP() << "this user may write everywhere";
    EXPECT_TRUE(taken);
}

TEST_F(ProgramLockTest, TwoFoldersDontDisturbEachOther) {
    const QTemporaryDir other;
    ProgramLock first(folder.path());
    ProgramLock second(other.path());
    EXPECT_TRUE(first.Take());
    EXPECT_TRUE(second.Take());
}

TEST_F(ProgramLockTest, CallHandsOverTheGameWhateverItsName) {
    ProgramLock first(folder.path());
    ASSERT_TRUE(first.Take());
    QStringList called;
    QObject::connect(&first, &ProgramLock::Called, &first, [&](const QString& game) { called.append(game); });
    const QString game = QStringLiteral("/ho me/\u00FCber\nzwei%20.gam");
    // The caller waits for an answer, so it stands on a thread of its own, as another process would.
    bool answered = false;
    std::unique_ptr<QThread> caller(QThread::create([&] {
        const ProgramLock second(folder.path());
        answered = second.CallHolder(game) && second.CallHolder(QString());
    }));
    caller->start();
    while (!caller->isFinished())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_TRUE(answered);
    EXPECT_EQ(called, (QStringList{game, QString()}));
}

TEST_F(ProgramLockTest, StartWaitsForOneThatIsAboutToEnd) {
    // It holds the folder, but listens no more.
    QLockFile ending(PathOf(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(ending.tryLock());
    std::unique_ptr<QThread> end(QThread::create([&] {
        QThread::msleep(150);
        ending.unlock();
    }));
    end->start();
    ProgramLock lock(folder.path());
    EXPECT_EQ(lock.TakeOrCall(QStringLiteral("x.gam"), 10000), ProgramLock::Start::Taken);
    end->wait();
    EXPECT_EQ(lock.Holder(), QCoreApplication::applicationPid());
}

TEST_F(ProgramLockTest, FolderHeldBySomebodyWhoNeverAnswersIsToldInTime) {
    QLockFile silent(PathOf(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(silent.tryLock());
    EXPECT_EQ(ProgramLock(folder.path()).TakeOrCall(QString(), 100), ProgramLock::Start::NoAnswer);
}

TEST_F(ProgramLockTest, NobodyAnswersWhereNobodyIs) {
    EXPECT_FALSE(ProgramLock(folder.path()).CallHolder(QStringLiteral("x"), 50));
}

} // namespace
