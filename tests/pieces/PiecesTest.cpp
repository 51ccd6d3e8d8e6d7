// SPDX-License-Identifier: MIT
// Pictures of the pieces: what is in the files, and what a printer makes of them.
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "pieces/StickersUsingBMP.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/paint/WrittenTexts.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/WorkFiles.h"
#include "support/GameFixture.h"
#include "support/MetafileBuilder.h"
#include "support/StartUp.h"

#include <QProcess>

namespace {

class PiecesTest : public GameTest {
protected:
    PiecesTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        StartUp::SetUpKit();
    }
    ~PiecesTest() override {
        basCommon::ResetForTest();
        ScratchForm::SetLargestSize(QSize(3840, 2160));
    }

    QImage Load(const QString& sPath) {
        QString error;
        const Picture picture = LoadPicture(sPath, error);
        EXPECT_FALSE(picture.IsNull()) << qPrintable(error);
        return picture.Image();
    }
    QString Photo(QColor color) {
        QImage photo(900, 900, QImage::Format_RGB32);
        photo.fill(color);
        EXPECT_TRUE(photo.save(PathOf(QStringLiteral("photo.png"))));
        return PathOf(QStringLiteral("photo.png"));
    }
    bool Line(const QString& sPath, double width, const QString& sText) {
        return frmBMP::Instance().GenerateSingleLineImage(sPath, width, 0.49, sText, QStringLiteral("Arial"), true,
                                                          false, Color::Black(), Color::Rgb(255, 255, 0));
    }
    /// Of all pixels of a colour, in the whole of a picture or in a part.
    static QRect BoxOf(const QImage& image, QRgb color, QRect part = {}) {
        if (part.isNull()) part = image.rect();
        QRect box;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (image.pixel(x, y) == color) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    static int Different(const QImage& a, const QImage& b, int by) {
        int count = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                if (std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))) > by) ++count;
            }
        }
        return count;
    }
    static QString TextOf(const QString& sPdf) {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {sPdf, QStringLiteral("-")});
        return reader.waitForFinished() ? QString::fromUtf8(reader.readAllStandardOutput()) : QString();
    }

    const QString file = PathOf(QStringLiteral("piece.bmp"));
};

} // namespace

TEST_F(PiecesTest, Edge_ANineInchLineNeedsThreeBandsOn1024PixelsAndUnfoldsToTheSamePicture) {
    const QString text = QStringLiteral("Our Own Town, the Game");
    ASSERT_TRUE(Line(file, 9.0, text));
    const QImage whole = Load(file);
    ScratchForm::SetLargestSize(QSize(1024, 768));
    const QString folded = PathOf(QStringLiteral("folded.bmp"));
    ASSERT_TRUE(Line(folded, 9.0, text));
    const QImage unfolded = Load(folded);
    EXPECT_EQ(whole.size(), QSize(2700, 147));
    ASSERT_EQ(unfolded.size(), whole.size());
    EXPECT_LT(Different(whole, unfolded, 40), 20) << "but for the smoothing of an edge";

    // 8 pixels across and 24 down are the window's. As many bands as fit under each other decide whether the line
    // keeps its 147 pixels or becomes lower: 3 bands are 441 pixels high.
    const struct {
        QSize surface;
        double inches;
        QSize line;
    } rows[] = {{{1024, 441 + 24}, 9.0, {2700, 147}},
                {{1024, 440 + 24}, 9.0, {2682, 146}},
                {{1024, 441 + 24}, 10.16, {3048, 147}},
                {{1024, 441 + 24}, 10.17, {2283, 110}},
                {{1024, 588 + 24}, 10.17, {3051, 147}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.inches);
        ScratchForm::SetLargestSize(row.surface);
        ASSERT_TRUE(Line(folded, row.inches, text));
        EXPECT_EQ(Load(folded).size(), row.line);
    }
}

