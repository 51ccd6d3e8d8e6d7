// SPDX-License-Identifier: MIT
#include "pack/PackNames.h"

#include "support/TestFixture.h"

namespace {

QString Many(int count, const QString& part) { return part.repeated(count); }

} // namespace

TEST(PackNamesTest, NamesInManyScriptsStayAsTheyAre) {
    for (const char* name :
         {"Großmutter.jpg", "Żółw.png", "Ёлка.jpg", "Παππούς.jpg", "ילד.jpg", "جدة.jpg", "दादी.jpg", "ยาย.jpg",
          "おばあちゃん.jpg", "奶奶.jpg", "할머니.jpg", "Bà nội.jpg", "տատիկ.jpg", "ბებია.jpg", "😀🎲.jpg"}) {
        const QString text = QString::fromUtf8(name);
        EXPECT_EQ(PackNames::FileName(text), text);
        EXPECT_TRUE(PackNames::IsSafe(QStringLiteral("Pictures/") + text)) << name;
    }
}

TEST(PackNamesTest, WhatADesktopWontTakeIsReplaced) {
    const struct {
        const char* wanted;
        const char* name;
    } rows[] = {{"a:b?.jpg", "a_b_.jpg"},
                {"\"x\" <y>.jpg", "_x_ _y_.jpg"},
                {"CON", "_CON"},
                {"nul.jpg", "_nul.jpg"},
                {".hidden.jpg", "hidden.jpg"},
                {"end. . ", "end"},
                {"...", "_"},
                {"", "_"},
                {"tab\there.jpg", "tab_here.jpg"},
                {"gpj.\xE2\x80\xAE"
                 "exe",
                 "gpj._exe"}};
    for (const auto& row : rows) {
        const QString name = PackNames::FileName(QString::fromUtf8(row.wanted));
        EXPECT_EQ(name, QString::fromUtf8(row.name));
        EXPECT_TRUE(PackNames::IsSafe(name)) << row.wanted;
    }
}

TEST(PackNamesTest, ALongNameIsCutAndKeepsItsEnding) {
    for (const QString& part : {QStringLiteral("x"), QStringLiteral("奶"), QStringLiteral("😀")}) {
        const QString name = PackNames::FileName(Many(300, part) + QStringLiteral(".jpeg"));
        EXPECT_TRUE(name.endsWith(part + QStringLiteral(".jpeg")));
        EXPECT_LE(name.toUtf8().size(), 180);
        EXPECT_GT(name.toUtf8().size(), 170);
        EXPECT_TRUE(PackNames::IsSafe(name));
    }
}

// A folder of such a name in My Games would stand in the way of the file, or be taken for the program's own.
TEST(PackNamesTest, AGameNamedLikeSomethingOfTheProgramsGetsAFolderOfAnotherName) {
    for (const char* name :
         {"~AutoSave.dat", "~AUTOSAVE.BAK", "~autosave.dat.new", "tavlora.log", "Tavlora.Ini", "tavlora", "printed",
          "Printed", "Removed", "Earlier Versions", "EARLIER VERSIONS", "Space3.bmp", "TempImage.bmp"}) {
        const QString text = QString::fromLatin1(name);
        EXPECT_EQ(PackNames::FolderName(text), u'_' + text);
    }
    for (const char* name : {"Printed 2", "Our Removed Game", "Tavlora at Home", "AutoSave", "Space", "_~AutoSave.dat"})
        EXPECT_EQ(PackNames::FolderName(QString::fromLatin1(name)), QString::fromLatin1(name));
}

TEST(PackNamesTest, SixtyPicturesOfOneNameGetSixtyNames) {
    QSet<QString> taken;
    QStringList entries;
    for (int i = 0; i < 60; ++i) {
        const QString name = i % 2 == 0 ? QStringLiteral("/%1/IMG.JPG") : QStringLiteral("C:\\%1\\img.jpg");
        entries.append(PackNames::EntryFor(QStringLiteral("Pictures/"), name.arg(i), taken));
    }
    EXPECT_EQ(entries[0], QStringLiteral("Pictures/IMG.JPG"));
    EXPECT_EQ(entries[1], QStringLiteral("Pictures/img 2.jpg")) << "another only by case";
    EXPECT_EQ(entries[59], QStringLiteral("Pictures/img 60.jpg"));
    QSet<QString> keys;
    for (const QString& entry : entries)
        keys.insert(PackNames::Key(entry));
    EXPECT_EQ(keys.size(), 60);
}

TEST(PackNamesTest, ComposedAndDecomposedLettersAreOneName) {
    EXPECT_EQ(PackNames::Key(QStringLiteral("\u00C4.jpg")), PackNames::Key(QStringLiteral("a\u0308.jpg")));
    EXPECT_NE(PackNames::Key(QStringLiteral("a.jpg")), PackNames::Key(QStringLiteral("b.jpg")));
}

TEST(PackNamesTest, NamesThatLeadElsewhereAreNotSafe) {
    for (const char* entry : {"../x.jpg",
                              "Pictures/../../x.jpg",
                              "Pictures/..",
                              "/etc/passwd",
                              "//server/x",
                              "C:/x.jpg",
                              "c:x.jpg",
                              "\\x.jpg",
                              "Pictures\\x.jpg",
                              "..\\x.jpg",
                              "",
                              "/",
                              "Pictures//x.jpg",
                              "Pictures/./x.jpg",
                              "Pictures/x.jpg.",
                              "Pictures/x.jpg ",
                              "NUL",
                              "Pictures/aux.jpg",
                              "Pictures/COM1",
                              "a\nb",
                              "x.jpg:stream",
                              "Pictures/.hidden",
                              "a*b"})
        EXPECT_FALSE(PackNames::IsSafe(QString::fromLatin1(entry))) << entry;
    EXPECT_FALSE(PackNames::IsSafe(Many(500, QStringLiteral("x"))));
    EXPECT_FALSE(PackNames::IsSafe(Many(300, QStringLiteral("abcdef/")) + u'x'));
    for (const char* entry : {"mimetype", "Family.gam", "Pictures/x.jpg", "Pictures/", "a.b.c/d e.f", "console.jpg"})
        EXPECT_TRUE(PackNames::IsSafe(QString::fromLatin1(entry))) << entry;
}
