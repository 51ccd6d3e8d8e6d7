// SPDX-License-Identifier: MIT
// Drives that are there and give nothing away.
#include "support/OrdinaryUser.h"
#include "windows/BrowseFixture.h"

#include <QFile>

TEST_F(BrowseTest, ADriveThatCantBeReadIsToldWithItsReason) {
    const QString floppy = PathOf(QStringLiteral("floppy"));
    ASSERT_TRUE(QDir().mkdir(floppy));
    QFile::setPermissions(floppy, {});
    Browse(QString(), [&](QWidget& window) {
        // The stick is the place above the floppy in the list.
        ChoosePlace(window, QStringLiteral("STICK"));
        {
            const OrdinaryUser user({folder.path()});
            EXPECT_TRUE(user.IsIt());
            QTest::keyClick(&Find<QComboBox>(window, "drvList"), Qt::Key_Down);
        }
        EXPECT_EQ(Text(window, "lblCurrentDirectory"), folder.path()) << "back with the games";
        Click(window, "cmdCancel");
    });
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("The following error has occurred while attempting to use drive '") + floppy +
                          QStringLiteral("'. \r\n\r\nYou have no right to look into this folder")});
    QFile::setPermissions(floppy, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
