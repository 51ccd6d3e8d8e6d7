// SPDX-License-Identifier: MIT
// The label sheets as a reader of the printed page finds them.
#include "kit/BoardSheet.h"
#include "kit/BoxSheet.h"
#include "kit/DimensionString.h"

#include "board/basPosit.h"
#include "board/basPositFit.h"
#include "kit/GameKit.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/files/Files.h"
#include "platform/paint/PaintImage.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/printing/Printer.h"
#include "services/basCommon.h"
#include "support/BoardFixture.h"
#include "support/PdfReader.h"
#include "support/PictureFiles.h"
#include "support/WorkingFiles.h"

#include <QFile>
#include <QPainter>

namespace {

const QColor kGround(0xB6, 0xDD, 0xC7);
const QColor kRed(255, 0, 0);

// What may be off: a piece would otherwise not fit its place, a caption would touch a piece.
constexpr double kPieceWithin = 0.008;
constexpr double kCaptionWithin = 0.04;

// Half the width of the lines that are drawn round a space and a token.
constexpr double kSpaceLine = 0.03;
constexpr double kRingLine = 0.005;

class LabelSheetsTest : public BoardTest {
protected:
    LabelSheetsTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        GameKit::SetUp(QStringLiteral("tavlora"));
        basPosit::PosInit();
        basPosit::SetSpecialText(1, QStringLiteral("Our Own Town"));
        basPosit::SetSpecialText(2, QStringLiteral("A day\r\nin the country"));
        for (int iSpace = 0; iSpace < basTAVL::kSpaces; ++iSpace) {
            C_Space& space = basTAVL::g_oSpaces(iSpace);
            space.SpaceColor = ColorOfSpace(iSpace);
            space.CostColor = Color::White();
            space.SetText(QStringLiteral("Place%1").arg(iSpace));
        }
        for (int iCorner = 0; iCorner < basTAVL::kCorners; ++iCorner)
            basTAVL::g_oCorners(iCorner).SetText(0, QStringLiteral("Corner%1").arg(iCorner));
        for (int iToken = 0; iToken < basTAVL::kTokens; ++iToken) {
            basTAVL::g_oTokens(iToken).Init(qint16(iToken));
            basTAVL::g_oTokens(iToken).SetText(QStringLiteral("Token%1").arg(iToken));
        }
        QImage arrow(20, 20, QImage::Format_RGB32);
        arrow.fill(Qt::blue);
        for (const char* name : {"up", "left"})
            arrow.save(PathOf(QStringLiteral("program/%1arrow.bmp").arg(QString::fromLatin1(name))));
    }
    ~LabelSheetsTest() override {
        Files::SetFaultHook({});
        basCommon::ResetForTest();
    }

    // Colours that the reader tells apart: no two spaces of a sheet are alike.
    static Color ColorOfSpace(int iSpace) { return Color::Rgb(40 * (iSpace % 7), 60 * (iSpace / 7), 200); }
    static QColor ToldColorOfSpace(int iSpace) { return {40 * (iSpace % 7), 60 * (iSpace / 7), 200}; }

    // Red above and blue below once it is turned upright, with as much grain as a photograph, so that it is
    // stored as one.
    QString Photo(int orientation) const {
        QImage photo(1600, 1600, QImage::Format_RGB32);
        for (int y = 0; y < photo.height(); ++y) {
            for (int x = 0; x < photo.width(); ++x) {
                const int grain = (x * 7 + y * 13) % 40;
                photo.setPixel(
                    x, y, y < photo.height() / 2 ? qRgb(255 - grain, grain, x % 32) : qRgb(grain, x % 32, 255 - grain));
            }
        }
        constexpr std::array<int, 9> kTurnOf{0, 0, 0, 180, 0, 0, 270, 0, 90};
        photo = photo.transformed(QTransform().rotate(kTurnOf[size_t(orientation)]));
        return WriteFile(QStringLiteral("photo%1.jpg").arg(orientation),
                         PictureFiles::WithOrientation(PictureFiles::Encoded(photo, "JPEG"), orientation, true));
    }
    static bool IsRed(const QColor& color) { return color.red() > 180 && color.blue() < 90; }
    static bool IsBlue(const QColor& color) { return color.blue() > 180 && color.red() < 90; }

