// SPDX-License-Identifier: MIT
// The line of words under each likeness, while somebody types.
#include "board/basPosit.h"
#include "kit/GameKit.h"
#include "services/basCommon.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditNews.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditTokenFixture.h"

#include "windowing/PictureBox.h"

#include <QLabel>
#include <QLineEdit>

namespace {

const QString kHigh = QStringLiteral("On paper this is ");
const QString kBreak = QStringLiteral(": press Enter to break the line.");
const QString kLongWords = QStringLiteral(" and the long and winding road");

class PaperLineTest : public EditTokenTest {
protected:
    PaperLineTest() {
        // What is printed has the sizes of its kit.
        basCommon::InitIniPath();
        GameKit::SetUp(QStringLiteral("tavlora"));
        basPosit::PosInit();
    }
    ~PaperLineTest() override { basCommon::ResetForTest(); }
    QString Line() { return Find<QLabel>("lblPaper")->text(); }
    /// Below the likeness, whole, and within the window.
    void ExpectWholeBelow(const char* likeness) {
        const auto* line = Find<QLabel>("lblPaper");
        EXPECT_TRUE(line->isVisible());
        const QRect place(line->mapTo(window, QPoint(0, 0)), line->size());
        auto* const picture = Find<QWidget>(likeness);
        EXPECT_GE(place.top(), picture->mapTo(window, QPoint(0, 0)).y());
        EXPECT_TRUE(window->rect().contains(place));
        EXPECT_LE(line->heightForWidth(line->width()), line->height());
    }
    void InDialog(QDialog& dialog, const std::function<void()>& doIt) {
        window = &dialog;
        InWindow(doIt);
    }
};

TEST_F(PaperLineTest, ASpaceTellsTheHeightWhileItIsTyped) {
    frmEditSpace space(session);
    basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Elm"));
    EditWindowTest::Edit(space, kSpace, [&] {
        const QString before = Line();
        EXPECT_TRUE(before.startsWith(kHigh) && before.endsWith(QStringLiteral(" high."))) << before.toStdString();
        const QSize size = window->size();
        Type(kLongWords);
        EXPECT_TRUE(Line().startsWith(kHigh) && Line().endsWith(kBreak)) << Line().toStdString();
        ExpectWholeBelow("picDest");
        EXPECT_EQ(window->size(), size) << "what is told moves nothing";
        for (int i = 0; i < 9; ++i)
            Press(Qt::Key_Left);
        Press(Qt::Key_Return);
        EXPECT_TRUE(Line().endsWith(QStringLiteral(" high."))) << Line().toStdString();
        Click("cmdCancel");
    });
}

TEST_F(PaperLineTest, WhatIsNotTakenIsToldThereUntilTheNextKey) {
    frmEditSpace space(session);
    basTAVL::g_oSpaces(kSpace).SetText(QString(40, u'i'));
    EditWindowTest::Edit(space, kSpace, [&] {
        const QString height = Line();
        Type(QStringLiteral("j"));
        EXPECT_EQ(Line(), QStringLiteral("Only 40 letters fit on a line."));
        ExpectWholeBelow("picDest");
        Press(Qt::Key_Backspace);
        EXPECT_TRUE(Line().startsWith(kHigh)) << Line().toStdString();
        Click("cmdCancel");
    });
}

TEST_F(PaperLineTest, ACornerTellsTheHeight) {
    frmEditCorner corner(session);
    basTAVL::g_oCorners(kCorner).SetText(0, QStringLiteral("Rest"));
    EditWindowTest::Edit(corner, kCorner, [&] {
        EXPECT_TRUE(Line().endsWith(QStringLiteral(" high."))) << Line().toStdString();
        // Forty letters are all that its last line keeps, and only wide ones are too many for it.
        Type(QStringLiteral(" WWW").repeated(9));
        EXPECT_TRUE(Line().startsWith(kHigh) && Line().endsWith(kBreak)) << Line().toStdString();
        ExpectWholeBelow("picDest");
        Click("cmdCancel");
    });
}

TEST_F(PaperLineTest, ATokenTellsTheHeightAndOneWithAPictureNothing) {
    EditTokenTest::Edit([&] {
        EXPECT_TRUE(Line().endsWith(QStringLiteral(" high."))) << Line().toStdString();
        Type(kLongWords);
        EXPECT_TRUE(Line().startsWith(kHigh) && Line().endsWith(kBreak)) << Line().toStdString();
        ExpectWholeBelow("picDest");
        Click("cmdCancel");
    });
    GivePicture();
    EditTokenTest::Edit([&] {
        EXPECT_EQ(Line(), QString());
        Click("cmdCancel");
    });
}

TEST_F(PaperLineTest, TheTitlesTellTheOneThatIsTyped) {
    basPosit::SetSpecialText(1, QStringLiteral("Our Town"));
    basPosit::SetSpecialText(2, QStringLiteral("A game"));
    frmEditCenter titles(session);
    InDialog(titles, [&] {
        const QString name = Line();
        EXPECT_TRUE(name.startsWith(kHigh)) << name.toStdString();
        Press(Qt::Key_Tab);
        const QString subtitle = Line();
        EXPECT_TRUE(subtitle.startsWith(kHigh)) << subtitle.toStdString();
        EXPECT_NE(subtitle, name);
        Type(QString(45, u'i'));
        EXPECT_EQ(Line(), QStringLiteral("Only 40 letters fit on a line."));
        ExpectWholeBelow("picForm");
        Press(Qt::Key_Backspace);
        EXPECT_TRUE(Line().startsWith(kHigh)) << Line().toStdString();
        Press(Qt::Key_Tab);
        Press(Qt::Key_Tab);
        EXPECT_EQ(Line(), QString()) << "the focus is on a button";
        Click("cmdCancel");
    });
    bool changed = false;
    titles.ShowForm(changed);
    EXPECT_FALSE(changed);
}

TEST_F(PaperLineTest, ACardTellsTheBoxThatIsTypedIn) {
    basTAVL::g_oNews(0, 2).Let_Text(QStringLiteral("Win a cake"));
    frmEditNews news(session);
    InDialog(news, [&] {
        const QString card = Line();
        EXPECT_TRUE(card.startsWith(kHigh)) << card.toStdString();
        Find<QLineEdit>("txtTitle")->setFocus();
        Type(QStringLiteral("s"));
        EXPECT_TRUE(Line().startsWith(kHigh)) << Line().toStdString();
        Find<QPlainTextEdit>("txtSpace")->setFocus();
        Type(kLongWords.repeated(6));
        EXPECT_TRUE(Line().startsWith(kHigh) && Line().endsWith(kBreak)) << Line().toStdString();
        ExpectWholeBelow("cmdPlaceHolder");
        Click("cmdCancel");
    });
    bool changed = false;
    news.ShowForm(0, 2, changed);
    EXPECT_FALSE(changed);
}

} // namespace
