// SPDX-License-Identifier: MIT
#include "BrowseFixture.h"

#include "services/basCommon.h"
#include "windowing/PhotoGrid.h"

#include <QElapsedTimer>
#include <QPushButton>

namespace {

constexpr int kArrivalMs = 5000;

class BrowseGridTest : public BrowseTest {
protected:
    BrowseGridTest() { basCommon::InitIniPath(); }
    ~BrowseGridTest() override { basCommon::ResetForTest(); }
};

TEST_F(BrowseGridTest, SmallPicturesStandBesideTheListAndChooseInIt) {
    Picture(QStringLiteral("cat.bmp"));
    const QString dog = Picture(QStringLiteral("dog.bmp"));
    const QString chosen = Browse(QString(), [&](QWidget& window) {
        auto& grid = Find<PhotoGrid>(window, "lstGrid");
        EXPECT_EQ(grid.model()->rowCount(), 2);
        EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.Made() == 2; }, kArrivalMs));
        Q_EMIT grid.clicked(grid.model()->index(1, 0));
        EXPECT_EQ(Text(window, "lblFullFilePath"), dog);
        EXPECT_EQ(Find<QListWidget>(window, "filList").currentRow(), 1);
        ClickFile(window, QStringLiteral("cat.bmp"));
        EXPECT_TRUE(grid.Current().endsWith(QStringLiteral("cat.bmp")));
        Q_EMIT grid.clicked(grid.model()->index(1, 0));
        Click(window, "cmdOK");
    });
    EXPECT_EQ(chosen, dog);
}

TEST_F(BrowseGridTest, ARefusedFileCantBeTakenAndAGoodOneCan) {
    WriteFile(QStringLiteral("bad.jpg"), QByteArray("no picture at all"));
    const QString good = Picture(QStringLiteral("good.bmp"));
    EXPECT_EQ(Browse(QString(),
                     [](QWidget& window) {
                         ClickFile(window, QStringLiteral("bad.jpg"));
                         EXPECT_TRUE(QTest::qWaitFor(
                             [&window] { return !Find<QPushButton>(window, "cmdOK").isEnabled(); }, kArrivalMs));
                         ClickFile(window, QStringLiteral("bad.jpg"), true);
                         EXPECT_TRUE(window.isVisible()) << "nor by a double click";
                         ClickFile(window, QStringLiteral("good.bmp"));
                         EXPECT_TRUE(Find<QPushButton>(window, "cmdOK").isEnabled());
                         Click(window, "cmdOK");
                     }),
              good);
}

TEST_F(BrowseGridTest, FolderAndKindsAreKeptOverStarts) {
    frmBrowse::ReadSettings();
    QDir(folder.path()).mkpath(QStringLiteral("cats"));
    Picture(QStringLiteral("cats/cat.bmp"));
    Browse(
        QString(),
        [](QWidget& window) {
            auto& filter = Find<QComboBox>(window, "cboFilter");
            filter.setFocus();
            QTest::keyClick(&filter, Qt::Key_Up);
            ClickFile(window, QStringLiteral("cat.bmp"), true);
        },
        true, PathOf(QStringLiteral("cats")));
    frmBrowse::ResetForTest();
    frmBrowse::ReadSettings();
    Browse(QString(), [this](QWidget& window) {
        EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("cats")));
        EXPECT_EQ(Find<QComboBox>(window, "cboFilter").currentIndex(), 0);
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseGridTest, OneClickOpensAFolder) {
    Picture(QStringLiteral("stick/sub/cat.bmp"));
    Browse(
        QString(),
        [this](QWidget& window) {
            auto& tree = Find<QTreeWidget>(window, "dirList");
            QTreeWidgetItem* const sub = tree.findItems(QStringLiteral("sub"), Qt::MatchRecursive).value(0);
            ASSERT_TRUE(sub);
            QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(sub).center());
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick/sub")));
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("stick")));
}

TEST_F(BrowseGridTest, AFolderOf3000OpensAndScrollsWithoutAGap) {
    constexpr int kMany = 3000;
    QDir(folder.path()).mkpath(QStringLiteral("many"));
    const QString first = Picture(QStringLiteral("many/0.bmp"));
    for (int i = 1; i < kMany; ++i)
        QFile::link(first, PathOf(QStringLiteral("many/%1.bmp").arg(i)));
    qint64 longest = 0;
    Browse(
        QString(),
        [&](QWidget& window) {
            auto& grid = Find<PhotoGrid>(window, "lstGrid");
            EXPECT_EQ(grid.model()->rowCount(), kMany);
            for (int step = 1; step <= 40; ++step) {
                QElapsedTimer turn;
                turn.start();
                Find<QListWidget>(window, "filList").setCurrentRow(step * 70);
                QCoreApplication::processEvents();
                longest = std::max(longest, turn.elapsed());
            }
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("many")));
    RecordProperty("longest_gap_ms", int(longest));
    EXPECT_LT(longest, 100);
}

} // namespace
