// SPDX-License-Identifier: MIT
#include "document/GameText.h"

#include "platform/files/TextFile.h"
#include "services/ProgramSettings.h"
#include "support/GameFixture.h"

#include <QDir>

namespace {

// Without a session, a program's folder or a file: bytes and games only.
class GameTextTest : public GameTest {
protected:
    GameTextTest() {
        mine.titles.Text(1).SetText(QStringLiteral("Our \"own\""));
        mine.titles.Text(4).sText = QStringLiteral("Hooray");
        for (size_t i = 0; i < mine.spaces.size(); ++i)
            mine.spaces[i].SetText(QStringLiteral("Street %1\r\n\\alley").arg(i));
        for (C_Corner& corner : mine.corners) {
            corner.SetText(0, QStringLiteral("Corner"));
            corner.SetText(1, QString());
        }
        for (auto& set : mine.news) {
            for (C_News& card : set)
                card.Let_Text(QStringLiteral("Rain, rain"));
        }
        mine.money[1].Let_Text(0, QStringLiteral("Bank"));
        for (C_Token& token : mine.tokens)
            token.SetText(QStringLiteral("Cat"));
        mine.tokens[5].Font.Load(QStringLiteral("Times New Roman"), true, false, 10.5F);
    }

    QStringList Lines() const { return ComposeLines(mine, QStringLiteral("/home/mum/Ours.gam")); }
    static QByteArray BytesOf(const QStringList& lines) { return TextFile::Encode(TextFile::JoinLines(lines)); }
    GameReading ReadLines(const QStringList& lines) { return ReadGame(BytesOf(lines), yours, tools); }
    GameReading ReadWith(int line, const QString& text) {
        QStringList lines = Lines();
        lines[line] = text;
        return ReadLines(lines);
    }

