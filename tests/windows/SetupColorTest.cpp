// SPDX-License-Identifier: MIT
// The setup window, worked as a person does.
#include "windows/print/frmColor.h"

#include "kit/GameKit.h"
#include "platform/files/Files.h"
#include "render/PrintBlackAs.h"
#include "services/basCommon.h"
#include "support/GameFixture.h"
#include "support/ModalSteps.h"
#include "windowing/PictureBox.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const QString kKey = QStringLiteral("PrintBlackAs");
const Color kDefault = Color::FromValue(657930);

class SetupColorTest : public GameTest {
protected:
    SetupColorTest() {
        basCommon::InitIniPath();
        GameKit::SetUp(QStringLiteral("tavlora"));
    }
    ~SetupColorTest() override { basCommon::ResetForTest(); }

    frmColor& Open() {
        form = std::make_unique<frmColor>();
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return *form;
    }
    QLineEdit& Box(int index) { return Find<QLineEdit>(*form, qPrintable(QStringLiteral("txtColor_%1").arg(index))); }
    QStringList Boxes() { return {Box(0).text(), Box(1).text(), Box(2).text()}; }
    QCheckBox& Default() { return Find<QCheckBox>(*form, "chkUseDefaults"); }
    Color Sample() { return Find<PictureBox>(*form, "picColorSample").BackColor(); }
    /// Types into a box and goes on to the next control.
    void Enter(int index, const char* text) {
        Box(index).setFocus();
        Box(index).selectAll();
        QTest::keyClicks(&Box(index), QString::fromLatin1(text));
        QTest::keyClick(&Box(index), Qt::Key_Tab);
    }
    static QString Stored() { return basCommon::GetIniString(kKey); }

    std::unique_ptr<frmColor> form;
    const QStringList tens{QStringLiteral("10"), QStringLiteral("10"), QStringLiteral("10")};
};

} // namespace

TEST_F(SetupColorTest, Edge_WithoutASettingAllBoxesHoldTenAndTheMarkIsSet) {
    Open();
    EXPECT_EQ(Boxes(), tens);
    EXPECT_TRUE(Default().isChecked());
    EXPECT_EQ(Sample(), kDefault);
    EXPECT_FALSE(Box(0).isEnabled());
}

TEST_F(SetupColorTest, Edge_AStoredValueEqualToTheDefaultCountsAsTheDefault) {
    for (const char* stored : {"657930", "&H0A0A0A"}) {
        basCommon::WriteIniString(kKey, QString::fromLatin1(stored));
        Open();
        EXPECT_TRUE(Default().isChecked()) << stored;
        EXPECT_EQ(Boxes(), tens);
        EXPECT_FALSE(PrintBlackAs::Chosen());
    }
}

TEST_F(SetupColorTest, Edge_AnEntryThatIsNoColourIsToldAndLeavesTheSample) {
    Open();
    Default().click();
    for (const char* entry : {"256", "abc", "-1", ""}) {
        desktop.boxes.clear();
        Box(1).clear();
        Enter(1, entry);
        ASSERT_EQ(desktop.boxes.size(), 1) << entry;
        EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("Entry must be number between 0 and 255"));
        EXPECT_EQ(Sample(), kDefault);
    }
}

TEST_F(SetupColorTest, EveryWordOfTheWindow) {
    Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Setup"));
    EXPECT_EQ(Find<QLabel>(*form, "lblExplain").text(),
              QStringLiteral("Some color printers do better with a very dark color rather than pure black. Setting "
                             "Red, Green, or Blue to something other than 10, 10, 10 will cause that color to be used "
                             "for printing the green and red sheets."));
    EXPECT_EQ(Default().text().remove(u'&'), QStringLiteral("Use Default Color"));
    EXPECT_EQ(Default().toolTip(), QStringLiteral("Uncheck to allow changing the printing color."));
    EXPECT_EQ(Find<QPushButton>(*form, "cmdOK").text().remove(u'&'), QStringLiteral("OK"));
    EXPECT_EQ(Find<QPushButton>(*form, "cmdCancel").text().remove(u'&'), QStringLiteral("Cancel"));
    QStringList labels;
    for (int i = 0; i < 3; ++i) {
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            if (label->buddy() == &Box(i)) labels.append(label->text().remove(u'&'));
        }
    }
    EXPECT_EQ(labels, (QStringList{QStringLiteral("Red"), QStringLiteral("Green"), QStringLiteral("Blue")}));
}

