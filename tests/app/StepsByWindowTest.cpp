// SPDX-License-Identifier: MIT
// Whatever window changes the game: it is one step with a name of its own, outlives a save, and the star goes where the
// steps lead back to what was saved.
#include "AppFixture.h"

#include "app/EditorWindows.h"

#include <QPlainTextEdit>

namespace {

constexpr QPointF kLoseTurn(0.11, 0.89);
constexpr QPointF kTitles(0.5, 0.31);
constexpr QPointF kGoodNews(0.32, 0.65);
constexpr QPointF kMoney(0.5, 0.755);
constexpr QPointF kTokens(0.5, 0.55);

class StepsByWindowTest : public AppTest {
protected:
    StepsByWindowTest() {
        doors = &editors;
        Start();
        WriteGame(QStringLiteral("Ours.gam"), QStringLiteral("Desk"));
        window->Commands().OpenGame(InGames(QStringLiteral("Ours.gam")));
        desktop.onDialog = [](CommonDialog& dialog) {
            dialog.fFontSize = 7;
            return true;
        };
    }

    Session& InHand() const { return window->Commands().InHand(); }
    QPointF Space4() const {
        const basPosit::BoardRect& rect = basPosit::m_SpaceRect(4, basPosit::SpacePart::Whole);
        return {double(rect.x1 + rect.x2) / 2, double(rect.y1 + rect.y2) / 2};
    }

    void ExpectOneStep(const QString& name, const std::function<void()>& act) {
        const Game before = TheGame();
        ASSERT_FALSE(window->isWindowModified());
        act();
        const Game after = TheGame();
        EXPECT_FALSE(after == before);
        EXPECT_EQ(InHand().UndoName(), name);
        EXPECT_TRUE(window->isWindowModified());
        ChooseMenu("mnuFile_3");
        EXPECT_FALSE(window->isWindowModified()) << "saved";
        EXPECT_EQ(InHand().UndoName(), name) << "the step outlives it";
        ChooseMenu("mnuEdit_0");
        EXPECT_EQ(TheGame(), before);
        EXPECT_FALSE(InHand().CanUndo()) << "it was one step";
        EXPECT_EQ(InHand().RedoName(), name);
        EXPECT_TRUE(window->isWindowModified());
        ChooseMenu("mnuEdit_1");
        EXPECT_EQ(TheGame(), after);
        EXPECT_FALSE(window->isWindowModified()) << "as it was saved";
    }

    /// Opens the editor of a place, and acts in it.
    void InEditor(const char* name, QPointF place, const ModalSteps::Step& act) {
        WithModal(name, act);
        ClickBoard(place.x(), place.y());
    }
    static void TypeAndClose(QWidget& form) {
        QTest::keyClicks(form.focusWidget(), QStringLiteral("ville"));
        ClickIn(form, "cmdOK");
    }
    void SetAllFontsAndClose(QWidget& form) {
        ClickIn(form, "cmdChangeFont");
        desktop.answers = {vbYes};
        ClickIn(form, "cmdSetAllFonts");
        desktop.answers = {vbNo};
        ClickIn(form, "cmdCancel");
    }
    void InFirstToken(const ModalSteps::Step& act) {
        InEditor("frmShowTokens", kTokens, [this, act](QWidget& gallery) {
            WithModal("frmEditToken", act);
            QTest::mouseClick(gallery.findChild<QWidget*>(QStringLiteral("picToken_0")), Qt::LeftButton);
            ClickIn(gallery, "cmdOK");
        });
    }
    void InFirstCard(const ModalSteps::Step& act) {
        InEditor("frmShowNews", kGoodNews, [this, act](QWidget& deck) {
            WithModal("frmEditNews", act);
            QTest::mouseClick(deck.findChild<QWidget*>(QStringLiteral("picCards")), Qt::LeftButton, {}, QPoint(9, 9));
            ClickIn(deck, "cmdDone");
        });
    }

