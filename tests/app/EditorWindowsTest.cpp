// SPDX-License-Identifier: MIT
// What the editors of titles and cards change, as the main window's board and autosave see it.
#include "AppFixture.h"

#include "app/EditorWindows.h"
#include "board/basTAVL_news.h"
#include "platform/files/Files.h"

#include <QPlainTextEdit>

namespace {

constexpr QPointF kTitles(0.5, 0.31);
constexpr QPointF kGoodNews(0.32, 0.65);
constexpr QPointF kBadNews(0.68, 0.65);
constexpr QPointF kMoney(0.5, 0.755);
constexpr QPointF kTokens(0.5, 0.55);

class EditorWindowsTest : public AppTest {
protected:
    EditorWindowsTest() {
        doors = &editors;
        Start();
        WriteGame(QStringLiteral("Ours.gam"), QStringLiteral("Desk"));
        window->Commands().OpenGame(InGames(QStringLiteral("Ours.gam")));
    }

    void ClickBoardAt(QPointF place) const { ClickBoard(place.x(), place.y()); }
    QImage Board() const { return window->View().Board().Image().copy(); }
    static QString Title(int record) { return basPosit::m_CenterText(record).sText; }
    static QString CardText(int deck, int card) { return basTAVL::g_oNews(deck, card).Text(); }

    static std::function<void(QWidget&)> TypeNameThenClick(const char* button) {
        return [button](QWidget& form) {
            QTest::keyClicks(form.focusWidget(), QStringLiteral("ville"));
            ClickIn(form, button);
        };
    }
    // Types into the first card of the deck that opens next, and closes both windows.
    void EditFirstCard(const char* button) {
        WithModal("frmShowNews", [this, button](QWidget& deck) {
            WithModal("frmEditNews", [button](QWidget& card) {
                QTest::keyClicks(card.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace")),
                                 QStringLiteral(" Hurrah"));
                ClickIn(card, button);
            });
            QTest::mouseClick(deck.findChild<QWidget*>(QStringLiteral("picCards")), Qt::LeftButton, {}, QPoint(9, 9));
            ClickIn(deck, "cmdDone");
        });
    }

    // Types onto the first token, which has no picture, and closes both windows.
    void EditFirstToken(const char* button) {
        basTAVL::g_oTokens(0).SetImagePath(QString());
        WithModal("frmShowTokens", [this, button](QWidget& gallery) {
            WithModal("frmEditToken", [button](QWidget& token) {
                QTest::mouseClick(token.findChild<QWidget*>(QStringLiteral("picDest")), Qt::LeftButton);
                QTest::keyClicks(token.findChild<QWidget*>(QStringLiteral("txtHoldFocus")), QStringLiteral("zap"));
                ClickIn(token, button);
            });
            QTest::mouseClick(gallery.findChild<QWidget*>(QStringLiteral("picToken_0")), Qt::LeftButton);
            ClickIn(gallery, "cmdOK");
        });
    }

    EditorWindows editors;
};

TEST_F(EditorWindowsTest, ATitleTypedInTheEditorReachesBoardAndAutosave) {
    const QImage before = Board();
    const QString name = Title(1);
    WithModal("frmEditCenter", TypeNameThenClick("cmdOK"));
    ClickBoardAt(kTitles);
    EXPECT_EQ(Title(1), name + QStringLiteral("ville"));
    EXPECT_NE(Board(), before);
    ASSERT_TRUE(HasAutosave());
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains("ville\""));
}

TEST_F(EditorWindowsTest, ATitleThatIsCancelledLeavesBoardAndAutosaveAlone) {
    const QImage before = Board();
    const QString name = Title(1);
    WithModal("frmEditCenter", TypeNameThenClick("cmdCancel"));
    ClickBoardAt(kTitles);
    EXPECT_EQ(Title(1), name);
    EXPECT_EQ(Board(), before);
    EXPECT_FALSE(HasAutosave());
}

TEST_F(EditorWindowsTest, ACardOfEachDeckReachesTheAutosave) {
    EditFirstCard("cmdOK");
    ClickBoardAt(kGoodNews);
    EXPECT_TRUE(CardText(0, 0).endsWith(QStringLiteral(" Hurrah")));
    EXPECT_TRUE(HasAutosave());
    EditFirstCard("cmdOK");
    ClickBoardAt(kBadNews);
    EXPECT_TRUE(CardText(1, 0).endsWith(QStringLiteral(" Hurrah")));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).count(" Hurrah"), 2);
}

