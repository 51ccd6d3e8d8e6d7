// SPDX-License-Identifier: MIT
// Check My Game from the main window: what it lists, and where it leads.
#include "AppFixture.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/Waiting.h"

#include "windowing/CountLight.h"
#include "windows/check/frmCheck.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMenuBar>
#include <QRubberBand>
#include <QTreeWidget>

#include <iostream>

namespace {

class CheckWindowTest : public AppTest {
protected:
    CheckWindowTest() {
        WriteGame(QStringLiteral("Ours.gam"), QStringLiteral("Ours"));
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Ours.gam")));
        Start();
        window->show();
    }
    Session& InHand() const { return window->Commands().InHand(); }
    void EditSpace(int iSpace, const QString& text) const {
        C_Space space = InHand().InHand().spaces[size_t(iSpace)];
        space.SetText(text);
        InHand().Do(Edits::OfSpace(InHand().InHand(), iSpace, space));
    }
    frmCheck& OpenList() const {
        ChooseMenu("mnuEdit_3");
        return Find<frmCheck>("frmCheck");
    }
    QTreeWidget& List() const { return OfWindow<QTreeWidget>("tvwFindings"); }
    /// Of the window, as the panel has a list with the same names.
    template <typename Control>
    Control& OfWindow(const char* name) const {
        return ::Find<Control>(Find<frmCheck>("frmCheck"), name);
    }
    /// The pieces, each with its findings behind it.
    QStringList Rows() const {
        QStringList rows;
        for (int i = 0; i < List().topLevelItemCount(); ++i) {
            const QTreeWidgetItem& piece = *List().topLevelItem(i);
            for (int row = 0; row < piece.childCount(); ++row)
                rows.append(piece.text(0) + QStringLiteral(": ") + piece.child(row)->text(0));
        }
        return rows;
    }
    QString Summary() const { return OfWindow<QLabel>("lblSummary").text(); }
    const QString kEmptySpace = QStringLiteral("Space 6: Mend it");
};

} // namespace

TEST_F(CheckWindowTest, ListsWhatThereIsToMend) {
    EditSpace(5, QString());
    OpenList();
    EXPECT_EQ(Rows(), QStringList{kEmptySpace});
    EXPECT_EQ(Summary(), QStringLiteral("1 thing to look at."));
}

TEST_F(CheckWindowTest, AGoodGameHasAnEmptyList) {
    OpenList();
    EXPECT_EQ(Rows(), QStringList());
    EXPECT_EQ(Summary(), QStringLiteral("Nothing to look at."));
}

TEST_F(CheckWindowTest, FollowsEachEdit) {
    OpenList();
    EditSpace(5, QString());
    EXPECT_TRUE(Comes([&] { return Rows() == QStringList{kEmptySpace}; }));
    InHand().Undo();
    EXPECT_TRUE(Comes([&] { return Rows().isEmpty(); }));
}

TEST_F(CheckWindowTest, AClickShowsThePieceAndADoubleClickOpensIt) {
    EditSpace(5, QString());
    OpenList();
    auto& frame = Find<QRubberBand>("frmShownPlace");
    EXPECT_FALSE(frame.isVisible());
    QTreeWidgetItem* const row = List().topLevelItem(0)->child(0);
    List().setCurrentItem(row);
    EXPECT_TRUE(frame.isVisible());
    const basPosit::BoardRect& space = basPosit::m_SpaceRect(5, basPosit::SpacePart::Whole);
    const int side = window->View().Board().width();
    EXPECT_NEAR(frame.geometry().center().x(), (space.x1 + space.x2) / 2 * float(side), 2);
    EXPECT_NEAR(frame.geometry().center().y(), (space.y1 + space.y2) / 2 * float(side), 2);
    Q_EMIT List().itemActivated(row, 0);
    EXPECT_EQ(routes.Take(), QStringList{QStringLiteral("space 5")});
}

TEST_F(CheckWindowTest, WhatIsNoProblemStaysAwayInThisGame) {
    EditSpace(5, QString());
    OpenList();
    EXPECT_FALSE(OfWindow<QPushButton>("cmdNoProblem").isEnabled());
    EXPECT_FALSE(OfWindow<QPushButton>("cmdTellAll").isEnabled());
    List().setCurrentItem(List().topLevelItem(0)->child(0));
    OfWindow<QPushButton>("cmdNoProblem").click();
    EXPECT_EQ(Rows(), QStringList());
    EditSpace(6, QString());
    OpenList();
    EXPECT_EQ(Rows(), QStringList{QStringLiteral("Space 7: Mend it")}) << "another one is told";
    InHand().SetGameName(InGames(QStringLiteral("Other.gam")));
    OpenList();
    EXPECT_EQ(Rows().size(), 2) << "another game";
    InHand().SetGameName(InGames(QStringLiteral("Ours.gam")));
    OpenList();
    EXPECT_EQ(Rows().size(), 1);
    OfWindow<QPushButton>("cmdTellAll").click();
    EXPECT_EQ(Rows().size(), 2);
}

TEST_F(CheckWindowTest, ShowMeOpensTheListAtWhatIsMeant) {
    EditSpace(5, QString());
    EditSpace(6, QString());
    window->Commands().InHand().Save();
    PrintQuestion::Answer answer = PrintQuestion::Answer::Cancel;
    routes.onEdit = [&] {
        ModalSteps person;
        person.In("frmBeforePrint", [](QWidget& question) {
            auto& rows = ::Find<QTreeWidget>(question, "tvwFindings");
            rows.setCurrentItem(rows.topLevelItem(1)->child(0));
            Click(question, "cmdShowMe");
        });
        answer = window->Check().BeforePrinting({QStringLiteral("west")}, window.get());
        return false;
    };
    window->mnuFile_Click(7);
    EXPECT_EQ(answer, PrintQuestion::Answer::ShowMe);
    EXPECT_TRUE(Find<frmCheck>("frmCheck").isVisible());
    EXPECT_EQ(List().currentItem()->parent()->text(0), QStringLiteral("Space 7"));
    EXPECT_TRUE(Find<QRubberBand>("frmShownPlace").isVisible()) << "and the board shows it";
}

