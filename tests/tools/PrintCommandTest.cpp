// SPDX-License-Identifier: MIT
#include "tools/PrintCommandFixture.h"

#include "kit/Sheets.h"
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "support/PdfReader.h"
#include "support/PictureFiles.h"
#include "tools/PrintArguments.h"

#include <QProcess>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

TEST_F(PrintCommandTest, BoardBecomesAPictureOfTheSizeAskedFor) {
    const QString path = PathOf(QStringLiteral("out/board.png"));
    EXPECT_EQ(Run({game, QStringLiteral("--board"), path, QStringLiteral("--size"), QStringLiteral("700")}), 0);
    const QImage board(path);
    ASSERT_EQ(board.size(), QSize(700, 700));
    EXPECT_EQ(board.pixelColor(int(0.5 * 700), int(0.46 * 700)), QColor(0, 176, 255)) << "the panel";
    EXPECT_EQ(board.pixelColor(int(0.04 * 700), int(0.96 * 700)), QColor(224, 255, 224)) << "a corner's face";
    EXPECT_EQ(OutFolder(), QStringList{QStringLiteral("board.png")});
}

TEST_F(PrintCommandTest, NoInputIsEverThrownAwayWhateverItHolds) {
    const QByteArray png = PictureFiles::Encoded(PictureFiles::Quarters(40, 40), "png");
    WriteFile(QStringLiteral("games/photo.bmp"), png);
    WriteFile(QStringLiteral("games/letter.bmp"), "Dear Anna,");
    QStringList lines = PlainLines();
    lines[3 + 7] = QStringLiteral("7, \"t\", \"photo.bmp\",0,0,0");
    lines[3 + 8] = QStringLiteral("8, \"t\", \"letter.bmp\",0,0,0");
    const QString named = WriteGame(lines);
    const QMap<QString, QByteArray> before = Content(QStringLiteral("games"));
    const QString path = PathOf(QStringLiteral("out/board.png"));
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(Run({named, QStringLiteral("--board"), path}), 0);
        EXPECT_EQ(Content(QStringLiteral("games")), before);
        EXPECT_FALSE(errors.join(u' ').contains(QStringLiteral("delete"))) << errors.join(u'\n').toStdString();
    }
}

TEST_F(PrintCommandTest, EveryMadePictureIsWrittenUnderItsName) {
    const QString pieces = PathOf(QStringLiteral("out/pieces"));
    EXPECT_EQ(Run({game, QStringLiteral("--pieces"), pieces}), 0) << errors.join(u'\n').toStdString();
    const QStringList names = QDir(pieces).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(names.size(), 28 + 28 + 4 + 4 + 6 + 5 + 4 + 22 + 2);
    const struct {
        const char* name;
        QSize size;
    } rows[] = {{"BmpOneFullSpace0", {475, 810}}, {"BmpOneFullSpace27", {475, 810}}, {"SpaceImage27", {392, 612}},
                {"CornerImage3", {612, 612}},     {"MoneyImage3", {720, 384}},       {"TokenBMP5", {266, 266}},
                {"BmpSubtitle", {2212, 147}},     {"BmpSubtitleML", {504, 164}},     {"Side3Image", {720, 36}},
                {"Rent0Image", {720, 144}},       {"TempNewsBMP1", {862, 112}}};
    for (const auto& row : rows)
        EXPECT_EQ(QImage(pieces + u'/' + QString::fromLatin1(row.name) + QStringLiteral(".png")).size(), row.size)
            << row.name;
}

TEST_F(PrintCommandTest, PiecesMayGoWhereOthersLie) {
    const QString pieces = PathOf(QStringLiteral("out"));
    WriteFile(QStringLiteral("out/MoneyImage0.png"), "an older run's");
    WriteFile(QStringLiteral("out/mine.txt"), "mine");
    EXPECT_EQ(Run({game, QStringLiteral("--pieces"), pieces}), 0);
    EXPECT_EQ(QImage(pieces + QStringLiteral("/MoneyImage0.png")).size(), QSize(720, 384));
    EXPECT_EQ(ReadFile(pieces + QStringLiteral("/mine.txt")), QByteArray("mine"));
}

