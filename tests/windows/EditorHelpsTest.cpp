// SPDX-License-Identifier: MIT
// What an editor says of itself: which piece it edits, what a button is for, and where long findings go on.
#include "check/Finding.h"
#include "support/EditorFixture.h"
#include "support/Waiting.h"
#include "windowing/WidgetLook.h"
#include "windows/check/FindingTree.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditNews.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmEditToken.h"
#include "windows/editors/TipLabel.h"

#include <QLabel>
#include <QPushButton>

namespace {

using EditorHelpsTest = EditorTest;

QString PlaceIn(QDialog& form) { return form.findChild<QLabel*>(QStringLiteral("lblPlace"))->text(); }

// Below one another, as the buttons of the editors stand.
class TipLabelTest : public TavloraTest {
protected:
    TipLabelTest() {
        window.resize(400, 200);
        first.setGeometry(250, 20, 140, 30);
        second.setGeometry(250, 55, 140, 30);
        window.show();
    }

    QWidget window;
    QPushButton first{&window};
    QPushButton second{&window};
    TipLabel tip{"txtToolTip", &window};
};

} // namespace

TEST_F(EditorHelpsTest, WhichPieceIsEditedStandsInTheWindow) {
    WhenModal([](QDialog& form) {
        EXPECT_EQ(PlaceIn(form), QStringLiteral("Space 4 of 28"));
        EXPECT_TRUE(Find<QWidget>(form, "txtHoldFocus").accessibleName().startsWith(QStringLiteral("Space 4 of 28: ")));
    });
    frmEditSpace(session).Ask(3);
    WhenModal([](QDialog& form) { EXPECT_EQ(PlaceIn(form), QStringLiteral("Corner 2 of 4")); });
    frmEditCorner(session).Ask(1);
    WhenModal([](QDialog& form) { EXPECT_EQ(PlaceIn(form), QStringLiteral("Token 6 of 6")); });
    frmEditToken(session).Ask(5);
    WhenModal([](QDialog& form) { EXPECT_EQ(PlaceIn(form), QStringLiteral("Card 12 of 12")); });
    frmEditNews(session).Ask(1, 11);
}

TEST_F(TipLabelTest, OfAButtonComesAfterAWhileAndBesideItsNeighbours) {
    tip.ShowBeside(QStringLiteral("Change font and max size"), first);
    EXPECT_FALSE(tip.isVisible()) << "the mouse may only pass";
    EXPECT_TRUE(Comes([this] { return tip.isVisible(); }));
    EXPECT_FALSE(tip.geometry().intersects(first.geometry()));
    EXPECT_FALSE(tip.geometry().intersects(second.geometry()));
}

TEST_F(TipLabelTest, DoesNotComeWhenTheMouseHasLeft) {
    tip.ShowBeside(QStringLiteral("Change font and max size"), first);
    tip.ShowAt(QString(), {});
    QTest::qWait(1000);
    EXPECT_FALSE(tip.isVisible());
}

TEST_F(EditorHelpsTest, LongFindingsGoOnInFurtherLines) {
    const QString text = QStringLiteral("The photo of this space is not where the game looks for it any more, and on "
                                        "paper its place will be left empty unless it is found again.");
    FindingTree tree;
    tree.Fill(session.InHand(),
              {{QStringLiteral("picture-missing"), Severity::Must, GamePiece::Space(3), text, text, {}}});
    tree.resize(700, 300);
    tree.show();
    const auto heightOfSentence = [&] {
        QTest::qWait(50);
        const QTreeWidgetItem& row = *tree.topLevelItem(0)->child(0);
        return tree.visualItemRect(&row).height();
    };
    const int wide = heightOfSentence();
    tree.resize(320, 300);
    EXPECT_GE(heightOfSentence(), wide + 2 * tree.fontMetrics().height());
    tree.resize(700, 300);
    EXPECT_EQ(heightOfSentence(), wide);
}

TEST(WidgetLookTest, ACaptionIsWrittenSmallerRatherThanCut) {
    QPushButton button(QStringLiteral("A caption of some length"));
    const double plain = button.font().pointSizeF();
    button.resize(button.fontMetrics().horizontalAdvance(button.text()) * 3 / 4, 30);
    WidgetLook::FitCaption(button);
    EXPECT_LT(button.font().pointSizeF(), plain);
    EXPECT_LE(button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width(), button.width());
    WidgetLook::UnfitCaption(button);
    EXPECT_EQ(button.font().pointSizeF(), plain);
}
