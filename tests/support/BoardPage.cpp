// SPDX-License-Identifier: MIT
#include "support/BoardPage.h"

#include "board/basPositPaint.h"
#include "pieces/frmBMP.h"
#include "platform/printing/Printer.h"

#include <QImage>

#include <cmath>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kDpi = 600;

Color ToColor(QColor color) { return Color::Rgb(color.red(), color.green(), color.blue()); }

} // namespace

BoardPageTest::BoardPageTest() {
    Let_g_sGameVersion(QStringLiteral("8"));
    g_lMagicColor() = Color::Rgb(224, 255, 224);
    frmBMP::InstallAsThumbnailMaker();
    PictureOf(kFateColor, QStringLiteral("program/fate.dat"), {60, 80});
    PosInit();
}

int BoardPageTest::Nearest(double value) { return int(std::nearbyint(value)); }
int BoardPageTest::Lower(double value) { return int(std::floor(value)); }

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