    template <typename Sheet>
    bool Print(Sheet sheet) {
        PdfPrinter printer(pdf, QStringLiteral("labels"));
        printer.SetOrientation(PageOrientation::Landscape);
        SheetJob job{printer, [this](int progress) { steps.append(progress); }};
        const bool made = sheet(job);
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
        return made;
    }
    bool PrintBox() {
        return Print([](SheetJob& job) { return StickerBoxAndTokenSheet(job); });
    }
    bool PrintWest() {
        return Print([](SheetJob& job) { return StickerSpaceSheet(job, 0, true, false); });
    }
    bool PrintEast() {
        return Print([](SheetJob& job) { return StickerSpaceSheet(job, 1, false, true); });
    }

    static QRectF Grown(const QRectF& box, double by) { return box.adjusted(-by, -by, by, by); }
    static void ExpectBox(const QRectF& found, const QRectF& told, const QString& sWhat) {
        const std::string what = sWhat.toStdString();
        EXPECT_NEAR(found.left(), told.left(), kPieceWithin) << what;
        EXPECT_NEAR(found.top(), told.top(), kPieceWithin) << what;
        EXPECT_NEAR(found.right(), told.right(), kPieceWithin) << what;
        EXPECT_NEAR(found.bottom(), told.bottom(), kPieceWithin) << what;
    }
    // A piece stands alone in its colour within the space around it.
    void ExpectPiece(const QRectF& told, QColor color, const QString& sWhat) const {
        constexpr double kAround = 0.06;
        ExpectBox(reader.ColorBox(1, Grown(told, kAround), color), told, sWhat);
    }
    // The caption's arrow stands at the place told, and its text one arrow further.
    void ExpectCaption(double dblX, double dblY, const QString& sText, bool bArrow) const {
        constexpr double kArrow = 0.15;
        constexpr double kDrawnArrow = 0.1125;
        const QPointF told(dblX + kArrow, dblY);
        bool stands = false;
        for (const QRectF& box : reader.BoxesOf(1, sText)) {
            stands = stands || (std::abs(box.left() - told.x()) < kCaptionWithin &&
                                std::abs(box.top() - told.y()) < kCaptionWithin);
        }
        EXPECT_TRUE(stands) << sText.toStdString() << " at " << dblX << ", " << dblY;
        const QRectF arrow(dblX, dblY, kDrawnArrow, kDrawnArrow);
        const QRectF drawn = reader.ColorBox(1, Grown(arrow, 0.01), Qt::blue);
        EXPECT_EQ(drawn.isEmpty(), !bArrow) << sText.toStdString();
        if (bArrow) ExpectBox(drawn, arrow, QStringLiteral("arrow ") + sText);
    }
    void ExpectSpace(int iSpace, double dblX, double dblY) const {
        const QRectF band(dblX, dblY, 1.65, 0.4375);
        ExpectBox(reader.ColorBox(1, Grown(band, 0.06), ToldColorOfSpace(iSpace)), Grown(band, -kSpaceLine),
                  QStringLiteral("band of space %1").arg(iSpace));
        const QRectF whole(dblX, dblY, 1.65, 2.8125);
        const QRectF text = reader.BoxOf(1, QStringLiteral("Place%1").arg(iSpace));
        EXPECT_TRUE(whole.contains(text) && !text.isEmpty()) << iSpace;
    }
    void ExpectSpaces(const std::array<int, 12>& spaces) const {
        constexpr std::array<double, 6> kX{0.02, 1.67, 3.32, 5.03, 6.68, 8.33};
        constexpr std::array<double, 2> kY{0, 2.8625};
        for (int place = 0; place < 12; ++place)
            ExpectSpace(spaces[size_t(place)], kX[size_t(place % 6)], kY[size_t(place / 6)]);
        for (const double y : kY) {
            ExpectBox(reader.InkBox(1, QRectF(0, y, 5, 2.83)), QRectF(0.02, y, 4.95, 2.8125), QStringLiteral("left"));
            ExpectBox(reader.InkBox(1, QRectF(5, y, 5.4, 2.83)), QRectF(5.03, y, 4.95, 2.8125),
                      QStringLiteral("right"));
        }
    }

    const QString pdf = PathOf(QStringLiteral("labels.pdf"));
    const PdfReader reader{pdf};
    QList<int> steps;
};