TEST_F(PrintCommandTest, PiecesThatCannotBeWrittenGiveOneLineAndStatusOne) {
    const QString file = WriteFile(QStringLiteral("out/taken"), "a file");
    EXPECT_EQ(Run({game, QStringLiteral("--pieces"), file}), 1);
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].contains(file + QStringLiteral("' could not be made: "))) << errors[0].toStdString();
    QDir(folder.path()).mkpath(QStringLiteral("out/pieces/MoneyImage1.png/in the way"));
    EXPECT_EQ(Run({game, QStringLiteral("--pieces"), PathOf(QStringLiteral("out/pieces"))}), 1);
    ASSERT_FALSE(errors.isEmpty());
    EXPECT_TRUE(errors.last().contains(QStringLiteral("MoneyImage1.png' could not be written: ")))
        << errors.last().toStdString();
}

TEST_F(PrintCommandTest, RulesArePrintedWithTheNamesOfTheGame) {
    EXPECT_EQ(PrintRules(game), 0);
    EXPECT_TRUE(errors.isEmpty()) << errors.join(u'\n').toStdString();
    EXPECT_EQ(OutFolder(), QStringList{QStringLiteral("sheet.pdf")});
    EXPECT_TRUE(ReadFile(pdf).startsWith("%PDF-"));
    const QString text = TextOf(pdf).simplified();
    if (text.isEmpty()) GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_TRUE(text.contains(QStringLiteral("OurTAVLO of Corner 0"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Space 3 and Space 17"))) << text.toStdString();
}

// The page of a sheet in the whole kit; 0 for a name that no sheet has.
int PageOf(const char* sName) {
    const Sheet* const sheet = FindSheet(QString::fromLatin1(sName));
    return sheet ? int(sheet - Sheets().data()) + 1 : 0;
}

// Words that only one sheet of the sample game holds.
constexpr std::pair<const char*, const char*> kWordsOfSheets[] = {
    {"box", "Game Token Stickers"}, {"west", "'Start' Board Corner"}, {"east", "Game Board Title"},
    {"deeds1", "The South Side"},   {"deeds2", "The North Side"},     {"good", "Good News!"},
    {"bad", "Bad News!"},           {"money100", "dish duties"},      {"money500", "Five hundred"},
    {"money1000", "One thousand"},  {"money5000", "and a pony"},      {"rules", "How to play"}};

TEST_F(PrintCommandTest, WholeKitIsAPageForEachSheetInTheOrderOfTheSheets) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PrintKit(), 0);
    EXPECT_TRUE(errors.isEmpty()) << errors.join(u'\n').toStdString();
    EXPECT_EQ(OutFolder(), QStringList{QStringLiteral("sheet.pdf")});
    const PdfReader reader(pdf);
    ASSERT_EQ(reader.Pages(), int(Sheets().size()));
    for (const Sheet& sheet : Sheets()) {
        const bool landscape = sheet.OrientationOf(Kit::Eight) == PageOrientation::Landscape;
        EXPECT_EQ(reader.PaperInches(PageOf(sheet.sName)), landscape ? QSizeF(11, 8.5) : QSizeF(8.5, 11))
            << sheet.sName;
    }
    int last = 0;
    for (const auto& [name, words] : kWordsOfSheets) {
        EXPECT_GT(PageOf(name), last) << name;
        last = PageOf(name);
        EXPECT_FALSE(reader.BoxesOf(last, QString::fromLatin1(words)).isEmpty()) << name;
    }
}

TEST_F(PrintCommandTest, SheetsOfTheKitAreTheSameAsThoseOnTheirOwn) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PrintKit(), 0);
    const PdfReader kit(pdf);
    for (const Sheet& sheet : Sheets()) {
        const QString name = QString::fromLatin1(sheet.sName);
        const QString alone = PathOf(QStringLiteral("out/%1.pdf").arg(name));
        EXPECT_EQ(Run({kFamily, QStringLiteral("--sheet"), name, QStringLiteral("-o"), alone, QStringLiteral("--data"),
                       kData}),
                  0);
        constexpr int kDpi = 50;
        EXPECT_EQ(kit.Pixels(PageOf(sheet.sName), kDpi), PdfReader(alone).Pixels(1, kDpi)) << sheet.sName;
    }
}

