// SPDX-License-Identifier: MIT
#include "pictures/SeenPictures.h"

#include "support/TestFixture.h"

#include <QFile>

namespace {

class SeenPicturesTest : public TavloraTest {
protected:
    // One line for each picture that is kept.
    static qsizetype Kept() { return ReadFile(SeenPictures::Path()).split('\n').size(); }

    const QString cat = WriteFile(QStringLiteral("our cat.jpg"), "meow");
    const QString dog = WriteFile(QStringLiteral("dog.jpg"), "woof, woof");
};

TEST_F(SeenPicturesTest, DateAndSizeOfWhatWasSeenAreKept) {
    EXPECT_EQ(SeenPictures::Of(cat), Files::Stamp());
    SeenPictures::Note({cat, dog});
    EXPECT_EQ(SeenPictures::Of(cat), Files::StampOf(cat));
    EXPECT_EQ(SeenPictures::Of(cat).size, 4);
    EXPECT_EQ(SeenPictures::Of(dog).size, 10);
    EXPECT_EQ(SeenPictures::Of(PathOf(QStringLiteral("cat.jpg"))), Files::Stamp());
    EXPECT_EQ(Kept(), 2);
}

TEST_F(SeenPicturesTest, OneThatChangedIsKnownByItsNewSizeOnly) {
    SeenPictures::Note({cat, dog});
    WriteFile(QStringLiteral("our cat.jpg"), "purr, purr");
    SeenPictures::Note({cat});
    EXPECT_EQ(SeenPictures::Of(cat).size, 10);
    EXPECT_EQ(Kept(), 2);
}

TEST_F(SeenPicturesTest, OneThatIsAwayStaysKnown) {
    SeenPictures::Note({cat});
    const Files::Stamp before = SeenPictures::Of(cat);
    QFile::remove(cat);
    SeenPictures::Note({cat, dog});
    EXPECT_EQ(SeenPictures::Of(cat), before);
    EXPECT_EQ(Kept(), 2);
}

TEST_F(SeenPicturesTest, NothingNewIsNotWritten) {
    SeenPictures::Note({cat});
    QFile::remove(SeenPictures::Path());
    SeenPictures::Note({cat});
    EXPECT_EQ(Kept(), 1);
    Files::SetFaultHook([](Files::Operation, const QString&) { return std::optional(QStringLiteral("no")); });
    SeenPictures::Note({cat});
    Files::SetFaultHook({});
    EXPECT_EQ(SeenPictures::Of(cat).size, 4) << "the file stayed";
}

TEST_F(SeenPicturesTest, LinesThatAreNoneAreLeftOut) {
    SeenPictures::Note({cat});
    QFile file(SeenPictures::Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("1 2\nx 5 /a.jpg\n7 y /b.jpg\n\n8 9 /with blanks.jpg");
    file.close();
    EXPECT_EQ(SeenPictures::Of(QStringLiteral("/a.jpg")), Files::Stamp());
    EXPECT_EQ(SeenPictures::Of(QStringLiteral("/b.jpg")), Files::Stamp());
    EXPECT_EQ(SeenPictures::Of(QStringLiteral("/with blanks.jpg")), (Files::Stamp{8, 9}));
}

} // namespace