TEST_F(SetupColorTest, WhatIsTypedIsWhatShowsAndIsStored) {
    Open();
    Default().click();
    EXPECT_TRUE(Box(2).isEnabled());
    Enter(0, "1");
    Enter(1, "2");
    Enter(2, "30");
    EXPECT_EQ(Sample(), Color::Rgb(1, 2, 30));
    Click(*form, "cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->ChosenColor(), Color::Rgb(1, 2, 30));
    EXPECT_EQ(Stored(), QStringLiteral("&H01021E"));
    EXPECT_EQ(PrintBlackAs::Chosen(), Color::Rgb(1, 2, 30));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SetupColorTest, WhatWasStoredComesBackInTheBoxesItWasTypedIn) {
    basCommon::WriteIniString(kKey, QStringLiteral("&H01021E"));
    Open();
    EXPECT_EQ(Boxes(), (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("30")}));
    EXPECT_EQ(Sample(), Color::Rgb(1, 2, 30));
    Enter(2, "3");
    EXPECT_EQ(Sample(), Color::Rgb(1, 2, 3)) << "the boxes that weren't touched keep their colour";
    Click(*form, "cmdOK");
    EXPECT_EQ(Stored(), QStringLiteral("&H010203"));
}

TEST_F(SetupColorTest, KeysGoToTheMarkOrToRedAtFirst) {
    const auto focused = [] {
        QString name;
        ModalSteps steps;
        frmColor setup;
        steps.OnceIn("frmColor", [&](QWidget& window) { name = window.focusWidget()->objectName(); });
        setup.ShowForm();
        return name;
    };
    EXPECT_EQ(focused(), QStringLiteral("chkUseDefaults"));
    basCommon::WriteIniString(kKey, QStringLiteral("&H01021E"));
    EXPECT_EQ(focused(), QStringLiteral("txtColor_0"));
}

TEST_F(SetupColorTest, AColorThatCannotBeKeptIsToldAndUsedAllTheSame) {
    Open();
    Default().click();
    Enter(0, "200");
    Files::SetFaultHook([](Files::Operation operation, const QString& path) {
        const bool hit = operation == Files::Operation::OpenWrite && path.endsWith(QStringLiteral(".ini"));
        return hit ? std::optional(QStringLiteral("No space left on device")) : std::nullopt;
    });
    Click(*form, "cmdOK");
    Files::SetFaultHook({});
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->ChosenColor(), Color::Rgb(200, 10, 10));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("The color is used from now on, but could not be kept for the next start: the "
                                         "disk is full, or My Games can't be written to.")});
}

TEST_F(SetupColorTest, NoBoxThatHoldsNoColourIsDroppedByOk) {
    for (const int wrong : {0, 1, 2}) {
        Open();
        if (Default().isChecked()) Default().click();
        Enter(wrong, "999");
        EXPECT_EQ(desktop.boxes.size(), 1) << "told when it is left";
        Enter((wrong + 1) % 3, "77");
        Click(*form, "cmdOK");
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(desktop.boxes.size(), 2) << "and told why the window stays";
        EXPECT_EQ(form->focusWidget(), &Box(wrong));
        EXPECT_EQ(Stored(), QString());
        desktop.boxes.clear();
        Box(wrong).setText(QStringLiteral("88"));
        Click(*form, "cmdOK");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->ChosenColor(), Sample());
        EXPECT_NE(Stored(), QString());
        basCommon::WriteIniString(kKey, QString());
    }
}

