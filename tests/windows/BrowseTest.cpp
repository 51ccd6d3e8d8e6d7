// SPDX-License-Identifier: MIT
#include "BrowseFixture.h"
#include "support/Waiting.h"

#include "services/ProgramSettings.h"

#include <QPushButton>

TEST_F(BrowseTest, EveryControlHasItsNameAndCaption) {
    Browse(QString(), [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Image Browser"));
        for (const char* name : {"drvList", "dirList", "filList", "lblCurrentDirectory", "lblFullFilePath",
                                 "picBitMapArea", "shpBitMapArea", "cmdOK", "cmdCancel"})
            Find<QWidget>(window, name);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
}

TEST_F(BrowseTest, TheKindsOfPictureAreReadInFullOnASmallScreenToo) {
    Browse(QString(), [](QWidget& window) {
        const auto& filter = Find<QComboBox>(window, "cboFilter");
        EXPECT_GE(filter.width(), filter.sizeHint().width());
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, AnEmptyPathOpensInTheFolderHandedOver) {
    Picture(QStringLiteral("stick/cat.bmp"));
    Browse(
        QString(),
        [this](QWidget& window) {
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick")));
            EXPECT_EQ(Text(window, "lblFullFilePath"), QString());
            EXPECT_EQ(Find<QListWidget>(window, "filList").selectedItems().size(), 0);
            EXPECT_EQ(Find<QComboBox>(window, "drvList").currentText(), QStringLiteral("STICK"));
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("stick")));
}

TEST_F(BrowseTest, AnEmptyPathOpensInTheFolderUsedLast) {
    QDir(folder.path()).mkpath(QStringLiteral("cats"));
    Picture(QStringLiteral("cats/cat.bmp"));
    const auto choose = [](QWidget& window) { ClickFile(window, QStringLiteral("cat.bmp"), true); };
    Browse(QString(), choose, true, PathOf(QStringLiteral("cats")));
    EXPECT_EQ(frmBrowse::LastFolder(), PathOf(QStringLiteral("cats")));
    Browse(
        QString(),
        [this](QWidget& window) {
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("cats")));
            Click(window, "cmdCancel");
        },
        true, folder.path());
}

TEST_F(BrowseTest, ThePictureInUseIsSelectedWhateverItsCase) {
    Picture(QStringLiteral("Cat.bmp"));
    Browse(PathOf(QStringLiteral("cat.BMP")), [this](QWidget& window) {
        const auto& list = Find<QListWidget>(window, "filList");
        ASSERT_EQ(list.selectedItems().size(), 1);
        EXPECT_EQ(list.selectedItems().front()->text(), QStringLiteral("Cat.bmp"));
        EXPECT_EQ(Text(window, "lblFullFilePath"), PathOf(QStringLiteral("cat.BMP")));
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, AnArrowGoesToTheFirstPictureWhereNoneIsChosen) {
    Picture(QStringLiteral("ant.bmp"));
    Picture(QStringLiteral("bee.bmp"));
    Browse(
        QString(),
        [](QWidget& window) {
            auto& list = Find<QListWidget>(window, "filList");
            ASSERT_EQ(list.selectedItems().size(), 0);
            QTest::keyClick(&list, Qt::Key_Down);
            ASSERT_EQ(list.selectedItems().size(), 1);
            EXPECT_EQ(list.selectedItems().front()->text(), QStringLiteral("ant.bmp"));
            Click(window, "cmdCancel");
        },
        true, folder.path());
}

TEST_F(BrowseTest, APathThatCantBeUsedIsToldAndTheProgramsFolderOpens) {
    const QString gone = QStringLiteral("A:\\cats\\cat.bmp");
    const QString result = Browse(gone, [](QWidget& window) {
        EXPECT_EQ(Text(window, "lblCurrentDirectory"), Folders::ProgramDirectory());
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(result, gone);
    ASSERT_EQ(desktop.boxes.size(), 1);
    const QString text = desktop.boxes.front().sText;
    EXPECT_TRUE(
        text.startsWith(QStringLiteral("The following error was encountered while attempting to use file path '") +
                        gone + QStringLiteral("'.")));
    EXPECT_TRUE(text.endsWith(QStringLiteral("The system will use the application directory.")));
}

TEST_F(BrowseTest, ClickingAFileShowsItsPathAndAPreviewInProportion) {
    WriteFile(QStringLiteral("wide.bmp"), PictureFiles::Encoded(PictureFiles::Quarters(80, 40), "bmp"));
    Browse(QString(), [this](QWidget& window) {
        ClickFile(window, QStringLiteral("wide.bmp"));
        EXPECT_EQ(Text(window, "lblFullFilePath"), PathOf(QStringLiteral("wide.bmp")));
        const int side = Find<PictureBox>(window, "picBitMapArea").width();
        const auto arrived = [&] { return ColorAt(window, side / 4, side * 3 / 8) == Color::Rgb(255, 0, 0); };
        EXPECT_TRUE(Comes(arrived));
        EXPECT_EQ(ColorAt(window, side * 3 / 4, side * 3 / 8), Color::Rgb(0, 255, 0));
        EXPECT_EQ(ColorAt(window, side / 2, side / 8), Color::White()) << "bars above and below";
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, ADamagedPictureIsToldOnceAndTheDialogStays) {
    WriteFile(QStringLiteral("bad.jpg"), QByteArray("no picture at all"));
    Browse(QString(), [this](QWidget& window) {
        ClickFile(window, QStringLiteral("bad.jpg"));
        EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty(); }));
        EXPECT_TRUE(window.isVisible());
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(BrowseTest, WhatIsAnotherKindOfFileIsToldWithWhatToDo) {
    WriteFile(QStringLiteral("page.jpg"), QByteArray("%PDF-1.4 and so on"));
    Browse(QString(), [this](QWidget& window) {
        ClickFile(window, QStringLiteral("page.jpg"));
        EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty(); }));
        EXPECT_FALSE(Find<QPushButton>(window, "cmdOK").isEnabled());
        Click(window, "cmdCancel");
    });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts().first().contains(
        QStringLiteral("The file is a PDF document. Please save its page as a .jpg or .png picture and take that")))
        << desktop.Texts().first().toStdString();
}

TEST_F(BrowseTest, AGoodPictureBehindADamagedOneIsShownWithoutABox) {
    WriteFile(QStringLiteral("bad.jpg"), QByteArray("no picture at all"));
    Picture(QStringLiteral("good.bmp"));
    Picture(QStringLiteral("other.bmp"));
    Browse(QString(), [this](QWidget& window) {
        ClickFile(window, QStringLiteral("bad.jpg"));
        EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty(); }));
        for (const char* const name : {"good.bmp", "other.bmp"}) {
            Find<PictureBox>(window, "picBitMapArea").Cls();
            ClickFile(window, QString::fromLatin1(name));
            EXPECT_TRUE(Comes([&] { return ColorAt(window, 20, 20) == Color::Rgb(255, 0, 0); }));
        }
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(BrowseTest, AFolderIsNoPictureEvenOnAScreenOfOtherDots) {
    Browse(QString(), [this](QWidget& window) {
        OpenFolder(window, QStringLiteral("stick"));
        PictureBox::PretendPixelRatio(2);
        auto& preview = Find<PictureBox>(window, "picBitMapArea");
        preview.resize(preview.size() + QSize(1, 1));
        Q_EMIT preview.BackingChanged();
        PictureBox::PretendPixelRatio(0);
        EXPECT_TRUE(desktop.boxes.isEmpty());
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, APhotographThatWasRenamedToBeABitmapIsShownAndStays) {
    const QByteArray bytes = PictureFiles::Encoded(PictureFiles::Quarters(40, 40), "png");
    const QString path = WriteFile(QStringLiteral("photo.bmp"), bytes);
    Browse(QString(), [](QWidget& window) {
        ClickFile(window, QStringLiteral("photo.bmp"));
        EXPECT_TRUE(Comes([&] { return ColorAt(window, 20, 20) == Color::Rgb(255, 0, 0); }));
        EXPECT_TRUE(FilesIn(window).contains(QStringLiteral("photo.bmp")));
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(ReadFile(path), bytes);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(BrowseTest, WhatOnlyClaimsToBeABitmapIsToldAndStays) {
    const QString path = WriteFile(QStringLiteral("false.bmp"), "Dear Anna,");
    Browse(QString(), [this](QWidget& window) {
        ClickFile(window, QStringLiteral("false.bmp"));
        EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty(); }));
        EXPECT_TRUE(FilesIn(window).contains(QStringLiteral("false.bmp")));
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(ReadFile(path), QByteArray("Dear Anna,"));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts().first().contains(QStringLiteral("could not be loaded")));
}

TEST_F(BrowseTest, APictureThatIsGoneWhenItIsLookedAtLeavesTheList) {
    const QString path = Picture(QStringLiteral("brief.bmp"));
    Browse(QString(), [this, path](QWidget& window) {
        desktop.onBox = [path] { QFile::remove(path); };
        WriteFile(QStringLiteral("brief.bmp"), "no picture any more");
        ClickFile(window, QStringLiteral("brief.bmp"));
        EXPECT_TRUE(Comes([&] { return !FilesIn(window).contains(QStringLiteral("brief.bmp")); }));
        Click(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(desktop.Texts().last(), QStringLiteral("Please select a file before clicking OK"));
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, OkWithoutAFileAsksForOne) {
    Browse(QString(), [this](QWidget& window) {
        Click(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Please select a file before clicking OK")});
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, CancelEscapeAndTheCloseButtonGiveBackTheOldPath) {
    const QString old = Picture(QStringLiteral("old.bmp"));
    Picture(QStringLiteral("new.bmp"));
    for (const auto& leave :
         std::initializer_list<ModalSteps::Step>{[](QWidget& window) { Click(window, "cmdCancel"); },
                                                 [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); },
                                                 [](QWidget& window) { window.close(); }}) {
        const QString path = Browse(old, [&leave](QWidget& window) {
            ClickFile(window, QStringLiteral("new.bmp"));
            leave(window);
        });
        EXPECT_EQ(path, old);
    }
}

TEST_F(BrowseTest, ADoubleClickTakesThePicture) {
    const QString picture = Picture(QStringLiteral("cat.bmp"));
    EXPECT_EQ(Browse(QString(), [](QWidget& window) { ClickFile(window, QStringLiteral("cat.bmp"), true); }), picture);
}

TEST_F(BrowseTest, AFolderOpensByDoubleClickEnterAndBackspace) {
    Picture(QStringLiteral("stick/sub/cat.bmp"));
    Browse(
        QString(),
        [this](QWidget& window) {
            OpenFolder(window, QStringLiteral("sub"));
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick/sub")));
            EXPECT_EQ(Text(window, "lblFullFilePath"), PathOf(QStringLiteral("stick/sub")));
            EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("cat.bmp")});
            auto& tree = Find<QTreeWidget>(window, "dirList");
            QTest::keyClick(&tree, Qt::Key_Backspace);
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick")));
            QTest::keyClick(&tree, Qt::Key_Down);
            QTest::keyClick(&tree, Qt::Key_Return);
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick/sub")));
            EXPECT_TRUE(desktop.boxes.isEmpty()) << "Enter didn't press OK";
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("stick")));
}

TEST_F(BrowseTest, AChosenPlaceOpensItsRoot) {
    Browse(QString(), [this](QWidget& window) {
        ChoosePlace(window, QStringLiteral("STICK"));
        EXPECT_EQ(Text(window, "lblCurrentDirectory"), PathOf(QStringLiteral("stick")));
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, AllPicturesIsChosenFirstAndAnotherChoiceIsKept) {
    const QString png =
        WriteFile(QStringLiteral("cat.png"), PictureFiles::Encoded(PictureFiles::Quarters(8, 8), "png"));
    const QString bmp = Picture(QStringLiteral("dog.bmp"));
    Browse(QString(), [](QWidget& window) {
        auto& filter = Find<QComboBox>(window, "cboFilter");
        EXPECT_EQ(filter.currentText(), QStringLiteral("All pictures"));
        EXPECT_EQ(FilesIn(window), (QStringList{QStringLiteral("cat.png"), QStringLiteral("dog.bmp")}));
        filter.setFocus();
        QTest::keyClick(&filter, Qt::Key_Up);
        EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("dog.bmp")});
        Click(window, "cmdCancel");
    });
    for (const QString& inUse : {QString(), bmp}) {
        Browse(inUse, [](QWidget& window) {
            EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("dog.bmp")});
            Click(window, "cmdCancel");
        });
    }
    EXPECT_EQ(Browse(png, [](QWidget& window) { Click(window, "cmdOK"); }), png) << "the picture in use is listed";
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(BrowseTest, MetafilesAreOfferedOnlyWhereTheyAreAllowed) {
    WriteFile(QStringLiteral("drawing.WMF"), QByteArray("x"));
    Browse(QString(), [](QWidget& window) {
        EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("drawing.WMF")});
        Click(window, "cmdCancel");
    });
    Browse(
        QString(),
        [](QWidget& window) {
            EXPECT_EQ(FilesIn(window), QStringList());
            Click(window, "cmdCancel");
        },
        false);
}

TEST_F(BrowseTest, ACopyFromAnotherVolumeIsUsedAndTold) {
    const QString original = Picture(QStringLiteral("stick/cat.jpg"));
    const QString path = Browse(
        QString(), [](QWidget& window) { ClickFile(window, QStringLiteral("cat.jpg"), true); }, true,
        PathOf(QStringLiteral("stick")));
    EXPECT_EQ(path, PathOf(QStringLiteral("cat.jpg")));
    EXPECT_EQ(ReadFile(path), ReadFile(original));
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral(
                                   "This image was not on your primary local hard drive, so the system has copied "
                                   "it to your 'My Games' directory. Tavlora will use the copy in case the "
                                   "original becomes unavailable.")});
}

TEST_F(BrowseTest, ACopyThatFailsIsToldAndTheDialogStays) {
    const QString original = Picture(QStringLiteral("stick/cat.jpg"));
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation != Files::Operation::Copy) return std::nullopt;
        return QStringLiteral("The cable was pulled");
    });
    const QString path = Browse(
        QString(),
        [](QWidget& window) {
            ClickFile(window, QStringLiteral("cat.jpg"), true);
            EXPECT_TRUE(window.isVisible());
            Folders::PretendFreeBytes(10);
            Click(window, "cmdOK");
            EXPECT_TRUE(window.isVisible());
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("stick")));
    EXPECT_EQ(path, QString());
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].iStyle, vbInformation);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("The following error occurred while \r\nattempting to copy the file \r\nnamed '") +
                  original + QStringLiteral("' to '") + PathOf(QStringLiteral("cat.jpg")) +
                  QStringLiteral("'.\r\n\r\nThe cable was pulled\r\n\r\nPlease correct this problem and try again."));
    EXPECT_EQ(desktop.boxes[1].iStyle, vbInformation);
    EXPECT_EQ(desktop.boxes[1].sText, QStringLiteral("We are unable to process files because your disk is full.\r\n"
                                                     "Please make some space on your disk and try again."));
}

