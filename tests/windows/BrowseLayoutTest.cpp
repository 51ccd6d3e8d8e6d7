// SPDX-License-Identifier: MIT
// Where the lists, the small pictures and the large one stand in the image browser.
#include "BrowseFixture.h"

#include "windowing/PhotoGrid.h"

#include <QFrame>

namespace {

class BrowseLayoutTest : public BrowseTest {
protected:
    struct Places {
        QRect folders;
        QRect files;
        QRect small;
        QRect picture;
    };
    /// Of a window of this size; of the size that it has at first where it is empty.
    Places At(QSize size) {
        Places places;
        Browse(QString(), [&](QWidget& window) {
            if (!size.isEmpty()) {
                window.resize(size);
                QCoreApplication::processEvents();
            }
            places = {Find<QTreeWidget>(window, "dirList").geometry(), Find<QListWidget>(window, "filList").geometry(),
                      Find<PhotoGrid>(window, "lstGrid").geometry(), Find<QFrame>(window, "shpBitMapArea").geometry()};
            Click(window, "cmdCancel");
        });
        return places;
    }
};

TEST_F(BrowseLayoutTest, ThePictureStandsBesideTheListsAndItsTopIsTheirs) {
    for (const QSize size : {QSize(), QSize(1600, 900)}) {
        const Places at = At(size);
        EXPECT_GT(at.files.left(), at.folders.right());
        EXPECT_GT(at.small.left(), at.files.right());
        EXPECT_GT(at.picture.left(), at.small.right());
        for (const QRect& list : {at.files, at.small, at.picture})
            EXPECT_EQ(list.top(), at.folders.top());
    }
}

TEST_F(BrowseLayoutTest, ThePictureKeepsItsSizeAndTheSmallOnesTakeHalfOfWhatIsGained) {
    const Places wide = At(QSize(2400, 700));
    EXPECT_EQ(wide.folders.width(), wide.files.width());
    EXPECT_NEAR(wide.small.width(), wide.folders.width() + wide.files.width(), 2);
    EXPECT_EQ(wide.picture.size(), At(QSize()).picture.size());
}

// The kinds that few colors leave are short; otherwise they are what makes the column wider.
TEST_F(BrowseLayoutTest, NamesOfFilesHave210PixelsEvenInTheNarrowestWindow) {
    Screen::PretendBitsPerPixel(8);
    EXPECT_EQ(At(QSize(100, 600)).files.width(), 210);
}

} // namespace
