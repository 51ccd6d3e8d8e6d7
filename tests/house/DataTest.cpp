// SPDX-License-Identifier: MIT
// The data that ships with the program: what every part of it counts on.
#include "support/TestFixture.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

QString DataPath(const QString& sName) { return QStringLiteral(TAVLORA_DATA_DIR "/") + sName; }

/// The picture, whatever its name ends in; null if it is missing or broken.
QImage Load(const QString& sName) {
    QImageReader reader(DataPath(sName));
    reader.setDecideFormatFromContent(true);
    return reader.read();
}

/// The lines of a file; a failure if one of them does not end in CR LF.
QList<QByteArray> Lines(const QByteArray& bytes) {
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    QList<QByteArray> lines = bytes.split('\n');
    lines.removeLast();
    for (QByteArray& line : lines)
        line.chop(1);
    return lines;
}

/// The game that a new one begins as, and the samples.
QStringList Games() {
    QStringList games = QDir(QStringLiteral(TAVLORA_DATA_DIR)).entryList({QStringLiteral("*_US.gam")}, QDir::Files);
    EXPECT_EQ(games.size(), 7);
    return games << QStringLiteral("Default_US.dat");
}

/// The largest difference of a channel between the pixels of a box and the pixel in its middle.
int Unevenness(const QImage& picture, const QRect& box) {
    const QColor middle = picture.pixelColor(box.center());
    int worst = 0;
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            const QColor here = picture.pixelColor(x, y);
            worst = std::max({worst, std::abs(here.red() - middle.red()), std::abs(here.green() - middle.green()),
                              std::abs(here.blue() - middle.blue())});
        }
    }
    return worst;
}

} // namespace

class ShippedData : public TavloraTest {};

TEST_F(ShippedData, EveryPictureLoadsAtItsSize) {
    const struct {
        const char* name;
        QSize size;
    } pictures[] = {
        {"BLNK100.dat", {1050, 525}},  {"BLNK500.dat", {1050, 525}},   {"BLNK1000.dat", {1050, 525}},
        {"BLNK5000.dat", {1050, 525}}, {"$$$ellipse.dat", {492, 570}}, {"MoneyBg_US.bmp", {656, 760}},
        {"fate.dat", {800, 800}},      {"uparrow.bmp", {128, 128}},    {"downarrow.bmp", {128, 128}},
        {"leftarrow.bmp", {128, 128}}, {"rightarrow.bmp", {128, 128}}, {"deco_ul.dat", {300, 300}},
        {"deco_ur.dat", {300, 300}},   {"deco_ll.dat", {300, 300}},    {"deco_lr.dat", {300, 300}},
        {"deco2_ul.bmp", {300, 300}},  {"deco2_ur.bmp", {300, 300}},   {"deco2_ll.bmp", {300, 300}},
        {"deco2_lr.bmp", {300, 300}},  {"toolbar.dat", {1320, 104}},   {"tavlora.png", {256, 256}},
    };
    for (const auto& picture : pictures) {
        EXPECT_EQ(Load(QString::fromLatin1(picture.name)).size(), picture.size) << picture.name;
    }
}

TEST_F(ShippedData, BlankNotesAreClearWhereTextAndPictureGo) {
    for (const int amount : {100, 500, 1000, 5000}) {
        const QImage note = Load(QStringLiteral("BLNK%1.dat").arg(amount));
        ASSERT_FALSE(note.isNull()) << amount;
        // The note is drawn at 300 dots an inch from 0.125, 0.123 inch; text boxes are 0.875 by 0.5 inch.
        EXPECT_LE(Unevenness(note, QRect(87, 188, 262, 150)), 8) << amount;
        EXPECT_LE(Unevenness(note, QRect(683, 188, 262, 150)), 8) << amount;
        // The square inside the oval of 0.82 by 0.95 inch round 1.84, 0.995.
        EXPECT_LE(Unevenness(note, QRect(515 - 86, 262 - 100, 172, 200)), 8) << amount;
    }
}

TEST_F(ShippedData, BlankNotesWearTheColourOfTheirDenomination) {
    const struct {
        const char* name;
        QRgb colour;
    } notes[] = {{"BLNK100.dat", 0xFFC7C7E8},
                 {"BLNK500.dat", 0xFFFAD3D8},
                 {"BLNK1000.dat", 0xFFC7E4C8},
                 {"BLNK5000.dat", 0xFFFAD085}};
    for (const auto& note : notes) {
        // Outside the rounded outline, so that the panel melts into the note that the program fills.
        EXPECT_EQ(Load(QString::fromLatin1(note.name)).pixel(0, 0), note.colour) << note.name;
    }
}