TEST_F(BrowseTest, Edge_OnAScreenOfFewColorsAJpegIsNotListed) {
    Picture(QStringLiteral("cat.jpg"));
    Picture(QStringLiteral("dog.bmp"));
    Screen::PretendBitsPerPixel(8);
    Browse(QString(), [](QWidget& window) {
        EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("dog.bmp")});
        Click(window, "cmdCancel");
    });
    Screen::PretendBitsPerPixel(24);
    Browse(QString(), [](QWidget& window) {
        EXPECT_EQ(FilesIn(window), (QStringList{QStringLiteral("cat.jpg"), QStringLiteral("dog.bmp")}));
        Click(window, "cmdCancel");
    });
}

TEST_F(BrowseTest, Edge_ThePictureAlreadyInUseIsTakenWithoutACopyFromAnyDrive) {
    const QString inUse = Picture(QStringLiteral("stick/cat.bmp"));
    EXPECT_EQ(Browse(inUse, [](QWidget& window) { Click(window, "cmdOK"); }), inUse);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_FALSE(Files::Exists(PathOf(QStringLiteral("cat.bmp"))));
}

TEST_F(BrowseTest, Edge_CopiesWithATakenNameAreNumberedAndTheBoxNamesThem) {
    Picture(QStringLiteral("cat.bmp"), 10);
    const QString original = Picture(QStringLiteral("stick/cat.bmp"), 20);
    for (const QString& name : {QStringLiteral("cat(1).bmp"), QStringLiteral("cat(2).bmp")}) {
        desktop.boxes.clear();
        const QString path = Browse(
            QString(), [](QWidget& window) { ClickFile(window, QStringLiteral("cat.bmp"), true); }, true,
            PathOf(QStringLiteral("stick")));
        EXPECT_EQ(path, PathOf(name));
        EXPECT_EQ(ReadFile(path), ReadFile(original));
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_TRUE(desktop.boxes[0].sText.endsWith(
            QStringLiteral("\r\n\r\nBecause the file name was already in use, it has been renamed to '") + name));
    }
}