TEST_F(PrintCommandTest, KitFitsA4Too) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PrintKit({QStringLiteral("--paper=a4"), QStringLiteral("--dpi=300")}), 0);
    const PdfReader reader(pdf);
    ASSERT_EQ(reader.Pages(), int(Sheets().size()));
    EXPECT_NEAR(reader.PaperInches(PageOf("box")).width(), 297 / 25.4, 0.02);
    EXPECT_NEAR(reader.PaperInches(PageOf("rules")).height(), 297 / 25.4, 0.02);
    constexpr double kMargin = PdfPrinter::kMarginInches;
    for (const char* name : {"box", "west", "east"}) {
        const QSizeF paper = reader.PaperInches(PageOf(name));
        const QRectF ink =
            reader.InkBox(PageOf(name), QRectF(QPointF(-kMargin, -kMargin), paper)).translated(kMargin, kMargin);
        EXPECT_NEAR(ink.left(), paper.width() - ink.right(), 0.08) << name;
        for (const double margin : {ink.left(), ink.top(), paper.width() - ink.right(), paper.height() - ink.bottom()})
            EXPECT_GT(margin, PdfPrinter::kMarginInchesOfA4) << name;
    }
}

TEST_F(PrintCommandTest, ProgressIsShownOnATerminal) {
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("west"), QStringLiteral("-o"), pdf}, true), 0);
    const QString shown = errors.join(u'\n');
    EXPECT_TRUE(shown.contains(QStringLiteral("1/1 West, South & Corner Board Stickers 50%"))) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(QStringLiteral("\r\x1b[K"))) << "the line is cleared at the end";
}

TEST_F(PrintCommandTest, ColoursOfTheStickersAreThoseOfTheKitAndTheSettings) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    WriteFile(QStringLiteral("games/tavlora.ini"), "[tavlora]\r\nPrintRedColor=00FF8000\r\n");
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("box"), QStringLiteral("-o"), pdf}), 0);
    const PdfReader reader(pdf);
    EXPECT_EQ(reader.ColorAt(1, 0.1, 0.3), QColor(0xB6, 0xDD, 0xC7)) << "behind the title";
    EXPECT_EQ(reader.ColorAt(1, 0.15, 1.8), QColor(0xFF, 0x80, 0)) << "behind the subtitle";
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("tavlora.ini"))), QByteArray("[tavlora]\r\nPrintRedColor=00FF8000\r\n"));
}

TEST_F(PrintCommandTest, LabelSheetsOfOlderKitsAreRefusedPlainly) {
    EXPECT_EQ(PrintKit({QStringLiteral("--variant=2"), QStringLiteral("--sheet=west")}), 1);
    EXPECT_EQ(errors, QStringList{kLabelsLeftOut + QStringLiteral("west.")});
    EXPECT_TRUE(OutFolder().isEmpty());
}

TEST_F(PrintCommandTest, AnOlderKitIsPrintedWithoutTheSheetsThatThisBuildLacks) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    for (const char* variant : {"2", "2A", "5"}) {
        EXPECT_EQ(PrintKit({QStringLiteral("--variant"), QString::fromLatin1(variant)}), 1) << variant;
        EXPECT_EQ(errors, QStringList{kLabelsLeftOut + QStringLiteral("box, west, east.")}) << variant;
        const PdfReader reader(pdf);
        EXPECT_EQ(reader.Pages(), int(Sheets().size()) - 3) << variant;
        EXPECT_FALSE(reader.BoxesOf(reader.Pages(), QStringLiteral("How to play")).isEmpty()) << variant;
        QFile::remove(pdf);
    }
}