TEST_F(ShippedData, TheEllipseLeavesTheNoteItsCorners) {
    const QImage ellipse = Load(QStringLiteral("$$$ellipse.dat"));
    for (const QPoint& corner : {QPoint(0, 0), QPoint(491, 0), QPoint(0, 569), QPoint(491, 569)}) {
        EXPECT_EQ(ellipse.pixelColor(corner).alpha(), 0);
    }
    EXPECT_EQ(ellipse.pixelColor(246, 150).alpha(), 255);
}

TEST_F(ShippedData, ArrowsPointTheWayTheyAreNamed) {
    // Beside the shaft there is ink on the head's side of the middle only.
    const auto ink = [](const QImage& picture, const QRect& box) {
        int count = 0;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            for (int x = box.left(); x <= box.right(); ++x)
                count += picture.pixelColor(x, y).lightness() < 128;
        }
        return count;
    };
    const QRect up(0, 48, 40, 16), down(0, 64, 40, 16), left(48, 0, 16, 40), right(64, 0, 16, 40);
    EXPECT_GT(ink(Load(QStringLiteral("uparrow.bmp")), up), ink(Load(QStringLiteral("uparrow.bmp")), down));
    EXPECT_GT(ink(Load(QStringLiteral("downarrow.bmp")), down), ink(Load(QStringLiteral("downarrow.bmp")), up));
    EXPECT_GT(ink(Load(QStringLiteral("leftarrow.bmp")), left), ink(Load(QStringLiteral("leftarrow.bmp")), right));
    EXPECT_GT(ink(Load(QStringLiteral("rightarrow.bmp")), right), ink(Load(QStringLiteral("rightarrow.bmp")), left));
}

// The title editor cuts lines to 40 characters, and a longer subtitle runs over its box on the board.
TEST_F(ShippedData, NoTitleIsLongerThanTheEditorKeeps) {
    for (const QString& name : Games()) {
        // Quoted, so that a comma in one of them doesn't part it.
        const QList<QByteArray> fields = Lines(ReadFile(DataPath(name)))[1].split('"');
        ASSERT_EQ(fields.size(), 7) << name.toStdString();
        for (const QByteArray& title : {fields[1], fields[3], fields[5]})
            EXPECT_LE(title.size(), 40) << name.toStdString() << ": " << title.toStdString();
    }
}

TEST_F(ShippedData, EveryGameHoldsItsRecordsInOrder) {
    const struct { int first, count; } runs[] = {{3, 28}, {31, 4}, {35, 12}, {47, 12}, {59, 4}, {63, 6}};
    for (const QString& sName : Games()) {
        const std::string name = sName.toStdString();
        const QList<QByteArray> lines = Lines(ReadFile(DataPath(sName)));
        ASSERT_EQ(lines.size(), 69) << name;
        EXPECT_TRUE(lines[0].startsWith("\"TavloraGameBoard\", ")) << name;
        for (const auto& run : runs) {
            for (int i = 0; i < run.count; ++i) {
                EXPECT_TRUE(lines[run.first + i].startsWith(QByteArray::number(i) + ", \"")) << name << run.first + i;
            }
        }
    }
}

TEST_F(ShippedData, RentsHaveARowForEachSpaceAndAFieldLessInOlderKits) {
    const struct {
        const char* name;
        int fields;
    } files[] = {{"Rents_US.dat", 9}, {"older/Rents_US.dat", 8}};
    for (const auto& file : files) {
        const QList<QByteArray> rows = Lines(ReadFile(DataPath(QString::fromLatin1(file.name))));
        ASSERT_EQ(rows.size(), 28) << file.name;
        for (int row = 0; row < rows.size(); ++row) {
            const QList<QByteArray> fields = rows[row].split(',');
            ASSERT_EQ(fields.size(), file.fields) << file.name << row;
            EXPECT_EQ(fields[0].toInt(), row) << file.name;
            // The smallest note is a 100.
            for (int i = 1; i < fields.size() - 1; ++i)
                EXPECT_EQ(fields[i].toInt() % 100, 0) << file.name << row;
        }
    }
}

TEST_F(ShippedData, RulesBeginWithTheirHeadAndEveryLineCanBeRead) {
    const QList<QByteArray> lines = Lines(ReadFile(DataPath(QStringLiteral("GamePlay_US.dat"))));
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines.first(), "<Head>");
    EXPECT_EQ(lines.count("<Col1>"), 1);
    EXPECT_EQ(lines.count("<Col2>"), 1);
    static const QRegularExpression text(QStringLiteral("^(times|arial),[0-9]+,[LCR],(R|B|I|BI):"));
    for (const QByteArray& line : lines) {
        if (line.isEmpty() || line == "<Head>" || line == "<Col1>" || line == "<Col2>") continue;
        EXPECT_TRUE(text.match(QString::fromLatin1(line)).hasMatch()) << line.constData();
    }
}
