// SPDX-License-Identifier: MIT
#include "pack/ZipReader.h"
#include "pack/ZipWriter.h"

#include "support/TestFixture.h"
#include "support/ZipBuilder.h"

#include <QProcess>
#include <QtEndian>

namespace {

using Method = ZipWriter::Method;

QByteArray Zeros(qsizetype count) { return QByteArray(count, '\0'); }

std::optional<QByteArray> Archive(QString& sError) {
    ZipWriter zip;
    zip.Add(QStringLiteral("mimetype"), Method::Stored, "a/b");
    zip.Add(QStringLiteral("größer/奶奶.txt"), Method::Deflated, Zeros(100'000));
    zip.Add(QStringLiteral("empty"), Method::Stored, QByteArray());
    return zip.Finish(sError);
}

} // namespace

TEST(ZipTest, WhatWasPutInComesOut) {
    QString error;
    const std::optional<QByteArray> bytes = Archive(error);
    ASSERT_TRUE(bytes) << error.toStdString();
    EXPECT_LT(bytes->size(), 2000) << "the second entry is shrunk";
    const std::optional<ZipReader> zip = ZipReader::Open(*bytes);
    ASSERT_TRUE(zip);
    ASSERT_EQ(zip->Entries().size(), 3);
    EXPECT_EQ(zip->Entries()[1].sName, QStringLiteral("größer/奶奶.txt"));
    for (const ZipReader::Entry& entry : zip->Entries()) {
        EXPECT_EQ(entry.kind, ZipReader::Kind::File);
        EXPECT_TRUE(entry.bReadable);
    }
    EXPECT_EQ(zip->Entries()[1].size, 100'000);
    EXPECT_EQ(zip->Read(0), QByteArray("a/b"));
    EXPECT_EQ(zip->Read(1), Zeros(100'000));
    EXPECT_EQ(zip->Read(2), QByteArray());
}

TEST(ZipTest, AnEntryCanBeHadInPiecesSoThatItIsNeverInMemoryAsAWhole) {
    constexpr qsizetype kMegabyte = 1 << 20;
    QByteArray content(7 * kMegabyte + 5, 'a');
    content[3 * kMegabyte] = 'b';
    ZipWriter writer;
    writer.Add(QStringLiteral("large"), Method::Deflated, content);
    QString error;
    const std::optional<ZipReader> zip = ZipReader::Open(writer.Finish(error).value_or(QByteArray()));
    ASSERT_TRUE(zip) << error.toStdString();
    QByteArray together;
    EXPECT_TRUE(zip->Read(0, [&](const QByteArray& piece) {
        EXPECT_LE(piece.size(), kMegabyte);
        together += piece;
        return true;
    }));
    EXPECT_TRUE(together == content);
    int pieces = 0;
    EXPECT_FALSE(zip->Read(0, [&](const QByteArray&) { return ++pieces < 3; })) << "it was stopped";
    EXPECT_EQ(pieces, 3);
}

TEST(ZipTest, TheSameEntriesAlwaysGiveTheSameBytes) {
    QString error;
    const std::optional<QByteArray> first = Archive(error);
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Asia/Tokyo");
    const std::optional<QByteArray> second = Archive(error);
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    ASSERT_TRUE(first);
    EXPECT_EQ(first, second);
}

// Desktops look for the type at a fixed place of the file.
TEST(ZipTest, TheFirstEntryStandsPlainAtTheFront) {
    QString error;
    const std::optional<QByteArray> bytes = Archive(error);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->mid(30, 11), QByteArray("mimetypea/b"));
    EXPECT_EQ(bytes->mid(6, 2), QByteArray(2, '\0')) << "no flag says that the size comes behind";
    EXPECT_EQ(qFromLittleEndian<quint16>(bytes->constData() + 12), 33) << "the first of January 1980";
}

TEST(ZipTest, AnotherProgramFindsItWhole) {
    QString error;
    const std::optional<QByteArray> bytes = Archive(error);
    ASSERT_TRUE(bytes);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("x.zip")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(*bytes);
    file.close();
    QProcess process;
    process.start(QStringLiteral("python3"),
                  {QStringLiteral("-m"), QStringLiteral("zipfile"), QStringLiteral("-t"), file.fileName()});
    if (!process.waitForStarted()) GTEST_SKIP() << "there is no python3";
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_FALSE(process.readAllStandardOutput().contains("corrupt"));
}

TEST(ZipTest, AnEntryThatFailsOrChangesGivesNoArchive) {
    QString error;
    ZipWriter failing;
    failing.Add(QStringLiteral("a"), Method::Stored, 5, [](QString& sError) -> std::optional<QByteArray> {
        sError = QStringLiteral("gone");
        return std::nullopt;
    });
    EXPECT_FALSE(failing.Finish(error));
    EXPECT_EQ(error, QStringLiteral("gone"));
    ZipWriter changed;
    changed.Add(QStringLiteral("a"), Method::Stored, 5, [](QString&) { return QByteArray("longer"); });
    EXPECT_FALSE(changed.Finish(error));
    EXPECT_EQ(error, QStringLiteral("The file was changed in the meantime"));
}

TEST(ZipTest, OnlyOneEntryIsInMemoryAtATime) {
    int asked = 0;
    QString error;
    ZipWriter zip;
    for (int i = 0; i < 3; ++i)
        zip.Add(QString::number(i), Method::Stored, 1, [&asked](QString&) {
            ++asked;
            return QByteArray("x");
        });
    EXPECT_EQ(asked, 0) << "nothing is read ahead";
    EXPECT_TRUE(zip.Finish(error));
    EXPECT_EQ(asked, 3) << "and each once";
}

TEST(ZipTest, LinksDevicesAndFoldersAreToldApart) {
    const struct {
        const char* tag;
        const char* name;
        quint32 attributes;
        ZipReader::Kind kind;
    } rows[] = {{"file", "a", 0100644U << 16U, ZipReader::Kind::File},
                {"file of a system without rights", "b", 0x20, ZipReader::Kind::File},
                {"folder", "c/", 0040755U << 16U | 0x10U, ZipReader::Kind::Folder},
                {"folder without rights", "d/", 0, ZipReader::Kind::Folder},
                {"link", "e", 0120777U << 16U, ZipReader::Kind::Special},
                {"device", "f", 0060644U << 16U, ZipReader::Kind::Special},
                {"pipe", "g", 0010644U << 16U, ZipReader::Kind::Special},
                {"file that bears a folder's name", "h/", 0100644U << 16U, ZipReader::Kind::Special},
                {"name of a disk", "i", 0x08, ZipReader::Kind::Special},
                {"what leads elsewhere", "j", 0x400, ZipReader::Kind::Special}};
    ZipBuilder builder;
    for (const auto& row : rows)
        builder.entries.append({row.name, QByteArray(), row.attributes});
    const std::optional<ZipReader> zip = ZipReader::Open(builder.Bytes());
    ASSERT_TRUE(zip);
    ASSERT_EQ(size_t(zip->Entries().size()), std::size(rows));
    for (size_t i = 0; i < std::size(rows); ++i)
        EXPECT_EQ(zip->Entries()[qsizetype(i)].kind, rows[i].kind) << rows[i].tag;
}

TEST(ZipTest, ACutOffArchiveIsNone) {
    QString error;
    const std::optional<QByteArray> bytes = Archive(error);
    ASSERT_TRUE(bytes);
    for (qsizetype length = 0; length < bytes->size(); ++length)
        EXPECT_FALSE(ZipReader::Open(bytes->left(length))) << length;
}

TEST(ZipTest, AWrongChecksumOrSizeGivesNoBytes) {
    ZipBuilder builder;
    builder.Add("well", "0123456789");
    builder.entries.append({"sum", "0123456789", 0, 0, 0, -1, 42});
    const std::optional<ZipReader> zip = ZipReader::Open(builder.Bytes());
    ASSERT_TRUE(zip);
    EXPECT_EQ(zip->Read(0), QByteArray("0123456789"));
    EXPECT_FALSE(zip->Read(1));
    for (const qint64 said : {9, 11, 1'000'000'000}) {
        ZipBuilder wrong;
        wrong.entries.append({"size", qCompress(QByteArray("0123456789")).mid(6).chopped(4), 0, 0, 8, said});
        const std::optional<ZipReader> archive = ZipReader::Open(wrong.Bytes());
        EXPECT_FALSE(archive && archive->Read(0)) << said;
    }
}

TEST(ZipTest, WhatIsLockedOrPackedUnknownIsNotReadable) {
    for (const auto& [flags, method] : {std::pair<quint16, quint16>{1, 0}, {0, 99}, {0, 12}}) {
        ZipBuilder builder;
        builder.entries.append({"entry", "0123456789abcdef", 0, flags, method});
        const std::optional<ZipReader> zip = ZipReader::Open(builder.Bytes());
        if (!zip) continue; // the library may refuse it as a whole
        ASSERT_EQ(zip->Entries().size(), 1);
        EXPECT_FALSE(zip->Entries()[0].bReadable) << flags << ' ' << method;
    }
    ZipBuilder plain;
    plain.entries.append({"entry", "0123456789abcdef", 0, 0, 0});
    const std::optional<ZipReader> zip = ZipReader::Open(plain.Bytes());
    ASSERT_TRUE(zip);
    EXPECT_TRUE(zip->Entries()[0].bReadable);
}
