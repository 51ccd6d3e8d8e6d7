// SPDX-License-Identifier: MIT
// Shapes and lines against the measured behaviour of the old drawing platform.
#include "platform/paint/DeviceContext.h"

#include "support/TestFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int kSide = 480;
const Color kPen = Color::Rgb(255, 0, 0);
const Color kBrush = Color::Rgb(0, 0, 255);

QJsonArray Cases(const char* table) {
    QFile file(QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/drawing/measured.json"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QJsonObject golden = QJsonDocument::fromJson(file.readAll()).object();
    return golden[QString::fromLatin1(table)][QStringLiteral("cases")].toArray();
}

struct Painted {
    QRect box;
    int count = 0;
};

// Pixels of which the colour covers at least half. On the white sheet red has no green and no blue, blue no
// red and no green; where both meet the larger part decides.
Painted Find(const QImage& image, bool pen) {
    Painted painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const bool inked = qGreen(pixel) < 128;
            const bool red = qRed(pixel) >= qBlue(pixel);
            if (!inked || red != pen) continue;
            painted.box |= QRect(x, y, 1, 1);
            ++painted.count;
        }
    }
    return painted;
}

QRect BoxOf(const QJsonValue& value) {
    const QJsonArray box = value.toArray();
    if (box.isEmpty()) return {};
    return QRect(QPoint(box[0].toInt(), box[1].toInt()), QPoint(box[2].toInt(), box[3].toInt()));
}

void ExpectBox(const QRect& ours, const QRect& golden, int tolerance, const std::string& what) {
    if (golden.isNull() || ours.isNull()) {
        // A speck of a pixel or two may round away.
        EXPECT_LE(std::max(golden.width() * golden.height(), ours.width() * ours.height()), 4) << what;
        return;
    }
    EXPECT_NEAR(ours.left(), golden.left(), tolerance) << what;
    EXPECT_NEAR(ours.top(), golden.top(), tolerance) << what;
    EXPECT_NEAR(ours.right(), golden.right(), tolerance) << what;
    EXPECT_NEAR(ours.bottom(), golden.bottom(), tolerance) << what;
}

PenHandle MakePen(DeviceContext& context, const QJsonObject& one) {
    const int width = one[QStringLiteral("pen")].toInt();
    const bool inside = one[QStringLiteral("pen_style")].toString() == QStringLiteral("insideframe");
    const PenStyle style = width < 0 ? PenStyle::Null : inside ? PenStyle::InsideFrame : PenStyle::Solid;
    return context.CreatePen(style, width, kPen);
}

void DrawShape(DeviceContext& context, const QString& shape, const QJsonArray& c) {
    if (shape == QStringLiteral("Polygon")) {
        std::vector<QPoint> points;
        for (qsizetype i = 0; i + 1 < c.size(); i += 2)
            points.emplace_back(c[i].toInt(), c[i + 1].toInt());
        context.Polygon(points);
    } else if (shape == QStringLiteral("Ellipse")) {
        context.Ellipse(c[0].toInt(), c[1].toInt(), c[2].toInt(), c[3].toInt());
    } else {
        context.Rectangle(c[0].toInt(), c[1].toInt(), c[2].toInt(), c[3].toInt());
    }
}

} // namespace