TEST_F(PrintCommandTest, OldOutputIsReplacedOnlyByACompleteOne) {
    WriteFile(QStringLiteral("out/sheet.pdf"), "old");
    WriteFile(QStringLiteral("program/GamePlay.dat"), "no layout at all\r\n");
    EXPECT_EQ(PrintRules(game), 1);
    EXPECT_EQ(errors,
              (QStringList{QStringLiteral("tavlora-print: An error occurred processing one of the lines in the "
                                          "GamePlay.dat file."),
                           QStringLiteral("tavlora-print: rules: The rules could not be made: Line 1 of the file named "
                                          "'%1' is in no form that rules have: no layout at all")
                               .arg(PathOf(QStringLiteral("program/GamePlay.dat")))}));
    EXPECT_EQ(ReadFile(pdf), QByteArray("old"));
    EXPECT_EQ(OutFolder().size(), 1);
    WriteFile(QStringLiteral("program/GamePlay.dat"), "<Head>\r\ntimes,20,C,B:x\r\n");
    EXPECT_EQ(PrintRules(game), 0);
    EXPECT_TRUE(ReadFile(pdf).startsWith("%PDF-"));
}

TEST_F(PrintCommandTest, DamagedInputGivesOneLineAndStatusOne) {
    QStringList badIndex = PlainLines();
    badIndex[9] = QStringLiteral("x, \"t\"");
    const struct {
        const char* tag;
        QString path;
        const char* words;
    } rows[] = {
        {"no game", WriteFile(QStringLiteral("a.gam"), "Dear diary"), "Loading File Is Not Compatible"},
        {"zeros", WriteFile(QStringLiteral("b.gam"), QByteArray(9999, '\0')), "Loading File Is Not Compatible"},
        {"empty", WriteFile(QStringLiteral("c.gam"), ""), "Loading File Is Not Compatible"},
        {"cut off", WriteGame(PlainLines().mid(0, 20), QStringLiteral("d.gam")), "loading line number 17"},
        {"bad index", WriteGame(badIndex, QStringLiteral("e.gam")), "loading line number 6"},
        {"folder", PathOf(QStringLiteral("games")), "It is a folder"},
        {"missing", PathOf(QStringLiteral("gone.gam")), "opening the file"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PrintRules(row.path), 1) << row.tag;
        ASSERT_EQ(errors.size(), 1) << row.tag;
        EXPECT_TRUE(errors[0].contains(QString::fromLatin1(row.words))) << errors[0].toStdString();
        EXPECT_TRUE(errors[0].contains(row.path)) << errors[0].toStdString();
        EXPECT_TRUE(OutFolder().isEmpty()) << row.tag;
    }
}

TEST_F(PrintCommandTest, OutputThatCantBeWrittenGivesOneLineAndStatusOne) {
    for (const QString& output : {PathOf(QStringLiteral("nowhere/x.pdf")), PathOf(QStringLiteral("out"))}) {
        EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), output}), 1);
        ASSERT_EQ(errors.size(), 1);
        EXPECT_TRUE(errors[0].contains(output + QStringLiteral("' could not be written: "))) << errors[0].toStdString();
    }
}

TEST_F(PrintCommandTest, DeviceIsNeitherReadNorReplaced) {
    // A link, so that a fault of the guard would harm the test's own folder only.
    const QString link = PathOf(QStringLiteral("out/link"));
    if (!QFile::exists(QStringLiteral("/dev/zero")) || !QFile::link(QStringLiteral("/dev/zero"), link))
        GTEST_SKIP() << "this system has no such device";
    EXPECT_EQ(PrintRules(link), 1);
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].contains(QStringLiteral("It is no regular file"))) << errors[0].toStdString();
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), link}), 1);
    EXPECT_EQ(errors, QStringList{QStringLiteral("tavlora-print: '") + link +
                                  QStringLiteral("' could not be written: It is no regular file")});
    EXPECT_FALSE(Save(link));
}

