// SPDX-License-Identifier: MIT
#include "windows/sending/frmSendGame.h"

#include "pack/PackReader.h"
#include "platform/files/Files.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"
#include "support/Waiting.h"
#include "windows/sending/SendTexts.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

class SendGameTest : public TavloraTest {
protected:
    SendGameTest() {
        contents.sName = QStringLiteral("Family");
        contents.lines = {QStringLiteral("\"TavloraGameBoard\", 8.0.0, Family.gam")};
        contents.board = "a picture";
    }
    void AddPhotos(int count) {
        QImage photo(1600, 1200, QImage::Format_RGB32);
        for (int y = 0; y < 1200; ++y) {
            for (int x = 0; x < 1600; ++x)
                photo.setPixel(x, y, qRgb(x * 7 & 0xFF, y * 5 & 0xFF, (x ^ y) & 0xFF));
        }
        const QByteArray bytes = PictureFiles::Encoded(photo, "JPEG");
        for (int i = 0; i < count; ++i) {
            const QString path = WriteFile(QStringLiteral("%1.jpg").arg(i), bytes);
            const QString entry = QStringLiteral("Pictures/%1.jpg").arg(i);
            contents.lines.append(QStringLiteral("x"));
            contents.pictures.append({path, entry, bytes.size(), {}, std::nullopt});
        }
    }
    void AnswerDialog(const QString& path) {
        desktop.onDialog = [this, path](CommonDialog& dialog) {
            asked = dialog;
            dialog.sFileName = path;
            return !path.isEmpty();
        };
    }
    static void Click(QWidget& window, const char* name) {
        QTest::mouseClick(window.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    static QString TextOf(QWidget& window, const char* name) {
        return window.findChild<QLabel*>(QLatin1String(name))->text();
    }
    Packing::Contents contents;
    CommonDialog asked;
    ModalSteps steps;
    const QString packed = PathOf(QStringLiteral("Family.tavlora"));
};

TEST_F(SendGameTest, SizesAreToldInShortNumbers) {
    EXPECT_EQ(SendTexts::Size(0), QStringLiteral("1 KB"));
    EXPECT_EQ(SendTexts::Size(850 * 1024), QStringLiteral("850 KB"));
    EXPECT_EQ(SendTexts::Size(3'565'158), QStringLiteral("3.4 MB"));
    EXPECT_EQ(SendTexts::Size(qint64(104) << 20), QStringLiteral("104 MB"));
}

TEST_F(SendGameTest, WhatGoesInAndWhatStaysIsTold) {
    EXPECT_EQ(SendTexts::GoesIn(contents),
              QStringLiteral("The game 'Family' goes into one file, with its texts and a picture of the board."));
    EXPECT_EQ(SendTexts::StaysBehind(contents), QString());
    AddPhotos(2);
    using Standing = PackFonts::Use::Standing;
    contents.fonts = {{QStringLiteral("Quill"), Standing::GoesAlong, {}},
                      {QStringLiteral("Bought"), Standing::StaysBehind, {}},
                      {QStringLiteral("Gone"), Standing::NotHere, {}}};
    contents.missing = {QStringLiteral("/far/a.jpg")};
    EXPECT_EQ(SendTexts::GoesIn(contents),
              QStringLiteral("The game 'Family' goes into one file, with its texts, 2 pictures, the font 'Quill' and a "
                             "picture of the board."));
    EXPECT_EQ(SendTexts::StaysBehind(contents),
              QStringLiteral("One picture is missing, and your friend will see empty places: a.jpg.\n"
                             "Your friend needs the font 'Bought', too: nobody may pass it on but its maker.\n"
                             "The game names the font 'Gone', which this computer hasn't got."));
    for (const char* more : {"/b.jpg", "/c.jpg", "/d.jpg", "/e.jpg", "/f.jpg"})
        contents.missing.append(QString::fromLatin1(more));
    EXPECT_TRUE(SendTexts::StaysBehind(contents).startsWith(QStringLiteral(
        "6 pictures are missing, and your friend will see empty places: a.jpg, b.jpg, c.jpg, d.jpg and 2 more.")));
}

TEST_F(SendGameTest, TheFileIsWrittenWhereTheUserSays) {
    AddPhotos(1);
    contents.missing = {QStringLiteral("/far/gone.jpg")};
    AnswerDialog(packed);
    steps.OnceIn("frmSendGame", [](QWidget& window) {
        EXPECT_TRUE(TextOf(window, "lblGoesIn").contains(QStringLiteral("one picture")));
        EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("lblStaysBehind"))->toolTip(),
                  QStringLiteral("/far/gone.jpg"));
        Click(window, "cmdSaveAs");
    });
    EXPECT_TRUE(frmSendGame(contents, QStringLiteral("/docs")).ShowForm());
    EXPECT_EQ(asked.sFileName, QStringLiteral("Family.tavlora"));
    EXPECT_EQ(asked.sInitDir, QStringLiteral("/docs"));
    EXPECT_EQ(asked.sDefaultExt, QStringLiteral("tavlora"));
    QString error;
    const auto reader = PackReader::Open(ReadFile(packed), error);
    ASSERT_TRUE(reader) << error.toStdString();
    EXPECT_EQ(reader->GameName(), QStringLiteral("Family"));
    EXPECT_EQ(reader->Read(QStringLiteral("Pictures/0.jpg")), ReadFile(PathOf(QStringLiteral("0.jpg"))));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("'Family.tavlora' is ready to be sent. Your friend opens it in Tavlora.")});
}

