// SPDX-License-Identifier: MIT
#include "tools/PrintArguments.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

std::optional<PrintArguments> Parse(const char* words) {
    QString error;
    const auto arguments = PrintArguments::Parse(QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts), error);
    EXPECT_EQ(arguments.has_value(), error.isEmpty()) << words;
    return arguments;
}

std::string ErrorOf(const char* words) {
    QString error;
    EXPECT_FALSE(PrintArguments::Parse(QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts), error)) << words;
    return error.toStdString();
}

struct Row {
    const char* words;
    std::function<bool(const PrintArguments&)> holds;
};

const Row kRows[] = {
    {"--help", [](const PrintArguments& a) { return a.bHelp; }},
    {"-h", [](const PrintArguments& a) { return a.bHelp; }},
    {"--version", [](const PrintArguments& a) { return a.bVersion && !a.bHelp; }},
    {"--list", [](const PrintArguments& a) { return a.bList && !a.bVersion; }},
    {"--list --no-kit", [](const PrintArguments& a) { return a.bList && a.bNoKit; }},
    {"--guide -o g.pdf", [](const PrintArguments& a) { return a.bGuide && a.sOutput == u"g.pdf"; }},
    {"--check-page --output c.pdf", [](const PrintArguments& a) { return a.bCheckPage && a.sOutput == u"c.pdf"; }},
    {"a.gam --check", [](const PrintArguments& a) { return a.bCheck && !a.bJson && a.sGame == u"a.gam"; }},
    {"a.gam --check --json", [](const PrintArguments& a) { return a.bCheck && a.bJson; }},
    {"a.gam -o a.pdf",
     [](const PrintArguments& a) {
         return a.sOutput == u"a.pdf" && !a.bA4 && a.iDpi == 600 && a.iBoardSize == 960 && a.PrintsKit() &&
                a.sheets.isEmpty() && !a.forPrinter;
     }},
    {"a.gam --board b.png", [](const PrintArguments& a) { return a.sBoard == u"b.png" && !a.PrintsKit(); }},
    {"a.gam --pages d", [](const PrintArguments& a) { return a.sPages == u"d"; }},
    {"a.gam --pack a.tavlora", [](const PrintArguments& a) { return a.sPack == u"a.tavlora" && !a.bSmallPictures; }},
    {"a.gam --pack a.tavlora --small-pictures", [](const PrintArguments& a) { return a.bSmallPictures; }},
    {"a.gam --pieces d", [](const PrintArguments& a) { return a.sPieces == u"d"; }},
    {"a.gam --piece deed-4 d.svg",
     [](const PrintArguments& a) { return a.sPiece == u"deed-4" && a.sPieceFile == u"d.svg"; }},
    {"a.gam -o a.pdf --data d", [](const PrintArguments& a) { return a.sData == u"d"; }},
    {"a.gam --board b.png --size 64", [](const PrintArguments& a) { return a.iBoardSize == 64; }},
    {"a.gam --board b.png --size 16384", [](const PrintArguments& a) { return a.iBoardSize == 16384; }},
    {"a.gam -o a.pdf --dpi 72", [](const PrintArguments& a) { return a.iDpi == 72; }},
    {"a.gam -o a.pdf --dpi 2400", [](const PrintArguments& a) { return a.iDpi == 2400; }},
    {"a.gam -o a.pdf --paper a4", [](const PrintArguments& a) { return a.bA4 && a.Paper() == QPageSize::A4; }},
    {"a.gam -o a.pdf --paper letter", [](const PrintArguments& a) { return !a.bA4 && a.Paper() == QPageSize::Letter; }},
    {"a.gam -o a.pdf --variant 2A", [](const PrintArguments& a) { return a.sVariant == u"2A"; }},
    {"a.gam --sheet box rules -o a.pdf",
     [](const PrintArguments& a) {
         return a.sheets == QStringList{QStringLiteral("box"), QStringLiteral("rules")};
     }},
    {"a.gam -o a.pdf --for-printer Laser",
     [](const PrintArguments& a) { return a.forPrinter == QStringLiteral("Laser"); }},
    {"a.gam -o a.pdf --for-printer -", [](const PrintArguments& a) { return a.forPrinter && a.forPrinter->isEmpty(); }},
    {"a.gam --service d", [](const PrintArguments& a) { return a.sService == u"d" && a.MakesWithoutKit(); }},
    {"a.gam --no-kit -o a.pdf",
     [](const PrintArguments& a) {
         return a.bNoKit && !a.PrintsKit() && a.noKit.nPlayers == 4 && a.noKit.dblWantedInches == 16 &&
                a.noKit.way == BoardWay::Pages && a.noKit.paper == PaperSize::Letter && !a.noKit.bSavesInk &&
                !a.noKit.bPictureOnDice;
     }},
    {"a.gam --no-kit -o a.pdf --paper a4", [](const PrintArguments& a) { return a.noKit.paper == PaperSize::A4; }},
    {"a.gam --no-kit -o a.pdf --paper tabloid",
     [](const PrintArguments& a) { return a.noKit.paper == PaperSize::Tabloid; }},
    {"a.gam --no-kit -o a.pdf --paper a3", [](const PrintArguments& a) { return a.noKit.paper == PaperSize::A3; }},
    {"a.gam --no-kit -o a.pdf --players 2", [](const PrintArguments& a) { return a.noKit.nPlayers == 2; }},
    {"a.gam --no-kit -o a.pdf --players 6", [](const PrintArguments& a) { return a.noKit.nPlayers == 6; }},
    {"a.gam --no-kit -o a.pdf --board-size 12in",
     [](const PrintArguments& a) { return a.noKit.dblWantedInches == 12; }},
    {"a.gam --no-kit -o a.pdf --board-size kit", [](const PrintArguments& a) { return a.noKit.dblWantedInches == 0; }},
    {"a.gam --no-kit -o a.pdf --board-way quarters",
     [](const PrintArguments& a) { return a.noKit.way == BoardWay::Quarters; }},
    {"a.gam --no-kit -o a.pdf --board-way page",
     [](const PrintArguments& a) { return a.noKit.way == BoardWay::OnePage; }},
    {"a.gam --no-kit -o a.pdf --colors ink-saving", [](const PrintArguments& a) { return a.noKit.bSavesInk; }},
    {"a.gam --no-kit -o a.pdf --colours screen", [](const PrintArguments& a) { return !a.noKit.bSavesInk; }},
    {"a.gam --no-kit -o a.pdf --dice-picture", [](const PrintArguments& a) { return a.noKit.bPictureOnDice; }},
    {"a.gam --no-kit --cut-lines d",
     [](const PrintArguments& a) { return a.sCutLines == u"d" && a.MakesWithoutKit(); }},
};

