// SPDX-License-Identifier: MIT
// Every piece that is cut from the sheets for plain paper and card, measured on the printed page.
#include "support/PageMarks.h"
#include "tools/NoKitFixture.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

class NoKitPiecesTest : public NoKitFixture {
protected:
    struct Cuts {
        std::vector<QLineF> lines;
        std::set<int> xs; ///< Of upright cuts, in thousandths of an inch, near ones as one.
        std::set<int> ys;

        QRectF Box() const {
            QPolygonF points;
            for (const QLineF& line : lines)
                points << line.p1() << line.p2();
            return points.boundingRect();
        }
    };

    static void Add(std::set<int>& places, double inches) {
        const int place = int(std::lround(inches * 1000));
        const auto near = std::find_if(places.begin(), places.end(), [&](int p) { return std::abs(p - place) < 6; });
        if (near == places.end()) places.insert(place);
    }
    // What a pair of scissors would follow.
    static Cuts CutsOf(const QString& pdf, int page = 1) {
        Cuts cuts;
        for (const PageMark& mark : ReadPageMarks(pdf, page, 1)) {
            if (mark.kind != PageMark::Kind::Line || mark.color != QColor(64, 64, 64) || mark.points.size() != 2)
                continue;
            const QLineF line(mark.points[0], mark.points[1]);
            cuts.lines.push_back(line);
            if (std::abs(line.dx()) < 0.002) Add(cuts.xs, line.x1());
            if (std::abs(line.dy()) < 0.002) Add(cuts.ys, line.y1());
        }
        return cuts;
    }
    static void ExpectSteps(const std::set<int>& places, int count, double step, const char* what) {
        ASSERT_EQ(int(places.size()), count + 1) << what;
        const int first = *places.begin();
        int i = 0;
        for (const int place : places)
            EXPECT_NEAR(place - first, i++ * step * 1000, 4) << what;
    }
    // Cards that lie edge to edge, on every page that is printed.
    void ExpectGrid(const char* sheet, int pages, int columns, int rows, QSizeF card, const char* options = "") {
        const QString name = QString::fromLatin1(sheet);
        const QString pdf =
            Print(QStringLiteral("grid.pdf"), QStringLiteral("--sheet %1 %2").arg(name, QString::fromLatin1(options)));
        ASSERT_EQ(PdfReader(pdf).Pages(), pages) << sheet;
        for (int page = 1; page <= pages; ++page) {
            const Cuts cuts = CutsOf(pdf, page);
            ExpectSteps(cuts.xs, columns, card.width(), sheet);
            ExpectSteps(cuts.ys, rows, card.height(), sheet);
        }
    }
};

TEST_F(NoKitPiecesTest, CardsAndNotesAreAsLargeAsThoseOfTheKit) {
    for (const char* paper : {"--paper letter", "--paper a4"}) {
        ExpectGrid("deeds", 2, 3, 4, {2.5, 2.5}, paper);
        ExpectGrid("news", 2, 2, 6, {3, 1.62}, paper);
        ExpectGrid("money", 13, 2, 5, {3.75, 2}, paper);
    }
}

TEST_F(NoKitPiecesTest, ThreePlayersNeedFewerNotes) {
    ExpectGrid("money", 8, 2, 5, {3.75, 2}, "--players 3");
    ExpectGrid("money", 13, 2, 5, {3.75, 2}, "--players 6");
}

TEST_F(NoKitPiecesTest, FiguresStandBesideEachOther) {
    const Cuts cuts = CutsOf(Print(QStringLiteral("s.pdf"), QStringLiteral("--sheet standees")));
    ASSERT_EQ(cuts.xs.size(), 12U);
    ASSERT_EQ(cuts.ys.size(), 2U);
    EXPECT_NEAR(*cuts.ys.rbegin() - *cuts.ys.begin(), 3440, 4) << "front, back and two feet";
    const std::vector<int> xs(cuts.xs.begin(), cuts.xs.end());
    for (size_t i = 0; i < xs.size(); i += 2)
        EXPECT_NEAR(xs[i + 1] - xs[i], 1020, 4) << i;
}

