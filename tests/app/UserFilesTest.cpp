// SPDX-License-Identifier: MIT
// A whole session over a My Games that is full of pictures of the user's, which bear every name that the program uses.
#include "AppFixture.h"

#include "app/EditorWindows.h"
#include "kit/ConsoleSheets.h"
#include "kit/Sheets.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "support/PictureFiles.h"
#include "support/TestPrinter.h"
#include "support/Waiting.h"
#include "windows/pictures/DroppedFiles.h"

#include <QListWidget>
#include <QMap>
#include <QMimeData>
#include <QSlider>
#include <QTimer>

namespace {

// Names with a number in place of the sign, and how many of each there are.
struct Series {
    const char* sName;
    int iCount;
};
constexpr Series kWorkingNames[] = {{"Space%1.bmp", 28},
                                    {"Corner%1.bmp", 4},
                                    {"Money%1.bmp", 4},
                                    {"Token%1.bmp", 6},
                                    {"TempImage.bmp", 1},
                                    {"MoneyImage.bmp", 1},
                                    {"MoneyImage2.bmp", 1},
                                    {"SpaceImage.bmp", 1},
                                    {"CornerImage%1.bmp", 4},
                                    {"TokenBMP%1.bmp", 6},
                                    {"Side%1Image.bmp", 4},
                                    {"Rent%1Image.bmp", 28},
                                    {"BmpOneFullSpace.bmp", 1},
                                    {"BmpTitle.temp", 1},
                                    {"BmpSubtitle.temp", 1},
                                    {"BmpSubtitleRed.temp", 1},
                                    {"BmpSubtitleML.temp", 1},
                                    {"TempBMP%1.temp", 4},
                                    {"TempTextBMP%1.temp", 18},
                                    {"TempDeedBMP%1.temp", 28},
                                    {"TempNewsBMP%1.temp", 2},
                                    {"WhiteEllipse.dat", 1},
                                    {"Oval.bmp", 1}};

class UserFilesTest : public AppTest {
protected:
    UserFilesTest() {
        doors = &windows;
        Folders::PretendFreeBytes(1e12);
        qputenv("XDG_DATA_HOME", PathOf(QStringLiteral("data")).toLocal8Bit());
    }
    ~UserFilesTest() override {
        window.reset();
        Folders::PretendFreeBytes(-1);
        Screen::SetMousePointer(Screen::MousePointer::Default);
        qunsetenv("XDG_DATA_HOME");
    }

