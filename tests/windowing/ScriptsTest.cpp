// SPDX-License-Identifier: MIT
// The same words in a window, on a picture of the page and on paper: letters of many scripts, and emoji.
#include "platform/paint/FontFace.h"
#include "platform/printing/PicturePrinter.h"
#include "windowing/PictureBox.h"

#include "support/PdfReader.h"
#include "support/TestFixture.h"

#include <QFontDatabase>

namespace {

constexpr double kDpi = 300;
constexpr int kLinePixels = 60;
constexpr double kRowInches = 0.5;

struct Script {
    const char* sName;
    const char16_t* sText;
};

constexpr Script kScripts[] = {
    {"Latin", u"Żółć ÅÄÖ fiff"},
    {"Greek", u"Καλημέρα"},
    {"Cyrillic", u"Привет, друзья"},
    {"Armenian", u"Բարեւ"},
    {"Georgian", u"გამარჯობა"},
    {"Hebrew", u"שלום לכולם"},
    {"Arabic", u"مرحبا"},
    {"Lao", u"ສະບາຍດີ"},
    {"Tifinagh", u"ⴰⵣⵓⵍ"},
    {"N'Ko", u"ߊߟߎ"},
    {"Ogham", u"ᚁᚂᚃᚄ"},
    {"Canadian syllabics", u"ᐊᐃᓐᖓᐃ"},
    {"Braille", u"⠓⠑⠇⠇⠕"},
    {"emoji", u"a\U0001F3B2b \U0001F1F5\U0001F1F1 \U0001F600"},
};

void Write(Surface& surface, double dotsPerInch) {
    surface.ScaleMode = ScaleModeKind::Pixels;
    surface.FontName = QStringLiteral("DejaVu Sans");
    for (size_t i = 0; i < std::size(kScripts); ++i) {
        const double scale = dotsPerInch / kDpi;
        // In points of the surface's own inch.
        surface.SetFontSize(kLinePixels * scale * 72 / surface.DotsPerInch());
        surface.CurrentX = 0.5 * dotsPerInch;
        surface.CurrentY = (0.2 + kRowInches * double(i)) * dotsPerInch;
        surface.Print(QString::fromUtf16(kScripts[i].sText));
    }
}

/// How dark and how coloured each part of a row is, in cells of a fiftieth of an inch.
QList<QColor> CellsOf(const QImage& page, size_t row) {
    constexpr int kAcross = 150;
    constexpr int kDown = 25;
    const QRect part(int(0.5 * kDpi), int((0.2 + kRowInches * double(row)) * kDpi), int(3 * kDpi),
                     int(kRowInches * kDpi));
    const QImage small = page.copy(part).scaled(kAcross, kDown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QList<QColor> cells;
    for (int y = 0; y < kDown; ++y) {
        for (int x = 0; x < kAcross; ++x)
            cells.append(small.pixelColor(x, y));
    }
    return cells;
}

// 0 for the same, 1 for nothing in common.
double Difference(const QList<QColor>& one, const QList<QColor>& other) {
    double differ = 0;
    double ink = 0;
    for (qsizetype i = 0; i < one.size(); ++i) {
        for (const auto channel : {&QColor::red, &QColor::green, &QColor::blue}) {
            differ += std::abs((one[i].*channel)() - (other[i].*channel)());
            ink += 255 - std::min((one[i].*channel)(), (other[i].*channel)());
        }
    }
    return ink > 0 ? differ / ink : 1;
}

class ScriptsTest : public TavloraTest {
protected:
    ScriptsTest()
        : m_font(
              QFontDatabase::addApplicationFont(QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/fonts/TestEmoji.ttf"))) {
        FontFace::ForgetAll();
    }
    ~ScriptsTest() override {
        QFontDatabase::removeApplicationFont(m_font);
        FontFace::ForgetAll();
    }
    static void ExpectAlike(const QImage& one, const QImage& other, const char* what) {
        constexpr double kMost = 0.25;
        for (size_t row = 0; row < std::size(kScripts); ++row) {
            EXPECT_LT(Difference(CellsOf(one, row), CellsOf(other, row)), kMost) << what << ": " << kScripts[row].sName;
            // A row is no row of another script, or the comparison would mean nothing.
            const size_t next = (row + 1) % std::size(kScripts);
            EXPECT_GT(Difference(CellsOf(one, row), CellsOf(other, next)), kMost) << kScripts[row].sName;
        }
    }

private:
    int m_font;
};

} // namespace

TEST_F(ScriptsTest, WindowPictureAndPaperShowTheSameLetters) {
    if (!QFontDatabase::families().contains(QStringLiteral("DejaVu Sans"))) GTEST_SKIP() << "no font with all of them";
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    PictureBox window;
    window.resize(int(8 * kDpi), int(8 * kDpi));
    window.SetBackColor(Color::White());
    Write(window, kDpi);
    PicturePrinter picture{int(kDpi)};
    Write(picture, kDpi);
    picture.EndDoc();
    const QString path = PathOf(QStringLiteral("scripts.pdf"));
    PdfPrinter paper(path, QStringLiteral("Scripts"));
    Write(paper, PdfPrinter::kDefaultDpi);
    paper.EndDoc();
    QString error;
    ASSERT_TRUE(paper.Close(error)) << qPrintable(error);
    const QImage page = PdfReader(path).Pixels(1, int(kDpi));
    const int margin = int(PdfPrinter::kMarginInches * kDpi);
    const QImage printed = page.copy(page.rect().adjusted(margin, margin, 0, 0));
    ExpectAlike(picture.Page().Image(), printed, "paper");
    ExpectAlike(window.Image(), printed, "window");
    // Printing must not take a letter from the screen.
    PictureBox after;
    after.resize(window.size());
    after.SetBackColor(Color::White());
    FontFace::ForgetAll();
    Write(after, kDpi);
    ExpectAlike(after.Image(), window.Image(), "window after printing");
}
