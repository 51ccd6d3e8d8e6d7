// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/pictures/LoadPicture.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windows/pictures/frmBrowse.h"

#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QTreeWidget>

/// My Games on one volume, a memory stick with pictures on another, and a drive without a disk.
class BrowseTest : public TavloraTest {
protected:
    BrowseTest() {
        QDir(folder.path()).mkpath(QStringLiteral("stick/sub"));
        Folders::PretendVolumes({{QStringLiteral("/"), QStringLiteral("debian")},
                                 {PathOf(QStringLiteral("stick")), QStringLiteral("STICK")},
                                 {PathOf(QStringLiteral("floppy")), QStringLiteral("FLOPPY")}});
        frmBrowse::ResetForTest();
    }
    ~BrowseTest() override {
        Folders::PretendVolumes({});
        Folders::PretendFreeBytes(-1);
        Screen::PretendBitsPerPixel(0);
        frmBrowse::ResetForTest();
        ForgetPictures();
    }

    QString Picture(const QString& sName, int side = 40) const {
        const char* const format = sName.endsWith(QStringLiteral(".jpg")) ? "jpg" : "bmp";
        return WriteFile(sName, PictureFiles::Encoded(PictureFiles::Quarters(side, side), format));
    }

    QString Browse(const QString& sFilePath, ModalSteps::Step step, bool bAllowWMF = true,
                   const QString& sStartFolder = QString()) {
        ModalSteps steps;
        steps.In("frmBrowse", std::move(step));
        frmBrowse form;
        return form.ShowForm(sFilePath, bAllowWMF, sStartFolder);
    }

    static QStringList FilesIn(QWidget& window) {
        auto& list = Find<QListWidget>(window, "filList");
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            names.append(list.item(row)->text());
        return names;
    }

    static QString Text(QWidget& window, const char* name) { return Find<ElidedLabel>(window, name).text(); }

    static void ClickItem(QListWidget& list, const QString& sText, bool bTwice = false) {
        const QList<QListWidgetItem*> found = list.findItems(sText, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << sText.toStdString();
        const QPoint at = list.visualItemRect(found.front()).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        if (bTwice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }
    static void ClickFile(QWidget& window, const QString& sName, bool bTwice = false) {
        ClickItem(Find<QListWidget>(window, "filList"), sName, bTwice);
    }

    static void OpenFolder(QWidget& window, const QString& sName) {
        auto& tree = Find<QTreeWidget>(window, "dirList");
        const QList<QTreeWidgetItem*> found = tree.findItems(sName, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << sName.toStdString();
        tree.scrollToItem(found.front());
        const QPoint at = tree.visualItemRect(found.front()).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
    }

    /// By keyboard, as the list that drops down is a window of its own.
    static void ChoosePlace(QWidget& window, const QString& sName) {
        auto& list = Find<QComboBox>(window, "drvList");
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int downs = list.findText(sName); downs > 0; --downs)
            QTest::keyClick(&list, Qt::Key_Down);
    }

    static Color ColorAt(QWidget& window, int x, int y) {
        return Find<PictureBox>(window, "picBitMapArea").hDC().GetPixel(x, y);
    }
};