TEST_F(PiecesTest, ALineTooLongForItsSurfaceBecomesLowerAndStaysWhole) {
    ScratchForm::SetLargestSize(QSize(400, 300));
    ASSERT_TRUE(Line(file, 0, QString(120, u'W')));
    const QImage line = Load(file);
    EXPECT_GT(line.width(), 4 * line.height());
    EXPECT_LT(line.height(), 147);
    int lastInk = 0;
    for (int x = 0; x < line.width(); ++x) {
        if (qGreen(line.pixel(x, line.height() / 2)) < 128) lastInk = x;
    }
    EXPECT_GT(lastInk, line.width() - line.height()) << "the last letter is there";
}

TEST_F(PiecesTest, ALineAHairHighIsAPixelHigh) {
    // 0.9 and 0.3 of a pixel at 300 dots an inch.
    for (const double inches : {0.003, 0.001}) {
        ASSERT_TRUE(frmBMP::Instance().GenerateSingleLineImage(file, 1, inches, QStringLiteral("H"),
                                                               QStringLiteral("Arial"), false, false, Color::Black(),
                                                               Color::White()));
        EXPECT_EQ(Load(file).height(), 1) << inches;
    }
}

TEST_F(PiecesTest, ATextTooLongForAnyLettersHasThemOfOnePoint) {
    // 3,000 letters in 504 pixels: there is no size at which they would fit.
    const PrintedText printed =
        frmBMP::RecordTextImage(1.75, 0.571, QString(3000, u'H'), QStringLiteral("Arial"), false, false, 0.2);
    const QList<WrittenText> texts = WrittenTextsOf(*printed.recording, printed.inches);
    ASSERT_EQ(texts.size(), 1);
    EXPECT_NEAR(texts[0].dblPoints, 1.0 / 3, 0.01) << "drawn at three times 96 dots an inch";
}

TEST_F(PiecesTest, AWorkingFileThatStaysIsLoggedAndOneThatGoesIsNot) {
    basErrLog::ErrInit(60000);
    const auto logged = [] { return ReadFile(basErrLog::ErrLogPath()).size(); };
    const QString made = WriteFile(QStringLiteral("CornerImage1.bmp"), "picture");
    const qsizetype before = logged();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        return operation == Files::Operation::Remove ? std::optional(QStringLiteral("It is in use")) : std::nullopt;
    });
    MadePicture::Delete(made);
    Files::SetFaultHook({});
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath()).contains("It is in use"));
    const qsizetype after = logged();
    EXPECT_GT(after, before);
    MadePicture::Delete(made);
    EXPECT_FALSE(Files::Exists(made));
    EXPECT_EQ(logged(), after);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(PiecesTest, ALineBreakBecomesABlank) {
    ASSERT_TRUE(Line(file, 0, QStringLiteral("Our\r\nTown")));
    const int broken = Load(file).width();
    ASSERT_TRUE(Line(file, 0, QStringLiteral("Our Town")));
    EXPECT_EQ(Load(file).width(), broken);
}

TEST_F(PiecesTest, ALinesWidthIsTakenAt300DotsAnInchThoughItsHeightIsRounded) {
    // 0.375 inch are 112 and a half dots.
    ASSERT_TRUE(frmBMP::Instance().GenerateSingleLineImage(file, 2.875, 0.375, QStringLiteral("Good News!"),
                                                           QStringLiteral("Arial"), true, false, Color::Black(),
                                                           Color::White()));
    EXPECT_EQ(Load(file).size(), QSize(862, 112));
}

TEST_F(PiecesTest, PiecesBecomeSmallerOnASurfaceThatIsTooSmallForThem) {
    ScratchForm::SetLargestSize(QSize(640, 480));
    frmBMP& form = frmBMP::Instance();
    ASSERT_TRUE(form.GenerateCornerImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(456, 456)) << "24 pixels are the window's";
    ASSERT_TRUE(form.GenerateSpaceFullImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(268, 456));
    ASSERT_TRUE(form.GenerateSpaceStickerImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(292, 456));
    ASSERT_TRUE(form.GenerateTextImage(file, 4.0, 1.0, QStringLiteral("a"), QStringLiteral("Arial"), false, false, 0.2,
                                       Color::Black(), Color::White()));
    EXPECT_EQ(Load(file).size(), QSize(632, 158));
    ASSERT_TRUE(form.GenerateMoneyImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(632, 337)) << "8 pixels are the window's";
    ScratchForm::SetLargestSize(QSize(1000, 300));
    ASSERT_TRUE(form.GenerateMoneyImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(548, 292));
    ASSERT_TRUE(form.GenerateTokenImage(file, 0));
    EXPECT_EQ(Load(file).size(), QSize(266, 266)) << "always";
}