TEST_F(LabelSheetsTest, EveryPieceOfTheBoxStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintBox());
    EXPECT_EQ(reader.Pages(), 1);
    EXPECT_EQ(reader.PaperInches(1), QSizeF(11, 8.5));
    const struct {
        QRectF box;
        QColor color;
        const char* caption;
    } pieces[] = {
        {{0.05, 0.25, 6.125, 1.125}, kGround, "Box Top Title"},
        {{8.25, 0.25, 1.75, 0.5625}, kRed, "Short Side Subtitle"},
        {{0.1, 1.75, 7.125, 0.49}, kRed, "Box Top Subtitle"},
        {{8.25, 1.75, 1.75, 0.5625}, kRed, "Short Side Subtitle"},
        {{0.1, 2.75, 3.6, 0.625}, kGround, "Box Top Long Side Title"},
        {{3.85, 2.75, 3.35, 0.5625}, kGround, "Box Top Short Side Title"},
        {{7.375, 2.75, 2.625, 0.625}, kRed, "Box Top Long Side Subtitle"},
        {{0.1, 3.75, 3.6, 0.625}, kGround, "Box Top Long Side Title"},
        {{3.85, 3.75, 3.35, 0.5625}, kGround, "Box Top Short Side Title"},
        {{7.375, 3.75, 2.625, 0.625}, kRed, "Box Top Long Side Subtitle"},
    };
    for (const auto& piece : pieces) {
        const QString caption = QString::fromLatin1(piece.caption);
        ExpectPiece(piece.box, piece.color, caption);
        ExpectCaption(piece.box.left(), piece.box.bottom() + 0.02, caption, true);
    }
    ExpectCaption(
        0.155, 7.875,
        QStringLiteral("CUT ALONG THE LINES. THEN PEEL AND STICK EACH LABEL TO THE APPROPRIATE GAME BOX SPACE "
                       "OR TOKEN SIDE."),
        false);
    ExpectCaption(8, 6, QStringLiteral("Game Token Stickers"), true);
}

TEST_F(LabelSheetsTest, TitlesAreTextAndNotPixels) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintBox());
    EXPECT_EQ(reader.BoxesOf(1, QStringLiteral("Own")).size(), 5);
    EXPECT_EQ(reader.BoxesOf(1, QStringLiteral("in the country")).size(), 5);
    for (const PdfReader::StoredImage& image : reader.Images(1))
        EXPECT_LE(image.iWidth, 20) << "nothing but arrows is a picture";
}

TEST_F(LabelSheetsTest, Edge_EachTokenHasTwoStickersOneAboveTheOther) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintBox());
    constexpr std::array<double, 6> kX{0.15, 1.475, 2.8, 4.125, 5.45, 6.775};
    for (int iToken = 0; iToken < basTAVL::kTokens; ++iToken) {
        const QList<QRectF> texts = reader.BoxesOf(1, QStringLiteral("Token%1").arg(iToken));
        ASSERT_EQ(texts.size(), 2);
        EXPECT_NEAR(texts[0].left(), texts[1].left(), 0.001);
        EXPECT_NEAR(texts[1].top() - texts[0].top(), 1.325, kPieceWithin);
        for (const double y : {5.0, 6.325}) {
            const QRectF told(kX[size_t(iToken)], y, 0.875, 0.875);
            ExpectBox(reader.InkBox(1, Grown(told, 0.1)), Grown(told, kRingLine), QStringLiteral("ring"));
        }
    }
}

TEST_F(LabelSheetsTest, Edge_ATokenThatCannotBeMadeStillLeavesItsRings) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    // A picture of an earlier print, which can't be replaced.
    QImage earlier(266, 266, QImage::Format_RGB32);
    earlier.fill(Qt::blue);
    ASSERT_TRUE(earlier.save(MadePicture::PathOf(QStringLiteral("TokenBMP2.bmp"))));
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::Remove && sPath.endsWith(QStringLiteral("TokenBMP2.bmp")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    EXPECT_FALSE(PrintBox());
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("Unable to delete file named '")));
    for (const double y : {5.0, 6.325}) {
        const QRectF told(2.8, y, 0.875, 0.875);
        ExpectBox(reader.InkBox(1, Grown(told, 0.1)), Grown(told, kRingLine), QStringLiteral("ring"));
        EXPECT_TRUE(reader.InkBox(1, QRectF(2.95, y + 0.15, 0.575, 0.575)).isEmpty()) << "nothing but the ring";
    }
    EXPECT_EQ(reader.BoxesOf(1, QStringLiteral("Token3")).size(), 2) << "the others are there";
}

