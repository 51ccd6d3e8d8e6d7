// SPDX-License-Identifier: MIT
#include "game/PieceContent.h"
#include "support/FileFixture.h"

#include "pictures/ThumbnailStore.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basMsgQueue.h"

namespace {

using basPosit::m_CenterText;

class LoadTest : public GameFileTest {
protected:
    // Loads a game with one line changed; gives the one message that must come.
    QString MessageFor(int line, const QString& text) {
        QStringList lines = PlainLines();
        lines[line] = text;
        return MessageForLines(lines);
    }
    QString MessageForLines(const QStringList& lines) {
        desktop.boxes.clear();
        EXPECT_EQ(Load(WriteGame(lines)), -1);
        EXPECT_EQ(desktop.boxes.size(), 1);
        if (desktop.boxes.isEmpty()) return {};
        EXPECT_EQ(desktop.boxes.first().iStyle, vbCritical);
        return desktop.boxes.first().sText;
    }
    QString LoadError(const QString& error, const char* during) const {
        return IOError("load", InGames(QStringLiteral("Plain.gam")), error, during);
    }
    static QString BadIndex(const char* variable) {
        return QStringLiteral("Internal variable not within expected range: '") + QString::fromLatin1(variable) +
               QStringLiteral("' held the following value: 'x'");
    }
    const QString pastEnd = QStringLiteral("Input past end of file");
};

TEST_F(LoadTest, Edge_SixtyThreeLinesLoadWithDefaultTokens) {
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    EXPECT_EQ(Load(WriteGame(PlainLines().mid(0, 63))), 0);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(basTAVL::g_oTokens(i).TextAll(), QString()) << i;
        EXPECT_EQ(basTAVL::g_oTokens(i).Index, i);
        EXPECT_EQ(basTAVL::g_oTokens(i).Font.GetQuotedString(), QStringLiteral("\"Arial\",R,12"));
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(LoadTest, SixtyThreeLinesOfAnOlderProgramLoadWithAnEmptyLineAtTheirEnd) {
    EXPECT_EQ(Load(WriteGame(PlainLines().mid(0, 63) + QStringList{QString()})), 0);
    EXPECT_EQ(basTAVL::g_oTokens(0).TextAll(), QString());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(LoadTest, RecordWhoseLettersHaveNoSizeIsToldByTheNameOfItsFile) {
    EXPECT_EQ(MessageFor(3, QStringLiteral("0, \" \", \"\", 0, 0, 0, \"Arial\",B,0")),
              LoadError(QStringLiteral("The text has letters of no size"), "loading line number 0"));
}

// By a copy to a space, or by "Set All Fonts" in the corner's editor, they would end the program.
TEST_F(LoadTest, ACornerWhoseLettersHaveNoSizeNeverGetsIntoHand) {
    QStringList lines = PlainLines();
    lines[32] = QStringLiteral("1, \"Rest\", \"\", \"\",0,0,0, \"Arial\",R,0");
    EXPECT_NE(Load(WriteGame(lines)), 0);
    EXPECT_EQ(desktop.boxes.size(), 1);
    const PieceContent corner = PieceContents::Of(TheGame(), {PictureOwner::Kind::Corner, 1});
    EXPECT_GT(corner.font.Size, 0);
    EXPECT_GT(PieceContents::Copy(TheGame(), corner, {PictureOwner::Kind::Space, 0}).after.spaces[0].TextSize(), 0);
    EXPECT_GT(Edits::OfBoardFont(TheGame(), corner.font, Edits::kNoSpace, 1).after.spaces[0].TextSize(), 0);
}

TEST_F(LoadTest, Edge_SixtySixLinesLoadThreeTokensAndDefaultsForTheRest) {
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    EXPECT_EQ(Load(WriteGame(PlainLines().mid(0, 66))), 0);
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        const C_Token& token = basTAVL::g_oTokens(i);
        EXPECT_EQ(token.Index, i);
        EXPECT_EQ(token.TextAll(), i < 3 ? QStringLiteral("Token %1").arg(i) : QString());
        EXPECT_EQ(token.Font.GetQuotedString(),
                  i < 3 ? QStringLiteral("\"Arial\",I,48") : QStringLiteral("\"Arial\",R,12"));
        EXPECT_EQ(token.Image.FullPath(), QString());
    }
}

TEST_F(LoadTest, Edge_MagicWordIsComparedInUpperCase) {
    QStringList lines = PlainLines();
    lines[0].replace(QStringLiteral("TavloraGameBoard"), QStringLiteral("tavlorAGameboard"));
    EXPECT_EQ(Load(WriteGame(lines)), 0);
}

TEST_F(LoadTest, Edge_GamePathWithACommaIsCutThereInTheHeader) {
    QStringList lines = PlainLines();
    lines[0] = QStringLiteral("\"TavloraGameBoard\", 8.0.0, ") + InGames(QStringLiteral("Mum, Dad.gam"));
    QString name = WriteGame(lines, QStringLiteral("~AutoSave.dat"));
    EXPECT_EQ(Load(name), 0);
    EXPECT_EQ(name, InGames(QStringLiteral("Mum"))) << "as programs wrote it that knew no other way";
}

TEST_F(LoadTest, AutosaveBringsBackNamesThatAFieldCantHold) {
    for (const char* odd : {"Mum, Dad and me.gam", "a, \"b\".gam", "\"a\", \"b\".gam", "line\nbreak.gam", "a\r\nb,.gam",
                            "100%, 20%2C.gam", "Żółw, 🐢.gam", ",.gam", "a\\nb, \\q.gam", "a,\"", "a, \""}) {
        session.SetGameName(InGames(QString::fromUtf8(odd)));
        session.SetSomethingChanged(true);
        QString name = autosave;
        ASSERT_EQ(Load(name), 0) << odd;
        EXPECT_EQ(name, session.GameName());
        const QByteArray bytes = ReadFile(autosave);
        EXPECT_EQ(bytes.count("\r\n"), 69) << odd;
        QString header = QString::fromUtf8(bytes.left(bytes.indexOf("\r\n")));
        basTAVL::GetQuotedField(header);
        basTAVL::GetQuotedField(header);
        QString asEver = session.GameName().replace(u'\r', u' ').replace(u'\n', u' ');
        EXPECT_EQ(basTAVL::GetQuotedField(header), basTAVL::GetQuotedField(asEver)) << "for older programs: " << odd;
    }
}

TEST_F(LoadTest, WhatOnlyLooksLikeAWholeNameIsReadAsEver) {
    QStringList lines = PlainLines();
    for (const char* field : {"/a, \"/b\"", "/a, \"\"", "/a, \"", "/a, \"/a%2C\"", "/a, b, \"/a, c\""}) {
        lines[0] = QStringLiteral("\"TavloraGameBoard\", 8.0.0, ") + QString::fromLatin1(field);
        QString name = WriteGame(lines, QStringLiteral("~AutoSave.dat"));
        ASSERT_EQ(Load(name), 0);
        EXPECT_EQ(name, QStringLiteral("/a")) << field;
    }
}

TEST_F(LoadTest, Edge_AutosaveKeepsTheUnsavedStateAndBringsBackTheRealName) {
    const QString real = WriteGame(PlainLines(), QStringLiteral("Real.gam"));
    session.SetGameName(real);
    ASSERT_EQ(Load(QString(real)), 0);
    basTAVL::g_oSpaces(0).SetText(QStringLiteral("Edited"));
    session.SetSomethingChanged(true);

    QString name = autosave;
    ASSERT_EQ(Load(name), 0);
    EXPECT_EQ(name, real);
    EXPECT_TRUE(session.IsUnsaved());
    EXPECT_TRUE(Files::Exists(autosave));

    EXPECT_TRUE(Save(name));
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_FALSE(Files::Exists(autosave));
    EXPECT_TRUE(ReadFile(real).contains("\"Edited\""));
}

TEST_F(LoadTest, Edge_AutosaveCarriesTheGamesNameInItsHeader) {
    session.SetGameName(QStringLiteral("/somewhere/Trip.gam"));
    session.SetSomethingChanged(true);
    const QByteArray header = "\"TavloraGameBoard\", 8.0.0, /somewhere/Trip.gam\r\n";
    EXPECT_TRUE(ReadFile(autosave).startsWith(header));
    for (const char* name : {"~AutoSave.dat", "~AutoSave.bak", "Elsewhere.gam"}) {
        const QString path = InGames(QString::fromLatin1(name));
        EXPECT_TRUE(Save(path));
        EXPECT_TRUE(ReadFile(path).startsWith(header)) << name;
    }
}

TEST_F(LoadTest, AutosaveIsKnownByItsBaseNameInAnyCase) {
    QStringList lines = PlainLines();
    lines[0] = QStringLiteral("\"TavloraGameBoard\", 8.0.7, /somewhere/Trip.gam");
    const struct {
        const char* file;
        bool autosave;
    } rows[] = {{"~AutoSave.dat", true},   {"~autosave.bak", true}, {"~AUTOSAVE.gam", true},
                {"~AutoSave2.dat", false}, {"AutoSave.dat", false}, {"x~AutoSave.dat", false}};
    for (const auto& row : rows) {
        session.SetSomethingChanged(true);
        QString name = WriteGame(lines, QString::fromLatin1(row.file));
        const QString path = name;
        ASSERT_EQ(Load(name), 0) << row.file;
        EXPECT_EQ(name, row.autosave ? QStringLiteral("/somewhere/Trip.gam") : path) << row.file;
        EXPECT_EQ(session.IsUnsaved(), row.autosave) << row.file;
    }
}

TEST_F(LoadTest, Edge_CardWithTheWrongIndexAlwaysReportsNumberFour) {
    const QString message = LoadError(QStringLiteral("Line number incorrect"), "loading good news card number 4");
    EXPECT_EQ(MessageFor(35, QStringLiteral("3, \"Card\"")), message);
    EXPECT_EQ(MessageFor(58, QStringLiteral("0, \"Card\"")), message);
}

TEST_F(LoadTest, LongCornerNameIsAsLargeAfterLoadingAsInItsEditor) {
    ASSERT_EQ(Load(WriteGame(PlainLines())), 0);
    C_Corner& corner = basTAVL::g_oCorners(0);
    corner.SetText(1, QString());
    const float asNoTextAtAll = corner.TextSize(0);
    corner.SetText(0, QStringLiteral("behind the garden shed"));
    const float fitted = corner.TextSize(0);
    ASSERT_LT(fitted, asNoTextAtAll);
    const QString path = InGames(QStringLiteral("Shed.gam"));
    ASSERT_TRUE(Save(path));
    ASSERT_EQ(Load(QString(path)), 0);
    EXPECT_EQ(basTAVL::g_oCorners(0).TextSize(0), fitted);
}

TEST_F(LoadTest, EveryRecordIsRead) {
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    EXPECT_EQ(m_CenterText(0).sText, QStringLiteral("TAVLO"));
    EXPECT_EQ(m_CenterText(1).sText, QStringLiteral("Our"));
    EXPECT_EQ(m_CenterText(3).sText, QStringLiteral("Day"));
    EXPECT_EQ(m_CenterText(4).sText, QStringLiteral("Good News"));
    EXPECT_EQ(m_CenterText(5).sText, QStringLiteral("Bad News"));
    EXPECT_EQ(basTAVL::g_oSpaces(27).TextAll(), QStringLiteral("Space\r\n27"));
    EXPECT_EQ(basTAVL::g_oCorners(3).TextAll(1), QStringLiteral("Two"));
    EXPECT_EQ(basTAVL::g_oNews(0, 11).Text(), QStringLiteral("Card 11"));
    EXPECT_EQ(basTAVL::g_oNews(1, 0).Text(), QStringLiteral("Card 12"));
    EXPECT_EQ(basTAVL::g_oMoney(3).Text(1), QStringLiteral("Note 3"));
    EXPECT_EQ(basTAVL::g_oMoney(2).BackImage.FullPath(), PathOf(QStringLiteral("program/BLNK1000.dat")));
    EXPECT_EQ(basTAVL::g_oTokens(5).TextAll(), QStringLiteral("Token 5"));
    const char* const sides[] = {"The South Side", "The West Side", "The North Side", "The East Side"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(basPosit::m_SideRec(i).sText, QString::fromLatin1(sides[i]));
    EXPECT_EQ(m_CenterText(16).sText, QStringLiteral("Labels for\r\nDeed Card Sheet #2"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

// What goes with the spaces and corners waits for the last corner, and what goes with the cards for the last card.
TEST_F(LoadTest, AGameThatEndsAmidAPartGetsWhatGoesWithThePartsAheadOfIt) {
    const auto side = [] { return basPosit::m_SideRec(1).sText; };
    const auto blank = [] { return basTAVL::g_oMoney(1).BackImage.FullPath(); };
    MessageForLines(PlainLines().mid(0, 34));
    EXPECT_EQ(side(), QString());
    MessageForLines(PlainLines().mid(0, 35));
    EXPECT_EQ(side(), QStringLiteral("The West Side"));
    MessageForLines(PlainLines().mid(0, 58));
    EXPECT_EQ(blank(), QString());
    MessageForLines(PlainLines().mid(0, 59));
    EXPECT_EQ(blank(), PathOf(QStringLiteral("program/BLNK500.dat")));
}

TEST_F(LoadTest, BlankNotesAreTakenAsBitmapsWhereThereAreSuch) {
    const QString bitmap = WriteFile(QStringLiteral("program/BLNK500.bmp"), "picture");
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    EXPECT_EQ(basTAVL::g_oMoney(1).BackImage.FullPath(), bitmap);
}

TEST_F(LoadTest, CaptionsOfTheSheetsCarryTheProgramsVersion) {
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    const QString board =
        QStringLiteral("CUT ALONG THE DOTTED LINES, THEN PEEL & STICK EACH TO THE APPROPRIATE GAME BOARD SPACE");
    const QString box = QStringLiteral("AFTER PRINTING, CUT ALONG THE DOTTED LINES. THEN PEEL & STICK EACH TO THE "
                                       "APPROPRIATE SPACE ON THE GAME BOX");
    const QString captions[] = {
        QStringLiteral("This is Green\r\nGame Box & Board\r\nLabels #1\r\n(Program Rev 8.0)"),
        QStringLiteral("This is\r\nGreen\r\nGame Board\r\nLabels #2\r\n(Program Rev 8.0)"),
        QStringLiteral("Game Box\r\nGreen Label Sheet"),
        QStringLiteral("Game Box\r\nRed Label Sheet\r\n(Program Rev 8.0)"),
        QStringLiteral("Labels for\r\nDeed Card Sheet #1"),
        board,
        board,
        box,
        box,
        QStringLiteral("CUT ALONG THE DOTTED LINES, THEN PEEL & STICK EACH TO THE APPROPRIATE DEED CARD SPACE"),
        QStringLiteral("Labels for\r\nDeed Card Sheet #2"),
    };
    for (int i = 6; i <= 16; ++i)
        EXPECT_EQ(m_CenterText(i).sText, captions[i - 6]) << i;
    EXPECT_EQ(m_CenterText(7).Lines().size(), 5);
}

TEST_F(LoadTest, LoadedGameIsUnchangedAndLeavesNoAutosave) {
    session.SetSomethingChanged(true);
    EXPECT_EQ(Load(WriteGame(PlainLines())), 0);
    EXPECT_FALSE(session.IsUnsaved());
    EXPECT_FALSE(Files::Exists(autosave));
}

TEST_F(LoadTest, BothKindsOfLineEndsAndBothEncodingsAreRead) {
    const QString text = PlainLines().join(u'\n').replace(QStringLiteral("Card 3\""), QStringLiteral("Straße\""));
    const QList<QByteArray> files{text.toLatin1(), text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8()};
    for (const QByteArray& bytes : files) {
        EXPECT_EQ(Load(WriteFile(QStringLiteral("games/Plain.gam"), bytes)), 0);
        EXPECT_EQ(basTAVL::g_oNews(0, 3).Text(), QStringLiteral("Straße"));
    }
}

TEST_F(LoadTest, WhatIsNoGameIsNotCompatible) {
    const QString message = LoadError(QStringLiteral("Loading File Is Not Compatible"), "checking file type");
    const QList<QByteArray> files{
        "", "\r\n", QByteArray(5000, '\0'), "\"SomethingElse\", 1, x\r\n", "BM6\x01\x02\x03", QByteArray(100000, '"')};
    for (const QByteArray& bytes : files) {
        desktop.boxes.clear();
        EXPECT_EQ(Load(WriteFile(QStringLiteral("games/Plain.gam"), bytes)), -1);
        EXPECT_EQ(desktop.Texts(), QStringList{message}) << bytes.left(10).toHex().toStdString();
    }
}

TEST_F(LoadTest, MissingFileAndFolderFailWhileOpening) {
    for (const QString& name : {InGames(QStringLiteral("gone.gam")), PathOf(QStringLiteral("games"))}) {
        desktop.boxes.clear();
        EXPECT_EQ(Load(QString(name)), -1);
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_TRUE(desktop.boxes[0].sText.startsWith(
            QStringLiteral("The following error occurred while trying to load the game to the file named '") + name));
        EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("The problem occurred while opening the file. ")));
    }
}

TEST_F(LoadTest, TruncatedGameTellsWhereItEnds) {
    const struct {
        int lines;
        const char* during;
    } rows[] = {{1, "getting titles"},
                {2, "getting good news and bad news"},
                {3, "loading line number 0"},
                {20, "loading line number 17"},
                {31, "loading corner number 0"},
                {35, "loading card number 0 in set Number 0"},
                {50, "loading card number 3 in set Number 1"},
                {62, "loading money number 3"}};
    for (const auto& row : rows)
        EXPECT_EQ(MessageForLines(PlainLines().mid(0, row.lines)), LoadError(pastEnd, row.during)) << row.lines;
}

TEST_F(LoadTest, BadIndexOfABoardRecordIsToldWithItsPlace) {
    EXPECT_EQ(MessageFor(3, QStringLiteral("x, \"t\"")), LoadError(BadIndex("sSpace"), "loading line number 0"));
    EXPECT_EQ(MessageFor(34, QStringLiteral("x, \"t\"")), LoadError(BadIndex("sCorner"), "loading corner number 3"));
    EXPECT_EQ(MessageFor(68, QStringLiteral("x, \"t\"")), LoadError(BadIndex("sSpace"), "loading token number 5"));
}

TEST_F(LoadTest, WrongIndexIsToldWithItsPlace) {
    const QString wrong = QStringLiteral("Line number incorrect");
    EXPECT_EQ(MessageFor(8, QStringLiteral("6, \"t\"")),
              LoadError(QStringLiteral("Line Number Incorrect"), "loading line number 5"));
    EXPECT_EQ(MessageFor(31, QStringLiteral("1, \"t\"")),
              LoadError(QStringLiteral("Corner number incorrect"), "loading corner number 0"));
    EXPECT_EQ(MessageFor(60, QStringLiteral("2, \"t\"")), LoadError(wrong, "loading money number 1"));
    EXPECT_EQ(MessageFor(63, QStringLiteral("2, \"t\"")), LoadError(wrong, "loading token number 0"));
}

TEST_F(LoadTest, NumbersBeyondSixteenBitsAreToldWithTheirPlace) {
    const QString overflow = QStringLiteral("Overflow");
    EXPECT_EQ(MessageFor(4, QStringLiteral("1, \"t\", \"\", 99999, 0, 0")),
              LoadError(overflow, "loading line number 1"));
    EXPECT_EQ(MessageFor(40, QStringLiteral("99999, \"t\"")),
              LoadError(overflow, "loading card number 5 in set Number 0"));
    EXPECT_EQ(MessageFor(59, QStringLiteral("0, \"t\", \"u\", \"\", 0, 0, -40000")),
              LoadError(overflow, "loading money number 0"));
}

TEST_F(LoadTest, RecordsReadBeforeAFailureStay) {
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"New\"");
    lines[5] = QStringLiteral("x, \"t\"");
    MessageForLines(lines);
    EXPECT_EQ(basTAVL::g_oSpaces(0).TextAll(), QStringLiteral("New"));
}

TEST_F(LoadTest, FailureLeavesTheStackCleanForTheNextOne) {
    MessageFor(3, QStringLiteral("x, \"t\""));
    EXPECT_EQ(MessageFor(4, QStringLiteral("x, \"t\"")), LoadError(BadIndex("sSpace"), "loading line number 1"));
}

TEST_F(LoadTest, ManyMissingPicturesBringOneBox) {
    QStringList lines = PlainLines();
    for (int i = 0; i < 6; ++i)
        lines[3 + i] = QStringLiteral("%1, \"t\", \"gone%1.bmp\",0,0,0").arg(i);
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText.split(QStringLiteral("\r\n")).size(), 6);
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    EXPECT_EQ(desktop.boxes.size(), 1) << "told once";
}

TEST_F(LoadTest, LoadThatEndsTheProgramLetsNoLaterMessageWait) {
    const QString game = WriteGame(PlainLines());
    Files::SetFaultHook([](Files::Operation, const QString&) -> std::optional<QString> { throw ProgramEnded(1); });
    EXPECT_THROW(Load(QString(game)), ProgramEnded);
    Files::SetFaultHook({});
    EXPECT_FALSE(basMsgQueue::MsgQueue_IsOpen());
}

TEST_F(LoadTest, PicturesBesideTheGameAreFound) {
    QDir(folder.path()).mkdir(QStringLiteral("usb"));
    const QString picture = WriteFile(QStringLiteral("usb/cat.bmp"), "picture");
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"t\", \"cat.bmp\",0,0,0");
    const QString game = WriteFile(QStringLiteral("usb/Plain.gam"), lines.join(u'\n').toUtf8());
    EXPECT_EQ(Load(QString(game)), 0);
    EXPECT_EQ(basTAVL::g_oSpaces(0).Image.FullPath(), picture);
}

TEST_F(LoadTest, LogNamesTheGame) {
    const QString game = WriteGame(PlainLines());
    Load(QString(game));
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath()).contains("Load Game Named: " + game.toUtf8()));
}

