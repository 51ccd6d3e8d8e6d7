// SPDX-License-Identifier: MIT
// File, Earlier Versions: what the saves of a game have replaced, and one of them as a new game.
#include "AppFixture.h"

#include "game/EarlierVersions.h"

#include <QLabel>
#include <QListWidget>

namespace {

class EarlierVersionsWindowTest : public AppTest {
protected:
    EarlierVersionsWindowTest() {
        WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("As saved"));
        SetIni(QStringLiteral("GameName"), game);
        Start();
        SaveWith(QStringLiteral("Once"), 0);
        SaveWith(QStringLiteral("Twice"), 1);
    }
    void SaveWith(const QString& text, int minute) {
        // What is replaced bears the time of its own save.
        QFile file(game);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime(QDate(2026, 3, 9), QTime(20, minute)), QFileDevice::FileModificationTime);
        file.close();
        Edit(text);
        ChooseMenu("mnuFile_3");
        QCoreApplication::processEvents();
    }
    void Show(const std::function<void(QDialog&, QListWidget&)>& act) {
        WithModal("frmEarlierVersions", [act](QWidget& modal) {
            act(dynamic_cast<QDialog&>(modal), *modal.findChild<QListWidget*>(QStringLiteral("lstVersions")));
        });
        ChooseMenu("mnuFile_22");
    }
    static void Click(const QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
    // The sentence stands whole above the list, in as many lines as it takes.
    static void ExpectFolded(QDialog& dialog, QListWidget& list) {
        const auto& sentence = *dialog.findChild<QLabel*>(QStringLiteral("lblMain"));
        EXPECT_EQ(dialog.width(), 480);
        EXPECT_EQ(sentence.width(), list.width());
        EXPECT_GE(sentence.height(), sentence.heightForWidth(sentence.width()));
        EXPECT_GE(sentence.height(), 2 * sentence.fontMetrics().height());
    }
    QString Name() const { return window->Commands().InHand().GameName(); }
    const QString game = InGames(QStringLiteral("Mine.gam"));
};

