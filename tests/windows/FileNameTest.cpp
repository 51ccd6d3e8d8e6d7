// SPDX-License-Identifier: MIT
#include "support/ModalSteps.h"
#include "support/TestFixture.h"
#include "windows/pictures/frmFileName.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

class FileNameTest : public TavloraTest {
protected:
    /// Shows the dialog for a file and does something in it.
    QString Answer(ModalSteps::Step step) {
        ModalSteps steps;
        steps.In("frmFileName", std::move(step));
        frmFileName form;
        return form.ShowForm(Clash());
    }
    QString Clash() const { return PathOf(QStringLiteral("cat.jpg")); }
};

} // namespace

TEST_F(FileNameTest, ShowsThePresentNameAndAnEmptyNewOne) {
    Answer([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("File Already Exists"));
        EXPECT_EQ(Find<QLabel>(window, "lblCurrentName").text(), QStringLiteral("cat.jpg"));
        EXPECT_EQ(Find<QLineEdit>(window, "txtNewName").text(), QString());
        Click(window, "cmdGo_0");
    });
}

TEST_F(FileNameTest, ItExplainsTheClashAndTheThreeWaysOut) {
    Answer([](QWidget& window) {
        QStringList labels;
        for (const QLabel* label : window.findChildren<QLabel*>())
            labels.append(label->text().remove(u'&'));
        for (const char* const text :
             {"The program copies the images you use to the main TAVL directory on the local disk. However, a file by "
              "this name already exists in this directory. Please select one of the choices below:",
              "Current Name:", "New Name:"})
            EXPECT_TRUE(labels.contains(QString::fromLatin1(text))) << text;
        EXPECT_EQ(Find<QPushButton>(window, "cmdGo_0").text(), QStringLiteral("&Cancel - leave the original image"));
        EXPECT_EQ(Find<QPushButton>(window, "cmdGo_1").text(), QStringLiteral("&Overwrite current file"));
        EXPECT_EQ(Find<QPushButton>(window, "cmdGo_2").text(), QStringLiteral("&Use the new name entered above"));
        Click(window, "cmdGo_0");
    });
}

// As wide as the explanation above them, so that none ends beside the box with the new name.
TEST_F(FileNameTest, TheThreeAnswersReachFromTheLabelsToTheEndOfTheNewName) {
    Answer([](QWidget& window) {
        const QRect name = Find<QLineEdit>(window, "txtNewName").geometry();
        const int left = Find<QLabel>(window, "lblCurrentName").parentWidget()->layout()->contentsRect().left();
        for (const char* const answer : {"cmdGo_0", "cmdGo_1", "cmdGo_2"}) {
            const QRect button = Find<QPushButton>(window, answer).geometry();
            EXPECT_EQ(button.left(), left) << answer;
            EXPECT_EQ(button.right(), name.right()) << answer;
        }
        EXPECT_EQ(window.width() - 1 - name.right(), left) << "as much is free on the right as on the left";
        Click(window, "cmdGo_0");
    });
}

TEST_F(FileNameTest, LeavingTheOriginalGivesNoPath) {
    EXPECT_EQ(Answer([](QWidget& window) { Click(window, "cmdGo_0"); }), QString());
}

TEST_F(FileNameTest, EscapeAndTheCloseButtonLeaveTheOriginal) {
    EXPECT_EQ(Answer([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }), QString());
    EXPECT_EQ(Answer([](QWidget& window) { window.close(); }), QString());
}

TEST_F(FileNameTest, OverwritingGivesThePathAsItWas) {
    EXPECT_EQ(Answer([](QWidget& window) { Click(window, "cmdGo_1"); }), Clash());
}

TEST_F(FileNameTest, ANewNameKeepsTheExtensionAndLandsInMyGames) {
    const QString path = Answer([](QWidget& window) {
        QTest::keyClicks(&Find<QLineEdit>(window, "txtNewName"), QStringLiteral("kitten_1"));
        Click(window, "cmdGo_2");
    });
    EXPECT_EQ(path, PathOf(QStringLiteral("kitten_1.jpg")));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(FileNameTest, ANewNameIsAskedForWhenThereIsNone) {
    Answer([this](QWidget& window) {
        Click(window, "cmdGo_2");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Please enter a new name and try again.")});
        Click(window, "cmdGo_0");
    });
}

TEST_F(FileNameTest, ABadNewNameIsToldWhenItIsLeftAndKeepsTheFocus) {
    Answer([this](QWidget& window) {
        // Only an active window tells its controls that they lose the focus.
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        auto& name = Find<QLineEdit>(window, "txtNewName");
        QTest::keyClicks(&name, QStringLiteral("cat.png"));
        QTest::keyClick(&name, Qt::Key_Tab);
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("Please do not include a file extension in the new name.")});
        QCoreApplication::processEvents();
        EXPECT_EQ(window.focusWidget(), &name);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
}

TEST_F(FileNameTest, ABadNewNameHoldsBackNobodyWhoLeavesWithoutIt) {
    for (const char* const way : {"cmdGo_0", "cmdGo_1"}) {
        Answer([way](QWidget& window) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            auto& name = Find<QLineEdit>(window, "txtNewName");
            QTest::keyClicks(&name, QStringLiteral("cat.dog"));
            Click(window, way);
            EXPECT_FALSE(window.isVisible()) << way;
        });
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(FileNameTest, FaultsAreLookedForInOrder) {
    const QString letters = QStringLiteral("The new file name should include letters and numbers only.");
    EXPECT_EQ(frmFileName::FaultOf(QStringLiteral("a cat.png")),
              QStringLiteral("Please do not include a file extension in the new name."));
    EXPECT_EQ(frmFileName::FaultOf(QStringLiteral("a very long name")), letters);
    EXPECT_EQ(frmFileName::FaultOf(QString(u'\u00E9')), letters);
    EXPECT_EQ(frmFileName::FaultOf(QStringLiteral("ninechars")),
              QStringLiteral("Please limit the length of the new name to 8 characters."));
    EXPECT_EQ(frmFileName::FaultOf(QStringLiteral("Cat_2~aB")), QString());
}