TEST_F(PiecesTest, AWholeSpaceStandsOnThePrintGroundWithItsBandAndPrice) {
    C_Space& space = basTAVL::g_oSpaces(5);
    space.SpaceColor = Color::Rgb(192, 0, 96);
    space.CostColor = Color::White();
    space.Cost = QStringLiteral("$1,400");
    space.SetText(QStringLiteral("Oak Street"));
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceFullImage(file, 5));
    const QImage image = Load(file);
    EXPECT_EQ(image.size(), QSize(475, 810));
    EXPECT_EQ(image.pixelColor(30, 100), QColor(192, 0, 96));
    EXPECT_EQ(image.pixelColor(30, 300), QColor(0xB6, 0xDD, 0xC7));
    EXPECT_EQ(image.pixelColor(2, 400), QColor(Qt::black));
}

TEST_F(PiecesTest, WordsInAPricesPlaceKeepTheirFirstAndLastLetter) {
    C_Space& space = basTAVL::g_oSpaces(10);
    space.SpaceColor = Color::Black();
    space.CostColor = Color::Rgb(255, 255, 0);
    space.Cost = QStringLiteral("PLAY LOTTO");
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceFullImage(file, 10));
    const QImage image = Load(file);
    int first = image.width();
    int last = 0;
    for (int y = 0; y < 120; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qRed(image.pixel(x, y)) < 128) continue;
            first = std::min(first, x);
            last = std::max(last, x);
        }
    }
    EXPECT_GT(first, 8) << "half of the outline";
    EXPECT_LT(first, 40);
    EXPECT_LT(last, image.width() - 8);
    EXPECT_GT(last, image.width() - 40);
}

TEST_F(PiecesTest, ACornerIs612PixelsWithItsPictureInTheUpperHalf) {
    basTAVL::g_oCorners(1).SetText(0, QStringLiteral("Lose Turn"));
    basTAVL::g_oCorners(1).Image.Init(Photo(Qt::blue), QStringLiteral("Corner"), 1);
    ASSERT_TRUE(frmBMP::Instance().GenerateCornerImage(file, 1));
    const QImage image = Load(file);
    EXPECT_EQ(image.size(), QSize(612, 612));
    EXPECT_EQ(image.pixelColor(306, 150), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(60, 150), QColor(0xB6, 0xDD, 0xC7));
    EXPECT_EQ(image.pixelColor(306, 8), QColor(0xB6, 0xDD, 0xC7)) << "content starts 0.05 inch inside";
}

TEST_F(PiecesTest, Edge_ANoteIs1125By600PixelsAt300DotsAnInch) {
    ScratchForm form(QSize(1200, 700));
    form.SetBackColor(Color::Rgb(1, 2, 3));
    basTAVL::g_oMoney(0).BackColor = Color::Rgb(200, 220, 240);
    basTAVL::g_oMoney(0).DrawMoney(form, 300, 0, 0, true, false, false);
    EXPECT_EQ(form.hDC().GetPixel(1125, 600), Color::Rgb(200, 220, 240));
    EXPECT_EQ(form.hDC().GetPixel(1124, 300), Color::Rgb(200, 220, 240));
    EXPECT_EQ(form.hDC().GetPixel(560, 599), Color::Rgb(200, 220, 240));
    EXPECT_EQ(form.hDC().GetPixel(1127, 300), Color::Rgb(1, 2, 3)) << "beside the note";
    EXPECT_EQ(form.hDC().GetPixel(560, 602), Color::Rgb(1, 2, 3)) << "below it";
}

