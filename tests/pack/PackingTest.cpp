// SPDX-License-Identifier: MIT
#include "pack/Packing.h"

#include "pack/PackFixture.h"
#include "pack/PackReader.h"
#include "pack/ZipReader.h"

namespace {

class PackingTest : public PackTest {};

QStringList EntriesOf(const Packing::Contents& contents) {
    QStringList entries;
    for (const Packing::Picture& picture : contents.pictures)
        entries.append(picture.sEntry);
    return entries;
}

} // namespace

TEST_F(PackingTest, PicturesOfEveryKindAreNamedInsideAndAllElseStays) {
    const QString photo = WritePicture(QStringLiteral("far/photo.png"), 1);
    WritePicture(QStringLiteral("games/here.png"), 2);
    const QMap<int, QString> pictures{
        {3, photo}, {31, QStringLiteral("here.png")}, {59, photo}, {68, QStringLiteral("here.png")}};
    const QStringList lines = LinesWith(pictures);
    const Packing::Contents contents = Gathered(lines, PathOf(QStringLiteral("far/Our Game.gam")));
    EXPECT_EQ(contents.sName, QStringLiteral("Our Game"));
    EXPECT_EQ(EntriesOf(contents),
              (QStringList{QStringLiteral("Pictures/photo.png"), QStringLiteral("Pictures/here.png")}))
        << "each goes in once";
    EXPECT_TRUE(contents.missing.isEmpty());
    ASSERT_EQ(contents.lines.size(), lines.size());
    EXPECT_EQ(contents.lines[0], QStringLiteral("\"TavloraGameBoard\", 8.0.0, Our Game.gam"));
    for (int i = 1; i < lines.size(); ++i) {
        QString wanted = lines[i];
        wanted.replace(basTAVL::Quote(photo), QStringLiteral("\"Pictures/photo.png\""))
            .replace(QStringLiteral("\"here.png\""), QStringLiteral("\"Pictures/here.png\""));
        EXPECT_EQ(contents.lines[i], wanted) << i;
    }
    EXPECT_EQ(contents.pictures[0].users.size(), 2);
    EXPECT_EQ(contents.pictures[0].users[1].owner, (PictureOwner{PictureOwner::Kind::Money, 0}));
    EXPECT_EQ(contents.pictures[0].users[1].ref, (PictureRef{QStringLiteral("Pictures/photo.png"), 5, 4, 4}));
    EXPECT_EQ(contents.PictureBytes(), PictureOf(1).size() + PictureOf(2).size());
}

TEST_F(PackingTest, OddTextsAheadOfAPictureAreLeftAsTheyAre) {
    const QString photo = WritePicture(QStringLiteral("photo.png"), 1);
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("  0 , \"a, \\q\\\\\\\\b\\q\\n,\" ,  \"%1\" , 7, 8,9 ,\"Arial\",R,12 ").arg(photo);
    lines[31] = QStringLiteral("0, \"unclosed");
    const Packing::Contents contents = Gathered(lines, QStringLiteral("x.gam"));
    EXPECT_EQ(contents.lines[3],
              QStringLiteral("0 , \"a, \\q\\\\\\\\b\\q\\n,\" ,  \"Pictures/photo.png\",7,8,9, \"Arial\",R,12"));
    EXPECT_EQ(contents.lines[31], lines[31]);
}

TEST_F(PackingTest, PicturesThatAreMissingAreTold) {
    const QString gone = PathOf(QStringLiteral("gone/photo.png"));
    const QString there = WritePicture(QStringLiteral("there/photo.png"), 1);
    const Packing::Contents contents = Gathered(LinesWith({{3, gone}, {4, gone}, {5, there}}), QStringLiteral("x.gam"));
    EXPECT_EQ(contents.missing, QStringList{gone});
    EXPECT_EQ(EntriesOf(contents), QStringList{QStringLiteral("Pictures/photo 2.png")})
        << "the missing one's name is not another's";
    EXPECT_TRUE(contents.lines[4].contains(QStringLiteral("\"Pictures/photo.png\"")))
        << contents.lines[4].toStdString();
    EXPECT_FALSE(contents.lines.join(u'\n').contains(folder.path())) << "where things lie is nobody else's business";
}

TEST_F(PackingTest, TheKitsOwnFaceStaysAtHome) {
    const QString secret = WritePicture(QStringLiteral("secret.png"), 1);
    const QStringList lines = LinesWith({{34, secret}});
    EXPECT_TRUE(Gathered(lines, QStringLiteral("x.gam")).pictures.isEmpty());
    EXPECT_TRUE(Gathered(lines, QStringLiteral("x.gam")).lines[34].contains(QStringLiteral("\"fate.dat\"")));
    Settings().sGameVersion = QStringLiteral("5");
    EXPECT_EQ(Gathered(lines, QStringLiteral("x.gam")).pictures.size(), 1) << "in this kit it is the game's own";
}

TEST_F(PackingTest, EverySlotMayShowAPictureOfTheSameName) {
    QMap<int, QString> pictures;
    for (int line = 3; line < 69; ++line) {
        if (line >= 35 && line < 59) continue; // news
        pictures[line] = WritePicture(QStringLiteral("d%1/IMG_0001.png").arg(line), line);
    }
    ASSERT_EQ(pictures.size(), 42);
    const Packing::Contents contents = Gathered(LinesWith(pictures), QStringLiteral("x.gam"));
    EXPECT_EQ(contents.pictures.size(), 41) << "and one is the kit's own";
    const QStringList entries = EntriesOf(contents);
    EXPECT_EQ(QSet<QString>(entries.begin(), entries.end()).size(), 41);
}