TEST_F(LabelSheetsTest, BoxTellsHowFarItIsAndLeavesNoTitleFiles) {
    ASSERT_TRUE(PrintBox());
    EXPECT_EQ(steps, (QList<int>{10,  300, 450, 575, 680, 700, 720, 740, 760, 780,  800,
                                 820, 840, 860, 880, 900, 920, 940, 960, 980, 1000, -1}));
    EXPECT_TRUE(WorkingFilesLeft(QStringLiteral("*.temp")).isEmpty());
}

TEST_F(LabelSheetsTest, BoxEndsAtTheFirstTitleThatCannotBeMade) {
    const struct {
        const char* file;
        const char* told;
    } rows[] = {
        {"BmpTitle.temp", "Cannot create Title Image"},
        {"BmpSubtitle.temp", "Cannot create Subtitle Image"},
        {"BmpSubtitleRed.temp", "Cannot create RedSubtitle Image"},
        {"BmpSubtitleML.temp", "Cannot create Multiline Subtitle"},
    };
    for (const auto& row : rows) {
        const QString file = QString::fromLatin1(row.file);
        Files::SetFaultHook([file](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
            if (operation == Files::Operation::Remove && sPath.endsWith(file))
                return QStringLiteral("Permission denied");
            return std::nullopt;
        });
        EXPECT_FALSE(PrintBox()) << row.file;
        EXPECT_EQ(desktop.boxes.last().sText, QString::fromLatin1(row.told));
        EXPECT_NE(steps.last(), -1);
        Files::SetFaultHook({});
    }
}

TEST_F(LabelSheetsTest, EveryPieceOfTheWestSheetStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintWest());
    EXPECT_EQ(reader.PaperInches(1), QSizeF(11, 8.5));
    ExpectSpaces({13, 12, 11, 9, 8, 7, 6, 5, 4, 2, 1, 0});
    const struct {
        double x;
        double captionY;
        const char* caption;
    } corners[] = {
        {0.05, 6.5, "'Start' Board Corner"},
        {2.55, 7.0, "'Lose A Turn' Board Corner"},
        {5.075, 7.5, "'Free Space' Board Corner"},
    };
    for (const auto& corner : corners) {
        ExpectPiece(QRectF(corner.x, 5.85, 2.125, 2.125), kGround, QString::fromLatin1(corner.caption));
        ExpectCaption(7.5, corner.captionY, QString::fromLatin1(corner.caption), true);
    }
    EXPECT_TRUE(reader.BoxesOf(1, QStringLiteral("Corner3")).isEmpty());
    EXPECT_EQ(steps, (QList<int>{50, 100, 150, 200, 250, 300, 350, 400, 450, 500, 550, 600, 650, 700, 800, 900, -1}));
}

TEST_F(LabelSheetsTest, Edge_TheEastSheetHoldsSpaces14To27Without17And24) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintEast());
    for (int iSpace = 0; iSpace < basTAVL::kSpaces; ++iSpace) {
        const bool there = iSpace >= 14 && iSpace != 17 && iSpace != 24;
        EXPECT_EQ(reader.BoxesOf(1, QStringLiteral("Place%1").arg(iSpace)).size(), there ? 1 : 0) << iSpace;
    }
}

TEST_F(LabelSheetsTest, EveryPieceOfTheEastSheetStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintEast());
    EXPECT_EQ(reader.PaperInches(1), QSizeF(11, 8.5));
    ExpectSpaces({27, 26, 25, 23, 22, 21, 20, 19, 18, 16, 15, 14});
    ExpectPiece(QRectF(0.05, 5.85, 5.6, 1.054), kGround, QStringLiteral("title"));
    ExpectCaption(0.05, 6.924, QStringLiteral("Game Board Title"), true);
    ExpectPiece(QRectF(0.05, 7.1, 7.275, 0.49), kGround, QStringLiteral("subtitle"));
    ExpectCaption(0.05, 7.61, QStringLiteral("Game Board Subtitle"), true);
    EXPECT_EQ(steps, (QList<int>{50, 100, 150, 200, 250, 300, 350, 400, 450, 500, 550, 600, 650, 800, 900, 950, -1}));
    EXPECT_TRUE(WorkingFilesLeft(QStringLiteral("*.temp")).isEmpty());
}

