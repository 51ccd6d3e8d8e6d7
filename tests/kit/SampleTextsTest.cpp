// SPDX-License-Identifier: MIT
// The texts of the games that come with the program, as they come out on paper and stand on the board.
#include "board/basPositPaint.h"
#include "game/Session.h"
#include "support/PdfReader.h"
#include "support/SheetMarks.h"

#include <functional>
#include <optional>

namespace {

constexpr double kPointsPerInch = 72;
// Smaller letters need a magnifying glass.
constexpr double kSmallestPoints = 5;
// What rounding to whole dots may put off.
constexpr double kDots = 2;
// Narrower letters than these look squeezed.
constexpr double kNarrowest = 0.75;

class SampleTextsTest : public SheetMarksTest {
protected:
    SampleTextsTest() { Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR)); }

    static QStringList Games() {
        QStringList games{QStringLiteral("Default_US.dat")};
        games += QDir(QStringLiteral(TAVLORA_DATA_DIR)).entryList({QStringLiteral("*_US.gam")}, QDir::Files);
        return games;
    }
    void Load(const QString& sGame) {
        UseKit(QStringLiteral("tavlora"));
        QString path = QStringLiteral(TAVLORA_DATA_DIR "/") + sGame;
        ASSERT_EQ(session.Load(path), 0) << desktop.Texts().join(u'\n').toStdString();
        session.SetGameName(path);
    }
    /// The smallest area that the middle of a text lies on: the piece that it is printed on.
    std::optional<QRectF> PieceUnder(const PageMark& text) const {
        std::optional<QRectF> piece;
        for (const PageMark& area : Only(PageMark::Kind::Area)) {
            const QRectF box = area.Box();
            if (!box.contains(text.Box().center())) continue;
            if (!piece || box.width() * box.height() < piece->width() * piece->height()) piece = box;
        }
        return piece;
    }
    void ExpectReadable(const PageMark& text) const {
        EXPECT_GE(text.em * kPointsPerInch / kDotsPerInch, kSmallestPoints) << text.sText.toStdString();
        EXPECT_GE(text.stretch, kNarrowest) << text.sText.toStdString();
        const std::optional<QRectF> piece = PieceUnder(text);
        if (!piece) return;
        EXPECT_GE(text.Box().left(), piece->left() - kDots) << text.sText.toStdString();
        EXPECT_LE(text.Box().right(), piece->right() + kDots) << text.sText.toStdString();
    }
    /// Every line stands on the sheet in hand, whole.
    void ExpectLines(const QStringList& lines) const {
        for (const QString& line : lines) {
            const bool stands = line.trimmed().isEmpty() || !TextsThatRead(line).isEmpty();
            EXPECT_TRUE(stands) << line.toStdString();
        }
    }
    void ExpectSpaces(int iFirst, int iLast) const {
        for (int i = iFirst; i <= iLast; ++i) {
            const bool kits = i % 7 == 3;
            if (!kits) ExpectLines(basTAVL::g_oSpaces(i).TextArray());
        }
    }
    void ExpectCards(int iDeck) const {
        for (int i = 0; i < basTAVL::kCards; ++i)
            ExpectLines(basTAVL::g_oNews(iDeck, i).Text().split(QStringLiteral("\r\n")));
    }
    /// Prints a sheet of the game in hand, and looks at all that is written on it.
    void PrintReadable(const char* sSheet) {
        SCOPED_TRACE(sSheet);
        ASSERT_TRUE(PrintSheetNamed(sSheet));
        const QList<PageMark> texts = Only(PageMark::Kind::Text);
        EXPECT_FALSE(texts.isEmpty());
        for (const PageMark& text : texts)
            ExpectReadable(text);
    }
    /// Paints on a page of its own, and reads what stands there.
    void PaintOnPage(const std::function<void(PdfPrinter&)>& paint) {
        PdfPrinter printer(pdf, QStringLiteral("page"), QPageSize::Letter, kDotsPerInch);
        printer.ScaleMode = ScaleModeKind::Pixels;
        paint(printer);
        QString error;
        EXPECT_TRUE(printer.Close(error)) << error.toStdString();
        marks = ReadPageMarks(pdf, 1, kDotsPerInch);
    }
    // On a printed note the words are part of a picture.
    void PaintWordsOfNote(int i) {
        PaintOnPage(
            [i](PdfPrinter& page) { basTAVL::g_oMoney(i).DrawMoney(page, kDotsPerInch, 0, 0, false, true, false); });
    }
    void PaintBoard() {
        PaintOnPage([](PdfPrinter& page) {
            basPosit::PosSethDC(&page.hDC());
            basPosit::PosSetPicture(&page, true);
            basPosit::PosSetScale(float(kBoard));
            basPosit::PosSetWidth(kBoard);
            basPosit::PosDrawAll();
            basPosit::PosSetPicture(nullptr);
            basPosit::PosSethDC(nullptr);
        });
    }

    static constexpr int kBoard = 4800;
    Session session;
};