TEST_F(PiecesTest, Edge_WithoutAPictureKitEightShowsTheCurrencyOvalAndItsAbsenceLeavesTheOvalEmpty) {
    basTAVL::g_oMoney(0).BackColor = Color::White();
    const auto ovalBox = [] {
        ScratchForm form(QSize(375, 200));
        basTAVL::g_oMoney(0).DrawMoney(form, 100, 0, 0, true, false, false);
        return BoxOf(form.Image(), qRgb(255, 0, 0));
    };
    QImage oval(164, 190, QImage::Format_RGB32);
    oval.fill(Qt::red);
    Folders::SetProgramDirectory(folder.path());
    EXPECT_TRUE(ovalBox().isEmpty()) << "there is none";
    EXPECT_TRUE(oval.save(PathOf(QStringLiteral("$$$ellipse.dat")), "bmp"));
    EXPECT_EQ(ovalBox(), QRect(143, 52, 82, 95)) << "1.43 inches from the left, 0.52 from the top, 0.82 by 0.95";
    basTAVL::Let_g_sGameVersion(QStringLiteral("2"));
    EXPECT_TRUE(ovalBox().isEmpty()) << "kits before these have none";
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(PiecesTest, ANotesOvalShowsThePictureAndTheNoteAroundItStays) {
    C_Money& money = basTAVL::g_oMoney(2);
    money.Index = 2;
    money.BackColor = Color::Rgb(0, 255, 0);
    money.FaceImage.Init(Photo(Qt::red), QStringLiteral("Money"), 2);
    money.Let_Text(0, QStringLiteral("In Oma\r\nwe trust"));
    ASSERT_TRUE(frmBMP::Instance().GenerateMoneyImage(file, 2));
    const QImage image = Load(file);
    EXPECT_EQ(image.size(), QSize(720, 384));
    EXPECT_EQ(image.pixelColor(int(1.84 * 192), int(0.995 * 192)), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(int(1.44 * 192), int(0.54 * 192)), QColor(Qt::green)) << "outside the oval";
}

TEST_F(PiecesTest, ABadMetafileIsToldOnceHoweverOftenItsPieceIsMade) {
    const QString path = PathOf(QStringLiteral("bad.wmf"));
    WriteFile(QStringLiteral("bad.wmf"), "this is no metafile at all");
    basTAVL::g_oSpaces(2).Image.Init(path, QStringLiteral("Space"), 2);
    basTAVL::g_oCorners(1).Image.Init(path, QStringLiteral("Corner"), 1);
    basTAVL::g_oMoney(0).FaceImage.Init(path, QStringLiteral("Money"), 0);
    frmBMP& form = frmBMP::Instance();
    const auto make = [&] {
        ASSERT_TRUE(form.GenerateSpaceFullImage(file, 2));
        ASSERT_TRUE(form.GenerateSpaceStickerImage(file, 2));
        ASSERT_TRUE(form.GenerateCornerImage(file, 1));
        ASSERT_TRUE(form.GenerateMoneyImage(file, 0));
    };
    make();
    EXPECT_EQ(desktop.boxes.size(), 3) << "a space, a corner and a note";
    make();
    EXPECT_EQ(desktop.boxes.size(), 3);
}

TEST_F(PiecesTest, AMetafileThatIsGoodAgainIsDrawn) {
    C_Token& token = basTAVL::g_oTokens(2);
    token.Init(2);
    const QString path = PathOf(QStringLiteral("late.wmf"));
    token.Image.Init(path, QStringLiteral("Token"), 2);
    ASSERT_EQ(desktop.boxes.size(), 1) << "it isn't there yet";
    C_Money& money = basTAVL::g_oMoney(1);
    money.FaceImage.Init(path, QStringLiteral("Money"), 1);
    ASSERT_TRUE(frmBMP::Instance().GenerateMoneyImage(file, 1));
    MetafileBuilder drawing(50, 50);
    drawing.NullPen().Brush(Color::Rgb(255, 0, 0)).Rectangle(0, 0, 51, 51);
    WriteFile(QStringLiteral("late.wmf"), drawing.Placeable());
    ASSERT_TRUE(frmBMP::Instance().GenerateTokenImage(file, 2));
    EXPECT_EQ(Load(file).pixelColor(133, 133), QColor(Qt::red));
    EXPECT_EQ(token.Image.FullPath(), path);
    ASSERT_TRUE(frmBMP::Instance().GenerateMoneyImage(file, 1));
    EXPECT_EQ(Load(file).pixelColor(int(1.84 * 192), int(0.995 * 192)), QColor(Qt::red));
}

TEST_F(PiecesTest, DotsAreDashedInTheNotesOwnColourAndFillNothing) {
    ScratchForm form(QSize(400, 220));
    form.SetBackColor(Color::Black());
    basTAVL::g_oMoney(0).BackColor = Color::Rgb(255, 0, 0);
    basTAVL::g_oMoney(0).DrawMoney(form, 100, 10, 10, false, false, true);
    const QRgb red = qRgb(255, 0, 0);
    const QImage image = form.Image();
    EXPECT_EQ(image.pixel(200, 100), qRgb(0, 0, 0));
    // The note is 375 by 200 dots, and its outline lies a dot outside; the second one lies 5 dots further in. Dashes
    // are 5 dots long, and there are 15 between them.
    EXPECT_EQ(BoxOf(image, red), QRect(QPoint(9, 9), QPoint(386, 211)));
    EXPECT_EQ(BoxOf(image, red, QRect(QPoint(12, 12), QPoint(383, 208))), QRect(QPoint(14, 14), QPoint(381, 206)));
    EXPECT_TRUE(BoxOf(image, red, QRect(QPoint(16, 16), QPoint(379, 204))).isEmpty());
    for (const int first : {9, 14}) {
        EXPECT_EQ(image.pixel(first + 2, first), red);
        EXPECT_EQ(image.pixel(first, first + 2), red);
        EXPECT_EQ(image.pixel(first + 20 + 2, first), red) << "the second dash";
        EXPECT_EQ(image.pixel(first, first + 20 + 2), red);
        EXPECT_EQ(image.pixel(first + 12, first), qRgb(0, 0, 0)) << "between two dashes";
        EXPECT_EQ(image.pixel(first, first + 12), qRgb(0, 0, 0));
    }
}

TEST_F(PiecesTest, ATokenIsRoundOnWhite) {
    C_Token& token = basTAVL::g_oTokens(3);
    token.Init(3);
    token.BackColor = Color::Rgb(255, 245, 0);
    token.SetText(QStringLiteral("Dad"));
    ASSERT_TRUE(frmBMP::Instance().GenerateTokenImage(file, 3));
    const QImage image = Load(file);
    EXPECT_EQ(image.size(), QSize(266, 266));
    EXPECT_EQ(image.pixelColor(133, 20), QColor(255, 245, 0));
    EXPECT_EQ(image.pixelColor(12, 12), QColor(Qt::white));
    int ink = 0;
    for (int x = 60; x < 206; ++x)
        ink += qGreen(image.pixel(x, 133)) < 100 ? 1 : 0;
    EXPECT_GT(ink, 5);
}

TEST_F(PiecesTest, ATokenWhosePictureIsAwayShowsItsTextAndKeepsThePicture) {
    C_Token& token = basTAVL::g_oTokens(0);
    token.Init(0);
    token.SetText(QStringLiteral("Mum"));
    token.Image.Init(Photo(Qt::blue), QStringLiteral("Token"), 0);
    QString error;
    ASSERT_TRUE(Files::Remove(PathOf(QStringLiteral("photo.png")), error));
    ForgetPictures();
    ASSERT_TRUE(frmBMP::Instance().GenerateTokenImage(file, 0));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(token.Image.FullPath(), PathOf(QStringLiteral("photo.png")));
}

TEST_F(PiecesTest, TextsFillTheirBoxesWithoutLeavingThem) {
    const QString text = QStringLiteral("The South Side\r\nof our town");
    ASSERT_TRUE(frmBMP::Instance().GenerateTextImage(file, 1.75, 0.571, text, QStringLiteral("Times New Roman"), true,
                                                     true, 0.2, Color::Black(), Color::Rgb(255, 0, 0)));
    EXPECT_EQ(Load(file).size(), QSize(504, 164));
    EXPECT_EQ(Load(file).pixelColor(1, 1), QColor(Qt::red));
    for (const bool stretch : {true, false}) {
        ASSERT_TRUE(frmBMP::Instance().GenerateStretchedTextImage(file, 4.0, 0.5, QStringLiteral("HOH"),
                                                                  QStringLiteral("Arial"), false, false, Color::Black(),
                                                                  Color::White(), stretch));
        const QImage image = Load(file);
        int first = image.width();
        int last = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGreen(image.pixel(x, y)) > 128) continue;
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
        if (stretch) {
            EXPECT_LT(first, 60);
            EXPECT_GT(last, image.width() - 60);
        } else {
            EXPECT_GT(first, 300);
        }
    }
}