TEST_F(LabelSheetsTest, Edge_TheRightHandStickersEndAt998HundredthsOfAnInch) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintWest());
    const QRectF right = reader.InkBox(1, QRectF(9, 0, 1.5, 5.7));
    EXPECT_NEAR(right.right(), 9.98, 1.0 / PdfReader::kDpi);
}

TEST_F(LabelSheetsTest, Edge_ACornerThatCannotBeMadeLeavesItsSquareBlankWhileItsCaptionPrints) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::Remove && sPath.endsWith(QStringLiteral("CornerImage1.bmp")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    EXPECT_FALSE(PrintWest());
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Unable to create Money Image. Money will not be printed."));
    EXPECT_TRUE(reader.InkBox(1, QRectF(2.55, 5.85, 2.125, 2.125)).isEmpty());
    ExpectCaption(7.5, 7.0, QStringLiteral("'Lose A Turn' Board Corner"), true);
    ExpectPiece(QRectF(5.075, 5.85, 2.125, 2.125), kGround, QStringLiteral("the corner after it"));
}

TEST_F(LabelSheetsTest, ATitleOfTheBoardThatCannotBeMadeEndsTheSheet) {
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::Remove && sPath.endsWith(QStringLiteral("BmpSubtitle.temp")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    EXPECT_FALSE(PrintEast());
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Cannot Subtitle Image"));
    EXPECT_EQ(steps.last(), 800);
}

TEST_F(LabelSheetsTest, FailuresAreOnTheStackWithTheirArguments) {
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::OpenWrite && sPath.endsWith(QStringLiteral("BmpOneFullSpace.bmp")))
            return QStringLiteral("No space left on device");
        return std::nullopt;
    });
    PdfPrinter printer(pdf, QStringLiteral("labels"));
    SheetJob job{printer};
    try {
        StickerSpaceSheet(job, 1, false, true);
        FAIL() << "nothing was raised";
    } catch (const TavloraError& error) {
        EXPECT_TRUE(
            error.Description().startsWith(QStringLiteral("frmTavlPrint!StickerSpaceSheet(1, False, True)\r\n")))
            << error.Description().toStdString();
    }
}

TEST_F(LabelSheetsTest, TurnedPhotosStandUpright) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    for (const int orientation : {1, 3, 6, 8}) {
        const QString photo = Photo(orientation);
        basTAVL::g_oSpaces(13).SetImagePath(photo);
        basTAVL::g_oCorners(0).Image.Init(photo, QStringLiteral("Corner"), 0);
        ASSERT_TRUE(PrintWest());
        const PdfReader page(pdf);
        // The sticker's own area begins 0.125 inch under the band, its picture fills the upper half.
        EXPECT_TRUE(IsRed(page.ColorAt(1, 0.845, 0.7))) << orientation;
        EXPECT_TRUE(IsBlue(page.ColorAt(1, 0.845, 1.5))) << orientation;
        EXPECT_TRUE(IsRed(page.ColorAt(1, 1.1, 6.0))) << orientation;
        EXPECT_TRUE(IsBlue(page.ColorAt(1, 1.1, 6.8))) << orientation;
    }
}

TEST_F(LabelSheetsTest, PhotosAreStoredAt300DotsAnInch) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    const QString photo = Photo(1);
    basTAVL::g_oSpaces(13).SetImagePath(photo);
    basTAVL::g_oCorners(0).Image.Init(photo, QStringLiteral("Corner"), 0);
    ASSERT_TRUE(PrintWest());
    int photos = 0;
    for (const PdfReader::StoredImage& image : reader.Images(1)) {
        if (image.iWidth < 100) continue;
        ++photos;
        EXPECT_NEAR(image.dblDpiX, kPaperDotsPerInch, 3);
        EXPECT_NEAR(image.dblDpiY, kPaperDotsPerInch, 3);
        EXPECT_EQ(image.sEncoding, QStringLiteral("jpeg"));
    }
    EXPECT_EQ(photos, 2);
}

