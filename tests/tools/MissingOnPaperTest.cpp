// SPDX-License-Identifier: MIT
// The mark of a missing picture is for whoever makes the game: nothing that is printed or sent to others bears it.
#include "tools/PrintCommandFixture.h"

#include "pictures/MissingMark.h"
#include "platform/paint/Surface.h"
#include "support/MissingMarkPixels.h"
#include "support/PdfReader.h"

namespace {

class MissingOnPaperTest : public PrintCommandTest {
protected:
    /// A game that misses a picture of each kind of piece.
    QString Lacking() const {
        QStringList lines = PlainLines();
        constexpr int kFirstSpace = 3;
        constexpr int kFirstCorner = kFirstSpace + 28;
        constexpr int kFirstNote = kFirstCorner + 4 + 24;
        constexpr int kFirstToken = kFirstNote + 4;
        for (const int line : {kFirstSpace + 4, kFirstCorner + 1, kFirstNote + 2, kFirstToken + 3})
            lines[line].replace(QStringLiteral("\"\",0,0,0"), QStringLiteral("\"gone.png\",0,0,0"));
        EXPECT_EQ(lines.filter(QStringLiteral("gone.png")).size(), 4);
        return WriteGame(lines);
    }
};

TEST_F(MissingOnPaperTest, TheMarkIsKnownWhenItIsSeen) {
    ScratchForm form(QSize(100, 100));
    PaintMissingMark(form, QRectF(0, 0, 100, 100));
    EXPECT_GT(PixelsOfMissingMark(form.Image()), 10 * kFewPixelsOfMark);
}

TEST_F(MissingOnPaperTest, NoPieceAndNoBoardForOthersBearsIt) {
    const QString lacking = Lacking();
    const QString board = PathOf(QStringLiteral("out/board.png"));
    EXPECT_EQ(Run({lacking, QStringLiteral("--board"), board}), 0);
    EXPECT_LT(PixelsOfMissingMark(QImage(board)), kFewPixelsOfMark);
    const QDir pieces(PathOf(QStringLiteral("out/pieces")));
    Run({lacking, QStringLiteral("--pieces"), pieces.path()});
    const QStringList names = pieces.entryList(QDir::Files);
    EXPECT_GT(names.size(), 90);
    for (const QString& name : names)
        EXPECT_LT(PixelsOfMissingMark(QImage(pieces.filePath(name))), kFewPixelsOfMark) << name.toStdString();
}

TEST_F(MissingOnPaperTest, NoSheetBearsIt) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "the tools that read PDF files are not installed";
    const QString lacking = PathOf(QStringLiteral("out/lacking.pdf"));
    const QString plain = PathOf(QStringLiteral("out/plain.pdf"));
    // One with the spaces and corners, with the tokens, and with the note that lack a picture.
    const QStringList some =
        QStringLiteral("--sheet west east box money1000 --dpi 150 --data").split(u' ') + QStringList{kData};
    EXPECT_EQ(Run(QStringList{game, QStringLiteral("-o"), plain} + some), 0) << errors.join(u'\n').toStdString();
    EXPECT_EQ(Run(QStringList{Lacking(), QStringLiteral("-o"), lacking} + some), 0);
    EXPECT_EQ(PdfReader(lacking).Pages(), 4);
    for (int page = 1; page <= PdfReader(lacking).Pages(); ++page)
        EXPECT_LT(PixelsOfMissingMark(PdfReader(lacking).Pixels(page)),
                  PixelsOfMissingMark(PdfReader(plain).Pixels(page)) + kFewPixelsOfMark)
            << "page " << page;
}

} // namespace