TEST_F(EditorWindowsTest, EachCardIsAutosavedWhileItsDeckStillStandsOpen) {
    WithModal("frmShowNews", [this](QWidget& deck) {
        auto* const cards = deck.findChild<QWidget*>(QStringLiteral("picCards"));
        for (int card = 0; card < 2; ++card) {
            WithModal("frmEditNews", [](QWidget& editor) {
                QTest::keyClicks(editor.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace")),
                                 QStringLiteral(" Hurrah"));
                ClickIn(editor, "cmdOK");
            });
            QTest::mouseClick(cards, Qt::LeftButton, {}, QPoint(9 + card * 300, 9));
            EXPECT_EQ(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).count(" Hurrah"), card + 1);
            EXPECT_EQ(HasBackup(), card > 0);
        }
    });
    ClickBoardAt(kGoodNews);
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("~AutoSave.bak"))).count(" Hurrah"), 1) << "one change earlier";
}

TEST_F(EditorWindowsTest, ATokenIsAutosavedWhileTheOthersStillShow) {
    basTAVL::g_oTokens(0).SetImagePath(QString());
    WithModal("frmShowTokens", [this](QWidget& gallery) {
        WithModal("frmEditToken", [](QWidget& token) {
            QTest::mouseClick(token.findChild<QWidget*>(QStringLiteral("picDest")), Qt::LeftButton);
            QTest::keyClicks(token.findChild<QWidget*>(QStringLiteral("txtHoldFocus")), QStringLiteral("zap"));
            ClickIn(token, "cmdOK");
        });
        QTest::mouseClick(gallery.findChild<QWidget*>(QStringLiteral("picToken_0")), Qt::LeftButton);
        EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains("zap"));
    });
    ClickBoardAt(kTokens);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_FALSE(HasBackup()) << "one change is one autosave";
}

TEST_F(EditorWindowsTest, CardWhoseAutosaveFailedIsAutosavedAgainWhenItsDeckCloses) {
    WriteGame(QStringLiteral("~AutoSave.dat"), QStringLiteral("Desk"));
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Rename) return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    WithModal("frmShowNews", [this](QWidget& deck) {
        WithModal("frmEditNews", [](QWidget& editor) {
            QTest::keyClicks(editor.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace")), QStringLiteral(" Hurrah"));
            ClickIn(editor, "cmdOK");
        });
        QTest::mouseClick(deck.findChild<QWidget*>(QStringLiteral("picCards")), Qt::LeftButton, {}, QPoint(9, 9));
        Files::SetFaultHook({});
    });
    ClickBoardAt(kGoodNews);
    Files::SetFaultHook({});
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains(" Hurrah"));
}

TEST_F(EditorWindowsTest, ACardThatIsCancelledIsNoChange) {
    EditFirstCard("cmdCancel");
    ClickBoardAt(kGoodNews);
    EXPECT_FALSE(CardText(0, 0).endsWith(QStringLiteral(" Hurrah")));
    EXPECT_FALSE(HasAutosave());
}

TEST_F(EditorWindowsTest, ANotesTextReachesTheAutosaveAndACancelledOneDoesNot) {
    const auto typeThenClick = [this](const char* button) {
        WithModal("frmEditMoney", [button](QWidget& form) {
            QTest::keyClicks(form.findChild<QPlainTextEdit*>(QStringLiteral("txtSpace_1")), QStringLiteral(" Hurrah"));
            ClickIn(form, button);
        });
        ClickBoardAt(kMoney);
    };
    desktop.answers = {vbNo};
    typeThenClick("cmdCancel");
    EXPECT_FALSE(HasAutosave());
    typeThenClick("cmdOK");
    EXPECT_TRUE(basTAVL::g_oMoney(0).Text(1).endsWith(QStringLiteral(" Hurrah")));
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains(" Hurrah"));
}

TEST_F(EditorWindowsTest, MenusAndButtonsOpenTheDecks) {
    EditFirstCard("cmdOK");
    ChooseMenu("mnuView_3");
    EXPECT_TRUE(CardText(1, 0).endsWith(QStringLiteral(" Hurrah")));
    EditFirstCard("cmdOK");
    ClickButton(1);
    EXPECT_TRUE(CardText(0, 0).endsWith(QStringLiteral(" Hurrah")));
}

TEST_F(EditorWindowsTest, ATokenTypedInTheEditorReachesTheAutosave) {
    EditFirstToken("cmdOK");
    ClickBoardAt(kTokens);
    EXPECT_TRUE(basTAVL::g_oTokens(0).TextAll().contains(QStringLiteral("zap")));
    ASSERT_TRUE(HasAutosave());
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains("zap"));
}

TEST_F(EditorWindowsTest, ATokenThatIsCancelledIsNoChange) {
    desktop.answers = {vbNo};
    EditFirstToken("cmdCancel");
    ChooseMenu("mnuView_4");
    EXPECT_FALSE(basTAVL::g_oTokens(0).TextAll().contains(QStringLiteral("zap")));
    EXPECT_FALSE(HasAutosave());
}

} // namespace