TEST_F(LabelSheetsTest, PictureOfATokenLeavesNothingOutsideItsRing) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_oTokens(1).SetImagePath(Photo(1));
    ASSERT_TRUE(PrintBox());
    const QRectF told(1.475, 5, 0.875, 0.875);
    ExpectBox(reader.InkBox(1, Grown(told, 0.1)), Grown(told, kRingLine), QStringLiteral("ring"));
    for (const int dpi : {150, PdfReader::kDpi}) {
        const QImage page = reader.Pixels(1, dpi);
        for (int i = 0; i < 4 * basTAVL::kTokens; ++i) {
            // Upright strips over the sides of each token's square, where the ring has left them.
            const QPointF side(0.15 + 1.325 * (i / 4) + 0.875 * (i % 2), i % 4 < 2 ? 5.0 : 6.325);
            const QRectF strip((side + QPointF(0.23, 0.25)) * dpi, QSizeF(0.04, 0.1) * dpi);
            QImage white = page.copy(strip.toRect());
            white.fill(Qt::white);
            EXPECT_EQ(page.copy(strip.toRect()), white) << "a hairline " << i << " at " << dpi;
        }
    }
    EXPECT_TRUE(IsRed(reader.ColorAt(1, told.center().x(), told.top() + 0.2)));
    EXPECT_TRUE(IsBlue(reader.ColorAt(1, told.center().x(), told.bottom() - 0.2)));
}

TEST_F(LabelSheetsTest, DrawingsAreStoredWithoutLoss) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    QImage drawing(900, 900, QImage::Format_RGB32);
    drawing.fill(Qt::white);
    {
        QPainter painter(&drawing);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < 40; ++i) {
            painter.setPen(QPen(QColor::fromHsv(i * 9, 255, 200), 20));
            painter.drawEllipse(QPointF(450, 450), 11.5 * i, 11.3 * i);
        }
    }
    drawing.save(PathOf(QStringLiteral("drawing.png")));
    basTAVL::g_oSpaces(7).SetImagePath(PathOf(QStringLiteral("drawing.png")));
    ASSERT_TRUE(PrintWest());
    EXPECT_EQ(reader.Images(1).first().sEncoding, QStringLiteral("image"));
}

TEST_F(LabelSheetsTest, ASmallPictureKeepsAllItsPixels) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    QImage small(60, 60, QImage::Format_RGB32);
    small.fill(Qt::red);
    small.save(PathOf(QStringLiteral("small.png")));
    basTAVL::g_oSpaces(7).SetImagePath(PathOf(QStringLiteral("small.png")));
    ASSERT_TRUE(PrintWest());
    EXPECT_EQ(reader.Images(1).first().iWidth, 60);
}

TEST_F(LabelSheetsTest, AMissingPictureIsToldOnceAndItsAreaStaysEmpty) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_oSpaces(13).SetImagePath(Photo(1));
    QFile::remove(PathOf(QStringLiteral("photo1.jpg")));
    ForgetPictures();
    ASSERT_TRUE(PrintWest());
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(reader.ColorAt(1, 0.845, 1.1), kGround);
    EXPECT_EQ(reader.BoxesOf(1, QStringLiteral("Place13")).size(), 1);
}

TEST_F(LabelSheetsTest, SizesAreReadFromTheirText) {
    const struct {
        const char* text;
        double width;
        double height;
    } rows[] = {
        {"4.78x0.78", 4.78, 0.78},
        {"4.78X0.78", 4.78, 0.78},
        {" 3 x 2 ", 3, 2},
        {"4.5in x 2.25in", 4.5, 2.25},
        {"4.78", 0, 0},
        {"", 0, 0},
        {"x", 0, 0},
        {"wide x high", 0, 0},
        {"1.2.3x4", 1.2, 4},
        {"2x3x4", 2, 3},
    };
    for (const auto& row : rows) {
        QString text = QString::fromLatin1(row.text);
        double width = -1;
        double height = -1;
        FactorDimensionString(text, width, height);
        EXPECT_EQ(width, row.width) << row.text;
        EXPECT_EQ(height, row.height) << row.text;
        EXPECT_EQ(text, QString::fromLatin1(row.text).toLower());
    }
}

} // namespace