TEST_F(BrowseTest, Edge_APictureOnTheGamesDriveStaysWhereItIs) {
    // In a folder of the games' one, and in a folder beside it.
    for (const QString& games : {folder.path(), PathOf(QStringLiteral("games"))}) {
        SCOPED_TRACE(games.toStdString());
        QDir(folder.path()).mkpath(QStringLiteral("games"));
        QDir(folder.path()).mkpath(QStringLiteral("cats"));
        Settings().sMyGamesDirectory = games;
        const QString picture = Picture(QStringLiteral("cats/cat.bmp"));
        const QString path = Browse(
            QString(),
            [](QWidget& window) {
                ClickFile(window, QStringLiteral("cat.bmp"));
                Click(window, "cmdOK");
            },
            true, PathOf(QStringLiteral("cats")));
        EXPECT_EQ(path, picture);
        EXPECT_TRUE(desktop.boxes.isEmpty());
        EXPECT_FALSE(Files::Exists(games + QStringLiteral("/cat.bmp")));
    }
}

TEST_F(BrowseTest, Edge_AFileInTheRootGetsNoSecondSeparator) {
    // The root of the machine is no place to write a picture to, so its name is put into the list by hand.
    Folders::PretendVolumes({{QStringLiteral("/"), QStringLiteral("debian")}});
    Browse(QString(), [](QWidget& window) {
        ChoosePlace(window, QStringLiteral("Computer"));
        EXPECT_EQ(Text(window, "lblCurrentDirectory"), QStringLiteral("/"));
        Find<QListWidget>(window, "filList").addItem(QStringLiteral("cat.bmp"));
        ClickFile(window, QStringLiteral("cat.bmp"));
        EXPECT_EQ(Text(window, "lblFullFilePath"), QStringLiteral("/cat.bmp"));
        OpenFolder(window, QStringLiteral("tmp"));
        EXPECT_EQ(Text(window, "lblFullFilePath"), QStringLiteral("/tmp"));
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(BrowsePlaces::FileIn(QStringLiteral("/"), QStringLiteral("cat.bmp")), QStringLiteral("/cat.bmp"));
    EXPECT_EQ(BrowsePlaces::FileIn(QStringLiteral("C:\\"), QStringLiteral("cat.bmp")), QStringLiteral("C:\\cat.bmp"));
    EXPECT_EQ(BrowsePlaces::FileIn(QStringLiteral("C:\\cats"), QStringLiteral("cat.bmp")),
              QStringLiteral("C:\\cats\\cat.bmp"));
}

TEST_F(BrowseTest, Edge_ADriveWithoutADiskIsToldAndTheListGoesBack) {
    Browse(
        QString(),
        [this](QWidget& window) {
            ChoosePlace(window, QStringLiteral("FLOPPY"));
            EXPECT_EQ(Find<QComboBox>(window, "drvList").currentText(), QStringLiteral("My Games"));
            EXPECT_EQ(Text(window, "lblCurrentDirectory"), folder.path());
            EXPECT_TRUE(window.isVisible());
            Click(window, "cmdCancel");
        },
        true, PathOf(QStringLiteral("stick")));
    EXPECT_EQ(
        desktop.Texts(),
        QStringList{QStringLiteral("No device can be found at disk drive '") + PathOf(QStringLiteral("floppy")) +
                    QStringLiteral("'. If this is a drive for a removable disk, please be sure there is a disk in "
                                   "the drive. Otherwise, please try another disk drive.")});
}
