// SPDX-License-Identifier: MIT
#include "windows/photos/frmDealPhotos.h"
#include "windows/photos/PhotoTab.h"

#include "document/basTAVL.h"
#include "game/DealtPhotos.h"
#include "game/PieceImages.h"
#include "platform/files/Files.h"
#include "platform/files/TemporaryPlaces.h"
#include "services/basCommon.h"
#include "support/EditorFixture.h"
#include "support/PictureFiles.h"
#include "support/ReadsOfThisThread.h"
#include "support/ThreadTime.h"
#include "support/Waiting.h"
#include "windowing/PhotoGrid.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QUrl>

namespace {

class PhotosTest : public EditorTest {
protected:
    PhotosTest() {
        basCommon::InitIniPath();
        for (C_Space& space : TheGame().spaces)
            space.SetImagePath(QString());
        QDir(folder.path()).mkdir(QStringLiteral("photos"));
    }
    ~PhotosTest() override { basCommon::ResetForTest(); }
    /// "photo 0.png" and so on.
    void MakePhotos(int count) const {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QByteArray bytes = PictureFiles::Encoded(image, "png");
        for (int i = 0; i < count; ++i)
            WriteFile(QStringLiteral("photos/place %1.png").arg(i), bytes);
    }
    QString Photos() const { return PathOf(QStringLiteral("photos")); }
    template <typename Control>
    static Control& In(QWidget& window, const char* name) {
        return *window.findChild<Control*>(QString::fromLatin1(name));
    }
    static void WaitFor(QWidget& window) {
        EXPECT_TRUE(
            Comes([&window] { return !In<QLabel>(window, "lblState").text().startsWith(QStringLiteral("Looking")); }));
    }
    static QString Caption(PhotoGrid& grid, int row) {
        return grid.model()->index(row, 0).data(Qt::DisplayRole).toString();
    }
    /// Acts in the window while it stands.
    bool InWindow(const std::function<void(frmDealPhotos&)>& act) {
        frmDealPhotos window(session);
        QTimer::singleShot(0, &window, [&] {
            window.ShowFolder(Photos());
            WaitFor(window);
            act(window);
            if (window.isVisible()) window.reject();
        });
        return window.ShowForm();
    }
};

TEST_F(PhotosTest, AFolderIsDealtInOneStepAndAClickLeavesOneOut) {
    MakePhotos(60);
    WriteFile(QStringLiteral("photos/letter.jpg"), "Dear Grandma");
    const int free = int(DealtPhotos::FreePlaces(TheGame(), false).size());
    EXPECT_TRUE(InWindow([&](frmDealPhotos& window) {
        In<QComboBox>(window, "cboOrder").setCurrentIndex(1);
        Q_EMIT In<QComboBox>(window, "cboOrder").activated(1);
        auto& grid = In<PhotoGrid>(window, "lstPhotos");
        EXPECT_EQ(grid.model()->rowCount(), 60) << "the letter is no photo";
        EXPECT_EQ(Caption(grid, free), QStringLiteral("no free place"));
        Q_EMIT grid.clicked(grid.model()->index(1, 0));
        EXPECT_EQ(Caption(grid, 1), QStringLiteral("left out"));
        EXPECT_NE(Caption(grid, free), QStringLiteral("no free place")) << "the others move up";
        EXPECT_EQ(In<QPushButton>(window, "cmdOK").text(), QStringLiteral("&Deal %1 Photos").arg(free));
        Click(window, "cmdOK");
    }));
    const auto places = DealtPhotos::FreePlaces(Game(), false);
    EXPECT_TRUE(PieceImages::Of(TheGame(), places[0]).FullPath().endsWith(QStringLiteral("place 0.png")));
    EXPECT_TRUE(PieceImages::Of(TheGame(), places[1]).FullPath().endsWith(QStringLiteral("place 2.png")));
    EXPECT_EQ(session.UndoName(), QStringLiteral("%1 Dealt Photos").arg(free));
    session.Undo();
    EXPECT_FALSE(session.CanUndo());
    EXPECT_EQ(PieceImages::Of(TheGame(), places[0]).FullPath(), QString());
}

TEST_F(PhotosTest, NamesOfFilesAreShownBeforeTheyAreGiven) {
    MakePhotos(1);
    EXPECT_TRUE(InWindow([&](frmDealPhotos& window) {
        auto& grid = In<PhotoGrid>(window, "lstPhotos");
        EXPECT_FALSE(Caption(grid, 0).contains(QStringLiteral("Place 0")));
        Click(window, "chkNames");
        EXPECT_TRUE(Caption(grid, 0).startsWith(QStringLiteral("Place 0\n"))) << Caption(grid, 0).toStdString();
        Click(window, "cmdOK");
    }));
    const auto places = DealtPhotos::FreePlaces(Game(), false);
    EXPECT_EQ(TheGame().spaces[size_t(places[0].iNumber)].TextAll(), QStringLiteral("Place 0"));
}

TEST_F(PhotosTest, APlaceWithoutANameIsToldByItsNumber) {
    MakePhotos(1);
    const int place = DealtPhotos::FreePlaces(TheGame(), false)[0].iNumber;
    TheGame().spaces[size_t(place)].SetText(QString());
    InWindow([&](frmDealPhotos& window) {
        EXPECT_EQ(Caption(In<PhotoGrid>(window, "lstPhotos"), 0), QStringLiteral("Space %1").arg(place + 1));
    });
}

TEST_F(PhotosTest, WhatThePiecesShowAlreadyIsLeftOutUntilItIsClicked) {
    MakePhotos(2);
    TheGame().spaces[4].SetImagePath(Photos() + QStringLiteral("/place 0.png"));
    EXPECT_FALSE(InWindow([&](frmDealPhotos& window) {
        auto& grid = In<PhotoGrid>(window, "lstPhotos");
        EXPECT_EQ(Caption(grid, 0), QStringLiteral("in use already"));
        EXPECT_EQ(In<QPushButton>(window, "cmdOK").text(), QStringLiteral("&Deal One Photo"));
        Q_EMIT grid.clicked(grid.model()->index(0, 0));
        EXPECT_EQ(In<QPushButton>(window, "cmdOK").text(), QStringLiteral("&Deal 2 Photos"));
    }));
}

TEST_F(PhotosTest, OneThatBreaksOffIsLeftOutAndTheOthersMoveUp) {
    MakePhotos(2);
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "jpg");
    WriteFile(QStringLiteral("photos/broken.jpg"), whole.left(whole.size() / 2));
    EXPECT_TRUE(InWindow([&](frmDealPhotos& window) {
        auto& grid = In<PhotoGrid>(window, "lstPhotos");
        EXPECT_EQ(grid.model()->rowCount(), 3);
        EXPECT_TRUE(Comes([&] {
            return In<QLabel>(window, "lblState")
                .text()
                .endsWith(QStringLiteral("One can't be shown, and is left out."));
        }));
        QStringList captions;
        for (int row = 0; row < 3; ++row)
            captions.append(Caption(grid, row));
        EXPECT_EQ(captions.count(QStringLiteral("can't be shown")), 1) << captions.join(u'|').toStdString();
        const int broken = int(captions.indexOf(QStringLiteral("can't be shown")));
        Q_EMIT grid.clicked(grid.model()->index(broken, 0));
        EXPECT_EQ(Caption(grid, broken), QStringLiteral("can't be shown")) << "a click doesn't bring it back";
        EXPECT_EQ(In<QPushButton>(window, "cmdOK").text(), QStringLiteral("&Deal 2 Photos"));
        Click(window, "cmdOK");
    }));
    EXPECT_EQ(PieceImages::Files(TheGame()).filter(QStringLiteral("broken")), QStringList());
    EXPECT_EQ(PieceImages::Files(TheGame()).filter(QStringLiteral("place")).size(), 2);
}