// Makes no thumbnail, but keeps whose was wanted.
class RecordingMaker : public ThumbnailMaker {
public:
    void CreateThumbRotatedTo90(const OwnedPicture& image) override { Note(image); }
    void CreateThumbRotatedTo45(const OwnedPicture& image) override { Note(image); }
    void CreateThumbElliptical(const OwnedPicture& image, bool) override { Note(image); }
    Picture RenderRotated(const OwnedPicture&, int) override { return {}; }
    static RecordingMaker& Instance() {
        static RecordingMaker maker;
        return maker;
    }
    QStringList wanted;

private:
    void Note(const OwnedPicture& image) {
        wanted.append(image.owner.KindName() + QString::number(image.owner.iNumber));
        if (image.owner.iNumber == 1) ErrRaise(ErrNumber::kInvalidPicture, QStringLiteral("no picture"));
    }
};

void DecodeForThumbnails(const QString& sPath) {
    QString error;
    LoadPicture(sPath, error, ThumbnailStore::LongerSideOf(PictureOwner::Kind::Token));
}

TEST_F(LoadTest, ALoadDoesNotWaitForAPhotographThatTakesLongToDecode) {
    // Unfolds to 200 MB, on another processor.
    QImage large(7000, 7000, QImage::Format_Grayscale8);
    large.fill(200);
    const QString path = InGames(QStringLiteral("large.png"));
    ASSERT_TRUE(large.save(path));
    QStringList lines = PlainLines();
    lines[63 + 4] = QStringLiteral("4, \"t\", \"large.png\",0,0,0");
    RecordingMaker::Instance().wanted.clear();
    ThumbnailMaker::Creator before =
        ThumbnailMaker::Install([]() -> ThumbnailMaker& { return RecordingMaker::Instance(); });
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    EXPECT_EQ(RecordingMaker::Instance().wanted, QStringList());
    DecodeForThumbnails(path);
    TheGame().tokens[4].Image.GetThumbnail(false);
    EXPECT_EQ(RecordingMaker::Instance().wanted, QStringList{QStringLiteral("Token4")}) << "when it is wanted";
    ThumbnailMaker::Install(before);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(LoadTest, ThumbnailsOfNotesAndTokensAreFetchedAndNoneStopsTheLoad) {
    RecordingMaker::Instance().wanted.clear();
    ThumbnailMaker::Creator before =
        ThumbnailMaker::Install([]() -> ThumbnailMaker& { return RecordingMaker::Instance(); });
    WriteFile(QStringLiteral("games/cat.bmp"), "picture");
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"t\", \"cat.bmp\",0,0,0");
    lines[60] = QStringLiteral("1, \"a\", \"b\",\"cat.bmp\",0,0,0");
    lines[63 + 4] = QStringLiteral("4, \"t\", \"cat.bmp\",0,0,0");
    DecodeForThumbnails(InGames(QStringLiteral("cat.bmp")));
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    ThumbnailMaker::Install(before);
    EXPECT_EQ(RecordingMaker::Instance().wanted, (QStringList{QStringLiteral("Money1"), QStringLiteral("Token4")}));
}