    /// A picture that is like no other of them.
    QByteArray OwnPicture() {
        QImage image = PictureFiles::Quarters(100, 100);
        image.setPixel(1, 1, qRgb(m_pictures % 256, m_pictures / 256, 77));
        ++m_pictures;
        return PictureFiles::Encoded(image, "bmp");
    }
    void Put(const QString& sName) {
        if (!m_theirs.contains(sName) && !QFileInfo::exists(InGames(sName))) m_theirs[sName] = OwnPicture();
        WriteFile(QStringLiteral("games/") + sName, m_theirs[sName]);
    }
    void PutEveryName() {
        for (const Series& series : kWorkingNames) {
            for (int i = 0; i < series.iCount; ++i) {
                QString name = QString::fromLatin1(series.sName);
                if (name.contains(u'%')) name = name.arg(i);
                for (const QString& spelling : {name, name.toLower(), name.toUpper()})
                    Put(spelling);
            }
        }
        // The program's own exact names of these are its own; other spellings aren't.
        for (const char* name : {"~AUTOSAVE.DAT", "~autosave.bak", "TAVLORA.LOG", "Tavlora.Ini", "town.GAM"})
            Put(QString::fromLatin1(name));
    }
    /// Every second picture of the game is one of these files, some of them under the piece's own name.
    void WriteGameThatUsesThem() {
        WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Desk"));
        QString text = QString::fromUtf8(ReadFile(InGames(QStringLiteral("Mine.gam"))));
        QStringList lines = text.split(QStringLiteral("\r\n"));
        const auto give = [&lines](int line, const QString& sPicture, int iTexts) {
            QString& record = lines[line];
            qsizetype at = record.indexOf(u'"');
            for (int quote = 1; quote < 2 * iTexts; ++quote)
                at = record.indexOf(u'"', at + 1);
            const qsizetype start = record.indexOf(u'"', at + 1);
            const qsizetype end = record.indexOf(u'"', start + 1);
            record.replace(start + 1, end - start - 1, sPicture);
        };
        constexpr int kSpaceLines = 3, kCornerLines = 31, kMoneyLines = 59, kTokenLines = 63;
        for (int i = 0; i < 28; ++i)
            give(kSpaceLines + i,
                 i % 2 ? QStringLiteral("Space%1.bmp").arg(i) : QStringLiteral("space%1.bmp").arg(27 - i), 1);
        for (int i = 0; i < 3; ++i)
            give(kCornerLines + i, QStringLiteral("CORNER%1.BMP").arg(i), 2);
        for (int i = 0; i < 4; ++i)
            give(kMoneyLines + i, QStringLiteral("Money%1.bmp").arg(i), 2);
        for (int i = 0; i < 6; ++i)
            give(kTokenLines + i, i % 2 ? QStringLiteral("Token%1.bmp").arg(i) : QStringLiteral("TempImage.bmp"), 1);
        WriteFile(QStringLiteral("games/Mine.gam"), lines.join(QStringLiteral("\r\n")).toUtf8());
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    }
    /// Types a name, chooses another picture for the space, crops it, and takes both.
    void EditASpace(const QString& sPicture) {
        WithModal("frmEditSpace", [this, sPicture](QWidget& editor) {
            WithModal("frmBrowse", [sPicture](QWidget& browser) {
                auto& list = *browser.findChild<QListWidget*>(QStringLiteral("filList"));
                const QList<QListWidgetItem*> found = list.findItems(sPicture, Qt::MatchExactly);
                ASSERT_EQ(found.size(), 1) << "a picture of the user's is offered whatever its name";
                for (int row = 0; row < list.count(); ++row)
                    list.setCurrentRow(row);
                list.setCurrentItem(found.front());
                ClickIn(browser, "cmdOK");
            });
            ClickIn(editor, "cmdBitmap");
            WithModal("frmImagePosition", [](QWidget& crop) {
                crop.findChild<QSlider*>(QStringLiteral("sldZoom"))->setValue(5);
                ClickIn(crop, "cmdOK");
            });
            ClickIn(editor, "cmdCropImage");
            ClickIn(editor, "cmdOK");
        });
        window->EditSpaceText(5);
    }
    void LookAtTokensAndNotes() {
        WithModal("frmShowTokens", [this](QWidget& gallery) {
            WithModal("frmEditToken", [](QWidget& token) { ClickIn(token, "cmdOK"); });
            QTest::mouseClick(gallery.findChild<QWidget*>(QStringLiteral("picToken_1")), Qt::LeftButton);
            ClickIn(gallery, "cmdOK");
        });
        window->EditToken();
        WithModal("frmEditMoney", [](QWidget& money) { ClickIn(money, "cmdOK"); });
        window->EditMoney();
    }
    void PrintEverySheet() {
        int sheets = 0;
        // Some of these pictures are too coarse for some of the sheets, which the program asks about.
        QTimer anyway;
        anyway.callOnTimeout([] {
            QWidget* const question = QApplication::activeModalWidget();
            if (question && question->objectName() == u"frmBeforePrint") ClickIn(*question, "cmdPrintAnyway");
        });
        anyway.start(10);
        for (const Sheet& sheet : Sheets()) {
            WithModal("frmTavlPrint", [this, &sheet](QWidget& console) {
                WithModal("frmPrntPrep", [](QWidget& paper) { ClickIn(paper, "cmd_2"); });
                ClickIn(console, qPrintable(QStringLiteral("cmdNav_%1").arg(int(*sheet.frame))));
                ClickIn(console, qPrintable(QStringLiteral("cmdPrint_%1").arg(sheet.iButton)));
                if (console.isVisible()) ClickIn(console, "cmdCancel");
            });
            ClickButton(3);
            EXPECT_EQ(printer.ended.size(), ++sheets) << sheet.sName << desktop.Texts().join(u'\n').toStdString();
        }
    }
    void ExpectTheirs(const char* when) {
        for (auto file = m_theirs.cbegin(); file != m_theirs.cend(); ++file)
            EXPECT_EQ(ReadFile(InGames(file.key())), file.value()) << file.key().toStdString() << ' ' << when;
    }
    void ExpectTheirsUntouched(const char* when) {
        ExpectTheirs(when);
        std::cout << "[ COMPARED ] " << m_theirs.size() << " files " << when << '\n';
        EXPECT_FALSE(QFileInfo::exists(PathOf(QStringLiteral("data/Trash")))) << when;
        EXPECT_FALSE(HasFile(QStringLiteral("Removed"))) << when;
    }