TEST_F(SendGameTest, SmallerPicturesAreMadeWhileTheWindowStandsAndTheirSizeIsTold) {
    AddPhotos(3);
    for (Packing::Picture& picture : contents.pictures)
        picture.users = {{0, {PictureOwner::Kind::Space, 0}, {picture.sEntry, 0, 0, 0}}};
    contents.lines.first() = QStringLiteral("\"TavloraGameBoard\", 8.0.0, Family.gam");
    contents.pictures[0].users[0].iLine = 1;
    contents.pictures[1].users[0].iLine = 2;
    contents.pictures[2].users[0].iLine = 3;
    AnswerDialog(packed);
    steps.OnceIn("frmSendGame", [](QWidget& window) {
        auto* const smaller = window.findChild<QRadioButton*>(QStringLiteral("optSmaller"));
        EXPECT_TRUE(Comes([&] { return !smaller->text().contains(QStringLiteral("working")); }));
        EXPECT_TRUE(smaller->text().contains(QStringLiteral(" KB)"))) << smaller->text().toStdString();
        smaller->setChecked(true);
        Click(window, "cmdSaveAs");
    });
    EXPECT_TRUE(frmSendGame(contents, QString()).ShowForm());
    EXPECT_LT(Files::Size(packed), contents.PictureBytes() / 3);
}

TEST_F(SendGameTest, ACancelledDialogOrWindowWritesNothing) {
    AnswerDialog(QString());
    steps.OnceIn("frmSendGame", [](QWidget& window) {
        Click(window, "cmdSaveAs");
        EXPECT_TRUE(window.isVisible()) << "whoever gives up the name still has the window";
        Click(window, "cmdCancel");
    });
    EXPECT_FALSE(frmSendGame(contents, QString()).ShowForm());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SendGameTest, CancelAmidTheWritingStopsItAndLeavesTheOldFile) {
    AddPhotos(3);
    WriteFile(QStringLiteral("Family.tavlora"), "old");
    AnswerDialog(packed);
    steps.OnceIn("frmSendGame", [this](QWidget& window) {
        desktop.onPump = [&window] { Click(window, "cmdCancel"); };
        Click(window, "cmdSaveAs");
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(window.findChild<QPushButton*>(QStringLiteral("cmdSaveAs"))->isEnabled());
        Click(window, "cmdCancel");
    });
    EXPECT_FALSE(frmSendGame(contents, QString()).ShowForm());
    EXPECT_EQ(ReadFile(packed), QByteArray("old"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(SendGameTest, WhatCannotBeWrittenIsTold) {
    AnswerDialog(PathOf(QStringLiteral("nowhere/x.tavlora")));
    steps.OnceIn("frmSendGame", [](QWidget& window) {
        Click(window, "cmdSaveAs");
        Click(window, "cmdCancel");
    });
    EXPECT_FALSE(frmSendGame(contents, QString()).ShowForm());
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts()[0].startsWith(QStringLiteral("'x.tavlora' could not be written: ")));
}

} // namespace
