// SPDX-License-Identifier: MIT
// Where everything stands on a sticker, a banknote and a token, to the dot.
#include "pieces/frmBMP.h"
#include "platform/paint/Surface.h"
#include "platform/paint/WrittenTexts.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "render/clsRenderDestination.h"
#include "services/basCommon.h"
#include "support/GameFixture.h"
#include "support/Ink.h"
#include "support/MetafileBuilder.h"
#include "support/StartUp.h"

namespace {

class PieceLayoutTest : public GameTest {
protected:
    PieceLayoutTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        StartUp::SetUpKit();
    }
    ~PieceLayoutTest() override { basCommon::ResetForTest(); }

    QString Photo() {
        QImage photo(900, 900, QImage::Format_RGB32);
        photo.fill(Qt::red);
        EXPECT_TRUE(photo.save(PathOf(QStringLiteral("photo.png"))));
        return PathOf(QStringLiteral("photo.png"));
    }
    QString Drawing() {
        MetafileBuilder drawing(50, 50);
        drawing.NullPen().Brush(Color::Rgb(255, 0, 0)).Rectangle(0, 0, 51, 51);
        return WriteFile(QStringLiteral("drawing.wmf"), drawing.Placeable());
    }
    QImage Made() {
        QString error;
        return LoadPicture(file, error).Image();
    }
    // The part of a picture that has a colour.
    static QRect BoxOf(const QImage& image, QColor color) {
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == color) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }

    const QString file = PathOf(QStringLiteral("piece.bmp"));
};

// The capital letters of Arial, and the em of a font given in points.
constexpr double kCapitals = 0.688;
constexpr double kEmOfSize = 96.0 / 72;

} // namespace

TEST_F(PieceLayoutTest, PicturesOfStickersStandToTheDot) {
    struct Row {
        double scale;
        QRect space;
        QRect corner;
    };
    for (const Row& row : {Row{1.0, QRect(38, 48, 102, 102), QRect(59, 19, 97, 97)},
                           Row{1.25, QRect(48, 60, 128, 128), QRect(73, 24, 122, 122)}}) {
        ScratchForm form(QSize(500, 400));
        clsRenderDestination destination;
        destination.Init(form, row.scale);
        basTAVL::g_oSpaces(2).Image.Init(Photo(), QStringLiteral("Space"), 2);
        destination.SpaceStickerImageV6(2, 0.25, 0.5);
        EXPECT_EQ(BoxOf(form.Image(), Qt::red), row.space) << row.scale;
        form.Cls();
        basTAVL::g_oCorners(1).Image.Init(Photo(), QStringLiteral("Corner"), 1);
        destination.CornerStickerImageV6(1, 0.1, 0.2);
        EXPECT_EQ(BoxOf(form.Image(), Qt::red), row.corner) << row.scale;
    }
}

TEST_F(PieceLayoutTest, TextsOfStickersKeepTheSizeThatTheyHaveOnTheBoard) {
    C_Space& space = basTAVL::g_oSpaces(2);
    space.SetText(QStringLiteral("H"));
    space.Let_TextSize(0.012F);
    C_Corner& corner = basTAVL::g_oCorners(1);
    corner.SetText(0, QStringLiteral("H"));
    corner.Let_TextSize(0, 0.012F);
    ScratchForm form(QSize(800, 900));
    clsRenderDestination destination;
    destination.Init(form, 3.0);
    struct Row {
        bool corner;
        bool picture;
        int size;  ///< CLng of the size on the board in dots.
        QRect box; ///< For the text.
    };
    // 288 dots an inch: a margin is 6, a space 392 by 612, a corner 583 square.
    for (const Row& row :
         {Row{false, true, 55, QRect(78, 384, 380, 300)}, Row{false, false, 55, QRect(78, 72, 380, 606)},
          Row{true, true, 34, QRect(78, 370, 571, 286)}, Row{true, false, 34, QRect(78, 72, 571, 577)}}) {
        form.Cls();
        if (row.corner) {
            destination.CornerStickerText(1, 0.25, 0.25, row.picture);
        } else {
            destination.SpaceStickerText(2, 0.25, 0.25, row.picture);
        }
        const QRect ink = DarkBox(form.Image(), form.Image().rect());
        const double em = row.size * kEmOfSize;
        EXPECT_NEAR(ink.height(), em * kCapitals, 2) << row.corner << row.picture;
        EXPECT_NEAR(ink.center().x(), row.box.x() + row.box.width() / 2.0, 2) << row.corner << row.picture;
        // A line is the size over 0.625 high and stands in the middle of 95 hundredths of the box.
        const double top = row.box.y() + (0.95 * row.box.height() - row.size / 0.625) / 2;
        EXPECT_NEAR(ink.bottom() + 1, top + 0.905 * em, 3) << row.corner << row.picture;
    }
}

