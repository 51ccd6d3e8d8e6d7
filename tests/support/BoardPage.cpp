// SPDX-License-Identifier: MIT
#include "support/BoardPage.h"

#include "board/basPositPaint.h"
#include "pieces/frmBMP.h"
#include "platform/printing/Printer.h"

#include <QImage>
#include <QLineF>

#include <cmath>
#include <numbers>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kDpi = 600;
// A place is rounded more than once on its way to the page.
constexpr double kPlaceWithin = 1.6;

Color ToColor(QColor color) { return Color::Rgb(color.red(), color.green(), color.blue()); }

bool IsNear(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) < 2 && std::abs(a.green() - b.green()) < 2 && std::abs(a.blue() - b.blue()) < 2;
}

QPointF AnchorOf(const PageMark& text, char align) {
    const double radians = text.angle * std::numbers::pi / 1800;
    const double part = align == 'C' ? 0.5 : align == 'R' ? 1 : 0;
    return text.start + QPointF(std::cos(radians), -std::sin(radians)) * text.width * part;
}

} // namespace

const std::vector<KnownFace>& KnownFaces() {
    static const std::vector<KnownFace> faces = {
        {"Arial", false, false, "LiberationSans", "ArialMT", 0.4416},
        {"Arial", true, false, "LiberationSans-Bold", "Arial-BoldMT", 0.4786},
        {"Arial", false, true, "LiberationSans-Italic", "Arial-ItalicMT", 0.4416},
        {"Arial", true, true, "LiberationSans-BoldItalic", "Arial-BoldItalicMT", 0.4786},
        {"Times New Roman", false, false, "LiberationSerif", "TimesNewRomanPSMT", 0.4013},
        {"Times New Roman", true, false, "LiberationSerif-Bold", "TimesNewRomanPS-BoldMT", 0.4270},
        {"Times New Roman", false, true, "LiberationSerif-Italic", "TimesNewRomanPS-ItalicMT", 0.4022},
        {"Times New Roman", true, true, "LiberationSerif-BoldItalic", "TimesNewRomanPS-BoldItalicMT", 0.4122},
        {"Courier New", false, false, "LiberationMono", "CourierNewPSMT", 0.6001},
        {"Courier New", true, false, "LiberationMono-Bold", "CourierNewPS-BoldMT", 0.6001},
        {"Courier New", false, true, "LiberationMono-Italic", "CourierNewPS-ItalicMT", 0.6001},
        {"Courier New", true, true, "LiberationMono-BoldItalic", "CourierNewPS-BoldItalicMT", 0.6001},
    };
    return faces;
}

BoardPageTest::BoardPageTest() {
    Let_g_sGameVersion(QStringLiteral("8"));
    g_lMagicColor() = Color::Rgb(224, 255, 224);
    frmBMP::InstallAsThumbnailMaker();
    PictureOf(kFateColor, QStringLiteral("program/fate.dat"), {60, 80});
    PosInit();
}

int BoardPageTest::Nearest(double value) { return int(std::nearbyint(value)); }
int BoardPageTest::Lower(double value) { return int(std::floor(value)); }

const KnownFace& BoardPageTest::Face(const char* family, bool bold, bool italic) {
    for (const KnownFace& face : KnownFaces()) {
        if (QLatin1String(face.family) == QLatin1String(family) && face.bold == bold && face.italic == italic)
            return face;
    }
    throw std::invalid_argument(family);
}

const KnownFace& BoardPageTest::FaceOf(int number) { return KnownFaces()[size_t(number) % KnownFaces().size()]; }

QString BoardPageTest::LineOf(int iSpace, int iLine) {
    return QStringLiteral("Space %1%2").arg(iSpace).arg(QChar(u'a' + iLine));
}

QString BoardPageTest::PictureOf(QColor color, const QString& sName, QSize size) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString path = PathOf(sName);
    EXPECT_TRUE(image.save(path, "BMP"));
    return path;
}

void BoardPageTest::MakeGame() {
    const auto useFace = [](C_FontInfo& font, int number, float size) {
        const KnownFace& face = FaceOf(number);
        font.Load(QString::fromLatin1(face.family), face.italic, face.bold, size);
    };
    const auto usePicture = [this](C_Image& image, const char* kind, int index, int number) {
        image.Let_SpaceOrCorner(QString::fromLatin1(kind));
        image.Let_Index(qint16(index));
        image.Let_FullPath(PictureOf(PictureColor(number), QStringLiteral("picture%1.bmp").arg(number)));
    };
    for (int i = 0; i < kSpaces; ++i) {
        C_Space& space = g_oSpaces(i);
        QStringList lines;
        for (int iLine = 0; iLine < LinesOf(i); ++iLine)
            lines.append(LineOf(i, iLine));
        space.Let_TextAll(lines.join(QStringLiteral("\r\n")));
        useFace(space.Font, i, 48);
        space.Let_TextSize(0.010F + 0.0003F * float(i));
        if (!space.SpaceColor.IsNone()) space.SpaceColor = ToColor(BandColor(i));
        space.CostColor = ToColor(CostColor(i));
        if (HasPicture(i)) usePicture(space.Image, "Space", i, i);
    }
    for (int i = 0; i < kCorners; ++i) {
        C_Corner& corner = g_oCorners(i);
        corner.Let_TextAll(0, QStringLiteral("Corner %1a\r\nCorner %1b").arg(i));
        corner.Let_TextAll(1, QStringLiteral("Other %1").arg(i));
        useFace(corner.Font, i + 3, 48);
        corner.Let_TextSize(0, 0.02F + 0.001F * float(i));
        usePicture(corner.Image, "Corner", i, kSpaces + i);
    }
}

