// SPDX-License-Identifier: MIT
// The program is ended at every change that a start makes on the disk: while it takes up the work of before, and while
// it makes the small pictures of the board.
#include "app/StartProcess.h"
#include "platform/files/TextFile.h"
#include "support/EndAtOperation.h"
#include "support/PictureFiles.h"

#include <QRegularExpression>

#include <algorithm>
#include <iostream>

namespace {

const QString kLastEdit = QStringLiteral("Last edit");

class EndedStartTest : public StartProcessTest {
protected:
    void Put(const QString& sName, const QByteArray& bytes) const {
        QFile file(InGames(sName));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    static QByteArray Read(const QString& sPath) {
        QFile file(sPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A game with a photograph on each space, corner, note and token, some named as the program's own small pictures
    /// are, and the autosave of an edit in it.
    void PutGameWithPictures() {
        MakeGames();
        QStringList lines =
            TextFile::SplitLines(TextFile::Decode(Read(QStringLiteral(TAVLORA_DATA_DIR "/Town_US.gam"))));
        static const QRegularExpression picture(QStringLiteral("\"town/[^\"]*\""));
        const QStringList names{QStringLiteral("Space5.bmp"), QStringLiteral("corner1.BMP"), QStringLiteral("a.png"),
                                QStringLiteral("b.jpg")};
        int number = 0;
        for (QString& line : lines) {
            if (line.contains(picture)) line.replace(picture, u'"' + names[number++ % names.size()] + u'"');
        }
        const QImage image = PictureFiles::Quarters(60, 40);
        Put(names[0], PictureFiles::Bmp(image));
        Put(names[1], PictureFiles::Bmp(image.mirrored()));
        Put(names[2], PictureFiles::Encoded(image, "PNG"));
        Put(names[3], PictureFiles::Encoded(image, "JPEG"));
        Put(QStringLiteral("Trip.gam"), TextFile::Encode(TextFile::JoinLines(lines)));
        users = names + QStringList{QStringLiteral("Trip.gam")};
        for (const QString& name : users)
            before[name] = Read(InGames(name));
        lines[0] = QStringLiteral("\"TavloraGameBoard\", 8.0.0, \"%1\"").arg(InGames(QStringLiteral("Trip.gam")));
        lines[3].replace(QRegularExpression(QStringLiteral("^0, \"[^\"]*\"")),
                         QStringLiteral("0, \"%1\"").arg(kLastEdit));
        autosave = TextFile::Encode(TextFile::JoinLines(lines));
    }
    void PutAutosave() const {
        for (const char* name : {"~AutoSave.dat", "~AutoSave.bak"})
            QFile::remove(InGames(QString::fromLatin1(name)));
        Put(QStringLiteral("~AutoSave.dat"), autosave);
    }
    /// In the autosave, its backup, or what was put aside.
    bool LiesOnDisk() const {
        const QDir games(InGames(QString()));
        const QStringList kept =
            games.entryList({QStringLiteral("~AutoSave.*"), QStringLiteral("Rescued*")}, QDir::Files | QDir::Hidden);
        return std::any_of(kept.begin(), kept.end(), [&](const QString& name) {
            const QByteArray bytes = Read(games.filePath(name));
            return bytes.contains(kLastEdit.toUtf8()) && bytes.endsWith("\r\n") &&
                   bytes.count('\n') == autosave.count('\n');
        });
    }
    /// The number of ends.
    int EndAtEachChange(const QStringList& words) {
        int end = 0;
        for (Seen seen{EndAtOperation::kStatus, {}}; seen.status == EndAtOperation::kStatus; ++end) {
            PutAutosave();
            extra[QString::fromLatin1(EndAtOperation::kVariable)] = QString::number(end);
            seen = Run(words);
            EXPECT_TRUE(seen.status == EndAtOperation::kStatus || seen.status == 0) << end;
            for (const QString& name : users)
                EXPECT_EQ(Read(InGames(name)), before[name]) << name.toStdString() << " at change " << end;
            EXPECT_TRUE(LiesOnDisk()) << "at change " << end;
            if (HasFailure()) break;
        }
        extra.clear();
        std::cout << "[ MATRIX   ] " << end - 1 << " ends\n";
        return end - 1;
    }

    QStringList users;
    QMap<QString, QByteArray> before;
    QByteArray autosave;
};

TEST_F(EndedStartTest, NoChangeOnTheDiskIsAWrongMomentToEnd) {
    PutGameWithPictures();
    EXPECT_GT(EndAtEachChange({QStringLiteral("yes"), QStringLiteral("0")}), 50);
    PutAutosave();
    const Seen seen = Run({QStringLiteral("yes"), QStringLiteral("0")});
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.lines.filter(QStringLiteral("title: ")).size(), 1);
    EXPECT_TRUE(QFile::exists(InGames(QStringLiteral("Space4.bmp")))) << "small pictures were made";
}

} // namespace
