// SPDX-License-Identifier: MIT
#include "platform/files/Files.h"
#include "support/TileReader.h"
#include "tools/NoKitFixture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

class NoKitCommandTest : public NoKitFixture {
protected:
    // All pages laid on each other by their marks, as many in a row as there are columns.
    static QImage LaidTogether(const QString& pdf, int columns, int rows) {
        QImage whole;
        QPointF at;
        for (int row = 0; row < rows; ++row) {
            double step = 0;
            at.setX(0);
            for (int column = 0; column < columns; ++column) {
                const TileReader tile(pdf, row * columns + column + 1);
                EXPECT_TRUE(tile.HasMarks()) << row << ' ' << column;
                const QImage cut = tile.Cut();
                const QPoint place = at.toPoint();
                const QSize needed(place.x() + cut.width(), place.y() + cut.height());
                if (whole.isNull()) {
                    whole = cut;
                } else {
                    whole = whole.copy(QRect(QPoint(0, 0), needed.expandedTo(whole.size())));
                    QPainter(&whole).drawImage(place, cut);
                }
                at.rx() += tile.Step().width();
                step = tile.Step().height();
            }
            at.ry() += step;
        }
        return whole;
    }
};

// Of all pixels: the reader moves thin lines to whole pixels, which lie elsewhere on each page.
constexpr double kHardlyAny = 6e-4;
constexpr double kOverlap = 10 / 25.4;
constexpr double kReach = 15 / 25.4;

TEST_F(NoKitCommandTest, PagesLaidTogetherByTheirMarksAreTheBoardOfOnePage) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils are missing";
    const QString one = Print(QStringLiteral("one.pdf"), QStringLiteral("--sheet board --board-way page"));
    ASSERT_EQ(PdfReader(one).Pages(), 1);
    const QImage board = TileReader(one, 1).Cut();
    ASSERT_EQ(board.size(), QSize(2400, 2400));
    const struct {
        const char* options;
        int columns;
        int rows;
    } rows[] = {{"", 3, 2}, {"--paper a4", 3, 2}, {"--paper a3", 2, 2}, {"--board-way quarters --paper tabloid", 2, 2}};
    for (const auto& row : rows) {
        const QString pages =
            Print(QStringLiteral("pages.pdf"), QStringLiteral("--sheet board ") + QString::fromLatin1(row.options));
        ASSERT_EQ(PdfReader(pages).Pages(), row.columns * row.rows) << row.options;
        const QImage laid = LaidTogether(pages, row.columns, row.rows);
        EXPECT_NEAR(laid.width(), 2400, 1) << row.options;
        EXPECT_NEAR(laid.height(), 2400, 1) << row.options;
        EXPECT_LT(UnlikePixels(laid, board), kHardlyAny) << row.options;
        // What a join that is off by two pixels would come to.
        EXPECT_GT(UnlikePixels(laid.copy(2, 2, 2300, 2300), board), 10 * kHardlyAny) << row.options;
    }
}

// As told: pages of one size, each but the last with 10 mm for glue.
double EvenJoin(int i, int pages) { return i * ((16 + kOverlap * (pages - 1)) / pages - kOverlap); }

TEST_F(NoKitCommandTest, JoinsRunThroughAsFewWordsAsTheyCan) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils are missing";
    const QString one = Print(QStringLiteral("one.pdf"), QStringLiteral("--sheet board --board-way page"));
    const QPointF corner = TileReader(one, 1).CutBox().topLeft();
    std::vector<std::pair<double, double>> across;
    std::vector<std::pair<double, double>> down;
    // The reader's boxes are as high as lines are; the ink is less.
    constexpr double kInk = 0.04;
    for (const PdfReader::Word& word : PdfReader(one).Words(1)) {
        across.emplace_back(word.box.left() - corner.x() + kInk, word.box.right() - corner.x() - kInk);
        down.emplace_back(word.box.top() - corner.y() + kInk, word.box.bottom() - corner.y() - kInk);
    }
    ASSERT_GT(across.size(), 60U);
    const auto cut = [](double at, const std::vector<std::pair<double, double>>& words) {
        return std::count_if(words.begin(), words.end(), [at](const auto& w) { return w.first < at && at < w.second; });
    };
    const auto fewest = [&](double even, const std::vector<std::pair<double, double>>& words) {
        auto least = cut(even, words);
        for (double off = -kReach; off <= kReach; off += kReach / 30)
            least = std::min(least, cut(even + off, words));
        return least;
    };
    const QString pages = Print(QStringLiteral("pages.pdf"), QStringLiteral("--sheet board"));
    double x = 0;
    for (int column = 1; column < 3; ++column) {
        x += TileReader(pages, column).Step().width() / TileReader::kDpi;
        EXPECT_LE(std::abs(x - EvenJoin(column, 3)), kReach + 0.01);
        EXPECT_LE(cut(x, across), fewest(EvenJoin(column, 3), across) + 1) << column;
    }
    const double y = TileReader(pages, 1).Step().height() / TileReader::kDpi;
    EXPECT_LE(std::abs(y - EvenJoin(1, 2)), kReach + 0.01);
    EXPECT_LE(cut(y, down), fewest(EvenJoin(1, 2), down) + 1);
}