TEST_F(PrintCommandTest, GameIsNeverOverwrittenByItsOwnPrint) {
    const QByteArray before = ReadFile(game);
    for (const QStringList& output :
         {QStringList{QStringLiteral("-o"), game}, QStringList{QStringLiteral("--board"), game},
          QStringList{QStringLiteral("--pack"), game},
          QStringList{QStringLiteral("--piece"), QStringLiteral("space-1"), game}}) {
        EXPECT_EQ(Run(QStringList{game} + output), 2) << output[0].toStdString();
        EXPECT_EQ(errors, QStringList{QStringLiteral("tavlora-print: '") + game +
                                      QStringLiteral("' is the game itself and would be overwritten")});
        EXPECT_EQ(ReadFile(game), before);
    }
}

TEST_F(PrintCommandTest, UsersFolderIsLeftAsItWas) {
    WriteFile(QStringLiteral("games/tavlora.ini"), "[tavlora]\r\nGameName=mine.gam\r\n");
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "autosave");
    WriteFile(QStringLiteral("games/Space0.bmp"), "thumbnail");
    WriteFile(QStringLiteral("games/cat.bmp"), "picture");
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"t\", \"cat.bmp\",10,20,3");
    WriteGame(lines);
    const auto before = Content(QStringLiteral("games"));
    EXPECT_EQ(PrintRules(game), 0);
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(Content(QStringLiteral("games")), before);
    EXPECT_EQ(basTAVL::g_oSpaces(0).Image.FullPath(), InGames(QStringLiteral("cat.bmp")));
}

TEST_F(PrintCommandTest, MissingPictureIsAWarning) {
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"t\", \"gone.bmp\",0,0,0");
    WriteGame(lines);
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("west"),
                   QStringLiteral("-o"), pdf}),
              0);
    ASSERT_EQ(errors.size(), 1) << errors.join(u'\n').toStdString();
    EXPECT_TRUE(errors[0].contains(QStringLiteral("gone.bmp")));
    EXPECT_TRUE(Files::Exists(pdf));
}

TEST_F(PrintCommandTest, EachOfManyMissingPicturesHasALineOfItsOwn) {
    QStringList lines = PlainLines();
    for (int i = 0; i < 6; ++i)
        lines[3 + i] = QStringLiteral("%1, \"t\", \"gone%1.bmp\",0,0,0").arg(i);
    WriteGame(lines);
    EXPECT_EQ(PrintRules(game), 0);
    ASSERT_EQ(errors.size(), 6) << errors.join(u'\n').toStdString();
    for (int i = 0; i < 6; ++i)
        EXPECT_TRUE(errors[i].contains(QStringLiteral("gone%1.bmp").arg(i))) << errors[i].toStdString();
}

TEST_F(PrintCommandTest, KitVariantComesFromTheOptionThenFromTheSettings) {
    EXPECT_EQ(PrintRules(game), 0);
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("8"));
    WriteFile(QStringLiteral("games/tavlora.ini"), "[tavlora]\r\nGameVersion=5\r\n");
    PrintRules(game);
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("5"));
    Run({game, QStringLiteral("--variant"), QStringLiteral("2A"), QStringLiteral("--sheet=rules"), QStringLiteral("-o"),
         pdf});
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("2A"));
}

TEST_F(PrintCommandTest, ProgramsDataMayLieElsewhere) {
    QDir(folder.path()).mkdir(QStringLiteral("elsewhere"));
    for (const char* name : {"Rents.dat", "GamePlay.dat"})
        QFile::copy(PathOf(QStringLiteral("program/") + QString::fromLatin1(name)),
                    PathOf(QStringLiteral("elsewhere/") + QString::fromLatin1(name)));
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), pdf,
                   QStringLiteral("--data"), PathOf(QStringLiteral("elsewhere"))}),
              0);
    EXPECT_EQ(Run({game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), pdf,
                   QStringLiteral("--data"), PathOf(QStringLiteral("nowhere"))}),
              1);
    EXPECT_TRUE(errors[0].contains(QStringLiteral("Rents_US.dat")));
}

