// SPDX-License-Identifier: MIT
// Undo and redo, and the file menu's ways to other games.
#include "AppFixture.h"

#include "app/RecentGames.h"
#include "game/SampleGames.h"

#include <QMenu>

namespace {

using Strings = QStringList;

class EditMenuTest : public AppTest {
protected:
    void StartWith(const QString& name) {
        WriteGame(name, QStringLiteral("As saved"));
        SetIni(QStringLiteral("GameName"), InGames(name));
        Start();
    }
    QString Caption(const char* item) const { return Find<QAction>(item).text(); }
    bool CanBeChosen(const char* item) const { return Find<QAction>(item).isEnabled(); }
    QImage Painted() const { return window->View().Board().Image().copy(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window.get(), key, modifiers);
    }
    Strings Entries(const char* list) const {
        auto* const menu = Find<QAction>(list).menu<QMenu*>();
        Q_EMIT menu->aboutToShow();
        Strings captions;
        for (const QAction* action : menu->actions())
            captions.append(action->text());
        return captions;
    }
    Session& InHand() const { return window->Commands().InHand(); }
};

TEST_F(EditMenuTest, AStepIsTakenBackAndBroughtAgainByItsName) {
    StartWith(QStringLiteral("Mine.gam"));
    EXPECT_FALSE(CanBeChosen("mnuEdit_0"));
    EXPECT_EQ(Caption("mnuEdit_0"), QStringLiteral("&Undo"));
    const QImage before = Painted();
    Edit(QStringLiteral("Fish & Chips"));
    window->View().Redraw();
    const QImage after = Painted();
    EXPECT_NE(before, after);
    EXPECT_EQ(Caption("mnuEdit_0"), QStringLiteral("&Undo Name of Fish && Chips"));

    ChooseMenu("mnuEdit_0");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
    EXPECT_EQ(Painted(), before);
    EXPECT_FALSE(CanBeChosen("mnuEdit_0"));
    EXPECT_EQ(Caption("mnuEdit_1"), QStringLiteral("&Redo Name of Fish && Chips"));

    ChooseMenu("mnuEdit_1");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Fish & Chips"));
    EXPECT_EQ(Painted(), after);
    EXPECT_FALSE(CanBeChosen("mnuEdit_1"));
}

TEST_F(EditMenuTest, KeysUndoAndRedo) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
}

TEST_F(EditMenuTest, BackAtWhatWasSavedThereIsNoStarAndNothingToRecover) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    ChooseMenu("mnuFile_3");
    Edit(QStringLiteral("Two"));
    ChooseMenu("mnuEdit_0");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_FALSE(HasAutosave());
    ChooseMenu("mnuEdit_0");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved")) << "steps outlive a save";
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(HasAutosave());
}

TEST_F(EditMenuTest, AnotherGameHasNothingToUndo) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    ChooseMenu("mnuFile_3");
    ChooseMenu("mnuFile_0");
    EXPECT_FALSE(CanBeChosen("mnuEdit_0"));
    EXPECT_FALSE(CanBeChosen("mnuEdit_1"));
}

