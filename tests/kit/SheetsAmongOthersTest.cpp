// SPDX-License-Identifier: MIT
// What a sheet leaves behind shows on no other: one may be added or taken away anywhere in the kit.
#include "kit/Sheets.h"

#include "game/GameFile.h"
#include "game/Session.h"
#include "platform/printing/PicturePrinter.h"
#include "support/PageMarks.h"
#include "support/SheetFixture.h"

namespace {

constexpr int kDotsPerInch = 600;

// Leaves all behind that can be left on a page.
bool PaintDisorderly(SheetJob& job, int) {
    Printer& page = job.printer;
    page.SetBackColor(Color::Rgb(250, 240, 0));
    page.ScaleMode = ScaleModeKind::Pixels;
    page.FontName = QStringLiteral("Times New Roman");
    page.FontBold = true;
    page.FontItalic = true;
    page.FontTransparent = false;
    page.SetFontSize(40);
    page.ForeColor = Color::Rgb(0, 200, 0);
    page.DrawWidth = 60;
    page.DrawStyle = 2;
    page.CurrentX = 300;
    page.CurrentY = 300;
    page.Print(QStringLiteral("Disorder"));
    DeviceContext& context = page.hDC();
    context.SelectPen(context.CreatePen(PenStyle::Dash, 40, Color::Rgb(0, 0, 200)));
    context.SelectBrush(context.CreateSolidBrush(Color::Rgb(200, 0, 0)));
    context.SelectFont(context.CreateFont({.sFamily = QStringLiteral("Arial"), .lHeight = 300, .bItalic = true}));
    context.SetTextColor(Color::Rgb(200, 0, 200));
    context.SetBkColor(Color::Rgb(0, 200, 200));
    context.SetBkMode(BkMode::Opaque);
    context.Painter().setOpacity(0.5);
    context.SaveDC();
    return true;
}

Sheet DisorderlySheet() {
    Sheet sheet = *FindSheet(QStringLiteral("rules"));
    sheet.paint = PaintDisorderly;
    return sheet;
}

class SheetsAmongOthersTest : public SheetTest {
protected:
    SheetsAmongOthersTest() {
        const QString data = QStringLiteral(TAVLORA_DATA_DIR);
        Folders::SetProgramDirectory(data);
        basPosit::PosSethDC(&session.MeasuringDevice());
        basPosit::PosInit();
        QString game = data + QStringLiteral("/Family_US.gam");
        int result = -1;
        GameFile::GameLoad(game, result);
        EXPECT_EQ(result, 0);
    }
    // Pages of one document, painted as the programs paint theirs.
    void PrintInto(const QString& sFile, std::span<const Sheet> sheets) const {
        PdfPrinter printer(sFile, QStringLiteral("Sheets"));
        for (const Sheet& sheet : sheets) {
            printer.SetOrientation(sheet.OrientationOf(Kit::Eight));
            SheetJob job{printer};
            EXPECT_TRUE(sheet.Prepare(job) && sheet.Print(job)) << sheet.sName;
            printer.EndDoc();
        }
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
    }

    Session session;
};

} // namespace

TEST_F(SheetsAmongOthersTest, ASheetIsTheSameAfterAnyOtherAsOnItsOwn) {
    std::vector<Sheet> all;
    for (const Sheet& sheet : Sheets()) {
        all.push_back(DisorderlySheet());
        all.push_back(sheet);
    }
    PrintInto(pdf, all);
    int page = 0;
    for (const Sheet& sheet : Sheets()) {
        const QString alone = PathOf(QStringLiteral("alone.pdf"));
        PrintInto(alone, {&sheet, 1});
        const QList<PageMark> marks = ReadPageMarks(pdf, page += 2, kDotsPerInch);
        EXPECT_FALSE(marks.isEmpty()) << sheet.sName;
        EXPECT_TRUE(marks == ReadPageMarks(alone, 1, kDotsPerInch)) << sheet.sName;
    }
}

TEST_F(SheetsAmongOthersTest, TheDisorderlySheetIsSeenWhereNothingIsSetAfresh) {
    PicturePrinter page(kDotsPerInch);
    SheetJob job{page};
    ASSERT_TRUE(DisorderlySheet().Print(job));
    EXPECT_TRUE(page.FontItalic);
    EXPECT_EQ(page.DrawWidth, 60);
    ASSERT_TRUE(FindButton(2)->Print(job)) << "one that paints nothing";
    EXPECT_FALSE(page.FontItalic);
    EXPECT_EQ(page.DrawWidth, 1);
    EXPECT_EQ(page.ScaleMode, ScaleModeKind::Twips);
    EXPECT_EQ(page.FontSize(), PicturePrinter(kDotsPerInch).FontSize());
}

// "12 Space" where it tells of the first of twelve spaces up to the last, one by one.
TEST_F(SheetsAmongOthersTest, ASheetTellsWhichPieceComesNextAndOfHowMany) {
    const struct {
        const char* sheet;
        QStringList told;
    } rows[] = {{"box", {QStringLiteral("4 Title"), QStringLiteral("6 Token")}},
                {"west", {QStringLiteral("12 Space"), QStringLiteral("3 Corner")}},
                {"east", {QStringLiteral("12 Space"), QStringLiteral("2 Title")}},
                {"deeds1", {QStringLiteral("12 Deed")}},
                {"good", {QStringLiteral("12 Card")}},
                {"money500", {QStringLiteral("10 Note")}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.sheet);
        const Sheet& sheet = *FindSheet(QString::fromLatin1(row.sheet));
        PicturePrinter page(60);
        QStringList told;
        int last = 0;
        SheetJob job{.printer = page, .Piece = [&](const char* sPiece, int iPiece, int nPieces) {
                         EXPECT_EQ(iPiece, last + 1) << sPiece;
                         last = iPiece % nPieces;
                         if (iPiece == nPieces)
                             told.append(QStringLiteral("%1 %2").arg(nPieces).arg(QLatin1String(sPiece)));
                     }};
        EXPECT_TRUE(sheet.Prepare(job) && sheet.Print(job));
        EXPECT_EQ(told, row.told);
    }
}

// A warning of a page that is too small is true only as long as the rows say where the ink ends.
TEST_F(SheetsAmongOthersTest, TheInkOfASheetEndsWhereItsRowSays) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    PrintInto(pdf, Sheets());
    int page = 0;
    for (const Sheet& sheet : Sheets()) {
        constexpr double kWithin = 0.012;
        ++page;
        const QRectF ink = reader.InkBox(page, QRectF(QPointF(-0.25, -0.25), reader.PaperInches(page)));
        if (sheet.bMoney || qstrcmp(sheet.sName, "rules") == 0) {
            // The rim of a note may be white, and every game has its own names in the rules.
            constexpr double kWhite = 0.25;
            EXPECT_LE(ink.right(), sheet.ends.right.inches + kWithin) << sheet.sName;
            EXPECT_GT(ink.right(), sheet.ends.right.inches - kWhite) << sheet.sName;
            EXPECT_LE(ink.bottom(), sheet.ends.bottom.inches + kWithin) << sheet.sName;
            EXPECT_GT(ink.bottom(), sheet.ends.bottom.inches - kWhite) << sheet.sName;
            continue;
        }
        EXPECT_NEAR(ink.right(), sheet.ends.right.inches, kWithin) << sheet.sName;
        EXPECT_NEAR(ink.bottom(), sheet.ends.bottom.inches, kWithin) << sheet.sName;
    }
}
