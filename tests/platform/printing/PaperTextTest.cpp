// SPDX-License-Identifier: MIT
// Letters that are pictures in their font, on paper and on the screen.
#include "platform/paint/FontFace.h"
#include "platform/printing/PicturePrinter.h"
#include "platform/printing/PreviewPrinter.h"

#include "support/PdfReader.h"
#include "support/TestFixture.h"

#include <QFontDatabase>

namespace {

const QString kFont = QStringLiteral("Tavlora Test Emoji");
const QString kDisc = QString::fromUcs4(U"\U0001F600");
const QString kSquare = QString::fromUcs4(U"\U0001F3B2");
const QString kFlag = QString::fromUcs4(U"\U0001F1F5\U0001F1F1");

bool IsRed(QRgb color) { return qRed(color) > 150 && qGreen(color) < 90 && qBlue(color) < 110; }
bool IsBlue(QRgb color) { return qBlue(color) > 150 && qRed(color) < 90 && qGreen(color) < 90; }

/// A printer that is painted on as sheets are: size in points, place in inches.
void Write(Printer& printer, const QString& sText, double points, double left, double top) {
    printer.ScaleMode = ScaleModeKind::Pixels;
    printer.FontName = kFont;
    printer.SetFontSize(points);
    printer.CurrentX = left * printer.DotsPerInch();
    printer.CurrentY = top * printer.DotsPerInch();
    printer.Print(sText);
}

QRectF BoxOf(const QImage& image, double perInch, const std::function<bool(QRgb)>& wanted) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (wanted(image.pixel(x, y))) box |= QRect(x, y, 1, 1);
        }
    }
    return {box.left() / perInch, box.top() / perInch, box.width() / perInch, box.height() / perInch};
}

void ExpectNear(const QRectF& box, const QRectF& other, const char* what) {
    constexpr double kNear = 0.012;
    EXPECT_FALSE(box.isEmpty()) << what;
    EXPECT_NEAR(box.left(), other.left(), kNear) << what;
    EXPECT_NEAR(box.top(), other.top(), kNear) << what;
    EXPECT_NEAR(box.width(), other.width(), kNear) << what;
    EXPECT_NEAR(box.height(), other.height(), kNear) << what;
}

class PaperTextTest : public TavloraTest {
protected:
    PaperTextTest()
        : m_font(
              QFontDatabase::addApplicationFont(QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/fonts/TestEmoji.ttf"))) {
        FontFace::ForgetAll();
    }
    ~PaperTextTest() override {
        QFontDatabase::removeApplicationFont(m_font);
        FontFace::ForgetAll();
    }
    void Print(const std::function<void(Printer&)>& write) {
        PdfPrinter printer(pdf, QStringLiteral("Letters"));
        write(printer);
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
    }

    QString pdf = PathOf(QStringLiteral("letters.pdf"));

private:
    int m_font;
};

} // namespace

TEST_F(PaperTextTest, PicturesOfAFontStandOnPaperWhereTheyStandOnTheScreen) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    const auto write = [](Printer& printer) {
        Write(printer, kDisc + u' ' + kSquare, 40, 1, 1);
        Write(printer, kFlag, 40, 1, 3);
    };
    Print(write);
    PicturePrinter screen;
    write(screen);
    screen.EndDoc();
    const QImage shown = screen.Page().Image();
    const PdfReader paper(pdf);
    const QRectF upper(0, 0, 8, 2.5);
    const QRectF lower(0, 2.5, 8, 3);
    const auto onScreen = [&](const QRectF& part, bool (*wanted)(QRgb)) {
        const QRect pixels = QRectF(part.topLeft() * 300, part.size() * 300).toRect();
        return BoxOf(shown.copy(pixels), 300, wanted).translated(part.topLeft());
    };
    ExpectNear(paper.BoxOfPixels(1, upper, IsRed), onScreen(upper, IsRed), "the disc");
    ExpectNear(paper.BoxOfPixels(1, upper, IsBlue), onScreen(upper, IsBlue), "the square");
    ExpectNear(paper.BoxOfPixels(1, lower, IsRed), onScreen(lower, IsRed), "the flag");
    EXPECT_GT(paper.BoxOfPixels(1, upper, IsRed).width(), 0.4);
}

TEST_F(PaperTextTest, TheyHaveThreeHundredDotsAnInchOrAllTheirPixelsAndAreStoredOnce) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    Print([](Printer& printer) {
        for (int i = 0; i < 4; ++i)
            Write(printer, kDisc + kDisc, 24, 1, 1 + i);
    });
    const QList<PdfReader::StoredImage> images = PdfReader(pdf).Images(1);
    ASSERT_FALSE(images.isEmpty());
    QSet<int> stored;
    for (const PdfReader::StoredImage& image : images) {
        if (image.bMask) continue;
        stored.insert(image.iObject);
        EXPECT_GE(image.dblDpiX, 290);
        EXPECT_EQ(image.sEncoding, QStringLiteral("image")) << "without loss";
    }
    EXPECT_EQ(stored.size(), 1);
}

TEST_F(PaperTextTest, ARecordingPlaysThemOnPaperAndOnTheScreen) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    PdfPrinter letter({}, {});
    PreviewPrinter preview(letter);
    Write(preview, kSquare, 40, 1, 1);
    preview.EndDoc();
    Print([](Printer& printer) { Write(printer, kSquare, 40, 1, 1); });
    constexpr double kMargin = PdfPrinter::kMarginInches;
    const QRectF shown = BoxOf(preview.Page().Image(QSize(2550, 3300)), 300, IsBlue).translated(-kMargin, -kMargin);
    ExpectNear(PdfReader(pdf).BoxOfPixels(1, QRectF(0, 0, 8, 4), IsBlue), shown, "the square");
}

TEST_F(PaperTextTest, LettersWithAPictureCountAsPrintable) {
    const FontFace& face = FontFace::Get(kFont, false, false);
    EXPECT_EQ(face.Unprintable(kDisc + kSquare + kFlag), QStringList());
    const QString nobodyHas = QString::fromUcs4(U"\U0010FFFD");
    EXPECT_EQ(face.Unprintable(kDisc + nobodyHas), QStringList{nobodyHas});
}
