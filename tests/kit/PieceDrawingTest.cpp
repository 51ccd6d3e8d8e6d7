// SPDX-License-Identifier: MIT
// Single pieces as drawings: all there are, in their size, and saved in each form.
#include "kit/PieceDrawing.h"

#include "platform/paint/WrittenTexts.h"
#include "platform/printing/SaveDrawing.h"
#include "support/PdfReader.h"
#include "support/SheetFixture.h"

#include <QImage>
#include <QSet>
#include <QXmlStreamReader>

namespace {

class PieceDrawingTest : public SheetTest {
protected:
    PieceDrawingTest() {
        Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
        TheGame().spaces[4].SetText(QStringLiteral("Elm\r\nStreet"));
        TheGame().news[1][11].Let_Text(QStringLiteral("Pay for the cake."));
    }
    static std::optional<PrintedText> Draw(const char* sWord) { return PieceDrawing::Draw(QString::fromLatin1(sWord)); }
    static QStringList Words(const PrintedText& drawing) {
        QStringList words;
        for (const WrittenText& text : WrittenTextsOf(*drawing.recording, drawing.inches))
            words.append(text.sText.trimmed());
        return words;
    }
    QString Saved(const char* sWord, const char* sFile) {
        const std::optional<PrintedText> drawing = Draw(sWord);
        const QString path = PathOf(QString::fromLatin1(sFile));
        QString error;
        EXPECT_TRUE(drawing &&
                    SaveDrawing(*drawing->recording, drawing->inches, 300, QStringLiteral("A & B"), path, error))
            << error.toStdString();
        return path;
    }
};

} // namespace

TEST_F(PieceDrawingTest, EveryPieceIsDrawnInItsSize) {
    QSet<QString> words;
    for (const PieceDrawing::Piece& piece : PieceDrawing::All()) {
        words.insert(piece.sWord);
        EXPECT_FALSE(piece.sName.isEmpty());
        const std::optional<PrintedText> drawing = PieceDrawing::Draw(piece.sWord);
        ASSERT_TRUE(drawing) << piece.sWord.toStdString();
        EXPECT_GT(drawing->inches.width(), 0.8) << piece.sWord.toStdString();
        EXPECT_LT(drawing->inches.width(), 4.0) << piece.sWord.toStdString();
    }
    EXPECT_EQ(words.size(), 28 + 4 + 6 + 24 + 24 + 4);
    EXPECT_EQ(Draw("card-0-0")->inches, QSizeF(3.0, 1.62));
    EXPECT_EQ(Draw("deed-4")->inches, QSizeF(2.5, 2.5));
    EXPECT_FALSE(Draw("space-28"));
}

TEST_F(PieceDrawingTest, WordsAreThoseOfThePiece) {
    EXPECT_TRUE(Words(*Draw("space-4")).contains(QStringLiteral("Elm")));
    EXPECT_TRUE(Words(*Draw("deed-4")).join(u' ').contains(QStringLiteral("Elm")));
    EXPECT_TRUE(Words(*Draw("card-1-11")).contains(QStringLiteral("Pay for the cake.")));
    EXPECT_FALSE(Words(*Draw("card-1-10")).contains(QStringLiteral("Pay for the cake.")));
}

TEST_F(PieceDrawingTest, EndingsChooseTheForm) {
    EXPECT_EQ(QImage(Saved("deed-4", "d.png")).size(), QSize(750, 750));
    EXPECT_TRUE(ReadFile(Saved("deed-4", "d.pdf")).startsWith("%PDF-"));
    const QByteArray svg = ReadFile(Saved("deed-4", "d.svg"));
    EXPECT_TRUE(svg.contains("width=\"2.5in\" height=\"2.5in\""));
    EXPECT_TRUE(svg.contains("<title>A &amp; B</title>"));
    QXmlStreamReader xml(svg);
    int paths = 0;
    while (!xml.atEnd())
        paths += xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QStringLiteral("path") ? 1 : 0;
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_GT(paths, 20) << "letters, lines and the frame";
    EXPECT_FALSE(svg.contains("<text")) << "letters are outlines, as their font may be away elsewhere";
}

TEST_F(PieceDrawingTest, AFileThatCannotBeWrittenIsTold) {
    QString error;
    const std::optional<PrintedText> drawing = Draw("note-0");
    for (const char* name : {"away/n.png", "away/n.svg", "away/n.pdf"}) {
        EXPECT_FALSE(
            SaveDrawing(*drawing->recording, drawing->inches, 300, {}, PathOf(QString::fromLatin1(name)), error));
        EXPECT_FALSE(error.isEmpty());
    }
}
