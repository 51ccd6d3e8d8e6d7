// SPDX-License-Identifier: MIT
#include "platform/paint/FontFiles.h"

#include "platform/paint/FontFace.h"
#include "platform/paint/FontHead.h"
#include "support/FontMaker.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QFontDatabase>
#include <QtEndian>

namespace {

class FontFilesTest : public TavloraTest {
protected:
    static std::optional<FontHead> Head(const QByteArray& font) {
        return FontHead::Read([&font](qint64 place, qint64 count) { return font.mid(place, count); });
    }
    static QByteArray BigEndian(const QString& text) {
        QByteArray bytes;
        for (const QChar letter : text) {
            bytes.append(char(letter.unicode() >> 8));
            bytes.append(char(letter.unicode() & 0xFF));
        }
        return bytes;
    }
    const QByteArray font = FontMaker::Font();
};

TEST_F(FontFilesTest, AFontTellsItsFamilyAndWhetherItMayBePassedOn) {
    if (font.isEmpty()) GTEST_SKIP() << "DejaVu Serif is not installed";
    const struct {
        const char* tag;
        QByteArray bytes;
        bool installable;
        bool free;
    } rows[] = {{"free", font, true, true},
                {"restricted", FontMaker::Font(0x0002), false, true},
                {"preview and print", FontMaker::Font(0x0004), false, true},
                {"editable", FontMaker::Font(0x0008), false, true},
                {"no subsetting", FontMaker::Font(0x0100), true, true},
                {"bitmaps only", FontMaker::Font(0x0200), false, true},
                {"no licence", FontMaker::Font(0, false), true, false}};
    for (const auto& row : rows) {
        const std::optional<FontHead> head = Head(row.bytes);
        ASSERT_TRUE(head) << row.tag;
        EXPECT_EQ(head->families, QStringList{FontMaker::kFamily}) << row.tag;
        EXPECT_EQ(head->bInstallable, row.installable) << row.tag;
        EXPECT_EQ(head->bFreeLicence, row.free) << row.tag;
    }
}

TEST_F(FontFilesTest, WhatIsNoFontOrIsCutOffIsNone) {
    EXPECT_FALSE(Head(QByteArray()));
    EXPECT_FALSE(Head("Dear diary, today I made a font."));
    EXPECT_FALSE(Head(QByteArray("ttcf\0\1\0\0\xff\xff\xff\xff\xff\xff\xff\xff", 16)));
    if (font.isEmpty()) GTEST_SKIP() << "DejaVu Serif is not installed";
    for (int length = 0; length < 2000; length += 7)
        EXPECT_FALSE(Head(font.left(length))) << length;
    // Numbers that lead anywhere are read as far as there are bytes.
    for (int at = 0; at < 400; ++at) {
        QByteArray wrong = font;
        wrong[at] = char(0xFF);
        const std::optional<FontHead> head = Head(wrong);
        EXPECT_TRUE(!head || !head->families.isEmpty()) << at;
    }
}

// Puts fonts one behind the other; their tables lie at places that count from the file's start.
QByteArray Collection(const QList<QByteArray>& fonts) {
    const auto number = [](quint32 value) {
        QByteArray bytes(4, '\0');
        qToBigEndian(value, bytes.data());
        return bytes;
    };
    QByteArray bytes = QByteArray("ttcf\0\1\0\0", 8) + number(quint32(fonts.size()));
    quint32 place = quint32(bytes.size() + 4 * fonts.size());
    QByteArray all;
    for (QByteArray font : fonts) {
        bytes += number(place);
        const int tables = qFromBigEndian<quint16>(font.constData() + 4);
        for (int i = 0; i < tables; ++i) {
            char* const offset = font.data() + 12 + 16 * i + 8;
            qToBigEndian(qFromBigEndian<quint32>(offset) + place, offset);
        }
        place += quint32(font.size());
        all += font;
    }
    return bytes + all;
}

TEST_F(FontFilesTest, ACollectionMayDoWhatEachOfItsFontsMay) {
    if (font.isEmpty()) GTEST_SKIP() << "DejaVu Serif is not installed";
    const QByteArray other =
        QByteArray(font).replace(QByteArray("\0Q\0u\0i\0l\0l", 10), QByteArray("\0B\0r\0u\0s\0h", 10));
    const std::optional<FontHead> both = Head(Collection({font, other}));
    ASSERT_TRUE(both);
    EXPECT_EQ(both->families, (QStringList{FontMaker::kFamily, QStringLiteral("Brush Letter")}));
    EXPECT_TRUE(both->bInstallable && both->bFreeLicence);
    const std::optional<FontHead> bound = Head(Collection({font, FontMaker::Font(0x0002)}));
    ASSERT_TRUE(bound);
    EXPECT_FALSE(bound->bInstallable);
    const std::optional<FontHead> silent = Head(Collection({font, FontMaker::Font(0, false)}));
    ASSERT_TRUE(silent);
    EXPECT_FALSE(silent->bFreeLicence);
}

TEST_F(FontFilesTest, FamiliesOfThisMachineAreFoundWithoutRegardToCase) {
    const auto files = FontFiles::Of({QStringLiteral("dejavu sans"), QStringLiteral("No Such Family")});
    if (!FontFiles::IsKnown(QStringLiteral("DejaVu Sans"))) GTEST_SKIP() << "DejaVu Serif is not installed";
    const QList<FontFiles::File> found = files.value(QStringLiteral("dejavu sans"));
    ASSERT_GE(found.size(), 1);
    for (const FontFiles::File& file : found) {
        EXPECT_TRUE(file.bMayBePassedOn) << file.sPath.toStdString();
        EXPECT_GT(file.size, 100'000);
    }
    EXPECT_FALSE(files.contains(QStringLiteral("No Such Family")));
    EXPECT_FALSE(FontFiles::IsKnown(QStringLiteral("No Such Family")));
}

TEST_F(FontFilesTest, FontsOfAFolderAreUsedWithoutBeingInstalled) {
    if (font.isEmpty()) GTEST_SKIP() << "DejaVu Serif is not installed";
    const double before = FontFace::Get(FontMaker::kFamily, false, false).Advance(QStringLiteral("Mississippi"));
    WriteFile(QStringLiteral("quill.ttf"), font);
    WriteFile(QStringLiteral("broken.ttf"), "no font");
    FontFiles::UseFolder(PathOf(QStringLiteral("nowhere")));
    EXPECT_FALSE(FontFiles::IsKnown(FontMaker::kFamily));
    FontFiles::UseFolder(folder.path());
    EXPECT_TRUE(FontFiles::IsKnown(FontMaker::kFamily));
    const double after = FontFace::Get(FontMaker::kFamily, false, false).Advance(QStringLiteral("Mississippi"));
    EXPECT_NE(before, after) << "the stand-in is no longer used";
    EXPECT_EQ(after,
              FontFace::Get(QStringLiteral("DejaVu Serif"), false, false).Advance(QStringLiteral("Mississippi")));
    QFontDatabase::removeAllApplicationFonts();
    FontFace::ForgetAll();
}

TEST_F(FontFilesTest, OfAFolderFullOfLargeFontsNoMoreAreUsedThanMemoryCanSpare) {
    if (font.isEmpty()) GTEST_SKIP() << "DejaVu Serif is not installed";
    const auto family = [](int number) { return QStringLiteral("Quill Lett %1").arg(number); };
    const auto named = [&](int number, qint64 size) {
        QByteArray bytes = font;
        bytes.replace(FontMaker::kFamily.toLatin1(), family(number).toLatin1());
        bytes.replace(BigEndian(FontMaker::kFamily), BigEndian(family(number)));
        return bytes + QByteArray(size - bytes.size(), '\0');
    };
    constexpr qint64 kTwentyMegabytes = qint64(20) << 20;
    for (int i = 0; i < 6; ++i)
        WriteFile(QStringLiteral("%1.ttf").arg(i), named(i, i < 5 ? kTwentyMegabytes : font.size()));
    for (int time = 0; time < 2; ++time) {
        FontFiles::UseFolder(folder.path());
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(FontFiles::IsKnown(family(i)), i < 3 || i == 5) << i << ", time " << time;
    }
    QFontDatabase::removeAllApplicationFonts();
    FontFace::ForgetAll();
}

} // namespace
