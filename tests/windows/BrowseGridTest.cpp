// SPDX-License-Identifier: MIT
#include "BrowseFixture.h"

#include "services/basCommon.h"
#include "support/ReadsOfThisThread.h"
#include "support/ThreadTime.h"
#include "support/Waiting.h"
#include "windowing/PhotoGrid.h"

#include <QPushButton>

namespace {

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
        EXPECT_TRUE(Comes([&grid] { return grid.Made() == 2; }));
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
                         EXPECT_TRUE(Comes([&window] { return !Find<QPushButton>(window, "cmdOK").isEnabled(); }));
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

TEST_F(BrowseGridTest, TheFirstTimeItOpensInPictures) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toUtf8());
    const QString pictures = Folders::Pictures();
    QDir().mkpath(pictures);
    Browse(
        QString(),
        [&](QWidget& window) {
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), pictures);
            Click(window, "cmdCancel");
        },
        true, basCommon::GetMyGamesDirectory());
    qputenv("HOME", home);
}

TEST_F(BrowseGridTest, ThePictureInUseIsListedWhateverKindsWereChosenLast) {
    const auto chooseUsualKinds = [](QWidget& window) {
        auto& filter = Find<QComboBox>(window, "cboFilter");
        filter.setFocus();
        QTest::keyClick(&filter, Qt::Key_Up);
        Click(window, "cmdCancel");
    };
    const QString inUse =
        WriteFile(QStringLiteral("dog.png"), PictureFiles::Encoded(PictureFiles::Quarters(40, 40), "png"));
    Browse(QString(), chooseUsualKinds, true, folder.path());
    EXPECT_EQ(Browse(inUse,
                     [](QWidget& window) {
                         EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("dog.png")});
                         EXPECT_EQ(Find<QListWidget>(window, "filList").currentRow(), 0);
                         Click(window, "cmdOK");
                     }),
              inUse);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(BrowseGridTest, ASlowPreviewSaysThatItIsLoading) {
    QImage large(6000, 6000, QImage::Format_RGB32);
    large.fill(Qt::red);
    WriteFile(QStringLiteral("large.png"), PictureFiles::Encoded(large, "png"));
    Browse(QString(), [](QWidget& window) {
        ClickFile(window, QStringLiteral("large.png"));
        const QImage shown = Find<PictureBox>(window, "picBitMapArea").Image();
        int grey = 0;
        for (int x = 0; x < shown.width(); ++x)
            for (int y = shown.height() / 3; y < shown.height() * 2 / 3; ++y)
                grey += qGray(shown.pixel(x, y)) < 128 ? 1 : 0;
        EXPECT_GT(grey, 20) << "words in the middle";
        const int side = shown.width();
        EXPECT_LT(grey, side * side / 20) << "and no picture yet";
        EXPECT_TRUE(Comes([&] { return ColorAt(window, 20, 20) == Color::Rgb(255, 0, 0); }));
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
    double longest = 0;
    constexpr int kSteps = 40;
    const ReadsOfThisThread reads;
    Browse(
        QString(),
        [&](QWidget& window) {
            auto& grid = Find<PhotoGrid>(window, "lstGrid");
            EXPECT_EQ(grid.model()->rowCount(), kMany);
            for (int step = 1; step <= kSteps; ++step) {
                const double before = ThreadMilliseconds();
                Find<QListWidget>(window, "filList").setCurrentRow(step * 70);
                QCoreApplication::processEvents();
                longest = std::max(longest, ThreadMilliseconds() - before);
            }
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("many")));
    RecordProperty("longest_gap_ms", int(longest));
    EXPECT_LE(reads.Count(), 2 * kSteps) << "the window reads only what is chosen";
}

} // namespace
