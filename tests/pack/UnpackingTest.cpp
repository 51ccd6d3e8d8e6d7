// SPDX-License-Identifier: MIT
#include "pack/Unpacking.h"

#include "pack/PackFixture.h"
#include "support/ZipBuilder.h"

namespace {

const QByteArray kType = "application/x-tavlora-packed-game";

class UnpackingTest : public PackTest {
protected:
    UnpackingTest() { QDir(folder.path()).mkdir(QStringLiteral("out")); }
    const QString out = PathOf(QStringLiteral("out"));
    QString error;

    QString Unpacked(const QByteArray& bytes) {
        return Unpacking::Unpack(WriteFile(QStringLiteral("Family.tavlora"), bytes), out, error).value_or(QString());
    }
    static QByteArray GameBytes(const QStringList& lines = PlainLines()) { return TextFile::JoinLines(lines).toUtf8(); }
    static ZipBuilder Plain() {
        ZipBuilder zip;
        zip.Add("mimetype", kType);
        zip.Add("Plain.gam", GameBytes(LinesWith({{3, QStringLiteral("Pictures/a.png")}})));
        zip.Add("Pictures/a.png", PictureOf(1));
        return zip;
    }
    /// Refused with these words in one sentence, or in any one where none are given, and nothing of it is left
    /// anywhere.
    void ExpectRefused(const QByteArray& bytes, const char* words, const char* tag) {
        const std::string before = Tree(folder.path());
        const QString path = WriteFile(QStringLiteral("Family.tavlora"), bytes);
        EXPECT_FALSE(Unpacking::Unpack(path, out, error)) << tag;
        EXPECT_EQ(error.count(u'.'), 2) << error.toStdString();
        if (words) {
            EXPECT_EQ(error, QStringLiteral("'Family.tavlora' can't be opened: ") + QString::fromLatin1(words) + u'.')
                << tag;
        }
        QFile::remove(path);
        EXPECT_EQ(Tree(folder.path()), before) << tag;
    }
};

} // namespace