TEST_F(EditMenuTest, DuplicateIsUnsavedUnderAFreeNameAndLeavesTheFileAlone) {
    StartWith(QStringLiteral("Mine.gam"));
    const QByteArray saved = ReadFile(InGames(QStringLiteral("Mine.gam")));
    Edit(QStringLiteral("One"));
    ChooseMenu("mnuFile_20");
    EXPECT_EQ(InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Mine.gam"))), saved);
    EXPECT_TRUE(HasAutosave());
}

TEST_F(EditMenuTest, NewFromOpensASampleAsAGameWithoutAName) {
    StartWith(QStringLiteral("Mine.gam"));
    const Strings names = Entries("mnuNewFrom");
    EXPECT_TRUE(names.contains(QStringLiteral("Family"))) << names.join(u' ').toStdString();
    EXPECT_EQ(names.last(), QStringLiteral("Blank"));
    Find<QAction>(qPrintable(QStringLiteral("mnuNewFrom_%1").arg(names.indexOf(QStringLiteral("Family"))))).trigger();
    EXPECT_EQ(InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_NE(TextOfSpace4(), QStringLiteral("As saved"));
}

TEST_F(EditMenuTest, NewFromAsksAboutUnsavedChangesFirst) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    Entries("mnuNewFrom");
    desktop.answers = {vbCancel};
    ChooseMenu("mnuNewFrom_0");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
    EXPECT_EQ(InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
}

TEST_F(EditMenuTest, RecentGamesOpenAgainAndTheLatestStandsFirst) {
    StartWith(QStringLiteral("Mine.gam"));
    EXPECT_EQ(Entries("mnuRecent"), Strings{QStringLiteral("None yet")});
    WriteGame(QStringLiteral("Yours & Ours.gam"), QStringLiteral("Yours"));
    window->Commands().OpenGame(InGames(QStringLiteral("Yours & Ours.gam")));
    window->Commands().OpenGame(InGames(QStringLiteral("Mine.gam")));
    EXPECT_EQ(Entries("mnuRecent"), (Strings{QStringLiteral("&1 Mine.gam"), QStringLiteral("&2 Yours && Ours.gam")}));
    ChooseMenu("mnuRecent_1");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Yours"));
    EXPECT_EQ(Entries("mnuRecent").first(), QStringLiteral("&1 Yours && Ours.gam"));
}

TEST_F(EditMenuTest, ARecentGameThatIsAwayIsLookedFor) {
    StartWith(QStringLiteral("Mine.gam"));
    RecentGames::Note(InGames(QStringLiteral("Gone.gam")));
    EXPECT_TRUE(Entries("mnuRecent").first().startsWith(QStringLiteral("&1 Gone.gam (not in ")));
    bool asked = false;
    desktop.onDialog = [&asked](CommonDialog&) {
        asked = true;
        return false;
    };
    desktop.answers = {vbYes};
    ChooseMenu("mnuRecent_0");
    EXPECT_TRUE(asked);
    EXPECT_TRUE(desktop.Texts().first().startsWith(QStringLiteral("The game 'Gone.gam' isn't in '")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
}

TEST_F(EditMenuTest, ARecentGameThatIsAwayIsGreyedAndChosenAllTheSame) {
    StartWith(QStringLiteral("Mine.gam"));
    RecentGames::Note(InGames(QStringLiteral("Gone.gam")));
    RecentGames::Note(InGames(QStringLiteral("Mine.gam")));
    Entries("mnuRecent");
    QMenu& menu = *Find<QAction>("mnuRecent").menu<QMenu*>();
    menu.popup(QPoint(0, 0));
    const QImage shown = menu.grab().toImage();
    const auto darkest = [&](const char* entry) {
        const QRect place = menu.actionGeometry(&Find<QAction>(entry));
        int gray = 255;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                gray = std::min(gray, qGray(shown.pixel(x, y)));
        }
        return gray;
    };
    EXPECT_GT(darkest("mnuRecent_1"), darkest("mnuRecent_0") + 40) << "greyed";
    EXPECT_TRUE(CanBeChosen("mnuRecent_1"));
    menu.close();
}

TEST_F(EditMenuTest, AGameThatIsFoundAgainStandsInTheListAtItsNewPlace) {
    StartWith(QStringLiteral("Mine.gam"));
    const QString found = InGames(QStringLiteral("Found.gam"));
    WriteGame(QStringLiteral("Found.gam"), QStringLiteral("Found"));
    RecentGames::Note(QStringLiteral("/away/Gone.gam"));
    Entries("mnuRecent");
    QString asked;
    desktop.onDialog = [&](CommonDialog& dialog) {
        asked = dialog.sInitDir;
        EXPECT_EQ(dialog.sFileName, QStringLiteral("Gone.gam"));
        dialog.sFileName = found;
        return true;
    };
    desktop.answers = {vbYes};
    ChooseMenu("mnuRecent_0");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Found"));
    EXPECT_TRUE(QFileInfo::exists(asked)) << "the one that it lay in is gone";
    EXPECT_EQ(RecentGames::List(), Strings{found});
}

TEST_F(EditMenuTest, AGameThatIsNotFoundStaysInTheList) {
    StartWith(QStringLiteral("Mine.gam"));
    RecentGames::Note(QStringLiteral("/away/Gone.gam"));
    Entries("mnuRecent");
    desktop.answers = {vbNo};
    ChooseMenu("mnuRecent_0");
    EXPECT_EQ(RecentGames::List(), Strings{QStringLiteral("/away/Gone.gam")});
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
}

TEST_F(EditMenuTest, TenRecentGamesAreKept) {
    StartWith(QStringLiteral("Mine.gam"));
    for (int i = 0; i < 12; ++i)
        RecentGames::Note(QStringLiteral("/g/%1.gam").arg(i));
    RecentGames::Note(QStringLiteral("/g/5.gam"));
    const Strings paths = RecentGames::List();
    ASSERT_EQ(paths.size(), 10);
    EXPECT_EQ(paths.first(), QStringLiteral("/g/5.gam"));
    EXPECT_EQ(paths.count(QStringLiteral("/g/5.gam")), 1);
    EXPECT_EQ(paths.last(), QStringLiteral("/g/2.gam"));
}

} // namespace
