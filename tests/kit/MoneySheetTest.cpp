// SPDX-License-Identifier: MIT
// The play money as a reader of the printed page finds it.
#include "kit/Sheets.h"
#include "platform/printing/PicturePrinter.h"
#include "services/WorkFiles.h"
#include "support/SheetFixture.h"

namespace {

constexpr int kNotes = 10;
const QColor kPaper(0xFA, 0xD3, 0xD8);
const QColor kBlank(0, 160, 60);

class MoneySheetTest : public SheetTest {
protected:
    MoneySheetTest() {
        QImage blank(350, 175, QImage::Format_RGB32);
        blank.fill(kBlank);
        blank.save(PathOf(QStringLiteral("blank.png")));
        C_Money& money = basTAVL::g_oMoney(1);
        money.BackImage.Init(PathOf(QStringLiteral("blank.png")), QString(), 1);
        money.Let_Text(0, QStringLiteral("Our\r\nBank"));
        money.Let_Text(1, QStringLiteral("Five\r\nHundred"));
    }

    static QRectF NoteAt(int i) { return {i % 2 * 3.75 + 0.3, i / 2 * 2.0 + 0.125, 3.75, 2.0}; }
    bool PrintCopies(int nCopies) {
        return Print([&](SheetJob& job) {
            EXPECT_TRUE(money500.Prepare(job));
            EXPECT_TRUE(QFile::exists(WorkFiles::PathOf(QStringLiteral("MoneyImage.bmp"))));
            job.nCopies = nCopies;
            for (job.iCopy = 0; job.iCopy < nCopies; ++job.iCopy) {
                if (!money500.Print(job)) return false;
                if (job.iCopy + 1 < nCopies) job.printer.EndDoc();
            }
            return true;
        });
    }
    const Sheet& money500 = *FindSheet(QStringLiteral("money500"));
    void ExpectNotes(int iPage) const {
        const QList<QRectF> left = reader.BoxesOf(iPage, QStringLiteral("Bank"));
        const QList<QRectF> right = reader.BoxesOf(iPage, QStringLiteral("Hundred"));
        ASSERT_EQ(left.size(), kNotes);
        ASSERT_EQ(right.size(), kNotes);
        const auto stands = [](const QList<QRectF>& boxes, double x, double top, double bottom) {
            return std::any_of(boxes.begin(), boxes.end(), [&](const QRectF& box) {
                return std::abs(box.center().x() - x) < kCaptionWithin && box.top() > top && box.bottom() < bottom;
            });
        };
        for (int i = 0; i < kNotes; ++i) {
            const QRectF note = NoteAt(i);
            const QRectF panel(note.left() + 0.125, note.top() + 0.123, 3.5, 1.75);
            ExpectBox(reader.ColorBox(iPage, note, kBlank), panel, QStringLiteral("panel of note %1").arg(i));
            EXPECT_TRUE(stands(left, note.left() + 0.85, note.top() + 0.75, note.top() + 1.25)) << i;
            EXPECT_TRUE(stands(right, note.left() + 3.65 - 0.8125, note.top() + 0.75, note.top() + 1.25)) << i;
        }
        ExpectBox(reader.ColorBox(iPage, {0, 0, 8.2, 10.5}, kPaper), {0.3, 0.125, 7.5, 10.0},
                  QStringLiteral("all notes"));
    }
};

TEST_F(MoneySheetTest, EveryNoteStandsAtItsPlaceAndTouchesItsNeighbours) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintCopies(1));
    EXPECT_EQ(reader.PaperInches(1), QSizeF(8.5, 11));
    ExpectNotes(1);
    for (const double x : {4.03, 4.05, 4.07})
        EXPECT_EQ(reader.ColorAt(1, x, 2.06), kPaper) << "no paper and no cut line between notes";
    EXPECT_TRUE(reader.ColorBox(1, {0.3, 0.125, 0.12, 10}, Qt::black).isEmpty()) << "no black cut line";
    EXPECT_EQ(steps, (QList<int>{0, 100, 200, 300, 400, 500, 600, 700, 800, 900}));
}

TEST_F(MoneySheetTest, SeveralCopiesRepeatThePage) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintCopies(3));
    ASSERT_EQ(reader.Pages(), 3);
    for (int page = 1; page <= 3; ++page)
        ExpectNotes(page);
    EXPECT_EQ(steps[0], 0);
    EXPECT_EQ(steps[10], 333);
    EXPECT_EQ(steps[29], 967) << "two thirds and 300, rounded";
}

TEST_F(MoneySheetTest, APhotoIsStoredOnceForAllNotes) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    QImage photo(1600, 1200, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    photo.save(PathOf(QStringLiteral("photo.jpg")), "JPG");
    basTAVL::g_oMoney(1).FaceImage.Init(PathOf(QStringLiteral("photo.jpg")), QStringLiteral("Money"), 1);
    ASSERT_TRUE(PrintCopies(1));
    QSet<int> objects;
    for (const PdfReader::StoredImage& image : reader.Images(1))
        objects.insert(image.iObject);
    EXPECT_LE(objects.size(), 3) << "the blank, the photo and its mask";
    for (int i = 0; i < kNotes; ++i) {
        const QColor seen = reader.ColorAt(1, NoteAt(i).left() + 1.84, NoteAt(i).top() + 0.995);
        EXPECT_GT(seen.blue(), 240) << i;
        EXPECT_LT(seen.red(), 15) << i;
    }
}

TEST_F(MoneySheetTest, APictureThatCannotBeMadeIsTold) {
    RefuseToReplace(QStringLiteral("MoneyImage.bmp"));
    PicturePrinter page(60);
    SheetJob job{page};
    EXPECT_FALSE(money500.prepare(job, 2));
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Unable to create Money Image. Money will not be printed."));
}

} // namespace
