// SPDX-License-Identifier: MIT
#include "pieces/frmBMP.h"

#include "document/basTAVL.h"
#include "drawing/clsBMP.h"
#include "pieces/frmBMP_turning.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "services/TavloraError.h"
#include "support/MetafileBuilder.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QPainter>
#include <QtEndian>

namespace {

using namespace PictureFiles;

constexpr QRgb kBoard = 0xFFE0FFE0;
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kGreen = 0xFF00FF00;
constexpr QRgb kBlue = 0xFF0000FF;

class frmBMPTest : public TavloraTest {
protected:
    frmBMPTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
    }
    QImage Thumb(const QByteArray& picture, const QString& sName, const QString& sKind, int iIndex) {
        C_Image image;
        image.Init(WriteFile(sName, picture), sKind, qint16(iIndex));
        QString error;
        const QImage thumb = LoadPicture(image.GetThumbnail(false), error).Image();
        EXPECT_FALSE(thumb.isNull()) << qPrintable(error);
        return thumb;
    }
    QByteArray Plain(int width, int height, QColor color = Qt::red) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        return Encoded(image, "png");
    }
};

template <typename T>
T Field(const QByteArray& bytes, int offset) {
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

TEST_F(frmBMPTest, Edge_WidePictureAtZoomZeroLeavesBarsOfTheBoardInTheSquare) {
    const QImage thumb = Thumb(Plain(300, 200), QStringLiteral("w.png"), QStringLiteral("Space"), 0);
    EXPECT_EQ(thumb.size(), QSize(100, 100));
    EXPECT_EQ(thumb.pixel(50, 0), kBoard);
    EXPECT_EQ(thumb.pixel(50, 20), kRed);
    EXPECT_EQ(thumb.pixel(50, 80), kRed);
    EXPECT_EQ(thumb.pixel(50, 99), kBoard);
}

TEST_F(frmBMPTest, Edge_SideTwoTurnsUpsideDown) {
    EXPECT_EQ(Turning::CellOnSide(100, 2, 0, 0), QPoint(99, 99));
    const QImage thumb =
        Thumb(Encoded(Quarters(200, 200), "png"), QStringLiteral("q.png"), QStringLiteral("Space"), 14);
    EXPECT_EQ(thumb.pixel(99, 99), kRed);
    EXPECT_EQ(thumb.pixel(0, 0), kWhite);
}

TEST_F(frmBMPTest, APictureOnTwoSidesIsTurnedForEachWhicheverWasMadeLast) {
    const QString path = WriteFile(QStringLiteral("q.png"), Encoded(Quarters(200, 200), "png"));
    const auto rendering = [&path](qint16 iSpace) {
        C_Image image;
        image.Init(path, QStringLiteral("Space"), iSpace);
        return frmBMP::Instance().RenderRotated(image.Owned(), 60).Image();
    };
    const QImage upright = rendering(0);
    ASSERT_EQ(upright.size(), QSize(60, 60));
    EXPECT_EQ(upright.pixel(0, 0), kRed);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(rendering(14), upright.mirrored(true, true)) << "upside down on the far side";
        EXPECT_EQ(rendering(0), upright);
    }
}