TEST_F(CheckWindowTest, TheLightTellsHowMuchThereIsToMendAndOpensTheList) {
    auto& light = Find<CountLight>("CountLight");
    EXPECT_TRUE(light.isVisible());
    EXPECT_TRUE(Comes([&] { return light.Count() == 0; }));
    EXPECT_EQ(light.accessibleName(), QStringLiteral("Nothing to look at. Click for the list."));
    EditSpace(5, QString());
    EditSpace(6, QString());
    EXPECT_TRUE(Comes([&] { return light.Count() == 2; }));
    EXPECT_EQ(light.toolTip(), QStringLiteral("2 things to look at. Click for the list."));
    QTest::mouseClick(&light, Qt::LeftButton);
    EXPECT_TRUE(Find<frmCheck>("frmCheck").isVisible());
    EXPECT_EQ(Rows().size(), 2);
}

TEST_F(CheckWindowTest, TheLightTellsOfAPictureThatBreaksOffOnceItIsDecodedAside) {
    auto& light = Find<CountLight>("CountLight");
    EXPECT_TRUE(Comes([&] { return light.Count() == 0; }));
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "jpg");
    Game after = InHand().InHand();
    after.tokens[2].SetImagePath(WriteFile(QStringLiteral("half.jpg"), whole.left(whole.size() / 2)));
    InHand().Do({QStringLiteral("A Picture"), after});
    EXPECT_TRUE(Comes([&] { return light.Count() == 1; }));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(CheckWindowTest, TheLightLeavesTheMenuBarAsHighAsItIs) {
    const int with = window->menuBar()->sizeHint().height();
    window->menuBar()->setCornerWidget(nullptr);
    EXPECT_EQ(with, window->menuBar()->sizeHint().height());
}

// Edits that come faster than anybody pauses must not put the check off, and each slice of it has to be short.
TEST_F(CheckWindowTest, TheLightFollowsWhileEditsGoOnComing) {
    auto& light = Find<CountLight>("CountLight");
    EXPECT_TRUE(Comes([&] { return light.Count() == 0; }));
    QElapsedTimer since;
    since.start();
    EditSpace(5, QString());
    bool seen = false;
    for (int edit = 0; edit < 200 && !seen; ++edit) {
        EditSpace(6, QStringLiteral("Edit %1").arg(edit));
        QTest::qWait(10);
        seen = light.Count() == 1;
    }
    EXPECT_TRUE(seen);
    std::cout << "the light followed an edit after " << since.elapsed() << " ms\n";
}

TEST_F(CheckWindowTest, FixMendsWithOneStepThatCanBeUndone) {
    const QString name = QStringLiteral("The old lane behind the mill of Ada");
    EditSpace(5, name);
    OpenList();
    ASSERT_EQ(Rows().size(), 1);
    EXPECT_FALSE(OfWindow<QPushButton>("cmdFix").isEnabled()) << "nothing is chosen";
    List().setCurrentItem(List().topLevelItem(0)->child(0));
    OfWindow<QPushButton>("cmdFix").click();
    EXPECT_EQ(Rows(), QStringList());
    EXPECT_GT(InHand().InHand().spaces[5].TextArray().size(), 1);
    EXPECT_EQ(InHand().UndoName(), QStringLiteral("Name of ") + name);
    InHand().Undo();
    EXPECT_EQ(InHand().InHand().spaces[5].TextAll(), name);
}

TEST_F(CheckWindowTest, FixOfAPictureThatIsAwayLeadsToAllThatAreAway) {
    Game after = InHand().InHand();
    after.spaces[4].SetImagePath(InGames(QStringLiteral("gone/first.png")));
    after.spaces[5].SetImagePath(InGames(QStringLiteral("gone/second.png")));
    InHand().Do({QStringLiteral("Two Pictures"), after});
    OpenList();
    List().setCurrentItem(List().topLevelItem(1)->child(0));
    QString chosen;
    ModalSteps steps;
    steps.OnceIn("frmMissingPictures", [&chosen](QWidget& missing) {
        const auto& list = ::Find<QTreeWidget>(missing, "lstMissing");
        EXPECT_EQ(list.topLevelItemCount(), 2);
        chosen = list.currentItem()->text(1);
    });
    OfWindow<QPushButton>("cmdFix").click();
    EXPECT_TRUE(chosen.endsWith(QStringLiteral("second.png"))) << chosen.toStdString();
}

TEST_F(CheckWindowTest, FixIsGreyWhereAPersonIsNeeded) {
    EditSpace(5, QString());
    OpenList();
    List().setCurrentItem(List().topLevelItem(0)->child(0));
    EXPECT_FALSE(OfWindow<QPushButton>("cmdFix").isEnabled());
}

TEST_F(CheckWindowTest, TheListStandsBesideTheBoardWhereThereIsRoom) {
    window->resize(1300, 700);
    QApplication::processEvents();
    EditSpace(5, QString());
    ChooseMenu("mnuEdit_3");
    EXPECT_FALSE(window->findChild<frmCheck*>(QStringLiteral("frmCheck")));
    EXPECT_TRUE(Find<CheckList>(CheckList::kName).isVisible());
    auto& rows = ::Find<QTreeWidget>(Find<CheckList>(CheckList::kName), "tvwFindings");
    EXPECT_EQ(rows.topLevelItemCount(), 1);
}