TEST_F(NoKitCommandTest, TheBoardIsAsLargeAsItIsAskedFor) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils are missing";
    const struct {
        const char* size;
        double inches;
    } rows[] = {{"8in", 8}, {"20", 20}, {"50cm", 19.685}, {"1016mm", 40}, {"kit", 19.366}};
    for (const auto& row : rows) {
        const QString pdf =
            Print(QStringLiteral("size.pdf"),
                  QStringLiteral("--sheet board --board-way page --board-size ") + QString::fromLatin1(row.size));
        const QSizeF box = TileReader(pdf, 1).CutBox().size();
        EXPECT_NEAR(box.width(), row.inches, 0.005) << row.size;
        EXPECT_NEAR(box.height(), row.inches, 0.005) << row.size;
        EXPECT_GT(PdfReader(pdf).PaperInches(1).width(), row.inches + 0.9) << row.size;
    }
}

TEST_F(NoKitCommandTest, TheDecksHavePlacesOfCardSizeAndNothingElseStandsInTheMiddle) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils are missing";
    const QString pdf = Print(QStringLiteral("board.pdf"), QStringLiteral("--sheet board --board-way page"));
    const QString text = PdfReader(pdf).Text(1);
    EXPECT_FALSE(text.contains(QStringLiteral("Tokens")));
    EXPECT_FALSE(text.contains(QStringLiteral("Money")));
    int places = 0;
    for (const PageMark& mark : ReadPageMarks(pdf, 1, 1)) {
        if (mark.kind != PageMark::Kind::Area || mark.color != QColor(128, 128, 192)) continue;
        ++places;
        EXPECT_NEAR(mark.Box().width(), 3.1, 0.06);
        EXPECT_NEAR(mark.Box().height(), 1.72, 0.06);
    }
    EXPECT_EQ(places, 2);
}

TEST_F(NoKitCommandTest, WrongUsageIsTold) {
    const struct {
        const char* words;
        const char* told;
    } rows[] = {
        {"g.gam --no-kit", "nothing to make"},
        {"g.gam -o f.pdf --sheet board", "the sheet 'board' goes with --no-kit"},
        {"g.gam -o f.pdf --no-kit --sheet west", "the sheet 'west' is for the boxed kit only"},
        {"g.gam -o f.pdf --players 4", "option '--players' goes with --no-kit"},
        {"g.gam -o f.pdf --paper a3", "option '--paper a3' goes with --no-kit"},
        {"g.gam -o f.pdf --no-kit --players 7", "a whole number from 2 to 6"},
        {"g.gam -o f.pdf --no-kit --board-size 7in", "from 8in to 40in"},
        {"g.gam -o f.pdf --no-kit --board-size 41", "from 8in to 40in"},
        {"g.gam -o f.pdf --no-kit --board-size 16ft", "from 8in to 40in"},
        {"g.gam -o f.pdf --no-kit --board-way round", "takes one of pages, quarters, page"},
        {"g.gam -o f.pdf --no-kit --colors gray", "takes one of screen, ink-saving"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Run(QString::fromLatin1(row.words).split(u' ')), 2) << row.words;
        EXPECT_TRUE(errors.contains(QString::fromLatin1(row.told))) << row.words << ": " << errors.toStdString();
    }
}

TEST_F(NoKitCommandTest, TheListNamesTheSheetsThatNeedNoKit) {
    EXPECT_EQ(Run({QStringLiteral("--list"), QStringLiteral("--no-kit")}), 0);
    for (const char* name :
         {"guide", "board", "standees", "dice", "stories", "box-wrap", "deeds", "news", "money", "rules", "bank"})
        EXPECT_TRUE((u'\n' + out).contains(u'\n' + QString::fromLatin1(name) + u' ')) << name;
}

TEST_F(NoKitCommandTest, APieceThatCannotBeMadeIsNamedAndTheFileOfBeforeStays) {
    const struct {
        const char* sheet;
        const char* file;
        const char* told;
    } rows[] = {{"deeds", "/TempDeedBMP1.temp", "The deed of "}, {"money", "/MoneyImage.bmp", "The $100 note "}};
    const QString pdf = WriteFile(QStringLiteral("out/all.pdf"), "of before");
    for (const auto& row : rows) {
        Files::SetFaultHook([&row](Files::Operation operation, const QString& path) {
            const bool hit = operation == Files::Operation::Remove && path.endsWith(QLatin1String(row.file));
            return hit ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
        });
        EXPECT_NE(RunWithFamily({QStringLiteral("--no-kit"), QStringLiteral("-o"), pdf, QStringLiteral("--sheet"),
                                 QString::fromLatin1(row.sheet)}),
                  0);
        Files::SetFaultHook({});
        const QStringList lines = errors.split(u'\n').filter(QStringLiteral(" could not be made: "));
        ASSERT_EQ(lines.size(), 1) << errors.toStdString();
        EXPECT_TRUE(lines[0].contains(QLatin1String(row.told))) << lines[0].toStdString();
        EXPECT_TRUE(lines[0].contains(QStringLiteral("disk says no"))) << lines[0].toStdString();
        EXPECT_FALSE(errors.contains(pdf)) << "it isn't the file's fault: " << errors.toStdString();
        EXPECT_EQ(ReadFile(pdf), "of before");
    }
}

} // namespace
