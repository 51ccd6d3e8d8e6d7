// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"
#include "platform/printing/Printer.h"
#include "services/basErrLog.h"
#include "support/PageMarks.h"
#include "support/TestFixture.h"

#include <iterator>
#include <optional>
#include <vector>

using namespace basDraw;

namespace {

// In this typeface every letter is exactly as wide as it is asked for.
const QString kEven = QStringLiteral("Courier New");
constexpr int kLetter = 10;
constexpr int kHeight = 20;

// A page that says of itself whether it is a printer's.
class Page : public PdfPrinter {
public:
    Page(const QString& sPath, int dpi, bool bPrinter)
        : PdfPrinter(sPath, QStringLiteral("page"), QPageSize::Letter, dpi), m_bPrinter(bPrinter) {}
    bool IsPrinter() const override { return m_bPrinter; }

private:
    bool m_bPrinter;
};

class DrawPlacesTest : public TavloraTest {
protected:
    DrawPlacesTest() {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        basDraw::Draw_Abandon();
        Open(600, false);
    }
    ~DrawPlacesTest() override { basDraw::Draw_Abandon(); }

    void Open(int dpi, bool bPrinter) {
        m_dpi = dpi;
        page.reset();
        page.emplace(m_path, dpi, bPrinter);
        page->ScaleMode = ScaleModeKind::Pixels;
        Draw_SetHdc(&page->hDC());
    }
    QList<PageMark> Marks() {
        Draw_SetHdc(nullptr);
        QString error;
        EXPECT_TRUE(page->Close(error)) << error.toStdString();
        return ReadPageMarks(m_path, 1, m_dpi);
    }
    static void UseFont(int escapement, int height = kHeight, int letter = kLetter) {
        Draw_SetFont(kEven, height, letter, escapement, 0, false, false, false);
    }