TEST_F(PiecesTest, ACornerThatCannotBeMadeSaysSo) {
    ScratchForm form(QSize(400, 400));
    clsRenderDestination destination;
    destination.Init(form, 1.0);
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::Remove && sPath.endsWith(QStringLiteral(".bmp")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    CornerStickerUsingBMP(destination, 1, 0.5, 0.5);
    EXPECT_EQ(form.hDC().GetPixel(150, 150), Color::White());
    ASSERT_FALSE(desktop.boxes.isEmpty());
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Unable to create Money Image. Money will not be printed."));
}

TEST_F(PiecesTest, Edge_AStickersFileIsDeletedOnlyAfterItWasPainted) {
    ScratchForm form(QSize(400, 400));
    clsRenderDestination destination;
    destination.Init(form, 1.0);
    CornerStickerUsingBMP(destination, 1, 0.5, 0.5);
    EXPECT_EQ(form.hDC().GetPixel(150, 150), Color::Rgb(0xB6, 0xDD, 0xC7));
    EXPECT_FALSE(Files::Exists(WorkFiles::PathOf(QStringLiteral("CornerImage1.bmp"))));
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation == Files::Operation::Read && sPath.endsWith(QStringLiteral("CornerImage1.bmp")))
            return QStringLiteral("Input/output error");
        return std::nullopt;
    });
    ForgetPictures();
    EXPECT_THROW(CornerStickerUsingBMP(destination, 1, 0.5, 0.5), TavloraError);
    EXPECT_TRUE(Files::Exists(WorkFiles::PathOf(QStringLiteral("CornerImage1.bmp"))));
}

