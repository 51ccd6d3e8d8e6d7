// SPDX-License-Identifier: MIT
// What a packed game that somebody made large costs whoever opens it.
#include "pack/Unpacking.h"

#include "pack/PackFixture.h"
#include "support/ZipBuilder.h"

#include <algorithm>

#ifdef Q_OS_LINUX
namespace {

constexpr qint64 kMegabyte = qint64(1) << 20;

class PackMemoryTest : public PackTest {
protected:
    PackMemoryTest() { QDir(folder.path()).mkdir(QStringLiteral("out")); }
    void SetUp() override {
#if defined(__SANITIZE_ADDRESS__)
        GTEST_SKIP() << "the checks need memory of their own";
#endif
    }

    static ZipBuilder Plain() {
        ZipBuilder zip;
        zip.Add("mimetype", "application/x-tavlora-packed-game");
        zip.Add("Plain.gam", TextFile::JoinLines(LinesWith({{3, QStringLiteral("Pictures/a.png")}})).toUtf8());
        return zip;
    }
    static qint64 Kilobytes(const char* what) {
        for (const QByteArray& line : ReadFile(QStringLiteral("/proc/self/status")).split('\n')) {
            if (line.startsWith(what)) return line.mid(qsizetype(qstrlen(what))).chopped(2).trimmed().toLongLong();
        }
        return 0;
    }
    /// How many megabytes more than before are in use at the worst moment of unpacking, or of a step in its place.
    template <typename Step>
    static qint64 Peak(const Step& step) {
        WriteProc(QStringLiteral("/proc/self/clear_refs"), "5"); // the peak begins anew
        const qint64 before = Kilobytes("VmRSS:");
        step();
        return (Kilobytes("VmHWM:") - before) * 1024 / kMegabyte;
    }
    qint64 PeakOfUnpacking() {
        return Peak([this] { game = Unpacking::Unpack(packed, out, error).value_or(QString()); });
    }
    static void WriteProc(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    void WriteAt(qint64 place, const QByteArray& bytes) const {
        QFile file(packed);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(place));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    static QByteArray Little(quint64 value, int bytes) {
        QByteArray text;
        for (int i = 0; i < bytes; ++i)
            text.append(char(value >> (8 * i) & 0xFF));
        return text;
    }

    const QString packed = PathOf(QStringLiteral("Family.tavlora"));
    const QString out = PathOf(QStringLiteral("out"));
    QString game;
    QString error;
};

TEST_F(PackMemoryTest, WhatIsMeasuredIsThePeak) {
    constexpr qint64 kSize = 64 * kMegabyte;
    EXPECT_GE(Peak([] {
                  QByteArray bytes(kSize, 'x');
                  EXPECT_EQ(bytes.count('x'), kSize);
              }),
              60);
    EXPECT_LT(Peak([] {}), 8);
}

TEST_F(PackMemoryTest, APackedGameIsNeverHeldAsAWhole) {
    {
        ZipBuilder zip = Plain();
        zip.Add("Pictures/a.png", PictureOf(1) + QByteArray(100 * kMegabyte, 'p'));
        WriteFile(QStringLiteral("Family.tavlora"), zip.Bytes());
    }
    EXPECT_LT(PeakOfUnpacking(), 32);
    EXPECT_FALSE(game.isEmpty()) << error.toStdString();
    EXPECT_GT(QFileInfo(out + QStringLiteral("/Plain/Pictures/a.png")).size(), 100 * kMegabyte);
}

TEST_F(PackMemoryTest, AnArchiveThatCountsMillionsOfEntriesGetsNoRoomForThem) {
    constexpr quint64 kCount = 10'000'000;
    constexpr quint64 kEntry = 46;
    WriteFile(QStringLiteral("Family.tavlora"), Plain().Bytes());
    const QByteArray end = "PK\x06\x06" + Little(44, 8) + Little(45, 2) + Little(45, 2) + Little(0, 8) +
                           Little(kCount, 8) + Little(kCount, 8) + Little(kCount * kEntry, 8) + Little(0, 8);
    const QByteArray place = "PK\x06\x07" + Little(0, 4) + Little(kCount * kEntry, 8) + Little(1, 4);
    WriteAt(qint64(kCount * kEntry), end + place + "PK\x05\x06" + Little(0, 4) + QByteArray(12, '\xFF') + Little(0, 2));
    EXPECT_LT(PeakOfUnpacking(), 32);
    EXPECT_TRUE(game.isEmpty());
    EXPECT_TRUE(error.contains(QStringLiteral("missing or was changed"))) << error.toStdString();
}

TEST_F(PackMemoryTest, AnArchiveWithALongListOfEntriesIsNotReadToItsEnd) {
    constexpr int kRounds = 20;
    constexpr int kCount = kRounds << 16;
    ZipBuilder one;
    one.Add("a", "");
    const QByteArray bytes = one.Bytes();
    const qsizetype directory = bytes.indexOf("PK\x01\x02");
    const QByteArray entry = bytes.mid(directory, bytes.indexOf("PK\x05\x06") - directory);
    // The count that has no room in its two bytes begins again, which the library knows.
    WriteFile(QStringLiteral("Family.tavlora"),
              bytes.left(directory) + entry.repeated(kCount) + "PK\x05\x06" + Little(0, 4) + Little(0, 4) +
                  Little(quint64(entry.size()) * kCount, 4) + Little(quint64(directory), 4) + Little(0, 2));
    EXPECT_LT(PeakOfUnpacking(), 32);
    EXPECT_TRUE(game.isEmpty());
}

TEST_F(PackMemoryTest, AGameOfEmptyLinesTakesLittle) {
    for (const qint64 size : {2 * kMegabyte, 64 * kMegabyte}) {
        {
            ZipBuilder zip = Plain();
            QByteArray& lines = zip.entries[1].bytes;
            lines += QByteArray(size - lines.size(), '\n');
            WriteFile(QStringLiteral("Family.tavlora"), zip.Bytes());
        }
        EXPECT_LT(PeakOfUnpacking(), 200) << size;
        EXPECT_EQ(game.isEmpty(), size > 2 * kMegabyte) << error.toStdString();
    }
}

} // namespace
#endif