QList<PageMark> BoardPageTest::Paint(const View& view) {
    const QString path = PathOf(QStringLiteral("board.pdf"));
    PdfPrinter printer(path, QStringLiteral("board"), QPageSize::Letter, kDpi);
    printer.ScaleMode = ScaleModeKind::Pixels;
    PosSethDC(&printer.hDC());
    PosSetPicture(&printer, view.onScreen);
    PosSetScale(float(view.scale));
    PosSetWidth(view.width);
    PosSetOffsetX(view.offsetX);
    PosSetOffsetY(view.offsetY);
    PosDrawAll();
    PosSetPicture(nullptr);
    PosSethDC(nullptr);
    QString error;
    EXPECT_TRUE(printer.Close(error)) << error.toStdString();
    return ReadPageMarks(path, 1, kDpi);
}

QList<PageMark> BoardPageTest::Only(const QList<PageMark>& marks, PageMark::Kind kind) {
    QList<PageMark> found;
    for (const PageMark& mark : marks) {
        if (mark.kind == kind) found.append(mark);
    }
    return found;
}

QList<PageMark> BoardPageTest::OfColor(const QList<PageMark>& marks, QColor color) {
    QList<PageMark> found;
    for (const PageMark& mark : marks) {
        if (IsNear(mark.color, color)) found.append(mark);
    }
    return found;
}

QStringList BoardPageTest::TextsOf(const QList<PageMark>& marks) {
    QStringList texts;
    for (const PageMark& mark : Only(marks, PageMark::Kind::Text))
        texts.append(mark.sText);
    return texts;
}

void BoardPageTest::ExpectText(const QList<PageMark>& marks, const ToldText& told) {
    const std::string what = told.sText.toStdString();
    const PageMark* nearest = nullptr;
    double distance = 1e9;
    for (const PageMark& mark : marks) {
        if (mark.kind != PageMark::Kind::Text || mark.sText != told.sText) continue;
        const double away = QLineF(AnchorOf(mark, told.align), QPointF(told.x, told.y)).length();
        if (away < distance) nearest = &mark;
        distance = std::min(away, distance);
    }
    ASSERT_TRUE(nearest) << what << " isn't on the page";
    const QPointF anchor = AnchorOf(*nearest, told.align);
    EXPECT_NEAR(anchor.x(), told.x, kPlaceWithin) << what;
    EXPECT_NEAR(anchor.y(), told.y, kPlaceWithin) << what;
    EXPECT_NEAR(nearest->angle, told.angle, 0.5) << what;
    EXPECT_TRUE(IsNear(nearest->color, told.color)) << what << ": " << nearest->color.name().toStdString();
    EXPECT_TRUE(nearest->sFace == QLatin1String(told.face->onPage) ||
                nearest->sFace == QLatin1String(told.face->orOnPage))
        << what << ": " << nearest->sFace.toStdString() << " and not " << told.face->onPage;
    EXPECT_NEAR(nearest->height, told.height, 0.05) << what;
    if (told.letter == 0) {
        EXPECT_NEAR(nearest->stretch, 1, 0.002) << what;
    } else {
        EXPECT_NEAR(nearest->stretch * told.face->average * nearest->em, told.letter, 0.05) << what;
    }
}

void BoardPageTest::ExpectBox(const QRectF& found, double left, double top, double right, double bottom,
                              const char* what, int number) {
    constexpr double kWithin = 0.01;
    EXPECT_NEAR(found.left(), left, kWithin) << what << ' ' << number;
    EXPECT_NEAR(found.top(), top, kWithin) << what << ' ' << number;
    EXPECT_NEAR(found.right(), right, kWithin) << what << ' ' << number;
    EXPECT_NEAR(found.bottom(), bottom, kWithin) << what << ' ' << number;
}

double BoardPageTest::Along(int iSpace) {
    const double middle = (iSpace % kPerSide + 0.5) * kPitch;
    return iSpace / kPerSide < 2 ? 0.7983 - middle : 0.2017 + middle;
}