TEST_F(frmBMPTest, Edge_FirstPixelOfCornerZeroLandsAtTheLeftTip) {
    const auto cells = Turning::CellsOnCorner(100, 0, 0, 0);
    EXPECT_EQ(cells[0], QPoint(0, 49));
    EXPECT_EQ(cells[1], QPoint(0, 50));
    // A red corner of a white picture: it comes to the left tip, and to no other.
    QImage picture(200, 200, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.fillRect(0, 0, 20, 20, Qt::red);
    painter.end();
    const QImage thumb = Thumb(Encoded(picture, "png"), QStringLiteral("c.png"), QStringLiteral("Corner"), 0);
    for (const QPoint tip : {QPoint(0, 49), QPoint(0, 50)})
        EXPECT_EQ(thumb.pixel(tip), qRgb(240, 128, 112)) << "half of it red, half the board";
    EXPECT_EQ(thumb.pixel(3, 49), kRed);
    EXPECT_EQ(thumb.pixel(3, 50), kRed);
    for (const QPoint other : {QPoint(96, 49), QPoint(49, 3), QPoint(49, 96)})
        EXPECT_EQ(thumb.pixel(other), kWhite);
}

TEST_F(frmBMPTest, Edge_TipsOfTheDiamondAreHalfPictureAndHalfBoard) {
    const QImage thumb = Thumb(Plain(200, 200), QStringLiteral("r.png"), QStringLiteral("Corner"), 0);
    // Two samples of red (255, 0, 0) and two of the board (224, 255, 224).
    const QRgb half = qRgb(240, 128, 112);
    for (const QPoint tip : {QPoint(0, 49), QPoint(0, 50), QPoint(99, 49), QPoint(99, 50)})
        EXPECT_EQ(thumb.pixel(tip), half) << tip.x() << ' ' << tip.y();
}

TEST_F(frmBMPTest, Edge_WhiteOfALineDrawingTakesTheColourOfTheBoard) {
    const QImage art = Quarters(200, 200);
    const QImage side = Thumb(MonochromeBmp(art), QStringLiteral("a.bmp"), QStringLiteral("Space"), 0);
    const QImage corner = Thumb(MonochromeBmp(art), QStringLiteral("b.bmp"), QStringLiteral("Corner"), 0);
    // All quarters but the white one at the lower right are dark enough to be black in a line drawing.
    int ofTheBoard = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const bool atEdge = std::abs(x - 50) < 2 || std::abs(y - 50) < 2;
            if (!atEdge) {
                EXPECT_EQ(side.pixel(x, y), x > 50 && y > 50 ? kBoard : kBlack) << x << ' ' << y;
            }
            EXPECT_NE(side.pixel(x, y), kWhite);
            EXPECT_NE(corner.pixel(x, y), kWhite);
            if (corner.pixel(x, y) == kBoard) ++ofTheBoard;
        }
    }
    // Half of the square lies beside the diamond, and a quarter of the diamond is paper.
    EXPECT_NEAR(ofTheBoard, 5000 + 1250, 200);
}

TEST_F(frmBMPTest, Edge_OvalIsFullInTheMiddleAndShortAtTheLastRow) {
    EXPECT_EQ(EllipseSpan::At(100, 200, 200).iFirst, 0);
    EXPECT_EQ(EllipseSpan::At(100, 200, 200).iStop, 200);
    const EllipseSpan last = EllipseSpan::At(199, 200, 200);
    EXPECT_EQ(last.iFirst, 86);
    EXPECT_EQ(last.iStop, 114);
    const QImage thumb = Thumb(Plain(200, 200), QStringLiteral("t.png"), QStringLiteral("Token"), 0);
    EXPECT_EQ(thumb.size(), QSize(200, 200));
    EXPECT_EQ(thumb.pixel(0, 100), kRed);
    EXPECT_EQ(thumb.pixel(85, 199), kWhite);
    EXPECT_EQ(thumb.pixel(86, 199), kRed);
    EXPECT_EQ(thumb.pixel(113, 199), kRed);
    EXPECT_EQ(thumb.pixel(114, 199), kWhite);
}

TEST_F(frmBMPTest, Edge_FirstRowOfAnOvalIsAllWhite) {
    const EllipseSpan first = EllipseSpan::At(0, 200, 200);
    EXPECT_EQ(first.iFirst, first.iStop);
    const QImage thumb = Thumb(Plain(200, 200), QStringLiteral("t.png"), QStringLiteral("Token"), 0);
    for (int x = 0; x < 200; ++x)
        EXPECT_EQ(thumb.pixel(x, 0), kWhite);
}

struct HeadCase {
    const char* kind;
    int width;
    int height;
    int rowBytes;
};

TEST_F(frmBMPTest, FileClaimsThreeTimesItsLengthAndIsOtherwiseExact) {
    for (const HeadCase& test : {HeadCase{"Space", 100, 100, 300}, HeadCase{"Corner", 100, 100, 300},
                                 HeadCase{"Token", 200, 200, 600}, HeadCase{"Money", 164, 190, 492}}) {
        C_Image image;
        image.Init(WriteFile(QStringLiteral("p.png"), Plain(50, 50)), QString::fromLatin1(test.kind), 1);
        const QByteArray bytes = ReadFile(image.GetThumbnail(false));
        const quint32 claimed = quint32(3 * test.rowBytes * test.height);
        ASSERT_EQ(bytes.size(), 54 + test.rowBytes * test.height) << test.kind;
        EXPECT_EQ(bytes.left(2), "BM");
        EXPECT_EQ(Field<quint32>(bytes, 2), 54 + claimed) << test.kind;
        EXPECT_EQ(Field<quint32>(bytes, 6), 0U);
        EXPECT_EQ(Field<quint32>(bytes, 10), 54U);
        EXPECT_EQ(Field<quint32>(bytes, 14), 40U);
        EXPECT_EQ(Field<qint32>(bytes, 18), test.width);
        EXPECT_EQ(Field<qint32>(bytes, 22), test.height);
        EXPECT_EQ(Field<quint16>(bytes, 26), 1);
        EXPECT_EQ(Field<quint16>(bytes, 28), 24);
        EXPECT_EQ(Field<quint32>(bytes, 30), 0U);
        EXPECT_EQ(Field<quint32>(bytes, 34), claimed);
        EXPECT_EQ(Field<qint32>(bytes, 38), 3780);
        EXPECT_EQ(Field<qint32>(bytes, 42), 3780);
        EXPECT_EQ(Field<quint32>(bytes, 46), 0U);
        EXPECT_EQ(Field<quint32>(bytes, 50), 0U);
    }
}