    TestPrinter printer;
    EditorWindows windows;

private:
    QMap<QString, QByteArray> m_theirs;
    int m_pictures = 0;
};

TEST_F(UserFilesTest, NothingOfTheUsersIsEverOverwrittenDeletedOrMoved) {
    PutEveryName();
    WriteGameThatUsesThem();
    Start();
    EXPECT_EQ(desktop.Texts(), QStringList());
    ExpectTheirsUntouched("after the start");
    ASSERT_EQ(basTAVL::g_oSpaces(5).Image.FullPath(), InGames(QStringLiteral("Space5.bmp")));
    ASSERT_EQ(basTAVL::g_oTokens(3).Image.FullPath(), InGames(QStringLiteral("Token3.bmp")));

    EditASpace(QStringLiteral("Corner3.bmp"));
    EXPECT_EQ(basTAVL::g_oSpaces(5).Image.FullPath(), InGames(QStringLiteral("Corner3.bmp")));
    const qint16 zoom = basTAVL::g_oSpaces(5).Image.Zoom();
    EXPECT_NE(zoom, 0);
    LookAtTokensAndNotes();
    ExpectTheirsUntouched("after the editors");

    ChooseMenu("mnuFile_3");
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    PrintEverySheet();
    ExpectTheirsUntouched("after printing");

    EXPECT_THROW(window->close(), ProgramEnded);
    ExpectTheirsUntouched("after the end");
    Start();
    EXPECT_EQ(basTAVL::g_oSpaces(5).Image.Zoom(), zoom);
    ExpectTheirsUntouched("after another start");
    EXPECT_EQ(desktop.Texts(), QStringList());
}

TEST_F(UserFilesTest, WhatIsDroppedPastedRescuedOrSavedAsAnotherTakesNobodysPlace) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Desk"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    for (const char* folderName : {"Pictures of Mine", "Removed", "Printed"})
        QDir(InGames(QString())).mkdir(QString::fromLatin1(folderName));
    for (const char* name : {"dog.png", "Rescued Mine.gam", "Rescued Mine 2.gam", "Pictures of Mine/Picture.png",
                             "Removed/dog.png", "Printed/dog.png", "Other.gam.bak", "Other.png"})
        Put(QString::fromLatin1(name));
    Start();
    Session& session = window->Commands().InHand();

    QDir(folder.path()).mkdir(QStringLiteral("gone tomorrow"));
    const QString mailed = WriteFile(QStringLiteral("gone tomorrow/dog.png"), OwnPicture());
    EXPECT_TRUE(DroppedFiles::LayOnto(session, {mailed}, {PictureOwner::Kind::Space, 5}));
    EXPECT_EQ(basTAVL::g_oSpaces(5).Image.FullPath(), InGames(QStringLiteral("dog(1).png")));
    QMimeData copied;
    copied.setImageData(PictureFiles::Quarters(30, 30));
    const QStringList pasted = DroppedFiles::FilesOf(copied, session.GameName());
    EXPECT_EQ(pasted, QStringList{InGames(QStringLiteral("Pictures of Mine/Picture(1).png"))});
    EXPECT_TRUE(DroppedFiles::LayOnto(session, pasted, {PictureOwner::Kind::Space, 6}));
    ExpectTheirs("after a drop and a paste");

    Files::SetFaultHook([](Files::Operation operation, const QString& path) {
        const bool hit = operation == Files::Operation::OpenWrite && path.endsWith(QStringLiteral("/Mine.gam"));
        return hit ? std::optional(QStringLiteral("Permission denied")) : std::nullopt;
    });
    EXPECT_FALSE(session.Save());
    session.SetSomethingChanged(false);
    Files::SetFaultHook({});
    EXPECT_TRUE(HasFile(QStringLiteral("Rescued Mine 3.gam")));
    ExpectTheirs("after a rescue");

    session.SetGameName(InGames(QStringLiteral("Other.gam")));
    EXPECT_TRUE(session.Save());
    ExpectTheirs("after a save under another name");
}

class AwayTest : public AppTest {
protected:
    /// A game with a picture in a folder that isn't there.
    void StartWithoutTheDog() {
        WriteGame(QStringLiteral("Ours.gam"), QStringLiteral("Desk"));
        QByteArray game = ReadFile(InGames(QStringLiteral("Ours.gam")));
        const QByteArray without = "4, \"Desk\", \"\", 0, 0, 0";
        ASSERT_TRUE(game.contains(without));
        game.replace(without, "4, \"Desk\", \"holiday/dog.png\", 50, 50, 1");
        WriteFile(QStringLiteral("games/Ours.gam"), game);
        Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("Ours.gam")));
    }
    void ComeBackToTheWindow() {
        QEvent event(QEvent::ActivationChange);
        QApplication::sendEvent(window.get(), &event);
    }
    QImage Board() const { return window->View().Board().Image().copy(); }
    void BringTheDog() const {
        QDir(InGames(QString())).mkdir(QStringLiteral("holiday"));
        QImage dog(100, 100, QImage::Format_RGB32);
        dog.fill(Qt::red);
        WriteFile(QStringLiteral("games/holiday/dog.png"), PictureFiles::Encoded(dog, "png"));
    }
};

TEST_F(AwayTest, APictureShowsAgainWhenItsFolderIsBack) {
    StartWithoutTheDog();
    ComeBackToTheWindow();
    const QImage board = Board();
    const qsizetype told = desktop.boxes.size();
    BringTheDog();
    ComeBackToTheWindow();
    EXPECT_TRUE(Comes([&] { return Board() != board; }));
    EXPECT_EQ(basTAVL::g_oSpaces(4).Image.Zoom(), 1);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_EQ(desktop.boxes.size(), told);
}

// A stick is brought while the window stays in front: nothing tells it but its own looking.
TEST_F(AwayTest, APictureShowsAgainByItselfWhileTheWindowStaysInFront) {
    StartWithoutTheDog();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const QImage board = Board();
    BringTheDog();
    EXPECT_TRUE(Comes([&] { return Board() != board; }));
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

} // namespace
