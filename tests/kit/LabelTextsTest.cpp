// SPDX-License-Identifier: MIT
// What is written on the label sheets: the captions with their arrows, and the titles in their fonts.
#include "support/SheetMarks.h"

#include <QImage>

namespace {

// A caption's line is a tenth of an inch: 60 dots, whose nominal size is rounded to 38. Its arrow is one and a half
// lines, of which three quarters are drawn, and the text stands behind all of it.
constexpr double kCaptionHeight = 60.8;
constexpr int kBehindArrow = 90;
constexpr double kArrow = 68;
const QColor kInk(20, 40, 90);
const QColor kUp(1, 2, 250);
const QColor kLeft(250, 120, 3);

/// In inches from the printable origin.
struct ToldCaption {
    double x;
    double y;
    const char* sText;
};

class LabelTextsTest : public SheetMarksTest {
protected:
    LabelTextsTest() {
        basTAVL::g_lPrintBlack() = Color::Rgb(20, 40, 90);
        basPosit::SetSpecialText(1, QStringLiteral("Our Town"));
        basPosit::SetSpecialText(2, QStringLiteral("A day\r\nout"));
        Arrow("up", kUp);
        Arrow("left", kLeft);
    }
    void Arrow(const char* direction, QColor color) const {
        QImage arrow(20, 20, QImage::Format_RGB32);
        arrow.fill(color);
        const QString name = QStringLiteral("program/%1arrow.bmp").arg(QString::fromLatin1(direction));
        EXPECT_TRUE(arrow.save(PathOf(name)));
    }
    QList<PageMark> Arrows(QColor color) const {
        QList<PageMark> found;
        for (const PageMark& picture : Only(PageMark::Kind::Picture)) {
            if (IsNear(picture.color, color)) found.append(picture);
        }
        return found;
    }
    void ExpectCaption(const ToldCaption& told) const {
        ExpectText(marks, {.sText = QString::fromLatin1(told.sText),
                           .face = &Face("Arial", true, false),
                           .x = told.x * kDotsPerInch + kBehindArrow,
                           .y = told.y * kDotsPerInch,
                           .align = 'L',
                           .height = kCaptionHeight,
                           .heightWithin = kCaptionHeight / 50,
                           .color = kInk});
    }
    // As many arrows as captions, each at its own.
    void ExpectCaptions(const QList<ToldCaption>& captions, QColor color) const {
        QList<PageMark> arrows = Arrows(color);
        EXPECT_EQ(arrows.size(), captions.size());
        for (const ToldCaption& told : captions) {
            ExpectCaption(told);
            const QRectF box(told.x * kDotsPerInch, told.y * kDotsPerInch, kArrow, kArrow);
            EXPECT_TRUE(std::any_of(arrows.begin(), arrows.end(), [&](const PageMark& arrow) {
                const QRectF found = arrow.Box();
                return std::abs(found.left() - box.left()) < 1 && std::abs(found.top() - box.top()) < 1 &&
                       std::abs(found.right() - box.right()) < 1 && std::abs(found.bottom() - box.bottom()) < 1;
            })) << told.sText;
        }
    }
    void ExpectFaces(const QString& sText, int count, const KnownFace& face) const {
        const QList<PageMark> texts = TextsThatRead(sText);
        EXPECT_EQ(texts.size(), count) << sText.toStdString();
        for (const PageMark& text : texts) {
            EXPECT_TRUE(HasFace(text, face)) << text.sFace.toStdString();
            EXPECT_TRUE(IsNear(text.color, kInk)) << text.color.name().toStdString();
        }
    }
};

TEST_F(LabelTextsTest, CaptionsOfTheBoxSheetHaveTheirPlacesAndArrows) {
    ASSERT_TRUE(PrintSheetNamed("box"));
    // Two hundredths of an inch below each piece.
    ExpectCaptions({{0.05, 1.395, "Box Top Title"},
                    {8.25, 0.8325, "Short Side Subtitle"},
                    {0.1, 2.26, "Box Top Subtitle"},
                    {8.25, 2.3325, "Short Side Subtitle"},
                    {0.1, 3.395, "Box Top Long Side Title"},
                    {3.85, 3.3325, "Box Top Short Side Title"},
                    {7.375, 3.395, "Box Top Long Side Subtitle"},
                    {0.1, 4.395, "Box Top Long Side Title"},
                    {3.85, 4.3325, "Box Top Short Side Title"},
                    {7.375, 4.395, "Box Top Long Side Subtitle"}},
                   kUp);
    ExpectCaptions({{8, 6, "Game Token Stickers"}}, kLeft);
    // The headline has room for an arrow and none.
    ExpectCaption({0.155, 7.875,
                   "CUT ALONG THE LINES. THEN PEEL AND STICK EACH LABEL TO THE APPROPRIATE GAME BOX SPACE OR TOKEN "
                   "SIDE."});
}

TEST_F(LabelTextsTest, TitlesOfTheBoxSheetHaveTheirFonts) {
    ASSERT_TRUE(PrintSheetNamed("box"));
    ExpectFaces(QStringLiteral("Our Town"), 5, Face("Arial", false, false));
    ExpectFaces(QStringLiteral("A day out"), 1, Face("Times New Roman", true, true));
    ExpectFaces(QStringLiteral("A day"), 4, Face("Times New Roman", true, true));
    ExpectFaces(QStringLiteral("out"), 4, Face("Times New Roman", true, true));
}

TEST_F(LabelTextsTest, CaptionsOfTheBoardSheetsHaveTheirPlacesAndArrows) {
    ASSERT_TRUE(PrintSheetNamed("west"));
    ExpectCaptions({{7.5, 6.5, "'Start' Board Corner"},
                    {7.5, 7, "'Lose A Turn' Board Corner"},
                    {7.5, 7.5, "'Free Space' Board Corner"}},
                   kLeft);
    EXPECT_TRUE(Arrows(kUp).isEmpty());
    ASSERT_TRUE(PrintSheetNamed("east"));
    ExpectCaptions({{0.05, 6.924, "Game Board Title"}, {0.05, 7.61, "Game Board Subtitle"}}, kUp);
    EXPECT_TRUE(Arrows(kLeft).isEmpty());
    ExpectFaces(QStringLiteral("Our Town"), 1, Face("Arial", false, false));
    ExpectFaces(QStringLiteral("A day out"), 1, Face("Times New Roman", true, true));
}

} // namespace