// What the format itself changes in a text, from memory to file and back.
TEST_F(LoadTest, TitlesAndNewsHeadsAreDecodedTwice) {
    QStringList lines = PlainLines();
    lines[1] = QStringLiteral("\"a\\\\\\\\nb\", \"c\\\\\\\\qd\", \"e\\nf\"");
    lines[2] = QStringLiteral("\"g\\\\\\\\nh\", \"i\\\\\\\\qj\"");
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    // Four backslashes are halved by each of the field's two passes; the second decoding finds one left.
    EXPECT_EQ(m_CenterText(1).sText, QStringLiteral("a\r\nb"));
    EXPECT_EQ(m_CenterText(2).sText, QStringLiteral("c\"d"));
    EXPECT_EQ(m_CenterText(3).sText, QStringLiteral("e\r\nf"));
    EXPECT_EQ(m_CenterText(4).sText, QStringLiteral("g\r\nh"));
    EXPECT_EQ(m_CenterText(5).sText, QStringLiteral("i\"j"));
}

TEST_F(LoadTest, EmptyTextOfASpaceComesBackAsNotFilledIn) {
    ASSERT_EQ(Load(WriteGame(PlainLines())), 0);
    basTAVL::g_oSpaces(0).SetText(QString());
    session.SetGameName(InGames(QStringLiteral("Saved.gam")));
    ASSERT_TRUE(Save(session.GameName()));
    ASSERT_EQ(Load(QString(session.GameName())), 0);
    EXPECT_EQ(basTAVL::g_oSpaces(0).TextAll(), QStringLiteral("Not Filled In"));
}

TEST_F(LoadTest, TokenCalledNotFilledInComesBackEmpty) {
    ASSERT_EQ(Load(WriteGame(PlainLines())), 0);
    basTAVL::g_oTokens(0).SetText(QStringLiteral("Not Filled In"));
    session.SetGameName(InGames(QStringLiteral("Saved.gam")));
    ASSERT_TRUE(Save(session.GameName()));
    ASSERT_EQ(Load(QString(session.GameName())), 0);
    EXPECT_EQ(basTAVL::g_oTokens(0).TextAll(), QString());
}

} // namespace