struct Wrong {
    const char* words;
    const char* error;
};

constexpr Wrong kWrong[] = {
    {"", "no game file was given"},
    {"a.gam", "nothing to make: give -o, --board, --pages, --pieces, --pack or --service"},
    {"a.gam --what", "unknown option '--what'"},
    {"a.gam --sheet box", "sheets need a file to go to: -o FILE.pdf"},
    {"a.gam --sheet nothing -o a.pdf", "there is no sheet 'nothing'; see --list"},
    {"a.gam --piece deed-4", "option '--piece' needs a piece and a file"},
    {"a.gam -o a.pdf --json", "--json goes with --check alone"},
    {"a.gam -o a.pdf --small-pictures", "option '--small-pictures' goes with --pack"},
    {"a.gam --pack a.tavlora --for-printer -", "option '--for-printer' needs sheets that go to a file: -o FILE.pdf"},
    {"--guide", "the guide needs a file to go to: -o FILE.pdf"},
    {"a.gam --guide -o g.pdf", "the guide is the same for every game: --guide goes without one"},
    {"--check-page", "the check page needs a file to go to: -o FILE.pdf"},
    {"a.gam --check-page -o c.pdf", "the check page is the same for every game: --check-page goes without one"},
    {"a.gam --no-kit --sheet box -o a.pdf", "the sheet 'box' is for the boxed kit only; see --list --no-kit"},
    {"a.gam --sheet dice -o a.pdf", "the sheet 'dice' goes with --no-kit"},
    {"a.gam --no-kit --pages d", "--pages shows the sheets of the boxed kit and goes without --no-kit"},
    {"a.gam --cut-lines d", "option '--cut-lines' goes with --no-kit"},
    {"a.gam -o a.pdf --players 3", "option '--players' goes with --no-kit"},
    {"a.gam -o a.pdf --paper a3", "option '--paper a3' goes with --no-kit"},
    {"a.gam --no-kit -o a.pdf --board-size 7in",
     "option '--board-size' takes kit, or a length from 8in to 40in such as 16in or 40cm, not '7in'"},
};

} // namespace

TEST(PrintArgumentsTest, EachOptionAsksForItsOwn) {
    for (const Row& row : kRows) {
        const std::optional<PrintArguments> arguments = Parse(row.words);
        ASSERT_TRUE(arguments) << row.words;
        EXPECT_TRUE(row.holds(*arguments)) << row.words;
    }
}

TEST(PrintArgumentsTest, WrongUsageIsToldInASentence) {
    for (const Wrong& wrong : kWrong)
        EXPECT_EQ(ErrorOf(wrong.words), wrong.error) << wrong.words;
}

TEST(PrintArgumentsTest, NumbersBeyondTheirBoundsAreRefused) {
    for (const char* words :
         {"a.gam --board b.png --size 63", "a.gam --board b.png --size 16385", "a.gam -o a.pdf --dpi 71",
          "a.gam -o a.pdf --dpi 2401", "a.gam -o a.pdf --dpi many", "a.gam --no-kit -o a.pdf --players 1",
          "a.gam --no-kit -o a.pdf --players 7", "a.gam -o a.pdf --variant 9", "a.gam -o a.pdf --paper a5"})
        EXPECT_NE(ErrorOf(words), "") << words;
}