TEST_F(PieceLayoutTest, TheStickerStandsInTheMiddleUnderTheBandOfAWholeSpace) {
    C_Space& space = basTAVL::g_oSpaces(5);
    space.SpaceColor = Color::Rgb(0, 0, 255);
    space.Image.Init(Photo(), QStringLiteral("Space"), 5);
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceFullImage(file, 5));
    EXPECT_EQ(BoxOf(Made(), Qt::red), QRect(85, 162, 306, 306));
    // Outlines are 17 dots wide, half of them outside of their box.
    EXPECT_EQ(BoxOf(Made(), Qt::blue).top(), 9);
    EXPECT_NEAR(BoxOf(Made(), Qt::blue).bottom(), 126 - 9, 1);
    space.SpaceColor = Color::None();
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceFullImage(file, 5));
    EXPECT_EQ(Made().pixelColor(60, 126), QColor(0xB6, 0xDD, 0xC7)) << "no band, and no line under it";
}

TEST_F(PieceLayoutTest, EverythingOnANoteStandsToTheDot) {
    QImage green(700, 350, QImage::Format_RGB32);
    green.fill(Qt::green);
    ASSERT_TRUE(green.save(PathOf(QStringLiteral("blank.png"))));
    C_Money& money = basTAVL::g_oMoney(1);
    money.BackColor = Color::Rgb(0, 0, 255);
    money.BackImage.Let_FullPath(PathOf(QStringLiteral("blank.png")));
    money.FaceImage.Init(Photo(), QStringLiteral("Money"), 1);
    ScratchForm form(QSize(1700, 1000));
    const int x = 100;
    const int y = 50;
    money.DrawMoney(form, 400, x, y, true, false, false);
    EXPECT_EQ(BoxOf(form.Image(), Qt::green), QRect(x + 50, y + 49, 1400, 700)) << "the panel";
    const QRect oval = BoxOf(form.Image(), Qt::red);
    const QRect whole(x + 572, y + 208, 328, 380);
    EXPECT_TRUE(whole.adjusted(-1, -1, 1, 1).contains(oval)) << "the oval";
    EXPECT_TRUE(oval.contains(whole.adjusted(6, 6, -6, -6))) << "the oval";
    // The plates alone, which the texts stand on.
    form.Cls();
    money.DrawMoney(form, 400, x, y, false, true, false);
    const QImage plates = form.Image();
    const QRect left = BoxOf(plates.copy(0, 0, x + 750, 1000), Qt::blue);
    EXPECT_EQ(left.topLeft(), QPoint(x + 165, y + 300));
    EXPECT_LE(std::abs(left.width() - 350), 1);
    EXPECT_LE(std::abs(left.height() - 200), 1);
    const QRect right = BoxOf(plates.copy(x + 750, 0, 850, 1000), Qt::blue).translated(x + 750, 0);
    EXPECT_EQ(right.topLeft(), QPoint(x + 960, y + 300));
    EXPECT_EQ(right.size(), left.size());
}

TEST_F(PieceLayoutTest, AMetafileStandsInTheSquareInsideAToken) {
    C_Token& token = basTAVL::g_oTokens(1);
    token.Init(1);
    token.BackColor = Color::Rgb(0, 0, 255);
    token.Image.Init(Drawing(), QStringLiteral("Token"), 1);
    ASSERT_TRUE(frmBMP::Instance().GenerateTokenImage(file, 1));
    EXPECT_EQ(BoxOf(Made(), Qt::red), QRect(39, 39, 188, 188));
}

TEST_F(PieceLayoutTest, ATokensRingLiesOutsideItsCircleAndIsWiderFarFromTheEdge) {
    C_Token& token = basTAVL::g_oTokens(1);
    token.Init(1);
    token.BackColor = Color::Rgb(0, 0, 255);
    ScratchForm form(QSize(900, 900));
    PictureHolder scratch;
    for (const int start : {0, 300}) {
        form.SetBackColor(Color::White());
        token.Redraw(start, start, start + 200, start + 200, false, form, scratch, {}, Color::Rgb(255, 0, 0));
        const QImage image = form.Image();
        const QRect circle = BoxOf(image, Qt::blue).translated(-start, -start);
        // The ring ends 1.5 dots inside the box; its right and lower edge are left out, as of all that is drawn.
        EXPECT_EQ(circle, QRect(2, 2, 195, 195)) << start;
        EXPECT_EQ(image.pixelColor(start + 3, start + 3), QColor(Qt::red)) << "the corner of the box";
        // Half of the centre: 50 and 200.
        const int outside = start + 200 + (start + 100) / 2;
        EXPECT_EQ(image.pixelColor(outside - 5, start + 100), QColor(Qt::red)) << start;
        EXPECT_EQ(image.pixelColor(outside + 5, start + 100), QColor(Qt::white)) << start;
    }
}