TEST_F(PackingTest, PackingTwiceGivesEqualBytes) {
    const QString photo = WritePicture(QStringLiteral("photo.png"), 1);
    const QStringList lines = LinesWith({{3, photo}});
    const QByteArray first = Packed(Gathered(lines, QStringLiteral("x.gam")));
    QFile file(photo);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addDays(-100), QFileDevice::FileModificationTime));
    EXPECT_EQ(Packed(Gathered(lines, QStringLiteral("x.gam"))), first);
    EXPECT_EQ(first.mid(30, 41), QByteArray("mimetypeapplication/x-tavlora-packed-game"));
}

TEST_F(PackingTest, APictureThatVanishedMeanwhileIsNamedAndNothingIsWritten) {
    const QString photo = WritePicture(QStringLiteral("photo.png"), 1);
    const Packing::Contents contents = Gathered(LinesWith({{3, photo}}), QStringLiteral("x.gam"));
    QFile::remove(photo);
    QString error;
    const QString packed = PathOf(QStringLiteral("x.tavlora"));
    EXPECT_FALSE(Packing::Write(contents, packed, {}, error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("the picture '%1' can't be read: ").arg(photo))) << error.toStdString();
    EXPECT_FALSE(QFile::exists(packed));
}

TEST_F(PackingTest, ItCanBeStoppedAndTellsHowFarItIs) {
    QMap<int, QString> pictures;
    for (int i = 0; i < 4; ++i)
        pictures[3 + i] = WritePicture(QStringLiteral("%1.png").arg(i), 1);
    const Packing::Contents contents = Gathered(LinesWith(pictures), QStringLiteral("x.gam"));
    QList<int> told;
    QString error;
    EXPECT_TRUE(Packing::Pack(
        contents, [&told](int iThousandths) { return told.append(iThousandths), true; }, error));
    EXPECT_EQ(told, (QList<int>{0, 250, 500, 750}));
    EXPECT_FALSE(Packing::Pack(
        contents, [](int iThousandths) { return iThousandths < 500; }, error));
    EXPECT_TRUE(error.isEmpty()) << "whoever stopped it knows: " << error.toStdString();
}

TEST_F(PackingTest, AFullDiskLeavesTheOldFile) {
    const QString packed = WriteFile(QStringLiteral("x.tavlora"), "old");
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        return operation == Files::Operation::Write ? std::optional(QStringLiteral("No space left")) : std::nullopt;
    });
    QString error;
    EXPECT_FALSE(Packing::Write(Gathered(PlainLines(), QStringLiteral("x.gam")), packed, {}, error));
    EXPECT_EQ(error, QStringLiteral("No space left"));
    EXPECT_EQ(ReadFile(packed), QByteArray("old"));
}

TEST_F(PackingTest, TextsThatNobodyCouldOpenAgainAreRefused) {
    QStringList lines = PlainLines();
    lines[1] = u'"' + QString(3 << 20, u'x') + QStringLiteral("\", \"Sub\", \"Day\"");
    QString error;
    EXPECT_FALSE(Packing::Pack(Gathered(lines, QStringLiteral("x.gam")), {}, error));
    EXPECT_EQ(error, QStringLiteral("its texts are too long for one file"));
}

TEST_F(PackingTest, ABitmapIsShrunkAndWhatIsShrunkAlreadyGoesInAsItIs) {
    const QImage image = PictureFiles::Quarters(20, 20);
    const QMap<int, QString> pictures{{3, WriteFile(QStringLiteral("a.bmp"), PictureFiles::Bmp(image))},
                                      {4, WriteFile(QStringLiteral("b.png"), PictureFiles::Encoded(image, "PNG"))},
                                      {5, WriteFile(QStringLiteral("c.jpg"), PictureFiles::Encoded(image, "JPEG"))}};
    const std::optional<ZipReader> zip =
        ZipReader::Open(Packed(Gathered(LinesWith(pictures), QStringLiteral("x.gam"))));
    ASSERT_TRUE(zip);
    ASSERT_EQ(zip->Entries().size(), 5) << "the kind of file, the game and its pictures";
    EXPECT_LT(zip->Entries()[2].packedSize, zip->Entries()[2].size / 2);
    EXPECT_EQ(zip->Entries()[3].packedSize, zip->Entries()[3].size);
    EXPECT_EQ(zip->Entries()[4].packedSize, zip->Entries()[4].size);
}

TEST_F(PackingTest, NearlyEmptyBitmapsAreNoTrapToWhoeverOpensThem) {
    // 300 MB that would shrink to less than one.
    QImage white(10000, 10000, QImage::Format_RGB32);
    white.fill(Qt::white);
    const QString bitmap = WriteFile(QStringLiteral("white.bmp"), PictureFiles::Bmp(white));
    white = QImage();
    const QByteArray packed = Packed(Gathered(LinesWith({{3, bitmap}}), QStringLiteral("x.gam")));
    QString error;
    EXPECT_TRUE(PackReader::Open(packed, error)) << error.toStdString();
}
