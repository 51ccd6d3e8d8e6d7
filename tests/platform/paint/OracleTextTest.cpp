// SPDX-License-Identifier: MIT
// Text against the measured behaviour of the old drawing platform.
#include "platform/paint/DeviceContext.h"
#include "platform/paint/FontFace.h"

#include "support/TestFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QJsonObject Golden() {
    QFile file(QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/drawing/measured.json"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

struct Face {
    QString sFamily;
    bool bBold;
    bool bItalic;
    // Measures of the fonts on the measured platform, in 1/2048 of the em.
    double cell;
    double xAvg;
};

Face FaceOf(const QString& name) {
    const bool arial = name.startsWith(QStringLiteral("Arial"));
    const bool bold = name.contains(QStringLiteral("Bold"));
    const bool italic = name.contains(QStringLiteral("Italic"));
    const double timesAverage = bold ? (italic ? 844 : 874) : (italic ? 823 : 821);
    return {arial ? QStringLiteral("Arial") : QStringLiteral("Times New Roman"), bold, italic, arial ? 2288.0 : 2268.0,
            arial ? (bold ? 980.0 : 904.0) : timesAverage};
}

// The whole-number em that the measured platform takes for a cell height.
int MeasuredPpem(double cell, int height) {
    int ppem = int(std::floor(2048 * height / cell + 0.5));
    if (ppem > 1 && std::floor(cell * ppem / 2048 + 0.5) > height) --ppem;
    return std::max(ppem, 1);
}

int OurWidth(DeviceContext& context, const Face& face, int height, int width, const QString& text) {
    context.SelectFont(context.CreateFont({face.sFamily, height, width, 0, face.bBold, face.bItalic, false}));
    QSize size;
    EXPECT_TRUE(context.GetTextExtentPoint(text, size));
    return size.width();
}

QRect InkBox(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGreen(image.pixel(x, y)) < 255) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

TEST(OracleText, AverageWidthsAreThoseOfTheRealFonts) {
    const QJsonObject fonts =
        Golden()[QStringLiteral("text")][QStringLiteral("winavg")][QStringLiteral("fonts")].toObject();
    ASSERT_FALSE(fonts.isEmpty()) << "the measured values are not here";
    for (const QString& name : fonts.keys()) {
        const Face face = FaceOf(name);
        const FontFace& ours = FontFace::Get(face.sFamily, face.bBold, face.bItalic);
        EXPECT_NEAR(ours.AverageWidth(), face.xAvg, 1.5) << qPrintable(name);
        EXPECT_NEAR(ours.CellHeight(), face.cell, 1.0) << qPrintable(name);
    }
}

TEST(OracleText, EveryMeasuredWidthIsMetWithinItsRounding) {
    const QJsonObject table = Golden()[QStringLiteral("text")][QStringLiteral("winavg")].toObject();
    ASSERT_FALSE(table.isEmpty()) << "the measured values are not here";
    const QJsonArray strings = table[QStringLiteral("strings")].toArray();
    const qsizetype firstExtent = table[QStringLiteral("columns")].toArray().size() - 1;
    QImage image(8, 8, QImage::Format_RGB32);
    DeviceContext context(image);
    int compared = 0;
    const QJsonObject fonts = table[QStringLiteral("fonts")].toObject();
    for (const QString& name : fonts.keys()) {
        const Face face = FaceOf(name);
        for (const QJsonValue& value : fonts[name][QStringLiteral("rows")].toArray()) {
            const QJsonArray row = value.toArray();
            const int height = row[0].toInt();
            const int width = row[1].toInt();
            const int ppem = MeasuredPpem(face.cell, height);
            const double average = face.xAvg * ppem / 2048;
            const double roundedAverage = std::max(1.0, std::floor(average + 0.5));
            for (qsizetype i = 0; i < strings.size(); ++i) {
                const QString text = strings[i].toString();
                const double n = double(text.size());
                const int ours = OurWidth(context, face, height, width, text);
                const double tolerance =
                    width == 0 ? 2 * n
                               : n * (1 + width / roundedAverage) + ours * std::abs(average / roundedAverage - 1);
                EXPECT_NEAR(ours, row[firstExtent + i].toInt(), tolerance)
                    << qPrintable(name) << " " << height << "x" << width << " '" << qPrintable(text) << "'";
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 2000);
}

TEST(OracleText, WidthsAtTheFullEmAreExactToHalfAPercent) {
    const QJsonObject table = Golden()[QStringLiteral("text")][QStringLiteral("winavg")].toObject();
    ASSERT_FALSE(table.isEmpty()) << "the measured values are not here";
    const QJsonArray strings = table[QStringLiteral("strings")].toArray();
    const qsizetype firstExtent = table[QStringLiteral("columns")].toArray().size() - 1;
    QImage image(8, 8, QImage::Format_RGB32);
    DeviceContext context(image);
    const QJsonObject fonts = table[QStringLiteral("fonts")].toObject();
    for (const QString& name : fonts.keys()) {
        const Face face = FaceOf(name);
        for (const QJsonValue& value : fonts[name][QStringLiteral("em_rows")].toArray()) {
            const QJsonArray row = value.toArray();
            for (qsizetype i = 0; i < strings.size(); ++i) {
                const int golden = row[firstExtent + i].toInt();
                const int ours = OurWidth(context, face, row[0].toInt(), row[1].toInt(), strings[i].toString());
                EXPECT_NEAR(ours, golden, golden * 0.005) << qPrintable(name) << " " << row[1].toInt();
            }
        }
    }
}

TEST(OracleText, RotatedInkLiesWhereItWasMeasured) {
    const QJsonObject table = Golden()[QStringLiteral("rotated")].toObject();
    ASSERT_FALSE(table.isEmpty()) << "the measured values are not here";
    int compared = 0;
    for (const QJsonValue& value : table[QStringLiteral("cases")].toArray()) {
        const QJsonObject one = value.toObject();
        if (one[QStringLiteral("align")].toString() != QStringLiteral("top-left")) continue;
        QImage image(480, 480, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        const int width = one[QStringLiteral("lWidth")].toInt();
        context.SelectFont(context.CreateFont({one[QStringLiteral("family")].toString(), 24, width,
                                               one[QStringLiteral("escapement")].toInt(), false, false, false}));
        context.TextOut(200, 200, table[QStringLiteral("string")].toString());
        context.Flush();
        const QRect ours = InkBox(image);
        const QJsonArray ink = one[QStringLiteral("ink")].toArray();
        // The measured em is a whole number (21 for a cell of 24) where ours is 21.48; and antialiased ink
        // may touch one pixel more on each side. Glyphs of the measured layer advance by whole pixels.
        const double length = one[QStringLiteral("extent")].toArray()[0].toInt();
        const double tolerance = 2.5 + 0.06 * length;
        EXPECT_NEAR(ours.left(), ink[0].toInt(), tolerance) << "case " << compared;
        EXPECT_NEAR(ours.top(), ink[1].toInt(), tolerance) << "case " << compared;
        EXPECT_NEAR(ours.right(), ink[2].toInt(), tolerance) << "case " << compared;
        EXPECT_NEAR(ours.bottom(), ink[3].toInt(), tolerance) << "case " << compared;
        ++compared;
    }
    EXPECT_GT(compared, 8);
}

TEST(Text, TurnsAboutTheGivenPointByTheExactBox) {
    const auto ink = [](int escapement) {
        QImage image(480, 480, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectFont(context.CreateFont({QStringLiteral("Arial"), 24, 0, escapement, false, false, false}));
        context.TextOut(200, 200, QStringLiteral("Hg TAVLO"));
        context.Flush();
        return InkBox(image);
    };
    const QRect normal = ink(0);
    const QRect upsideDown = ink(1800);
    EXPECT_NEAR(upsideDown.left(), 399 - normal.right(), 1);
    EXPECT_NEAR(upsideDown.top(), 399 - normal.bottom(), 1);
    const QRect upward = ink(900);
    EXPECT_NEAR(upward.left(), normal.top(), 1);
    EXPECT_NEAR(upward.bottom(), 399 - normal.left(), 1);
    const QRect downward = ink(2700);
    EXPECT_NEAR(downward.right(), 399 - normal.top(), 1);
    EXPECT_NEAR(downward.top(), normal.left(), 1);
}

TEST(Text, AWidthIsTheSumOfItsAdvances) {
    for (const char* family : {"Arial", "Times New Roman", "DejaVu Sans", "DejaVu Serif"}) {
        const FontFace& face = FontFace::Get(QString::fromLatin1(family), false, false);
        for (const char* text : {"office fluffy", "AVATAR To Ty", "first ffl"}) {
            double sum = 0;
            for (const QChar c : QString::fromLatin1(text))
                sum += face.Advance(QString(c));
            EXPECT_NEAR(face.Advance(QString::fromLatin1(text)), sum, 2.0) << family << ": " << text;
        }
    }
}

TEST(Text, DrawsNoLigatures) {
    // Were f and i joined, the ink of the pair would differ from that of the letters drawn one by one.
    const auto draw = [](const QStringList& pieces) {
        QImage image(400, 120, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectFont(context.CreateFont({QStringLiteral("DejaVu Sans"), 100, 0, 0, false, false, false}));
        double x = 10;
        for (const QString& piece : pieces) {
            context.TextOut(int(std::lround(x)), 0, piece);
            x += context.CurrentFont()->Width(piece);
        }
        context.Flush();
        return image;
    };
    const QImage joined = draw({QStringLiteral("ffi")});
    const QImage apart = draw({QStringLiteral("f"), QStringLiteral("f"), QStringLiteral("i")});
    int different = 0;
    for (int y = 0; y < joined.height(); ++y) {
        for (int x = 0; x < joined.width(); ++x) {
            if (std::abs(qGreen(joined.pixel(x, y)) - qGreen(apart.pixel(x, y))) > 160) ++different;
        }
    }
    EXPECT_LT(different, 20);
}

TEST(Text, AStretchKeepsTheHeight) {
    QImage image(8, 8, QImage::Format_RGB32);
    DeviceContext context(image);
    const FontHandle wide = context.CreateFont({QStringLiteral("Arial"), 24, 40, 0, false, false, false});
    const FontHandle plain = context.CreateFont({QStringLiteral("Arial"), 24, 0, 0, false, false, false});
    EXPECT_DOUBLE_EQ(wide->CellHeight(), 24.0);
    EXPECT_DOUBLE_EQ(plain->CellHeight(), 24.0);
    EXPECT_GT(wide->Stretch(), 3.0);
    EXPECT_DOUBLE_EQ(plain->Stretch(), 1.0);
}

TEST(Text, LettersStretchedFarAreUnderlinedTooBetweenTheWords) {
    const auto ink = [](bool underline, const QRect& box) {
        QImage image(480, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectFont(context.CreateFont({QStringLiteral("Arial"), 12, 80, 0, false, false, underline}));
        context.TextOut(0, 10, QStringLiteral("I  I"));
        context.Flush();
        return InkBox(image.copy(box));
    };
    // The blanks take the middle of the line.
    const QRect between(100, 0, 60, 60);
    EXPECT_TRUE(ink(false, between).isNull());
    EXPECT_EQ(ink(true, between).width(), between.width());
}

TEST(Text, OpaqueBackgroundIsTheTextBox) {
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    DeviceContext context(image);
    context.SelectFont(context.CreateFont({QStringLiteral("Arial"), 24, 12, 0, false, false, false}));
    context.SetBkMode(BkMode::Opaque);
    context.SetBkColor(Color::Rgb(0, 0, 255));
    context.TextOut(100, 100, QStringLiteral("     "));
    QSize size;
    ASSERT_TRUE(context.GetTextExtentPoint(QStringLiteral("     "), size));
    context.Flush();
    EXPECT_EQ(InkBox(image), QRect(100, 100, size.width(), 24));
    EXPECT_EQ(context.GetPixel(101, 101), Color::Rgb(0, 0, 255));
}
