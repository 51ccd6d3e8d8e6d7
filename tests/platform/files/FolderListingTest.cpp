// SPDX-License-Identifier: MIT
#include "platform/files/FolderListing.h"

#include "support/TestFixture.h"

#include <QDir>
#include <QLocale>

namespace {

class FolderListingTest : public TavloraTest {
protected:
    ~FolderListingTest() override { QLocale::setDefault(QLocale::system()); }
    QStringList Files(const QStringList& patterns = {QStringLiteral("*")}) const {
        QString error;
        return FolderListing::Files(folder.path(), patterns, error).value_or(QStringList());
    }
};

TEST_F(FolderListingTest, NamesStandAsAPersonCountsThemInWhateverLanguage) {
    for (const char* name : {"cat 10.png", "Dog.png", "cat 2.png", "Cat 1.png", "apple.jpg"})
        WriteFile(QString::fromLatin1(name), "a picture");
    const QStringList sorted{QStringLiteral("apple.jpg"), QStringLiteral("Cat 1.png"), QStringLiteral("cat 2.png"),
                             QStringLiteral("cat 10.png"), QStringLiteral("Dog.png")};
    EXPECT_EQ(Files(), sorted) << "in that of this machine";
    for (const QLocale& language : {QLocale::c(), QLocale(QLocale::German), QLocale(QLocale::English)}) {
        QLocale::setDefault(language);
        EXPECT_EQ(Files(), sorted) << language.name().toStdString();
    }
}

TEST_F(FolderListingTest, FilesFitAPatternInAnyCaseAndFoldersAreNone) {
    WriteFile(QStringLiteral("a.PNG"), "a picture");
    WriteFile(QStringLiteral("b.txt"), "a letter");
    QDir(folder.path()).mkdir(QStringLiteral("c.png"));
    EXPECT_EQ(Files({QStringLiteral("*.png"), QStringLiteral("*.jpg")}), QStringList{QStringLiteral("a.PNG")});
    QString error;
    EXPECT_EQ(FolderListing::Folders(folder.path(), error), QStringList{QStringLiteral("c.png")});
}

TEST_F(FolderListingTest, WhatIsNoFolderIsToldApartFromAnEmptyOne) {
    QString error;
    EXPECT_EQ(FolderListing::Files(folder.path(), {QStringLiteral("*")}, error), QStringList());
    EXPECT_FALSE(FolderListing::Files(PathOf(QStringLiteral("gone")), {QStringLiteral("*")}, error));
    EXPECT_EQ(error, QStringLiteral("There is no such folder"));
    EXPECT_FALSE(FolderListing::Folders(WriteFile(QStringLiteral("file"), "no folder"), error));
}

} // namespace