TEST_F(NoKitPiecesTest, DiceAreCubesOfNineTenths) {
    const Cuts cuts = CutsOf(Print(QStringLiteral("d.pdf"), QStringLiteral("--sheet dice")));
    const double net = 3 * 0.9 + 2 * 0.252;
    EXPECT_NEAR(cuts.Box().width(), 4 * 0.9 + 0.252, 0.004);
    EXPECT_NEAR(cuts.Box().height(), 2 * net + 0.5, 0.004);
    EXPECT_EQ(cuts.lines.size(), 2U * 7U * (3U + 1U))
        << "three edges of each flap, and the edge that it is glued behind";
}

TEST_F(NoKitPiecesTest, FortyStoriesInTheColoursOfTheGroups) {
    const QString pdf = Print(QStringLiteral("s.pdf"), QStringLiteral("--sheet stories"));
    const Cuts cuts = CutsOf(pdf);
    EXPECT_EQ(cuts.lines.size(), 40U * 4U);
    EXPECT_EQ(cuts.xs.size(), 16U);
    EXPECT_EQ(cuts.ys.size(), 10U);
    EXPECT_NEAR(*std::next(cuts.xs.begin()) - *cuts.xs.begin(), 620, 4);
    EXPECT_NEAR(*std::next(cuts.ys.begin()) - *cuts.ys.begin(), 1300, 4);
    std::map<QRgb, int> roofs;
    for (const PageMark& mark : ReadPageMarks(pdf, 1, 1)) {
        if (mark.kind == PageMark::Kind::Area && std::abs(mark.Box().width() - 0.62) < 0.005) ++roofs[mark.color.rgb()];
    }
    EXPECT_EQ(roofs.size(), 8U);
    for (const auto& [color, count] : roofs)
        EXPECT_EQ(count, 10) << "two sides of five tents";
}

TEST_F(NoKitPiecesTest, EachPartOfTheBoxFitsOnOnePage) {
    for (const char* paper : {"letter", "a4"}) {
        const QString pdf = Print(QStringLiteral("b.pdf"),
                                  QStringLiteral("--sheet box-wrap --paper %1").arg(QString::fromLatin1(paper)));
        ASSERT_EQ(PdfReader(pdf).Pages(), 2);
        const QSizeF tray = CutsOf(pdf, 1).Box().size();
        EXPECT_NEAR(tray.width(), 6.5 + 2 * 1.5, 0.004);
        EXPECT_NEAR(tray.height(), 4 + 2 * 1.5, 0.004);
        const QSizeF lid = CutsOf(pdf, 2).Box().size();
        EXPECT_NEAR(lid.width(), 6.58 + 2 * 1.1, 0.004);
        EXPECT_NEAR(lid.height(), 4.08 + 2 * 1.1, 0.004);
        const QSizeF printable = PdfReader(pdf).PaperInches(1) - QSizeF(0.5, 0.5);
        EXPECT_LT(tray.width(), printable.width());
        EXPECT_LT(tray.height(), printable.height());
    }
}

TEST_F(NoKitPiecesTest, TheWholeSetIsMadeAndTheFirstPageTellsOfEachPage) {
    const QString pdf = Print(QStringLiteral("all.pdf"), {});
    const PdfReader reader(pdf);
    // The guide; 6 pages of the board; tokens, dice, stories, two of the box, four of cards; money, rules, pad.
    EXPECT_EQ(reader.Pages(), 1 + 6 + 1 + 1 + 1 + 2 + 2 + 2 + 13 + 1 + 1);
    const QString guide = reader.Text(1);
    for (const char* told :
         {"Game board: pages 2 to 7", "Tokens: page 8", "Two dice: page 9", "Building stories: page 10",
          "Box with a lid: pages 11 to 12", "Title deeds: pages 13 to 14", "Good News, Bad News: pages 15 to 16",
          "Money: pages 17 to 29", "Rules of the game: page 30", "Bank and score pad: page 31"})
        EXPECT_TRUE(guide.contains(QString::fromLatin1(told))) << told << '\n' << guide.toStdString();
    EXPECT_TRUE(reader.Text(8).contains(QStringLiteral("Tokens that stand")));
    EXPECT_TRUE(reader.Text(31).contains(QStringLiteral("Who has what")));
}