TEST_F(PhotosTest, OneThatBreaksOffOutOfSightIsFoundOutBeforeItIsDealt) {
    MakePhotos(1);
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "jpg");
    WriteFile(QStringLiteral("photos/broken.jpg"), whole.left(whole.size() / 2));
    EXPECT_TRUE(InWindow([&](frmDealPhotos& window) {
        // What is out of sight is never made small.
        In<PhotoGrid>(window, "lstPhotos").hide();
        window.ShowFolder(Photos());
        WaitFor(window);
        Click(window, "cmdOK");
        EXPECT_TRUE(window.isVisible()) << "to show what is dealt now";
        EXPECT_EQ(In<QPushButton>(window, "cmdOK").text(), QStringLiteral("&Deal One Photo"));
        Click(window, "cmdOK");
    }));
    EXPECT_EQ(PieceImages::Files(TheGame()).filter(QStringLiteral("broken")), QStringList());
}

TEST_F(PhotosTest, OneThatIsGoneTomorrowAndCantBeCopiedIsToldAndTheWindowStays) {
    MakePhotos(2);
    TemporaryPlaces::Pretend(Photos());
    EXPECT_FALSE(InWindow([&](frmDealPhotos& window) {
        Files::SetFaultHook([](Files::Operation operation, const QString& path) {
            const bool hit = operation == Files::Operation::Copy && path.contains(QStringLiteral("place 1"));
            return hit ? std::optional(QStringLiteral("The cable was pulled")) : std::nullopt;
        });
        Click(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
    }));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts().join(u'|').contains(QStringLiteral("place 1.png' to ")));
    EXPECT_TRUE(desktop.Texts().join(u'|').contains(QStringLiteral("The cable was pulled")));
    EXPECT_FALSE(session.CanUndo()) << "all or none of them";
    Files::SetFaultHook({});
    EXPECT_TRUE(InWindow([&](frmDealPhotos& window) { Click(window, "cmdOK"); }));
    EXPECT_EQ(PieceImages::Files(TheGame()).filter(QStringLiteral("photos/")), QStringList());
    EXPECT_EQ(PieceImages::Files(TheGame()).filter(QStringLiteral("place")).size(), 2);
}

