// SPDX-License-Identifier: MIT
// Check My Game from the main window: what it lists, and where it leads.
#include "AppFixture.h"

#include "windows/check/frmCheck.h"

#include <QLabel>
#include <QRubberBand>
#include <QTreeWidget>

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
    QTreeWidget& List() const { return Find<QTreeWidget>("tvwFindings"); }
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
    QString Summary() const { return Find<QLabel>("lblSummary").text(); }
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
    EXPECT_TRUE(QTest::qWaitFor([&] { return Rows() == QStringList{kEmptySpace}; }, 2000));
    InHand().Undo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Rows().isEmpty(); }, 2000));
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
    EXPECT_FALSE(Find<QPushButton>("cmdNoProblem").isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdTellAll").isEnabled());
    List().setCurrentItem(List().topLevelItem(0)->child(0));
    Find<QPushButton>("cmdNoProblem").click();
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
    Find<QPushButton>("cmdTellAll").click();
    EXPECT_EQ(Rows().size(), 2);
}