TEST_F(PrintCommandTest, WrongUsageGivesOneLineAndStatusTwo) {
    const QList<QStringList> rows{
        {},
        {game},
        {QStringLiteral("-o"), pdf},
        {game, game, QStringLiteral("-o"), pdf},
        {game, QStringLiteral("--bogus")},
        {game, QStringLiteral("-o")},
        {game, QStringLiteral("--sheet"), QStringLiteral("rulez"), QStringLiteral("-o"), pdf},
        {game, QStringLiteral("--sheet"), QStringLiteral("rules")},
        {game, QStringLiteral("-o"), pdf, QStringLiteral("--dpi"), QStringLiteral("fine")},
        {game, QStringLiteral("-o"), pdf, QStringLiteral("--dpi=5")},
        {game, QStringLiteral("-o"), pdf, QStringLiteral("--paper"), QStringLiteral("a5")},
        {game, QStringLiteral("-o"), pdf, QStringLiteral("--variant"), QStringLiteral("9")},
        {game, QStringLiteral("--list=1")},
    };
    for (const QStringList& words : rows) {
        EXPECT_EQ(Run(words), 2) << words.join(u' ').toStdString();
        EXPECT_EQ(errors.size(), 1) << words.join(u' ').toStdString();
    }
    EXPECT_TRUE(OutFolder().isEmpty());
}

TEST_F(PrintCommandTest, ArgumentsAreRead) {
    QString error;
    const auto arguments = PrintArguments::Parse(
        {QStringLiteral("--sheet"), QStringLiteral("good"), QStringLiteral("bad"), QStringLiteral("--paper=a4"),
         QStringLiteral("--dpi"), QStringLiteral("300"), QStringLiteral("--size"), QStringLiteral("500"),
         QStringLiteral("--board"), QStringLiteral("b.png"), QStringLiteral("-o"), QStringLiteral("k.pdf"),
         QStringLiteral("--pieces"), QStringLiteral("p"), QStringLiteral("--"), QStringLiteral("-odd.gam")},
        error);
    ASSERT_TRUE(arguments) << error.toStdString();
    EXPECT_EQ(arguments->sheets, (QStringList{QStringLiteral("good"), QStringLiteral("bad")}));
    EXPECT_TRUE(arguments->bA4);
    EXPECT_EQ(arguments->iDpi, 300);
    EXPECT_EQ(arguments->iBoardSize, 500);
    EXPECT_EQ(arguments->sBoard, QStringLiteral("b.png"));
    EXPECT_EQ(arguments->sOutput, QStringLiteral("k.pdf"));
    EXPECT_EQ(arguments->sPieces, QStringLiteral("p"));
    EXPECT_EQ(arguments->sGame, QStringLiteral("-odd.gam"));
}

TEST_F(PrintCommandTest, ListHasALineForEachSheetOfTheKit) {
    EXPECT_EQ(Run({QStringLiteral("--list")}), 0);
    const QStringList lines = out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), int(Sheets().size()));
    const struct {
        const char* name;
        const char* line;
    } rows[] = {{"box", "box        Box Top & Token Stickers              white label paper   landscape"},
                {"good", "good       Good News Cards                       colored card stock  portrait"},
                {"rules", "rules      Game Play Instruction Sheet           white paper         portrait"}};
    for (const auto& row : rows)
        EXPECT_EQ(lines[PageOf(row.name) - 1], QString::fromLatin1(row.line));
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(PrintCommandTest, HelpAndVersionGoToStandardOutput) {
    EXPECT_EQ(Run({QStringLiteral("--help")}), 0);
    EXPECT_TRUE(out.contains(QStringLiteral("--variant")));
    EXPECT_TRUE(out.contains(QStringLiteral("without their label sheets"))) << "what older kits lack";
    EXPECT_EQ(Run({QStringLiteral("--version")}), 0);
    EXPECT_EQ(out, QStringLiteral("tavlora-print 8.0.0\n"));
}