    std::optional<Page> page;

private:
    const QString m_path = PathOf(QStringLiteral("page.pdf"));
    int m_dpi = 0;
};

// "abcd" is 40 wide. The table tells where the text starts that is anchored in (1000, 800).
TEST_F(DrawPlacesTest, TextStartsWhereItsAnchorAndItsAngleSay) {
    const struct {
        int angle;
        const char* align;
        double x, y;
    } rows[] = {
        {0, "L", 1000, 800},    {0, "C", 980, 800},     {0, "R", 960, 800},     {900, "C", 1000, 820},
        {900, "R", 1000, 840},  {1800, "C", 1020, 800}, {1800, "R", 1040, 800}, {2700, "C", 1000, 780},
        {2700, "R", 1000, 760}, {450, "C", 986, 814},   {450, "R", 972, 828},   {3150, "R", 972, 772},
        {2250, "R", 1028, 772}, {1350, "R", 1028, 828},
    };
    for (const auto& row : rows) {
        UseFont(row.angle);
        Draw_Text(QStringLiteral("abcd"), QString::fromLatin1(row.align), 1000, 800, Color::Black());
    }
    Draw_ReleaseObjects();
    const QList<PageMark> marks = Marks();
    ASSERT_EQ(marks.size(), std::ssize(rows));
    for (qsizetype i = 0; i < marks.size(); ++i) {
        EXPECT_NEAR(marks[i].start.x(), rows[i].x, 0.02) << rows[i].angle << rows[i].align;
        EXPECT_NEAR(marks[i].start.y(), rows[i].y, 0.02) << rows[i].angle << rows[i].align;
        EXPECT_NEAR(marks[i].angle, rows[i].angle, 0.5);
        EXPECT_NEAR(marks[i].height, kHeight, 0.01);
        EXPECT_NEAR(marks[i].width, 4 * kLetter, 0.01);
    }
}

// So long a text shows with which pi it was turned: 3.14 would set it 5 lower.
TEST_F(DrawPlacesTest, LongTextUpsideDownEndsOnItsLine) {
    UseFont(1800, 100, 60);
    Draw_Text(QString(100, u'm'), QStringLiteral("C"), 2000, 1000, Color::Black());
    Draw_ReleaseObjects();
    const QList<PageMark> marks = Marks();
    ASSERT_EQ(marks.size(), 1);
    EXPECT_NEAR(marks[0].start.x(), 5000, 0.02);
    EXPECT_NEAR(marks[0].start.y(), 1000, 0.02);
}

// Each line is centred by its own width, and a line's height from the one before.
TEST_F(DrawPlacesTest, LinesFollowEachOtherAcrossTheirDirection) {
    const struct {
        int angle;
        double x[3], y[3];
    } rows[] = {
        {0, {980, 990, 995}, {800, 820, 840}},
        {900, {1000, 1020, 1040}, {820, 810, 805}},
        {1800, {1020, 1010, 1005}, {800, 780, 760}},
        {2700, {1000, 980, 960}, {780, 790, 795}},
    };
    for (const auto& row : rows) {
        UseFont(row.angle);
        Draw_TextArray({QStringLiteral("abcd"), QStringLiteral("ef"), QStringLiteral("g")}, QStringLiteral("C"), 1000,
                       800, Color::Black());
    }
    Draw_ReleaseObjects();
    const QList<PageMark> marks = Marks();
    ASSERT_EQ(marks.size(), 12);
    for (int i = 0; i < 12; ++i) {
        EXPECT_NEAR(marks[i].start.x(), rows[i / 3].x[i % 3], 0.02) << rows[i / 3].angle << ' ' << i % 3;
        EXPECT_NEAR(marks[i].start.y(), rows[i / 3].y[i % 3], 0.02) << rows[i / 3].angle << ' ' << i % 3;
    }
}

// Two lines, "abcdef" and "ghij": 60 and 40 wide, 20 high each.
TEST_F(DrawPlacesTest, InsertPointIsFoundForEachAlignmentAndAngle) {
    const struct {
        const char* what;
        int angle;
        const char* align;
        int x, y;
        int col, row;
    } rows[] = {
        {"left, nearer to the third letter's end", 0, "L", 26, 5, 3, 0},
        {"left, just in the middle of a letter", 0, "L", 25, 5, 2, 0},
        {"left, ahead of the line", 0, "L", -3, 5, 0, 0},
        {"left, behind the line", 0, "L", 61, 19, 6, 0},
        {"left, second line", 0, "L", 12, 20, 1, 1},
        {"left, below all", 0, "L", 12, 40, 4, 1},
        {"left, above all", 0, "L", 12, -1, 0, 0},
        {"centred", 0, "C", 12, 5, 4, 0},
        {"centred, start", 0, "C", -30, 5, 0, 0},
        {"centred, end", 0, "C", 30, 5, 6, 0},
        {"centred, second line", 0, "C", -9, 30, 1, 1},
        {"right", 0, "R", -18, 5, 4, 0},
        {"right, start", 0, "R", -60, 5, 0, 0},
        {"right, second line", 0, "R", -18, 25, 2, 1},
        // Along and across a turned text are mixed up as they have always been: editors draw unturned text.
        {"upward", 900, "L", -5, 27, 3, 0},
        {"upward, second line", 900, "L", -25, 27, 3, 1},
        {"upward, centred", 900, "C", -5, 27, 3, 0},
        {"on its head", 1800, "L", -33, -5, 3, 0},
        {"on its head, second line", 1800, "L", -12, -25, 1, 1},
        {"aslant", 450, "L", 10, 30, 3, 0},
        {"aslant, centred", 450, "C", 10, 30, 5, 0},
        {"aslant, right", 450, "R", -8, 0, 4, 0},
    };
    for (const auto& row : rows) {
        UseFont(row.angle);
        int col = -7;
        int line = -7;
        Draw_FindInsertPoint({QStringLiteral("abcdef"), QStringLiteral("ghij")}, QString::fromLatin1(row.align), 1000,
                             500, 1000 + row.x, 500 + row.y, col, line);
        EXPECT_EQ(col, row.col) << row.what;
        EXPECT_EQ(line, row.row) << row.what;
    }
    Draw_ReleaseObjects();
}

void ExpectLines(const QList<PageMark>& marks, const QStringList& lines, double em,
                 const std::vector<QPointF>& topLeft) {
    ASSERT_EQ(marks.size(), lines.size());
    for (qsizetype i = 0; i < marks.size(); ++i) {
        EXPECT_EQ(marks[i].sText, lines[i]);
        EXPECT_NEAR(marks[i].em, em, 0.05) << i;
        EXPECT_NEAR(marks[i].start.x(), topLeft[size_t(i)].x(), 0.02) << i;
        EXPECT_NEAR(marks[i].start.y(), topLeft[size_t(i)].y(), 0.02) << i;
    }
}

// At 96 dots an inch a size of 59 has an em of 78.67 and letters of 47.2; 39 has 52 and 31.2; 35 has 46.67 and 28.0.
TEST_F(DrawPlacesTest, MultiLineTextFillsItsBoxAndSitsSlightlyHigh) {
    const QStringList two{QStringLiteral("ab"), QStringLiteral("cdef")};
    const QStringList three{QStringLiteral("a"), QStringLiteral("bc"), QStringLiteral("d")};
    const struct {
        const char* what;
        QStringList lines;
        int w;
        double em;
        std::vector<QPointF> topLeft;
    } rows[] = {
        {"95 a line", two, 700, 78.667, {{353, 40}, {305.5, 135}}},
        {"63 a line", three, 700, 52, {{384.5, 40}, {369, 103}, {384.5, 166}}},
        {"too wide: 56 a line", two, 120, 46.667, {{82, 79}, {54, 135}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Open(96, false);
        Draw_MultiLineText(*page, row.lines, int(row.lines.size()), kEven, false, false, 50, 40, row.w, 200);
        ExpectLines(Marks(), row.lines, row.em, row.topLeft);
    }
}

// At 600 dots an inch the probe is 150 points, whose line is 1396.5 high: the ratio is 150 / (1396.5 * 0.625).
TEST_F(DrawPlacesTest, PrintersFontSizeIsMadeFromTheHeightOfAProbe) {
    Open(600, true);
    page->ScaleMode = ScaleModeKind::Twips;
    double dpi = 0;
    double ratio = 0;
    Draw_GetDPIandPrinterSizeRatio(*page, dpi, ratio, 0.5);
    EXPECT_DOUBLE_EQ(dpi, 300);
    EXPECT_NEAR(ratio, 0.17186, 0.00002);
    EXPECT_EQ(page->ScaleMode, ScaleModeKind::Pixels);
    EXPECT_EQ(page->FontName, QStringLiteral("Arial"));
    EXPECT_DOUBLE_EQ(page->FontSize(), 150);
}

// A line is 475 high, its size 297 times the ratio: an em of 425.36 and letters of 255.25.
TEST_F(DrawPlacesTest, MultiLineTextOnAPrinterFillsItsBoxToo) {
    const QStringList lines{QStringLiteral("ab"), QStringLiteral("cdef")};
    Open(600, true);
    Draw_MultiLineText(*page, lines, 2, kEven, false, false, 100, 200, 3000, 1000);
    ExpectLines(Marks(), lines, 425.36, {{1344.5, 200}, {1089.5, 675}});
}

TEST_F(DrawPlacesTest, MultiLineTextHasItsTypefaceWeightAndSlant) {
    const auto faceOf = [this](bool bold, bool italic) {
        Open(96, false);
        Draw_MultiLineText(*page, {QStringLiteral("ab"), QStringLiteral("left out")}, 1,
                           QStringLiteral("Times New Roman"), bold, italic, 0, 0, 300, 100);
        const QList<PageMark> marks = Marks();
        return marks.size() == 1 ? marks.first().sFace : QString();
    };
    const QString plain = faceOf(false, false);
    const QString bold = faceOf(true, false);
    const QString italic = faceOf(false, true);
    EXPECT_TRUE(plain == QStringLiteral("LiberationSerif") || plain == QStringLiteral("TimesNewRomanPSMT"));
    EXPECT_TRUE(bold.contains(QStringLiteral("-Bold")) && !bold.contains(QStringLiteral("Italic")));
    EXPECT_TRUE(italic.contains(QStringLiteral("-Italic")) && !italic.contains(QStringLiteral("Bold")));
}

TEST_F(DrawPlacesTest, MultiLineTextOfNoLinesDrawsNothing) {
    Draw_MultiLineText(*page, {}, 0, kEven, false, false, 0, 0, 300, 100);
    Draw_MultiLineText(*page, {QStringLiteral("a")}, 0, kEven, false, false, 0, 0, 300, 100);
    EXPECT_TRUE(Marks().isEmpty());
}

} // namespace
