// SPDX-License-Identifier: MIT
// What goes out of the game in hand to others.
#include "AppFixture.h"

#include "pack/PackReader.h"

#include <QMenu>

namespace {

class GameSharingTest : public AppTest {
protected:
    void AnswerDialog(const QString& path) {
        desktop.onDialog = [this, path](CommonDialog& dialog) {
            asked = dialog;
            dialog.sFileName = path;
            return !path.isEmpty();
        };
    }
    void StartWithGame() {
        WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("As saved"));
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
        Start();
    }
    CommonDialog asked;
};

TEST_F(GameSharingTest, WhatIsSentIsTheGameAsItStandsAndTheViewStaysAsItWas) {
    StartWithGame();
    Edit(QStringLiteral("Edited"));
    window->View().SetZoom(2);
    const QImage before = window->View().Board().Image();
    const QString packed = PathOf(QStringLiteral("Mine.tavlora"));
    AnswerDialog(packed);
    WithModal("frmSendGame", [](QWidget& modal) { ClickIn(modal, "cmdSaveAs"); });
    ChooseMenu("mnuFile_30");
    EXPECT_EQ(asked.sFileName, QStringLiteral("Mine.tavlora"));
    EXPECT_EQ(window->View().Board().Image(), before);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved()) << "sending is not saving";
    QString error;
    const auto reader = PackReader::Open(ReadFile(packed), error);
    ASSERT_TRUE(reader) << error.toStdString();
    const QStringList lines = reader->Lines([](const QString& entry) { return entry; }, QStringLiteral("x"));
    EXPECT_TRUE(lines.value(7).contains(QStringLiteral("Edited"))) << lines.value(7).toStdString();
    EXPECT_TRUE(ReadFile(packed).contains("Board.png"));
}

TEST_F(GameSharingTest, NewEntriesStandBetweenToldOnes) {
    StartWithGame();
    QStringList names;
    for (const QAction* action : Find<QAction>("mnuTop_0").menu()->actions())
        names.append(action->objectName());
    const qsizetype send = names.indexOf(QStringLiteral("mnuFile_30"));
    EXPECT_GT(send, names.indexOf(QStringLiteral("mnuFile_4")));
    EXPECT_LT(send, names.indexOf(QStringLiteral("mnuFile_5")));
}

} // namespace