TEST(OracleShapes, RectanglesEllipsesAndPolygonsCoverTheMeasuredPixels) {
    const QJsonArray cases = Cases("shapes");
    ASSERT_FALSE(cases.isEmpty()) << "the measured values are not here";
    int compared = 0;
    for (const QJsonValue& value : cases) {
        const QJsonObject one = value.toObject();
        const QString shape = one[QStringLiteral("shape")].toString();
        if (shape == QStringLiteral("RoundRect")) continue;
        QImage image(kSide, kSide, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectPen(MakePen(context, one));
        const bool solid = one[QStringLiteral("brush")].toString() == QStringLiteral("solid");
        context.SelectBrush(solid ? context.CreateSolidBrush(kBrush) : DeviceContext::HollowBrush());
        DrawShape(context, shape, one[QStringLiteral("coords")].toArray());
        context.Flush();
        const std::string what = QJsonDocument(QJsonObject{{QStringLiteral("shape"), shape},
                                                           {QStringLiteral("coords"), one[QStringLiteral("coords")]},
                                                           {QStringLiteral("pen"), one[QStringLiteral("pen")]},
                                                           {QStringLiteral("style"), one[QStringLiteral("pen_style")]}})
                                     .toJson(QJsonDocument::Compact)
                                     .toStdString();
        const int tolerance = shape == QStringLiteral("Rectangle") ? 0 : 1;
        ExpectBox(Find(image, true).box, BoxOf(one[QStringLiteral("pen_box")]), tolerance, what + " pen");
        ExpectBox(Find(image, false).box, BoxOf(one[QStringLiteral("brush_box")]), tolerance, what + " brush");
        ++compared;
    }
    EXPECT_GT(compared, 100);
}

TEST(OracleShapes, LinesRunFromPixelToPixelAsMeasured) {
    const QJsonArray cases = Cases("lines");
    ASSERT_FALSE(cases.isEmpty()) << "the measured values are not here";
    int compared = 0;
    for (const QJsonValue& value : cases) {
        const QJsonObject one = value.toObject();
        const bool single = one.contains(QStringLiteral("line"));
        if (!single && !one.contains(QStringLiteral("polyline"))) continue;
        const QJsonArray c = (single ? one[QStringLiteral("line")] : one[QStringLiteral("polyline")]).toArray();
        QImage image(kSide, kSide, QImage::Format_RGB32);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectPen(MakePen(context, one));
        context.MoveTo(c[0].toInt(), c[1].toInt());
        for (qsizetype i = 2; i + 1 < c.size(); i += 2)
            context.LineTo(c[i].toInt(), c[i + 1].toInt());
        context.Flush();
        const bool straight = !single || c[0] == c[2] || c[1] == c[3];
        const bool thin = one[QStringLiteral("pen")].toInt() <= 1;
        const std::string what = QJsonDocument(c).toJson(QJsonDocument::Compact).toStdString() + " pen " +
                                 std::to_string(one[QStringLiteral("pen")].toInt());
        ExpectBox(Find(image, true).box, BoxOf(one[QStringLiteral("pen_box")]), straight && thin ? 0 : 1, what);
        ++compared;
    }
    EXPECT_GT(compared, 20);
}

// The rules that the measurements show, for every width of the pen and every small size.
TEST(Shapes, EveryPenAndSizeKeepsToTheEdgeRules) {
    constexpr int kLeft = 40;
    constexpr int kTop = 50;
    for (const int pen : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 25}) {
        for (const int width : {1, 2, 3, 4, 5, 8, 13, 60}) {
            for (const int height : {1, 2, 3, 7, 41}) {
                QImage image(160, 160, QImage::Format_RGB32);
                image.fill(Qt::white);
                DeviceContext context(image);
                context.SelectPen(context.CreatePen(pen < 0 ? PenStyle::Null : PenStyle::Solid, pen, kPen));
                context.SelectBrush(context.CreateSolidBrush(kBrush));
                // Corners may come in any order.
                context.Rectangle(kLeft + width, kTop, kLeft, kTop + height);
                context.Flush();
                const QRect shape(kLeft, kTop, width, height);
                const int out = std::max(pen, 1) / 2;
                const int beyond = std::max(pen - 1, 0) / 2;
                QRect expected = pen < 0 ? shape.adjusted(0, 0, -1, -1) : shape.adjusted(-out, -out, beyond, beyond);
                if (pen <= 1 && width == 1 && height == 1) expected = QRect();
                const Painted painted = Find(image, pen >= 0);
                const std::string what =
                    "pen " + std::to_string(pen) + ", " + std::to_string(width) + " by " + std::to_string(height);
                if (expected.isEmpty()) {
                    EXPECT_EQ(painted.count, 0) << what;
                } else {
                    ExpectBox(painted.box, expected, 0, what);
                }
            }
        }
    }
}

TEST(Shapes, StraightEdgesAreCrispAtEveryScale) {
    for (const double ratio : {1.0, 2.0, 3.0}) {
        QImage image(int(80 * ratio), int(80 * ratio), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        DeviceContext context(image);
        context.SelectPen(context.CreatePen(PenStyle::Solid, 1, Color::Black()));
        context.SelectBrush(context.CreateSolidBrush(kBrush));
        context.Rectangle(10, 20, 50, 60);
        context.MoveTo(5, 5);
        context.LineTo(60, 5);
        context.Flush();
        int halfTones = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y) & 0xFFFFFF;
                if (pixel != 0xFFFFFF && pixel != 0x000000 && pixel != 0x0000FF) ++halfTones;
            }
        }
        EXPECT_EQ(halfTones, 0) << "at " << ratio;
    }
}
