// SPDX-License-Identifier: MIT
// What holds for every window: which button Enter presses, where Tab goes, what a bar says.
#include "support/AllWindows.h"
#include "services/basCommon.h"
#include "support/EditorFixture.h"
#include "support/WindowList.h"

#include <QGridLayout>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>

namespace {

class AllWindowsTest : public EditorTest {
protected:
    AllWindowsTest() { basCommon::InitIniPath(); }
    ~AllWindowsTest() override { basCommon::ResetForTest(); }
};

QStringList DefaultButtons(const QWidget& window) {
    QStringList names;
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->isDefault()) names.append(button->text().remove(u'&'));
    }
    return names;
}

// Where a text is typed Enter belongs to the text.
TEST_F(AllWindowsTest, EnterPressesTheButtonThatGoesOn) {
    const std::map<QString, QString> told{
        {QStringLiteral("frmBeforePrint"), QStringLiteral("Show Me")},
        {QStringLiteral("frmBrowse"), QStringLiteral("OK")},
        {QStringLiteral("frmColor"), QStringLiteral("OK")},
        {QStringLiteral("frmDealPhotos"), QStringLiteral("Deal")},
        {QStringLiteral("frmImagePosition"), QStringLiteral("OK")},
        {QStringLiteral("frmMissingPictures"), QStringLiteral("Find...")},
        {QStringLiteral("frmPieces"), QStringLiteral("Save As...")},
        {QStringLiteral("frmPrntPrep"), QStringLiteral("Print")},
        {QStringLiteral("frmSendGame"), QStringLiteral("Save As...")},
        {QStringLiteral("frmTavlPrint"), QStringLiteral("Print")},
    };
    for (const auto& [name, window] : AllWindows(session)) {
        const auto row = told.find(name);
        EXPECT_EQ(DefaultButtons(*window), row == told.end() ? QStringList() : QStringList{row->second})
            << name.toStdString();
    }
}

TEST_F(AllWindowsTest, TabLeavesEveryBoxOfText) {
    int boxes = 0;
    for (const auto& [name, window] : AllWindows(session)) {
        for (const auto* box : window->findChildren<QPlainTextEdit*>()) {
            if (!box->isVisibleTo(window.get())) continue;
            EXPECT_TRUE(box->tabChangesFocus()) << name.toStdString() << ' ' << box->objectName().toStdString();
            ++boxes;
        }
    }
    EXPECT_GE(boxes, 3);
}

// Words beside it say which sheet is being made.
TEST_F(AllWindowsTest, BarsOfSheetsShowNoNumbers) {
    const auto all = AllWindows(session);
    for (const char* name : {"PrintEverything", "PrintWithoutKit"}) {
        const auto bars = all.at(QLatin1String(name))->findChildren<QProgressBar*>();
        ASSERT_EQ(bars.size(), 1) << name;
        EXPECT_FALSE(bars[0]->isTextVisible()) << name;
    }
}

TEST_F(AllWindowsTest, NoCellOfAGridHoldsTwoControls) {
    int grids = 0;
    for (const auto& [name, window] : AllWindows(session)) {
        for (const auto* grid : window->findChildren<QGridLayout*>()) {
            QSet<QPoint> taken;
            ++grids;
            for (int i = 0; i < grid->count(); ++i) {
                int row = 0;
                int column = 0;
                int rows = 1;
                int columns = 1;
                grid->getItemPosition(i, &row, &column, &rows, &columns);
                for (int cell = 0; cell < rows * columns; ++cell) {
                    const QPoint at(column + cell % columns, row + cell / columns);
                    EXPECT_FALSE(taken.contains(at)) << name.toStdString() << ", " << at.x() << ' ' << at.y();
                    taken.insert(at);
                }
            }
        }
    }
    EXPECT_GE(grids, 3);
}

TEST_F(AllWindowsTest, PicturesAreDroppedOnTheLikenessOfAPiece) {
    const auto all = AllWindows(session);
    for (const char* name : {"frmEditSpace", "frmEditCorner", "frmEditToken"})
        EXPECT_TRUE(Find<QWidget>(*all.at(QLatin1String(name)), "picDest").acceptDrops()) << name;
}

TEST_F(AllWindowsTest, NothingThatAWindowSaysChangesUnseen) {
    for (const auto& [name, window] : AllWindows(session))
        WindowList::ExpectListed(*window);
}

} // namespace