TEST_F(UnpackingTest, AGameComesOutInAFolderOfItsNameWithItsPictures) {
    const QString game = Unpacked(Plain().Bytes());
    ASSERT_EQ(game, out + QStringLiteral("/Plain/Plain.gam")) << error.toStdString();
    EXPECT_EQ(Names(out), (QStringList{QStringLiteral("Plain"), QStringLiteral("Plain/Pictures"),
                                       QStringLiteral("Plain/Pictures/a.png"), QStringLiteral("Plain/Plain.gam")}));
    EXPECT_EQ(ReadFile(out + QStringLiteral("/Plain/Pictures/a.png")), PictureOf(1));
    EXPECT_EQ(Load(QString(game)), 0);
    EXPECT_EQ(TheGame().spaces[0].Image.FullPath(), out + QStringLiteral("/Plain/Pictures/a.png"));
    EXPECT_EQ(TheGame().spaces[0].Image.Zoom(), 5);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(UnpackingTest, InMyGamesItsPicturesAreNamedAsASaveNamesThem) {
    const QString games = PathOf(QStringLiteral("games"));
    // What another game has lying there must not be taken for the picture.
    WritePicture(QStringLiteral("games/Pictures/a.png"), 9);
    const QString packed = WriteFile(QStringLiteral("x.tavlora"), Plain().Bytes());
    const QString game = Unpacking::Unpack(packed, games, error).value_or(QString());
    ASSERT_EQ(game, games + QStringLiteral("/Plain/Plain.gam")) << error.toStdString();
    EXPECT_TRUE(ReadFile(game).contains("\"Plain/Pictures/a.png\",4,4,5"));
    const QByteArray unpacked = ReadFile(game);
    EXPECT_EQ(Load(QString(game)), 0);
    EXPECT_EQ(ReadFile(TheGame().spaces[0].Image.FullPath()), PictureOf(1));
    EXPECT_TRUE(Save(game));
    EXPECT_EQ(ReadFile(game).split('\n')[3], unpacked.split('\n')[3]);
}

TEST_F(UnpackingTest, ItsFolderMayBeMovedAsAWhole) {
    const QString games = PathOf(QStringLiteral("games"));
    QString game =
        Unpacking::Unpack(WriteFile(QStringLiteral("x.tavlora"), Plain().Bytes()), games, error).value_or(QString());
    ASSERT_EQ(Load(QString(game)), 0);
    ASSERT_TRUE(Save(game)) << "as the program writes it";
    ASSERT_TRUE(QDir().rename(games + QStringLiteral("/Plain"), out + QStringLiteral("/Plain")));
    ASSERT_EQ(Load(QString(out + QStringLiteral("/Plain/Plain.gam"))), 0);
    EXPECT_EQ(TheGame().spaces[0].Image.FullPath(), out + QStringLiteral("/Plain/Pictures/a.png"));
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(UnpackingTest, NothingIsWrittenOver) {
    WriteFile(QStringLiteral("out/Plain"), "a file");
    QDir(out).mkdir(QStringLiteral("Plain 2"));
    ASSERT_TRUE(QFile::link(PathOf(QStringLiteral("nowhere")), out + QStringLiteral("/Plain 3")));
    EXPECT_EQ(Unpacked(Plain().Bytes()), out + QStringLiteral("/Plain 4/Plain.gam"));
    EXPECT_EQ(Unpacked(Plain().Bytes()), out + QStringLiteral("/Plain 5/Plain.gam"));
    EXPECT_EQ(ReadFile(out + QStringLiteral("/Plain")), QByteArray("a file"));
    EXPECT_TRUE(QDir(out + QStringLiteral("/Plain 2")).isEmpty());
}

TEST_F(UnpackingTest, AGameThatIsCalledAsTheAutosaveIsDoesNotTakeItsPlace) {
    ZipBuilder zip = Plain();
    zip.entries[1].name = "~AutoSave.dat.gam";
    const QString game = Unpacked(zip.Bytes());
    EXPECT_EQ(game, out + QStringLiteral("/_~AutoSave.dat/~AutoSave.dat.gam")) << error.toStdString();
    EXPECT_FALSE(QFileInfo::exists(out + QStringLiteral("/~AutoSave.dat")));
    EXPECT_EQ(Load(QString(game)), 0);
    EXPECT_EQ(TheGame().spaces[0].Image.FullPath(), out + QStringLiteral("/_~AutoSave.dat/Pictures/a.png"));
}

TEST_F(UnpackingTest, APictureOfManyPiecesComesOutWhole) {
    ZipBuilder zip = Plain();
    QByteArray& picture = zip.entries[2].bytes;
    picture += QByteArray(5 << 20, 'p') + QByteArray(1234, 'q');
    const QByteArray expected = picture;
    ASSERT_FALSE(Unpacked(zip.Bytes()).isEmpty()) << error.toStdString();
    EXPECT_TRUE(ReadFile(out + QStringLiteral("/Plain/Pictures/a.png")) == expected);
}

TEST_F(UnpackingTest, WhatTheGameDoesNotNameStaysInside) {
    ZipBuilder zip = Plain();
    zip.Add("Pictures/run.desktop", "[Desktop Entry]");
    zip.Add("Readme.txt", "hello");
    zip.Add("Fonts/a.sh", "hello");
    zip.Add("Board.png", PictureOf(3));
    zip.entries.append({"Pictures/", QByteArray(), 0040755U << 16U});
    Unpacked(zip.Bytes());
    EXPECT_EQ(Names(out).size(), 4) << "a folder, one in it, the game and its picture";
}

TEST_F(UnpackingTest, APictureThatWasMissingWhenItWasPackedIsToldAsMissing) {
    ZipBuilder zip = Plain();
    zip.entries.removeLast();
    const QString game = Unpacked(zip.Bytes());
    ASSERT_FALSE(game.isEmpty()) << error.toStdString();
    EXPECT_EQ(Load(QString(game)), 0);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts()[0].contains(QStringLiteral("a.png' is invalid or does not exist")));
}

TEST_F(UnpackingTest, NamesThatLeadElsewhereAreRefused) {
    for (const char* name : {"../evil.png", "Pictures/../../evil.png", "/tmp/evil.png", "C:/evil.png", "C:\\evil.png",
                             "..\\evil.png", "\\\\server\\evil.png", "Pictures/nul", "CON", "Pictures//x", ""}) {
        ZipBuilder zip = Plain();
        zip.Add(name, "evil");
        ExpectRefused(zip.Bytes(), "it holds a file whose name would lead elsewhere", name);
    }
}

TEST_F(UnpackingTest, NamesThatAreNoTextAreRefused) {
    for (const quint16 flags : {0, 0x0800}) {
        for (const char* name : {"a\x01z", "\xff\xfe", "Pictures/\xc3"}) {
            ZipBuilder zip = Plain();
            zip.entries.append({name, "evil", 0, flags});
            ExpectRefused(zip.Bytes(), nullptr, name);
        }
    }
}

TEST_F(UnpackingTest, LinksAndDevicesAreRefused) {
    for (const quint32 kind : {0120000U, 0060000U, 0020000U, 0010000U, 0140000U}) {
        ZipBuilder zip = Plain();
        zip.entries.append({"Pictures/b.png", "/etc/passwd", (kind | 0644U) << 16U});
        ExpectRefused(zip.Bytes(), "it holds something that is no plain file", "link or device");
    }
}

TEST_F(UnpackingTest, TwoFilesOfOneNameAreRefused) {
    ZipBuilder equal = Plain();
    equal.Add("Pictures/a.png", "other");
    ExpectRefused(equal.Bytes(), nullptr, "equal names");
    for (const char* name : {"pictures/A.PNG", "Mimetype"}) {
        ZipBuilder zip = Plain();
        zip.Add(name, "other");
        ExpectRefused(zip.Bytes(), "it holds two files of the same name", name);
    }
    ZipBuilder zip = Plain();
    zip.Add("Pictures/\xC3\xA4.png", "composed");
    zip.Add("Pictures/a\xCC\x88.png", "decomposed");
    ExpectRefused(zip.Bytes(), "it holds two files of the same name", "composed and decomposed");
}

TEST_F(UnpackingTest, TenThousandEntriesAreRefused) {
    ZipBuilder zip = Plain();
    for (int i = 0; i < 10'000; ++i)
        zip.Add("Pictures/" + QByteArray::number(i), "x");
    ExpectRefused(zip.Bytes(), "it holds far more files than a game has", "ten thousand");
}

TEST_F(UnpackingTest, ABombIsRefused) {
    constexpr qsizetype kGigabyte = qsizetype(1) << 30;
    const QByteArray bomb = qCompress(QByteArray(kGigabyte, '\0')).mid(6).chopped(4);
    ASSERT_LT(bomb.size(), 2'000'000);
    ZipBuilder zip = Plain();
    zip.entries[2].bytes = bomb;
    zip.entries[2].method = 8;
    zip.entries[2].saidSize = kGigabyte;
    zip.entries[2].saidChecksum = 0;
    ExpectRefused(zip.Bytes(), "unpacked, it would be far too large", "as it says");
    zip.entries[2].saidSize = 1000;
    ExpectRefused(zip.Bytes(), "a part of it is missing or was changed on its way", "one that lies");
    zip = Plain();
    zip.entries[1] = {"Plain.gam", bomb, 0, 0, 8, kGigabyte / 8, 0};
    ExpectRefused(zip.Bytes(), "unpacked, it would be far too large", "in place of the game");
}

TEST_F(UnpackingTest, SizesThatRunOverAreRefused) {
    ZipBuilder zip = Plain();
    for (int i = 0; i < 20; ++i)
        zip.entries.append({"Pictures/" + QByteArray::number(i), QByteArray("x"), 0, 0, 8, 0xFFFF'FFFE});
    ExpectRefused(zip.Bytes(), "unpacked, it would be far too large", "four gigabytes each");
}

TEST_F(UnpackingTest, ACutOffFileIsRefusedWhereverItIsCut) {
    const QByteArray whole = Plain().Bytes();
    const std::string before = Tree(folder.path());
    for (qsizetype length = 0; length < whole.size(); length += 61)
        ExpectRefused(whole.left(length), "a part of it is missing or was changed on its way", "cut off");
    EXPECT_EQ(Tree(folder.path()), before);
}

TEST_F(UnpackingTest, AWrongChecksumIsRefusedAndTheFolderGoes) {
    for (int entry = 0; entry < 3; ++entry) {
        ZipBuilder zip = Plain();
        zip.entries[entry].saidChecksum = 42;
        ExpectRefused(zip.Bytes(), "a part of it is missing or was changed on its way", "wrong checksum");
    }
}

TEST_F(UnpackingTest, WhatIsNoPackedGameIsRefused) {
    ZipBuilder none;
    none.Add("mimetype", kType);
    ExpectRefused(none.Bytes(), "it holds no game", "nothing in it");
    ZipBuilder untyped = Plain();
    untyped.entries.removeFirst();
    ExpectRefused(untyped.Bytes(), "it holds no game", "no type");
    ZipBuilder other = Plain();
    other.entries[0].bytes = "application/x-another-program-game";
    ExpectRefused(other.Bytes(), "it holds no game", "another type");
    ZipBuilder text = Plain();
    text.entries[1].bytes = "Dear diary";
    ExpectRefused(text.Bytes(), "it holds no game", "no game");
    ZipBuilder two = Plain();
    two.Add("Other.gam", GameBytes());
    ExpectRefused(two.Bytes(), "it holds more than one game", "two games");
    ExpectRefused("Dear diary", "a part of it is missing or was changed on its way", "no zip");
}

TEST_F(UnpackingTest, AGameThatNamesPicturesOutsideIsRefused) {
    for (const char* name : {"/etc/passwd", "../../secret.png", "C:\\secret.png", "Pictures/../secret.png",
                             "secret.png", "Fonts/x.ttf", "Pictures/sub/x.png", "fate.dat"}) {
        ZipBuilder zip = Plain();
        zip.entries[1].bytes = GameBytes(LinesWith({{7, QString::fromLatin1(name)}}));
        ExpectRefused(zip.Bytes(), "its game names a picture that isn't its own", name);
    }
    ZipBuilder zip = Plain();
    zip.entries[1].bytes = GameBytes(LinesWith({{34, QStringLiteral("fate.dat")}}));
    EXPECT_FALSE(Unpacked(zip.Bytes()).isEmpty()) << "the kit's own face is everywhere: " << error.toStdString();
    QFile::remove(PathOf(QStringLiteral("Family.tavlora")));
    zip.entries[1].bytes = GameBytes(PlainLines()).replace("\"\",0,0,0", "\"Pictures/a.png\",99999,0,0");
    ExpectRefused(zip.Bytes(), "its game can't be read", "a number beyond all bounds");
}

TEST_F(UnpackingTest, ADiskThatRefusesLeavesNothing) {
    const QString packed = WriteFile(QStringLiteral("Family.tavlora"), Plain().Bytes());
    const std::string before = Tree(folder.path());
    int failing = 0;
    int done = 0;
    for (; failing < 100; ++failing) {
        done = 0;
        Files::SetFaultHook([&](Files::Operation operation, const QString&) -> std::optional<QString> {
            const bool reading = operation == Files::Operation::OpenRead || operation == Files::Operation::Read;
            return !reading && done++ == failing ? std::optional(QStringLiteral("Disk on fire")) : std::nullopt;
        });
        const bool well = Unpacking::Unpack(packed, out, error).has_value();
        Files::SetFaultHook({});
        if (well) break;
        EXPECT_TRUE(error.contains(QStringLiteral("Disk on fire"))) << error.toStdString();
        EXPECT_EQ(Tree(folder.path()), before) << failing;
    }
    EXPECT_GE(failing, 7) << "folder, picture, game and the last name were each refused once";
    EXPECT_LT(failing, 100);
}

TEST_F(UnpackingTest, AFolderThatIsNotThereIsTold) {
    const QString packed = WriteFile(QStringLiteral("Family.tavlora"), Plain().Bytes());
    EXPECT_FALSE(Unpacking::Unpack(packed, PathOf(QStringLiteral("nowhere")), error));
    EXPECT_EQ(error, QStringLiteral("'Family.tavlora' can't be opened: no folder can be made in '%1'.")
                         .arg(PathOf(QStringLiteral("nowhere"))));
}

TEST_F(UnpackingTest, PackedGamesAreKnownByContentAndByName) {
    EXPECT_TRUE(Unpacking::IsPacked(WriteFile(QStringLiteral("a.bin"), Plain().Bytes())));
    EXPECT_TRUE(Unpacking::IsPacked(PathOf(QStringLiteral("missing.TAVLORA"))));
    EXPECT_FALSE(Unpacking::IsPacked(WriteFile(QStringLiteral("a.gam"), GameBytes())));
    EXPECT_FALSE(Unpacking::IsPacked(PathOf(QStringLiteral("missing.gam"))));
    EXPECT_FALSE(Unpacking::IsPacked(folder.path()));
}

TEST_F(UnpackingTest, WhatWasPackedComesOutWithoutTheOriginals) {
    QMap<int, QString> pictures;
    for (int line = 3; line < 69; ++line) {
        if ((line < 35 && line != 34) || line >= 59)
            pictures[line] = WritePicture(QStringLiteral("d%1/Ёлка 奶奶.png").arg(line), line);
    }
    const QStringList lines = LinesWith(pictures);
    const QString original = WriteGame(lines, QStringLiteral("Щука.gam"));
    QString name = original;
    ASSERT_EQ(Load(name), 0);
    const Game before = TheGame();
    const QByteArray packed = Packed(Gathered(lines, original));
    for (const QString& path : pictures)
        QFile::remove(path);
    const QString game = Unpacked(packed);
    ASSERT_EQ(game, out + QStringLiteral("/Щука/Щука.gam")) << error.toStdString();
    ASSERT_EQ(Load(QString(game)), 0);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        const C_Image& image = TheGame().spaces[size_t(i)].Image;
        EXPECT_EQ(ReadFile(image.FullPath()), PictureOf(3 + i)) << i;
        EXPECT_EQ(image.Zoom(), 5);
        EXPECT_EQ(TheGame().spaces[size_t(i)].TextAll(), before.spaces[size_t(i)].TextAll());
    }
    for (int i = 0; i < basTAVL::kTokens; ++i)
        EXPECT_EQ(ReadFile(TheGame().tokens[size_t(i)].Image.FullPath()), PictureOf(63 + i)) << i;
}

TEST_F(UnpackingTest, ADiskThatCannotBeReadIsToldAsSuchWheneverItFails) {
    const QByteArray bytes = Plain().Bytes();
    const std::string before = Tree(out);
    const QString path = WriteFile(QStringLiteral("Family.tavlora"), bytes);
    int reads = 0;
    int failing = -1;
    Files::SetFaultHook([&](Files::Operation operation, const QString& of) -> std::optional<QString> {
        if (operation != Files::Operation::Read || of != path) return std::nullopt;
        return reads++ == failing ? std::optional(QStringLiteral("Input/output error")) : std::nullopt;
    });
    ASSERT_TRUE(Unpacking::Unpack(path, PathOf(QStringLiteral(".")), error)) << error.toStdString();
    const int all = reads;
    ASSERT_GT(all, 5);
    for (failing = 0; failing < all; ++failing) {
        reads = 0;
        EXPECT_FALSE(Unpacking::Unpack(path, out, error)) << failing;
        EXPECT_EQ(error, QStringLiteral("'Family.tavlora' can't be opened: Input/output error.")) << failing;
        EXPECT_EQ(Tree(out), before) << failing;
    }
    Files::SetFaultHook({});
}
