// SPDX-License-Identifier: MIT
// Pictures for a printing service.
#include "tools/NoKitFixture.h"

#include <QImage>

namespace {

class ServiceTest : public NoKitFixture {
protected:
    ServiceTest() {
        EXPECT_EQ(
            RunWithFamily({QStringLiteral("--service"), made, QStringLiteral("--board-size"), QStringLiteral("10in")}),
            0)
            << errors.toStdString();
    }
    QImage Picture(const char* name) const {
        return QImage(made + u'/' + QString::fromLatin1(name) + QStringLiteral(".png"));
    }

    const QString made = PathOf(QStringLiteral("out/service"));
};

TEST_F(ServiceTest, EveryPieceIsThereAtThreeHundredDotsWithItsBleed) {
    const QStringList files = QDir(made).entryList({QStringLiteral("*.png")}, QDir::Files);
    EXPECT_EQ(files.size(), 1 + 4 + 24 + 24 + 4 + 6);
    const struct {
        const char* name;
        double width;
        double height;
    } rows[] = {{"board", 10, 10},    {"board-lower-right", 5, 5}, {"deed-01", 2.5, 2.5}, {"deed-28", 2.5, 2.5},
                {"good-01", 3, 1.62}, {"bad-12", 3, 1.62},         {"note-100", 3.75, 2}, {"token-06", 0.875, 0.875}};
    for (const auto& row : rows) {
        const QImage picture = Picture(row.name);
        EXPECT_NEAR(picture.width(), (row.width + 0.25) * 300, 1) << row.name;
        EXPECT_NEAR(picture.height(), (row.height + 0.25) * 300, 1) << row.name;
        EXPECT_NEAR(picture.dotsPerMeterX() * 0.0254, 300, 0.5) << row.name;
    }
}

TEST_F(ServiceTest, TheListTellsWhatThereIs) {
    const QStringList lines = QString::fromUtf8(ReadFile(made + QStringLiteral("/sizes.csv")))
                                  .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 1 + 63);
    EXPECT_EQ(lines[1], QStringLiteral("board.png,\"Game board\",10.000,10.000,0.125,3075,3075,1"));
    EXPECT_TRUE(lines.contains(QStringLiteral("note-100.png,\"Banknote\",3.750,2.000,0.125,1200,675,50")));
    for (const QString& line : lines.mid(1))
        EXPECT_TRUE(QFile::exists(made + u'/' + line.section(u',', 0, 0))) << line.toStdString();
}

TEST_F(ServiceTest, TheQuartersAreTheBoardAndGoOnIntoTheirBleed) {
    const QImage board = Picture("board").convertToFormat(QImage::Format_RGB32);
    const struct {
        const char* name;
        int x;
        int y;
    } rows[] = {{"board-upper-left", 0, 0},
                {"board-upper-right", 1500, 0},
                {"board-lower-left", 0, 1500},
                {"board-lower-right", 1500, 1500}};
    for (const auto& row : rows) {
        const QImage quarter = Picture(row.name).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(quarter.size(), QSize(1575, 1575));
        int unlike = 0;
        for (int y = 30; y < 1545; ++y) {
            for (int x = 30; x < 1545; ++x) {
                const QRgb a = quarter.pixel(x, y);
                const QRgb b = board.pixel(row.x + x, row.y + y);
                if (std::abs(qGreen(a) - qGreen(b)) > 40) ++unlike;
            }
        }
        EXPECT_LT(unlike, 1545 * 1545 / 500) << row.name;
    }
}

TEST_F(ServiceTest, MarksAreFaintAndStayOutsideTheCut) {
    const QImage deed = Picture("deed-01");
    const QColor mark = deed.pixelColor(37, 10);
    EXPECT_LT(mark.lightness(), 250);
    EXPECT_GT(mark.lightness(), 150);
    // The dashes of a sheet for scissors aren't on a card that is cut by a machine.
    for (int x = 40; x < deed.width() - 40; ++x) {
        EXPECT_EQ(deed.pixelColor(x, 36), QColor(Qt::white)) << x;
        EXPECT_EQ(deed.pixelColor(x, 38), QColor(Qt::white)) << x;
    }
}

} // namespace
