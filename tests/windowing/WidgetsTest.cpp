// SPDX-License-Identifier: MIT
// Picture boxes, looks with a trap in them, and the forms of dialogs.
#include "support/TestFixture.h"
#include "windowing/Application.h"
#include "windowing/DesktopWidgets.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
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

TEST(DesktopWidgetsTest, BoxWithALongNameIsNoWiderThanAScreen) {
    DesktopWidgets desktop;
    int width = 0;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        width = box->width();
        box->button(QMessageBox::Ok)->click();
    });
    const QString name(225, u'W');
    desktop.MsgBox(QStringLiteral("Could not save \"%1.gam\".").arg(name), vbOKOnly, QStringLiteral("Title"));
    EXPECT_GT(width, 100);
    EXPECT_LT(width, 700) << "the screen is 800 wide";
}

struct ShownBox {
    QString sText;
    QString sDetails;
    int iHeight = 0;
};

// The box that is raised, once it has been closed.
ShownBox Raised(const std::function<void()>& raise) {
    ShownBox shown;
    QTimer::singleShot(0, [&shown] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        shown = {box->text(), box->detailedText(), box->height()};
        box->close();
    });
    raise();
    return shown;
}

TEST(DesktopWidgetsTest, BoxOfManyMessagesShowsTheFirstAndHasTheRestBehindAButton) {
    QStringList messages;
    for (int i = 1; i <= 40; ++i)
        messages.append(
            QStringLiteral("The file named '/home/somebody/Documents/My Games/picture %1.jpg' is invalid or "
                           "does not exist. Area will be left empty.")
                .arg(i));
    const ShownBox box = Raised([&] { DesktopWidgets().MsgList(messages, vbExclamation, QStringLiteral("Title")); });
    EXPECT_EQ(box.sText,
              messages.mid(0, 8).join(u'\n') + QStringLiteral("\n\nThere are 32 more; the details hold them all."));
    EXPECT_EQ(box.sDetails, messages.join(u'\n'));
    EXPECT_LT(box.iHeight, 600) << "it fits the smallest screens";

    const QStringList few = messages.mid(0, 12);
    const ShownBox whole = Raised([&] { DesktopWidgets().MsgList(few, vbExclamation, QStringLiteral("Title")); });
    EXPECT_EQ(whole.sText, few.join(u'\n'));
    EXPECT_EQ(whole.sDetails, QString());
}

TEST(DesktopWidgetsTest, BoxWithANameWithoutEndShowsItsBeginningAndWhatIsWrong) {
    QString name;
    while (name.size() < 10'000)
        name += QStringLiteral("holiday ");
    const QString message = QStringLiteral("The file named '%1' is invalid.").arg(name);
    const ShownBox box = Raised([&] { DesktopWidgets().MsgBox(message, vbExclamation, QStringLiteral("Title")); });
    EXPECT_TRUE(box.sText.startsWith(QStringLiteral("The file named 'holiday "))) << box.sText.toStdString();
    EXPECT_TRUE(box.sText.endsWith(QStringLiteral("holiday ' is invalid.\n\nThe details hold all of it.")))
        << box.sText.toStdString();
    EXPECT_EQ(box.sDetails, message);
    EXPECT_GT(box.iHeight, 100);
    EXPECT_LT(box.iHeight, 600) << "it fits the smallest screens";
}

TEST(DesktopWidgetsTest, BelowSeveralMessagesStandsAWayOutWhereItHelps) {
    bool helps = false;
    int taken = 0;
    DesktopWidgets::OfferBelowLists({.sCaption = QStringLiteral("&Find Them..."),
                                     .applies = [&helps] { return helps; },
                                     .take = [&taken] { ++taken; }});
    const auto ask = [](bool take) {
        bool offered = false;
        QTimer::singleShot(0, [&offered, take] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            for (QAbstractButton* const button : box->buttons()) {
                if (button->text() != QStringLiteral("&Find Them...")) continue;
                offered = true;
                if (take) button->click();
            }
            box->close();
        });
        DesktopWidgets().MsgList({QStringLiteral("One."), QStringLiteral("Two.")}, vbExclamation, QString());
        return offered;
    };
    EXPECT_FALSE(ask(true));
    helps = true;
    EXPECT_TRUE(ask(false));
    EXPECT_EQ(taken, 0);
    EXPECT_TRUE(ask(true));
    EXPECT_EQ(taken, 1);
    DesktopWidgets::OfferBelowLists({});
}

/// Save dialogs of the toolkit, answered by typing.
class SaveDialogTest : public TavloraTest {
protected:
    SaveDialogTest() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_typing.callOnTimeout([this] { Type(); });
    }
    /// Saves under the names typed one after another, as long as the dialog stands; an empty text where it is left.
    QString SaveAs(const QStringList& names) {
        CommonDialog dialog;
        dialog.sFilter = QStringLiteral("Tavlora games|*.gam|All files|*.*");
        dialog.sDefaultExt = QStringLiteral("gam");
        dialog.sInitDir = folder.path();
        m_names = names;
        m_typing.start(0);
        const bool saved = DesktopWidgets().ShowSave(dialog);
        m_typing.stop();
        return saved ? QFileInfo(dialog.sFileName).fileName() : QString();
    }

private:
    void Type() {
        auto* const window = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!window) return; // not yet up; the next round of events finds it
        if (m_names.isEmpty()) return window->reject();
        window->findChild<QLineEdit*>()->setText(m_names.takeFirst());
        QMetaObject::invokeMethod(window, "accept");
    }

    QTimer m_typing;
    QStringList m_names;
};

TEST_F(SaveDialogTest, ExtensionIsPutBehindEveryNameThatDoesNotEndInIt) {
    const struct {
        const char* typed;
        const char* saved;
    } names[] = {{"Family", "Family.gam"},   {"Dr. Who", "Dr. Who.gam"}, {"St. Ives", "St. Ives.gam"},
                 {"Mum.gam", "Mum.gam"},     {"DAD.GAM", "DAD.GAM"},     {"1.2", "1.2.gam"},
                 {"My.game", "My.game.gam"}, {"End.", "End..gam"}};
    for (const auto& name : names)
        EXPECT_EQ(SaveAs({QString::fromLatin1(name.typed)}), QString::fromLatin1(name.saved));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SaveDialogTest, QuestionWhetherToReplaceIsAboutTheFileThatIsWritten) {
    WriteFile(QStringLiteral("Dr. Who.gam"), "older");
    WriteFile(QStringLiteral("St. Ives"), "no game");
    EXPECT_EQ(SaveAs({QStringLiteral("St. Ives")}), QStringLiteral("St. Ives.gam"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    desktop.answers = {vbNo, vbYes};
    EXPECT_EQ(SaveAs({QStringLiteral("Dr. Who"), QStringLiteral("Dr. Who")}), QStringLiteral("Dr. Who.gam"));
    ASSERT_EQ(desktop.boxes.size(), 2) << "after a No another name can be typed";
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("'Dr. Who.gam' is already there. Replace it?"));
    desktop.answers = {vbNo};
    EXPECT_EQ(SaveAs({QStringLiteral("Dr. Who")}), QString());
}

TEST(DesktopWidgetsTest, SleepLetsWindowsLive) {
    bool ticked = false;
    QTimer::singleShot(5, [&] { ticked = true; });
    DesktopWidgets().Sleep(50);
    EXPECT_TRUE(ticked);
}

} // namespace