    EditorWindows editors;
};

TEST_F(StepsByWindowTest, SpaceEditorNamesTheSpace) {
    ExpectOneStep(QStringLiteral("Name of Deskville"), [&] { InEditor("frmEditSpace", Space4(), TypeAndClose); });
}

TEST_F(StepsByWindowTest, SpaceEditorChangesAFont) {
    ExpectOneStep(QStringLiteral("Font of Desk"), [&] {
        InEditor("frmEditSpace", Space4(), [](QWidget& form) {
            ClickIn(form, "cmdChangeFont");
            ClickIn(form, "cmdOK");
        });
    });
}

TEST_F(StepsByWindowTest, SpaceEditorSetsAllFonts) {
    ExpectOneStep(QStringLiteral("Set All Fonts"),
                  [&] { InEditor("frmEditSpace", Space4(), [this](QWidget& form) { SetAllFontsAndClose(form); }); });
}

TEST_F(StepsByWindowTest, CornerEditorNamesTheCorner) {
    ExpectOneStep(QStringLiteral("Name of Red Lightville"),
                  [&] { InEditor("frmEditCorner", kLoseTurn, TypeAndClose); });
}

TEST_F(StepsByWindowTest, TitlesEditorNamesTheGame) {
    ExpectOneStep(QStringLiteral("Game Name"), [&] { InEditor("frmEditCenter", kTitles, TypeAndClose); });
}

TEST_F(StepsByWindowTest, NewsEditorWritesACard) {
    ExpectOneStep(QStringLiteral("Text of Good News Card 1"), [&] {
        InFirstCard([](QWidget& card) {
            QTest::keyClicks(card.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace")), QStringLiteral(" Hurrah"));
            ClickIn(card, "cmdOK");
        });
    });
}

TEST_F(StepsByWindowTest, NewsEditorSetsAllFonts) {
    ExpectOneStep(QStringLiteral("Set All Fonts"), [&] {
        InFirstCard([this](QWidget& card) {
            ClickIn(card, "cmdBodyFont");
            desktop.answers = {vbYes};
            ClickIn(card, "cmdSetAllFonts");
            ClickIn(card, "cmdOK");
        });
    });
}

TEST_F(StepsByWindowTest, MoneyEditorWritesANote) {
    ExpectOneStep(QStringLiteral("Text of Note 100"), [&] {
        InEditor("frmEditMoney", kMoney, [](QWidget& form) {
            QTest::keyClicks(form.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace_1")), QStringLiteral(" Hurrah"));
            ClickIn(form, "cmdOK");
        });
    });
}

TEST_F(StepsByWindowTest, TokenEditorWritesAToken) {
    basTAVL::g_oTokens(0).SetImagePath(QString());
    ExpectOneStep(QStringLiteral("Text of Token 1"), [&] { InFirstToken(TypeAndClose); });
}

TEST_F(StepsByWindowTest, TokenEditorSetsAllFonts) {
    basTAVL::g_oTokens(0).SetImagePath(QString());
    basTAVL::g_oTokens(1).Font.Size = 30;
    ExpectOneStep(QStringLiteral("Set All Fonts"), [&] {
        InFirstToken([this](QWidget& form) {
            desktop.answers = {vbYes};
            ClickIn(form, "cmdSetAllFonts");
            ClickIn(form, "cmdOK");
        });
    });
}

TEST_F(StepsByWindowTest, EditorsLeftByCancelAreNoStep) {
    const Game before = TheGame();
    desktop.answers = {vbNo};
    InEditor("frmEditSpace", Space4(), [](QWidget& form) {
        QTest::keyClicks(form.focusWidget(), QStringLiteral("ville"));
        ClickIn(form, "cmdCancel");
    });
    EXPECT_EQ(TheGame(), before);
    EXPECT_FALSE(InHand().CanUndo());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StepsByWindowTest, NewAndOpenBeginAnotherHistory) {
    for (const char* way : {"mnuFile_0", "mnuFile_2"}) {
        InEditor("frmEditSpace", Space4(), TypeAndClose);
        ASSERT_TRUE(InHand().CanUndo());
        ChooseMenu("mnuFile_3");
        desktop.onDialog = [this](CommonDialog& dialog) {
            dialog.sFileName = InGames(QStringLiteral("Ours.gam"));
            return true;
        };
        ChooseMenu(way);
        EXPECT_FALSE(InHand().CanUndo()) << way;
        EXPECT_FALSE(InHand().CanRedo()) << way;
        EXPECT_FALSE(window->isWindowModified()) << way;
        window->Commands().OpenGame(InGames(QStringLiteral("Ours.gam")));
    }
}

} // namespace