TEST_F(PhotosTest, CancelAndAnEmptyFolderChangeNothing) {
    EXPECT_FALSE(InWindow([&](frmDealPhotos& window) {
        EXPECT_EQ(In<QLabel>(window, "lblState").text(),
                  QStringLiteral("There are no pictures in this folder. Please choose another one."));
        EXPECT_FALSE(In<QPushButton>(window, "cmdOK").isEnabled());
    }));
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(PhotosTest, AFolderOfThousandsIsBrowsedWithoutAGap) {
    constexpr int kMany = 3000;
    MakePhotos(1);
    for (int i = 1; i < kMany; ++i)
        QFile::link(Photos() + QStringLiteral("/place 0.png"), Photos() + QStringLiteral("/place %1.png").arg(i));
    PhotoGrid grid;
    grid.resize(600, 500);
    grid.show();
    QStringList files;
    for (int i = 0; i < kMany; ++i)
        files.append(Photos() + QStringLiteral("/place %1.png").arg(i));
    const ReadsOfThisThread reads;
    double before = ThreadMilliseconds();
    grid.ShowFiles(files);
    QCoreApplication::processEvents();
    double longest = ThreadMilliseconds() - before;
    QScrollBar& bar = *grid.verticalScrollBar();
    for (int step = 0; step <= 40; ++step) {
        before = ThreadMilliseconds();
        bar.setValue(bar.maximum() * step / 40);
        QCoreApplication::processEvents();
        longest = std::max(longest, ThreadMilliseconds() - before);
    }
    RecordProperty("longest_gap_ms", int(longest));
    EXPECT_EQ(reads.Count(), 0) << "the window reads no picture itself";
    EXPECT_TRUE(Comes([&grid] { return grid.Made() > 10; }));
}

TEST_F(PhotosTest, TheTrayOpensAFolderOfThousandsWithoutAGapInTheOrderAPersonCounts) {
    constexpr int kMany = 3000;
    constexpr int kSettings = 2; // in which the folder is kept for the next start
    MakePhotos(1);
    for (int i = 1; i < kMany; ++i)
        QFile::link(Photos() + QStringLiteral("/place 0.png"), Photos() + QStringLiteral("/place %1.png").arg(i));
    PhotoTab tab(session);
    tab.resize(400, 600);
    tab.show();
    const ReadsOfThisThread reads;
    const double before = ThreadMilliseconds();
    tab.ShowFolder(Photos());
    QCoreApplication::processEvents();
    RecordProperty("gap_ms", int(ThreadMilliseconds() - before));
    EXPECT_LE(reads.Count(), kSettings) << "the window reads no picture itself";
    auto& grid = In<PhotoGrid>(tab, "lstTray");
    EXPECT_EQ(grid.model()->rowCount(), kMany);
    EXPECT_EQ(Caption(grid, 2), QStringLiteral("place 2.png"));
    EXPECT_EQ(Caption(grid, 10), QStringLiteral("place 10.png"));
}

TEST_F(PhotosTest, TheTrayTicksWhatTheGameShowsAndHandsFilesOver) {
    MakePhotos(3);
    PhotoTab tab(session);
    tab.ShowFolder(Photos());
    auto& grid = In<PhotoGrid>(tab, "lstTray");
    const auto image = [&grid](int row) {
        return grid.model()->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    EXPECT_EQ(Caption(grid, 1), QStringLiteral("place 1.png"));
    const auto isThere = [&image](int row) { return image(row).pixelColor(image(row).rect().center()).alpha() == 255; };
    EXPECT_TRUE(Comes([&] { return isThere(0) && isThere(1) && isThere(2); })) << "and none is pale";
    const QImage before = image(1);
    C_Space space = TheGame().spaces[4];
    space.SetImagePath(Photos() + QStringLiteral("/place 1.png"));
    session.Do(Edits::OfSpace(TheGame(), 4, space));
    EXPECT_NE(image(1), before) << "a tick stands on it";
    EXPECT_EQ(image(2), image(0));
    const std::unique_ptr<QMimeData> data(grid.model()->mimeData({grid.model()->index(2, 0)}));
    EXPECT_EQ(data->urls(), QList<QUrl>{QUrl::fromLocalFile(Photos() + QStringLiteral("/place 2.png"))});
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("PhotoFolder")), Photos()) << "kept for the next start";
}

} // namespace