TEST_F(frmBMPTest, RowsRunFromTheBottomBlueFirst) {
    C_Image image;
    image.Init(WriteFile(QStringLiteral("q.png"), Encoded(Quarters(200, 200), "png")), QStringLiteral("Space"), 0);
    const QByteArray bytes = ReadFile(image.GetThumbnail(false));
    EXPECT_EQ(bytes.mid(54, 3), QByteArray("\xFF\x00\x00", 3)) << "bottom left is blue";
    EXPECT_EQ(bytes.mid(54 + 99 * 300, 3), QByteArray("\x00\x00\xFF", 3)) << "top left is red";
}

TEST_F(frmBMPTest, EverySideTurnsOutward) {
    const QByteArray quarters = Encoded(Quarters(200, 200), "png");
    const std::array<std::array<QRgb, 2>, 4> corners{
        {{kRed, kGreen}, {kBlue, kRed}, {kWhite, kBlue}, {kGreen, kWhite}}};
    for (int side = 0; side < 4; ++side) {
        const QImage thumb = Thumb(quarters, QStringLiteral("q.png"), QStringLiteral("Space"), side * 7);
        EXPECT_EQ(thumb.pixel(10, 10), corners[size_t(side)][0]) << side;
        EXPECT_EQ(thumb.pixel(90, 10), corners[size_t(side)][1]) << side;
    }
}

TEST_F(frmBMPTest, EveryCornerTurnsByHalfARightAngleMore) {
    const QByteArray quarters = Encoded(Quarters(200, 200), "png");
    // The quarter at the left, top, right and lower tip.
    const std::array<std::array<QRgb, 4>, 4> tips{{{kRed, kGreen, kWhite, kBlue},
                                                   {kBlue, kRed, kGreen, kWhite},
                                                   {kWhite, kBlue, kRed, kGreen},
                                                   {kGreen, kWhite, kBlue, kRed}}};
    for (int corner = 0; corner < 4; ++corner) {
        const QImage thumb = Thumb(quarters, QStringLiteral("q.png"), QStringLiteral("Corner"), corner);
        const auto& expected = tips[size_t(corner)];
        EXPECT_EQ(thumb.pixel(12, 50), expected[0]) << corner;
        EXPECT_EQ(thumb.pixel(50, 12), expected[1]) << corner;
        EXPECT_EQ(thumb.pixel(88, 50), expected[2]) << corner;
        EXPECT_EQ(thumb.pixel(50, 88), expected[3]) << corner;
        EXPECT_EQ(thumb.pixel(5, 5), kBoard);
    }
}

TEST_F(frmBMPTest, DiamondHasNoHolesAtAnyEvenSize) {
    for (const int side : {2, 4, 10, 100, 250}) {
        QImage square(side, side, QImage::Format_RGB32);
        square.fill(kRed);
        for (int corner = 0; corner < 4; ++corner) {
            const Pixels turned = Turning::ForCorner(Pixels(square), corner, Color::Rgb(255, 0, 0));
            EXPECT_EQ(turned.AsPicture().Image(), square) << side;
        }
    }
}

TEST_F(frmBMPTest, WhitePictureOnWhiteMoneyStaysWhiteAndTransparencyShowsTheNote) {
    basTAVL::g_oMoney(2).BackColor = Color::Rgb(200, 220, 255);
    QImage glass(50, 50, QImage::Format_ARGB32);
    glass.fill(Qt::transparent);
    const QImage thumb = Thumb(Encoded(glass, "png"), QStringLiteral("g.png"), QStringLiteral("Money"), 2);
    EXPECT_EQ(thumb.size(), QSize(164, 190));
    EXPECT_EQ(thumb.pixel(82, 95), qRgb(200, 220, 255));
    EXPECT_EQ(thumb.pixel(0, 0), kWhite);
}