TEST_F(NoKitPiecesTest, InkIsSaved) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils are missing";
    const auto inkOf = [&](const QString& options) {
        const QImage page = PdfReader(Print(QStringLiteral("ink.pdf"), options)).Pixels(1, 50);
        double ink = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x)
                ink += 255 - qGray(page.pixel(x, y));
        }
        return ink;
    };
    // How much is left of it; pictures take what they take.
    const struct {
        const char* sheet;
        double most;
    } rows[] = {
        {"board --board-way page", 0.6}, {"standees", 0.95}, {"stories", 0.7}, {"money", 0.6}, {"box-wrap", 0.6}};
    for (const auto& row : rows) {
        const QString options = QStringLiteral("--sheet %1").arg(QString::fromLatin1(row.sheet));
        const double saving = inkOf(options + QStringLiteral(" --colours ink-saving"));
        EXPECT_LT(saving, row.most * inkOf(options)) << row.sheet;
    }
}

TEST_F(NoKitPiecesTest, CutLinesAreThoseOfThePageAtTrueSize) {
    const QString lines = PathOf(QStringLiteral("out/lines"));
    const QString pdf = Print(QStringLiteral("d.pdf"), QStringLiteral("--sheet dice deeds board --cut-lines ") + lines);
    EXPECT_EQ(QDir(lines).entryList(QDir::Files).size(), 6 + 1 + 2);
    const QString svg = QString::fromUtf8(ReadFile(lines + QStringLiteral("/dice.svg")));
    EXPECT_TRUE(svg.contains(QStringLiteral("width=\"8.5000in\" height=\"11.0000in\" viewBox=\"0 0 8.5000 11.0000\"")));
    EXPECT_TRUE(svg.contains(QStringLiteral("id=\"fold\"")));
    const QString cut = svg.section(QStringLiteral("id=\"cut\""), 1).section(QStringLiteral("</g>"), 0, 0);
    const QRegularExpression segment(QStringLiteral("M([0-9.]+) ([0-9.]+)L([0-9.]+) ([0-9.]+)"));
    const Cuts printed = CutsOf(pdf, 7);
    size_t found = 0;
    for (auto match = segment.globalMatch(cut); match.hasNext(); ++found) {
        const auto m = match.next();
        const QLineF line(m.captured(1).toDouble() - 0.25, m.captured(2).toDouble() - 0.25,
                          m.captured(3).toDouble() - 0.25, m.captured(4).toDouble() - 0.25);
        const bool there = std::any_of(printed.lines.begin(), printed.lines.end(), [&](const QLineF& other) {
            return QLineF(line.p1(), other.p1()).length() < 0.005 && QLineF(line.p2(), other.p2()).length() < 0.005;
        });
        EXPECT_TRUE(there) << m.captured().toStdString();
    }
    EXPECT_EQ(found, printed.lines.size());
    // The marks that a machine looks for are those on the page.
    const QString marks = svg.section(QStringLiteral("id=\"registration\""), 1);
    EXPECT_TRUE(marks.contains(QStringLiteral("M0.2500 0.3300L0.4100 0.3300"))) << marks.toStdString();
    int crosses = 0;
    for (const PageMark& mark : ReadPageMarks(pdf, 7, 1)) {
        const bool tick =
            mark.kind == PageMark::Kind::Line && mark.color == QColor(Qt::black) && mark.points.size() == 2;
        if (tick && std::abs(QLineF(mark.points[0], mark.points[1]).length() - 0.16) < 0.003) ++crosses;
    }
    EXPECT_EQ(crosses, 8);
}

} // namespace