TEST_F(SetupColorTest, AWrongEntryIsToldOnceByAClickOnOk) {
    Open();
    Default().click();
    Box(1).setFocus();
    Box(1).setText(QStringLiteral("abc"));
    Click(*form, "cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Entry must be number between 0 and 255")});
}

TEST_F(SetupColorTest, EnterTakesTheBoxThatIsStillBeingTypedIn) {
    Open();
    Default().click();
    Box(0).setFocus();
    Box(0).selectAll();
    QTest::keyClicks(&Box(0), QStringLiteral("50"));
    QTest::keyClick(&Box(0), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Stored(), QStringLiteral("&H320A0A"));
}

TEST_F(SetupColorTest, EnterOnAnEntryThatIsNoColourLeavesTheWindowOpen) {
    Open();
    Default().click();
    Box(0).setFocus();
    Box(0).setText(QStringLiteral("300"));
    QTest::keyClick(&Box(0), Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(Stored(), QString());
}

TEST_F(SetupColorTest, PassingThroughTheBoxesChangesNothing) {
    basCommon::WriteIniString(kKey, QStringLiteral("&H0000C8"));
    Open();
    EXPECT_FALSE(Default().isChecked());
    EXPECT_EQ(Sample(), Color::Rgb(0, 0, 200));
    EXPECT_EQ(Boxes(), (QStringList{QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("200")}));
    for (const int index : {0, 1, 2}) {
        Box(index).setFocus();
        QTest::keyClick(&Box(index), Qt::Key_Tab);
    }
    EXPECT_EQ(Sample(), Color::Rgb(0, 0, 200));
    Click(*form, "cmdOK");
    EXPECT_EQ(Stored(), QStringLiteral("&H0000C8"));
}

TEST_F(SetupColorTest, CheckingTheDefaultBringsTheTensBack) {
    basCommon::WriteIniString(kKey, QStringLiteral("&H112233"));
    Open();
    Default().click();
    EXPECT_EQ(Boxes(), tens);
    EXPECT_EQ(Sample(), kDefault);
    Click(*form, "cmdOK");
    EXPECT_EQ(Stored(), QStringLiteral("&H0A0A0A"));
}

TEST_F(SetupColorTest, CancelAndEscapeStoreNothingAndAskNothing) {
    for (const bool escape : {false, true}) {
        Open();
        Default().click();
        Box(0).setFocus();
        QTest::keyClicks(&Box(0), QStringLiteral("999"));
        if (escape) {
            QTest::keyClick(form.get(), Qt::Key_Escape);
        } else {
            Click(*form, "cmdCancel");
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(Stored(), QString());
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SetupColorTest, OnlyOkIsAYes) {
    for (const char* sButton : {"cmdOK", "cmdCancel", ""}) {
        ModalSteps person;
        person.In("frmColor", [sButton](QWidget& window) {
            if (*sButton) {
                Click(window, sButton);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(frmColor().ShowForm(), sButton == std::string("cmdOK")) << sButton;
    }
}

TEST_F(SetupColorTest, AClickOnTheSampleTakesItsColour) {
    Open();
    Default().click();
    Enter(0, "99");
    EXPECT_EQ(form->ChosenColor(), kDefault);
    Click(*form, "picColorSample");
    EXPECT_EQ(form->ChosenColor(), Color::Rgb(99, 10, 10));
}

TEST_F(SetupColorTest, TheChosenColourIsTheInkFromTheNextStartOnUnlessItIsTheDefault) {
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Black());
    basCommon::WriteIniString(kKey, QStringLiteral("&H302010"));
    GameKit::SetUp(QStringLiteral("tavlora"));
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Rgb(0x30, 0x20, 0x10)) << "red is the highest byte";
    basCommon::WriteIniString(kKey, QStringLiteral("&H0A0A0A"));
    GameKit::SetUp(QStringLiteral("tavlora"));
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Black());
    basCommon::WriteIniString(kKey, QStringLiteral("no number"));
    GameKit::SetUp(QStringLiteral("tavlora2"));
    EXPECT_EQ(basTAVL::g_lPrintBlack(), kDefault) << "the plain kits' own";
}