TEST_F(PieceLayoutTest, ATokensPictureIsCutToTheWholeCircleInItsBox) {
    C_Token token;
    token.Image.Init(Photo(), QStringLiteral("Token"), 1);
    ScratchForm form(QSize(300, 300));
    PictureHolder scratch;
    ASSERT_TRUE(token.PaintImage(form, scratch, 40, 30, 240, 230));
    // Its outermost dots are smooth, and so no more red.
    EXPECT_EQ(BoxOf(form.Image(), Qt::red), QRect(40, 30, 200, 200).adjusted(1, 1, -1, -1));
    for (const QPoint corner : {QPoint(65, 55), QPoint(214, 55), QPoint(65, 204), QPoint(214, 204)})
        EXPECT_EQ(form.Image().pixelColor(corner), QColor(Qt::white)) << corner.x() << ' ' << corner.y();
}

TEST_F(PieceLayoutTest, ATokensTextIsAsHighAsItsSizeAsks) {
    C_Token& token = basTAVL::g_oTokens(4);
    token.Init(4);
    token.BackColor = Color::White();
    token.Font.Size = 48;
    token.SetText(QStringLiteral("H"));
    token.Let_TextSize(0.04F);
    ASSERT_TRUE(frmBMP::Instance().GenerateTokenImage(file, 4));
    // A line of 67 dots: 0.04 of 266 times 6.329.
    const QRect ink = DarkBox(Made(), Made().rect());
    EXPECT_NEAR(ink.height(), 67 * kCapitals / 1.117, 2);
    EXPECT_NEAR(ink.center().x(), 133, 1);
    // In the middle of the square inside the circle, 39 dots down and 188 high: its top at 100.
    EXPECT_NEAR(ink.bottom() + 1, 100 + 67 * 0.905 / 1.117, 2);
}

TEST_F(PieceLayoutTest, AClickOnATokenMeetsItsTextInsideTheSquareOnly) {
    C_Token& token = basTAVL::g_oTokens(4);
    token.Init(4);
    ScratchForm form(QSize(400, 400));
    const auto meets = [&](int x, int y) {
        int column = -1;
        int row = -1;
        return token.FindInsertPoint(100, 50, 366, 316, form, x, y, column, row);
    };
    // Of a box of 266 dots the square is 188 wide, and leaves 39 on each side.
    EXPECT_TRUE(meets(139, 89));
    EXPECT_FALSE(meets(138, 89));
    EXPECT_FALSE(meets(139, 88));
    EXPECT_TRUE(meets(326, 276));
    EXPECT_FALSE(meets(327, 276));
    EXPECT_FALSE(meets(326, 277));
}

TEST_F(PieceLayoutTest, TheCaretInATokenIsThreeDotsWide) {
    C_Token& token = basTAVL::g_oTokens(4);
    token.Init(4);
    token.BackColor = Color::White();
    token.SetText(QString());
    ScratchForm form(QSize(266, 266));
    PictureHolder scratch;
    token.Redraw(0, 0, 266, 266, true, form, scratch, {0, 0, 0, 0}, Color::White());
    const QRect caret = DarkBox(form.Image(), form.Image().rect());
    EXPECT_EQ(caret.width(), 3);
    EXPECT_NEAR(caret.center().x(), 133, 1);
    EXPECT_GT(caret.height(), 3 * caret.width());
}

TEST_F(PieceLayoutTest, TheWordsOfATokenAreRecordedInTheSizeOfItsSticker) {
    C_Token token;
    token.Font.Size = 48;
    token.SetText(QStringLiteral("H"));
    token.Let_TextSize(0.0402F);
    const PrintedText printed = frmBMP::RecordTokenText(token);
    const QList<WrittenText> texts = WrittenTextsOf(*printed.recording, printed.inches);
    ASSERT_EQ(texts.size(), 1);
    // 0.0402 of 266 dots times 6.329 are 67.68: a line of 68 dots, of which 304 are an inch.
    EXPECT_NEAR(texts[0].dblPoints, 68 / 1.117 / 304 * 72, 0.05);
    EXPECT_NEAR(texts[0].box.center().x(), 0.875 / 2, 0.01);
}