    Game mine;
    Game yours;
    QStringList asked;
    QList<int> fitted;
    ReadingTools tools{context,
                       [this](const QString& sName, const PictureOwner& owner) {
                           asked.append(owner.KindName() + QString::number(owner.iNumber) + u' ' + sName);
                           return sName.isEmpty() ? QString() : QStringLiteral("/photos/") + sName;
                       },
                       [this](int iNumber, SpecialText& text) {
                           fitted.append(iNumber);
                           text.fFontWidth = 0.25F;
                       }};
};

TEST_F(GameTextTest, WhatWasComposedReadsBackAsAnEqualGame) {
    mine.spaces[9].Image.Read(QStringLiteral("\"cat.png\",3,4,5"), {PictureOwner::Kind::Space, 9}, tools.findPicture);
    const GameReading reading = ReadLines(Lines());
    EXPECT_FALSE(reading.fault);
    EXPECT_EQ(reading.iLines, GameLines::kAll);
    Game read = reading.game;
    EXPECT_EQ(read.spaces[9].Image.FullPath(), QStringLiteral("/photos//photos/cat.png"));
    read.spaces[9].Image = mine.spaces[9].Image;
    EXPECT_EQ(read, mine);
    EXPECT_EQ(fitted, (QList<int>{1, 2, 3}));
    EXPECT_EQ(read.titles.Text(1).fFontWidth, 0.25F);
}

TEST_F(GameTextTest, ReadingTouchesNothingAndTellsNobody) {
    Settings().sMyGamesDirectory = folder.path();
    Settings().sGameDirectory = QStringLiteral("/somewhere/");
    TheGame().spaces[0].SetText(QStringLiteral("in hand"));
    const Game inHand = TheGame();
    QStringList lines = Lines();
    lines[GameLines::kSpaces] = QStringLiteral("0, \"t\", \"gone.bmp\",0,0,0");
    lines[GameLines::kTokens] = QStringLiteral("0, \"t\", \"gone too.bmp\",0,0,0");
    const GameReading reading = ReadLines(lines.mid(0, GameLines::kTokens + 2));
    EXPECT_FALSE(reading.fault);
    EXPECT_EQ(TheGame(), inHand);
    EXPECT_EQ(yours, Game());
    EXPECT_EQ(Settings().sGameDirectory, QStringLiteral("/somewhere/"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(GameTextTest, PicturesAreAskedForByNameAndOwner) {
    QStringList lines = Lines();
    lines[GameLines::kSpaces + 4] = QStringLiteral("4, \"t\", \"cat.bmp\",1,2,3");
    lines[GameLines::kCorners + 1] = QStringLiteral("1, \"t\", \"u\", \"dog.bmp\",0,0,0");
    lines[GameLines::kMoney + 3] = QStringLiteral("3, \"t\", \"u\",\"mum.bmp\",0,0,0");
    lines[GameLines::kTokens + 5] = QStringLiteral("5, \"t\", \"hat.bmp\",0,0,0");
    const GameReading reading = ReadLines(lines);
    QStringList named;
    for (const QString& words : asked) {
        if (!words.endsWith(u' ')) named.append(words);
    }
    EXPECT_EQ(named, (QStringList{QStringLiteral("Space4 cat.bmp"), QStringLiteral("Corner1 dog.bmp"),
                                  QStringLiteral("Money3 mum.bmp"), QStringLiteral("Token5 hat.bmp")}));
    EXPECT_EQ(reading.game.spaces[4].Image.Ref(), (PictureRef{QStringLiteral("/photos/cat.bmp"), 3, 1, 2}));
}

TEST_F(GameTextTest, HeaderTellsTheNameAndWhetherItIsAGame) {
    const GameHeader header = ReadGameHeader(BytesOf(Lines()));
    EXPECT_TRUE(header.bIsGame);
    EXPECT_EQ(header.sGameName, QStringLiteral("/home/mum/Ours.gam"));
    for (const char* bytes : {"", "\r\n", "\"SomethingElse\", 1, x\r\n", "BM6\x01\x02\x03"}) {
        EXPECT_FALSE(ReadGameHeader(bytes).bIsGame) << bytes;
        const GameReading reading = ReadGame(bytes, yours, tools);
        ASSERT_TRUE(reading.fault);
        EXPECT_EQ(reading.iLines, 0);
        EXPECT_EQ(reading.game, yours);
    }
}

TEST_F(GameTextTest, ANameStandsInQuotesOnceMoreOnlyWhereABareOneIsReadOtherwise) {
    const auto header = [this](const char* name) {
        return ComposeLines(mine, QString::fromUtf8(name)).first().section(QStringLiteral(", "), 2).toStdString();
    };
    EXPECT_EQ(header("/home/mum/Ours.gam"), "/home/mum/Ours.gam");
    EXPECT_EQ(header("Mum, Dad and me.gam"), "Mum, Dad and me.gam, \"Mum, Dad and me.gam\"");
}

TEST_F(GameTextTest, ReadingStopsAtTheFirstFaultAndKeepsWhatStoodBehindIt) {
    yours.spaces[6].SetText(QStringLiteral("stays"));
    yours.spaces[5].SetText(QStringLiteral("goes"));
    const GameReading reading = ReadWith(GameLines::kSpaces + 5, QStringLiteral("5, \"half\", \"a.bmp\",1,99999,3"));
    ASSERT_TRUE(reading.fault);
    EXPECT_EQ(reading.fault->sError, QStringLiteral("Overflow"));
    EXPECT_EQ(reading.fault->sDuring, QStringLiteral("loading line number 5"));
    EXPECT_EQ(reading.iLines, GameLines::kSpaces + 5);
    EXPECT_EQ(reading.game.spaces[4], mine.spaces[4]);
    EXPECT_EQ(reading.game.spaces[5].TextAll(), QStringLiteral("goes")) << "the text comes last";
    EXPECT_EQ(reading.game.spaces[5].Image.FullPath(), QStringLiteral("/photos/a.bmp"));
    EXPECT_EQ(reading.game.spaces[5].Image.Ref().iXCenter, 1);
    EXPECT_EQ(reading.game.spaces[6].TextAll(), QStringLiteral("stays"));
}

TEST_F(GameTextTest, RecordOfAnotherNumberIsAFaultOfItsOwn) {
    const GameReading space = ReadWith(GameLines::kSpaces, QStringLiteral("1, \"t\""));
    ASSERT_TRUE(space.fault);
    EXPECT_EQ(space.fault->sError, QStringLiteral("Line Number Incorrect"));
    EXPECT_EQ(space.iLines, GameLines::kSpaces);
    const GameReading card = ReadWith(GameLines::kNews + 13, QStringLiteral("0, \"t\""));
    ASSERT_TRUE(card.fault);
    EXPECT_EQ(card.fault->sDuring, QStringLiteral("loading good news card number 4"));
}

TEST_F(GameTextTest, TextWithoutAnySizeIsAFaultAndLeavesTheRecordAsItWas) {
    yours.spaces[2].SetText(QStringLiteral("stays"));
    yours.tokens[2].SetText(QStringLiteral("stays"));
    const QString texts[] = {QStringLiteral("t"), QString()};
    const char* const sizes[] = {"0", "-12", "1e-50"};
    for (const int line : {GameLines::kSpaces + 2, GameLines::kTokens + 2}) {
        for (const QString& text : texts) {
            for (const char* size : sizes) {
                const GameReading reading = ReadWith(
                    line, QStringLiteral("2, \"%1\", \"\",0,0,0, \"Arial\",R,").arg(text) + QString::fromLatin1(size));
                ASSERT_TRUE(reading.fault) << line << ' ' << size;
                EXPECT_EQ(reading.fault->sError, QStringLiteral("The text has letters of no size"));
                EXPECT_EQ(reading.iLines, line);
                EXPECT_EQ(reading.game.spaces[2].TextAll(),
                          line < GameLines::kTokens ? QStringLiteral("stays") : mine.spaces[2].TextAll());
                EXPECT_EQ(reading.game.tokens[2].TextAll(), QStringLiteral("stays"));
            }
        }
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

// A corner itself only shows nothing then, but its font goes to a space by a copy and to all of them by one click.
TEST_F(GameTextTest, ACornerWithoutAnySizeIsAFaultToo) {
    yours.corners[2].SetText(0, QStringLiteral("stays"));
    for (const char* size : {"0", "-12", "1e-50"}) {
        const GameReading reading =
            ReadWith(GameLines::kCorners + 2,
                     QStringLiteral("2, \"t\", \"\", \"\",0,0,0, \"Arial\",R,") + QString::fromLatin1(size));
        ASSERT_TRUE(reading.fault) << size;
        EXPECT_EQ(reading.fault->sError, QStringLiteral("The text has letters of no size"));
        EXPECT_EQ(reading.fault->sDuring, QStringLiteral("loading corner number 2"));
        EXPECT_EQ(reading.game.corners[2].TextAll(0), QStringLiteral("stays"));
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(GameTextTest, EmptyLinesAtTheEndAreTheEnd) {
    for (const int lines : {int(GameLines::kTokens), GameLines::kTokens + 3, int(GameLines::kAll)}) {
        const GameReading plain = ReadLines(Lines().mid(0, lines));
        for (const QStringList& more :
             {QStringList{QString()}, QStringList{QString(), QStringLiteral(" \t"), QString()}}) {
            const GameReading reading = ReadLines(Lines().mid(0, lines) + more);
            EXPECT_FALSE(reading.fault) << lines;
            EXPECT_EQ(reading.iLines, lines);
            EXPECT_EQ(reading.game, plain.game);
        }
    }
}

TEST_F(GameTextTest, TokensThatAreNotInTheFileAreThoseOfANewGameInTheKitsColour) {
    for (C_Token& token : yours.tokens) {
        token.SetText(QStringLiteral("Dog"));
        token.BackColor = Color::Rgb(1, 2, 3);
    }
    const GameReading reading = ReadLines(Lines().mid(0, GameLines::kTokens + 2));
    EXPECT_FALSE(reading.fault);
    EXPECT_EQ(reading.iLines, GameLines::kTokens + 2);
    EXPECT_EQ(reading.game.tokens[1], mine.tokens[1]);
    for (size_t i = 2; i < 6; ++i) {
        EXPECT_EQ(reading.game.tokens[i].TextAll(), QString());
        EXPECT_EQ(reading.game.tokens[i].BackColor, Color::Rgb(1, 2, 3));
        EXPECT_EQ(reading.game.tokens[i].Image.Owner(), (PictureOwner{PictureOwner::Kind::Token, qint16(i)}));
    }
}

} // namespace