TEST_F(PiecesTest, ASpaceStickerHasCutLinesRoundIt) {
    ScratchForm form(QSize(400, 400));
    clsRenderDestination destination;
    destination.Init(form, 1.0);
    SpaceStickerUsingBMP(destination, 4, 1.0, 1.0);
    EXPECT_EQ(form.hDC().GetPixel(100, 200), Color::Rgb(0xB6, 0xDD, 0xC7));
    EXPECT_EQ(form.hDC().GetPixel(96, 95), Color::Black());
}

TEST_F(PiecesTest, AMadePicturePrintsAsTextAndPhotos) {
    C_Space& space = basTAVL::g_oSpaces(5);
    space.SetText(QStringLiteral("Oak Street"));
    space.Image.Init(Photo(Qt::darkGreen), QStringLiteral("Space"), 5);
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceFullImage(file, 5));
    const QString pdf = PathOf(QStringLiteral("sheet.pdf"));
    PdfPrinter printer(pdf, QStringLiteral("sheet"));
    clsRenderDestination destination;
    destination.Init(printer, 1.0);
    destination.OutputFromBMP(file, 1, 1, 1.65, 2.8125);
    QString error;
    ASSERT_TRUE(printer.Close(error)) << qPrintable(error);
    const QString text = TextOf(pdf);
    if (text.isNull()) GTEST_SKIP() << "no reader of PDF files is installed";
    EXPECT_TRUE(text.contains(QStringLiteral("Oak Street"))) << qPrintable(text);
}