TEST_F(EarlierVersionsWindowTest, ListsTheStatesByDateTheLatestFirstWithTheirBoards) {
    Show([](QDialog& dialog, QListWidget& list) {
        EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblMain"))->text(),
                  QStringLiteral("Click a version to open it as a new game. 'Mine.gam' stays as it is."));
        ASSERT_EQ(list.count(), 2);
        EXPECT_EQ(list.item(0)->text(), QLocale::system().toString(QDate(2026, 3, 9), QLocale::LongFormat) +
                                            QStringLiteral(", ") +
                                            QLocale::system().toString(QTime(20, 1), QLocale::ShortFormat));
        const QImage drawn = list.item(0)->icon().pixmap(96).toImage();
        const QImage undrawn = list.item(1)->icon().pixmap(96).toImage();
        EXPECT_EQ(drawn.pixelColor(48, 40).alpha(), 255) << "the board of a save that this program made";
        EXPECT_EQ(undrawn.pixelColor(48, 40).alpha(), 0) << "nobody has drawn the board of the first";
        EXPECT_EQ(undrawn.size(), drawn.size());
    });
    EXPECT_EQ(Name(), game) << "closed without a choice, nothing happens";
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(EarlierVersionsWindowTest, OneClickOpensOneAsAnUnsavedNewGame) {
    Show([](QDialog&, QListWidget& list) { Click(list, 0); });
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Once"));
    EXPECT_EQ(Name(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(HasAutosave());
    EXPECT_TRUE(ReadFile(game).contains("\"Twice\"")) << "the game itself stays";
    EXPECT_EQ(EarlierVersions::Of(game).size(), 2);
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Once")) << "a crash doesn't lose it";
}

// The save that the question offers keeps one state more, and thins out another.
TEST_F(EarlierVersionsWindowTest, TheOneChosenOpensThoughTheSaveBeforeItThinsItOut) {
    for (int minute = 2; minute < 21; ++minute)
        SaveWith(QStringLiteral("Save %1").arg(minute), minute);
    const QList<EarlierVersions::Version> versions = EarlierVersions::Of(game);
    ASSERT_EQ(versions.size(), EarlierVersions::kMost);
    QList<qint64> ages = {0};
    for (const EarlierVersions::Version& version : versions)
        ages.append(version.when.secsTo(QDateTime::currentDateTime()));
    const qsizetype thinned = EarlierVersions::TooMany(ages).first() - 1;
    Edit(QStringLiteral("Unsaved"));
    desktop.answers = {vbYes};
    Show([thinned](QDialog&, QListWidget& list) { Click(list, int(thinned)); });
    EXPECT_TRUE(ReadFile(game).contains("\"Unsaved\""));
    EXPECT_EQ(EarlierVersions::Of(game).size(), EarlierVersions::kMost + 1) << "brought back";
    EXPECT_TRUE(ReadFile(versions[thinned].sPath).contains(TextOfSpace4().toUtf8()));
}

TEST_F(EarlierVersionsWindowTest, AMagnifiedBoardIsKeptWholeToo) {
    ChooseMenu("mnuZoom_3");
    SaveWith(QStringLiteral("Magnified"), 2);
    ChooseMenu("mnuZoom_0");
    SaveWith(QStringLiteral("Whole"), 3);
    SaveWith(QStringLiteral("Last"), 4);
    Show([](QDialog&, QListWidget& list) {
        const QImage whole = list.item(0)->icon().pixmap(96).toImage();
        const QImage magnified = list.item(1)->icon().pixmap(96).toImage();
        int same = 0;
        for (int y = 0; y < 96; y += 4) {
            for (int x = 0; x < 96; x += 4)
                same += std::abs(qGray(whole.pixel(x, y)) - qGray(magnified.pixel(x, y))) < 48 ? 1 : 0;
        }
        EXPECT_GT(same, 24 * 24 * 8 / 10);
    });
}

TEST_F(EarlierVersionsWindowTest, TheKeyboardOpensOneToo) {
    Show([](QDialog&, QListWidget& list) {
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
}

TEST_F(EarlierVersionsWindowTest, EscapeAndCancelChangeNothing) {
    Show([](QDialog& dialog, QListWidget& list) {
        QTest::keyClick(&list, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    Show([](QDialog& dialog, QListWidget&) { ClickIn(dialog, "cmdCancel"); });
    EXPECT_EQ(Name(), game);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Twice"));
}

TEST_F(EarlierVersionsWindowTest, UnsavedChangesAreAskedAboutAndCancelKeepsThem) {
    Edit(QStringLiteral("Thrice"));
    desktop.answers = {vbCancel};
    Show([](QDialog&, QListWidget& list) { Click(list, 1); });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Thrice"));
    EXPECT_EQ(Name(), game);
}

TEST_F(EarlierVersionsWindowTest, AGameWithoutAnySaysSo) {
    ChooseMenu("mnuFile_0");
    Show([](QDialog& dialog, QListWidget& list) {
        EXPECT_EQ(list.count(), 0);
        EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblMain"))->text(),
                  QStringLiteral("There is no earlier version of this game yet. Each save keeps the one that it "
                                 "replaces."));
        ExpectFolded(dialog, list);
    });
}

TEST_F(EarlierVersionsWindowTest, ALongNameMakesTheWindowNoWider) {
    const QString name = QStringLiteral("The long story of our town, its streets and all of us.gam");
    desktop.onDialog = [&](CommonDialog& dialog) {
        dialog.sFileName = InGames(name);
        return true;
    };
    ChooseMenu("mnuFile_4");
    Edit(QStringLiteral("Thrice"));
    ChooseMenu("mnuFile_3");
    Show([](QDialog& dialog, QListWidget& list) {
        EXPECT_EQ(list.count(), 1);
        ExpectFolded(dialog, list);
    });
}

TEST_F(EarlierVersionsWindowTest, SavingLeavesTheWindowsBoardAsItWas) {
    const QImage before = window->View().Board().Image();
    Edit(TextOfSpace4());
    ChooseMenu("mnuFile_3");
    EXPECT_EQ(window->View().Board().Image(), before);
}

} // namespace