TEST_F(SampleTextsTest, NamesAndTitlesAreWholeAndReadableOnTheirLabels) {
    for (const QString& game : Games()) {
        SCOPED_TRACE(game.toStdString());
        Load(game);
        PrintReadable("box");
        PrintReadable("west");
        ExpectSpaces(0, 13);
        for (int i = 0; i < 3; ++i)
            ExpectLines({basTAVL::g_oCorners(i).TextAll(0)});
        PrintReadable("east");
        ExpectSpaces(14, 27);
        ExpectLines({TheGame().titles.Text(1).sText, TheGame().titles.Text(2).sText});
    }
}

// A leaning letter reaches beyond the box of its text, so the ink itself is looked at.
TEST_F(SampleTextsTest, InkOfTheSubtitlesStaysWithinTheirLabelsOnPaper) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils isn't installed";
    constexpr double kBesideInches = 0.1;
    const auto dark = [](QRgb pixel) { return qRed(pixel) < 80 && qGreen(pixel) < 80 && qBlue(pixel) < 80; };
    for (const QString& game : Games()) {
        Load(game);
        ASSERT_TRUE(PrintSheetNamed("box"));
        const PdfReader sheet(pdf);
        for (const PageMark& text : TextsThatRead(TheGame().titles.Text(2).sText)) {
            const std::optional<QRectF> piece = PieceUnder(text);
            ASSERT_TRUE(piece) << game.toStdString();
            const QRectF label(piece->topLeft() / kDotsPerInch, piece->size() / kDotsPerInch);
            const QRectF ink = sheet.BoxOfPixels(1, label.adjusted(-kBesideInches, 0, kBesideInches, 0), dark);
            EXPECT_FALSE(ink.isEmpty()) << game.toStdString();
            EXPECT_GT(ink.left(), label.left()) << game.toStdString();
            EXPECT_LT(ink.right(), label.right()) << game.toStdString();
        }
    }
}

TEST_F(SampleTextsTest, CardsAndDeedsAreWholeAndReadable) {
    for (const QString& game : Games()) {
        SCOPED_TRACE(game.toStdString());
        Load(game);
        PrintReadable("good");
        ExpectCards(0);
        PrintReadable("bad");
        ExpectCards(1);
        PrintReadable("deeds1");
        PrintReadable("deeds2");
    }
}

TEST_F(SampleTextsTest, NotesSayAllTheirWordsInReadableLetters) {
    for (const QString& game : Games()) {
        SCOPED_TRACE(game.toStdString());
        Load(game);
        for (int i = 0; i < basTAVL::kMoney; ++i) {
            PaintWordsOfNote(i);
            for (const PageMark& text : Only(PageMark::Kind::Text))
                ExpectReadable(text);
            for (int text = 0; text < C_Money::kTexts; ++text)
                ExpectLines(basTAVL::g_oMoney(i).Text(text).split(QStringLiteral("\r\n")));
        }
    }
}

TEST_F(SampleTextsTest, SubtitlesStayWithinTheirLabelsOnTheBoard) {
    for (const QString& game : Games()) {
        Load(game);
        const QString subtitle = TheGame().titles.Text(2).sText;
        const basPosit::BoardRect& label = basPosit::m_CenterRect(basPosit::kSubtitleBox);
        PaintBoard();
        const QList<PageMark> texts = TextsThatRead(subtitle);
        EXPECT_EQ(texts.size(), 1) << game.toStdString() << ": " << subtitle.toStdString();
        for (const PageMark& mark : texts) {
            EXPECT_GE(mark.Box().left(), double(label.x1) * kBoard) << game.toStdString();
            EXPECT_LE(mark.Box().right(), double(label.x2) * kBoard) << game.toStdString();
        }
    }
}

} // namespace