TEST_F(frmBMPTest, GreyOvalIsTheMeanOfTheColours) {
    C_Image image;
    image.Init(WriteFile(QStringLiteral("p.png"), Plain(50, 50, QColor(10, 20, 60))), QStringLiteral("Token"), 1);
    frmBMP::Instance().CreateThumbElliptical(image.Owned(), true);
    QString error;
    EXPECT_EQ(LoadPicture(image.Thumbname(), error).Image().pixel(100, 100), qRgb(30, 30, 30));
}

TEST_F(frmBMPTest, MetafileFillsTheWholeThumbnail) {
    MetafileBuilder drawing(50, 50);
    drawing.NullPen().Brush(Color::Rgb(255, 0, 0)).Rectangle(0, 0, 26, 26);
    const QImage thumb = Thumb(drawing.Placeable(), QStringLiteral("a.wmf"), QStringLiteral("Space"), 14);
    EXPECT_EQ(thumb.pixel(90, 90), kRed) << "turned upside down";
    EXPECT_EQ(thumb.pixel(10, 10), kBoard);
    const QImage oval = Thumb(drawing.Placeable(), QStringLiteral("b.wmf"), QStringLiteral("Token"), 1);
    EXPECT_EQ(oval.pixel(60, 60), kRed);
    EXPECT_EQ(oval.pixel(140, 140), kBoard);
}

TEST_F(frmBMPTest, MissingPictureMakesNoFileAndIsTold) {
    C_Image image;
    const QString path = WriteFile(QStringLiteral("p.png"), Plain(50, 50));
    image.Init(path, QStringLiteral("Space"), 1);
    QString error;
    ASSERT_TRUE(Files::Remove(path, error));
    frmBMP::Instance().CreateThumbRotatedTo90(image.Owned());
    EXPECT_FALSE(Files::Exists(image.Thumbname()));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(image.BadPath(), path);
}

TEST_F(frmBMPTest, PictureThatCannotBeReadGivesAThumbnailOfTheBoard) {
    const QImage thumb = Thumb("no picture", QStringLiteral("p.png"), QStringLiteral("Space"), 1);
    EXPECT_EQ(thumb.pixel(50, 50), kBoard);
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(frmBMPTest, ThumbnailThatCannotBeWrittenGoesUp) {
    C_Image image;
    image.Init(WriteFile(QStringLiteral("p.png"), Plain(50, 50)), QStringLiteral("Space"), 1);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Write) return QStringLiteral("Disk full");
        return std::nullopt;
    });
    EXPECT_THROW(frmBMP::Instance().CreateThumbRotatedTo90(image.Owned()), TavloraError);
}

TEST_F(frmBMPTest, FineLinesGrowFaintInsteadOfJagged) {
    QImage grating(2000, 2000, QImage::Format_RGB32);
    grating.fill(Qt::white);
    for (int y = 0; y < 2000; ++y) {
        for (int x = 0; x < 2000; x += 2)
            grating.setPixel(x, y, qRgb(0, 0, 0));
    }
    const QImage thumb = Thumb(MonochromeBmp(grating), QStringLiteral("g.bmp"), QStringLiteral("Space"), 0);
    for (int x = 5; x < 95; ++x) {
        EXPECT_NEAR(qRed(thumb.pixel(x, 50)), 112, 6) << x;
        EXPECT_NEAR(qGreen(thumb.pixel(x, 50)), 128, 6) << x;
    }
}

TEST_F(frmBMPTest, CellsOfATwoRowSheetSkipTheTwoSpacesOfEachHalf) {
    const auto space = [](int block, int row, int col) {
        int iSpace = -1;
        frmBMP::GetSpaceFromArrayCoordinates(block, row, col, iSpace);
        return iSpace;
    };
    constexpr int kUpper[] = {13, 12, 11, 9, 8, 7};
    constexpr int kLower[] = {6, 5, 4, 2, 1, 0};
    for (int col = 0; col < 6; ++col) {
        EXPECT_EQ(space(0, 0, col), kUpper[col]);
        EXPECT_EQ(space(0, 1, col), kLower[col]);
        EXPECT_EQ(space(1, 0, col), kUpper[col] + 14);
        EXPECT_EQ(space(1, 1, col), kLower[col] + 14);
    }
    EXPECT_EQ(space(0, 7, 5), 0);
    EXPECT_EQ(space(0, 0, 6), 0);
    EXPECT_EQ(space(2, 0, -1), 14);
}

} // namespace