TEST_F(PrintCommandTest, SampleShowsItsPicturesWithoutAWord) {
    const QString path = PathOf(QStringLiteral("out/board.png"));
    const QString data = QStringLiteral(TAVLORA_DATA_DIR);
    EXPECT_EQ(Run({data + QStringLiteral("/Family_US.gam"), QStringLiteral("--board"), path, QStringLiteral("--data"),
                   data, QStringLiteral("--size"), QStringLiteral("1000")}),
              0);
    EXPECT_TRUE(errors.isEmpty()) << errors.join(u'\n').toStdString();
    const QImage board(path);
    ASSERT_EQ(board.size(), QSize(1000, 1000));
    const struct {
        const char* what;
        QPoint place;
        QColor colour;
    } seen[] = {{"the duck's breast", {674, 877}, QColor(244, 185, 58)},
                {"the frog's face", {115, 244}, QColor(118, 176, 79)},
                {"the icing", {670, 130}, QColor(245, 167, 156)},
                {"the tent", {892, 229}, QColor(232, 146, 63)}};
    for (const auto& part : seen) {
        const QColor here = board.pixelColor(part.place);
        const int apart =
            std::max({std::abs(here.red() - part.colour.red()), std::abs(here.green() - part.colour.green()),
                      std::abs(here.blue() - part.colour.blue())});
        EXPECT_LE(apart, 12) << part.what << " is " << here.name().toStdString();
    }
}

TEST_F(PrintCommandTest, ProgramItselfRunsWithoutADisplayAndLeavesNothingBehind) {
    QDir(folder.path()).mkdir(QStringLiteral("home"));
    QDir(folder.path()).mkdir(QStringLiteral("tmp"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("HOME"), PathOf(QStringLiteral("home")));
    environment.insert(QStringLiteral("TMPDIR"), PathOf(QStringLiteral("tmp")));
    process.setProcessEnvironment(environment);
    const QString program = QStringLiteral(TAVLORA_BIN_DIR) + QStringLiteral("/tavlora-print");
    if (!Files::Exists(program)) GTEST_SKIP() << "tavlora-print is not built";
    const auto run = [&](const QString& gameFile) {
        process.start(program, {gameFile, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), pdf,
                                QStringLiteral("--data"), PathOf(QStringLiteral("program"))});
        EXPECT_TRUE(process.waitForFinished());
        return process.exitCode();
    };
    EXPECT_EQ(run(game), 0);
    EXPECT_EQ(process.readAllStandardError(), QByteArray());
    EXPECT_TRUE(ReadFile(pdf).startsWith("%PDF-"));
    EXPECT_EQ(run(PathOf(QStringLiteral("gone.gam"))), 1);
    EXPECT_EQ(process.readAllStandardError().count('\n'), 1);
    const QDir tmp(PathOf(QStringLiteral("tmp")));
    EXPECT_TRUE(tmp.entryList(QDir::NoDotAndDotDot | QDir::AllEntries).filter(QStringLiteral("tavlora")).isEmpty());
    EXPECT_FALSE(Files::IsDirectory(PathOf(QStringLiteral("home/Documents/My Games"))));
}

TEST_F(PrintCommandTest, APieceIsSavedAsItsFileSays) {
    const auto saved = [&](const char* word, const char* name) {
        const QString path = PathOf(QStringLiteral("out/") + QString::fromLatin1(name));
        EXPECT_EQ(
            Run({game, QStringLiteral("--piece"), QString::fromLatin1(word), path, QStringLiteral("--data"), kData}), 0)
            << errors.join(u'\n').toStdString();
        return ReadFile(path);
    };
    EXPECT_TRUE(saved("space-4", "a.png").startsWith("\x89PNG"));
    EXPECT_TRUE(saved("note-3", "b.svg").contains("<svg"));
    EXPECT_TRUE(saved("card-1-11", "c.pdf").startsWith("%PDF-"));
    EXPECT_EQ(OutFolder().size(), 3);
    EXPECT_EQ(Run({game, QStringLiteral("--piece"), QStringLiteral("space-28"), PathOf(QStringLiteral("out/d.png"))}),
              1);
    EXPECT_TRUE(errors.last().contains(QStringLiteral("there is no piece 'space-28'")));
    EXPECT_EQ(Run({game, QStringLiteral("--piece"), QStringLiteral("space-4")}), 2);
    EXPECT_EQ(Run({game, QStringLiteral("--piece"), QStringLiteral("space-4"), game}), 2) << "never over the game";
}

} // namespace
