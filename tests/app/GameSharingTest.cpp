// SPDX-License-Identifier: MIT
// What goes out of the game in hand to others.
#include "AppFixture.h"
#include "support/Waiting.h"

#include "pack/PackReader.h"
#include "windowing/PageView.h"

#include <QClipboard>
#include <QListWidget>
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

/// Remembers the timer whose turn puts something into a view that was blank.
class WhatShows : public QObject {
public:
    explicit WhatShows(PageView& view) : m_view(view) { qApp->installEventFilter(this); }
    bool IsBlank() {
        const QImage& shown = m_view.Image();
        QImage blank(shown.size(), shown.format());
        blank.fill(shown.pixelColor(0, 0));
        return shown == blank;
    }
    const QTimer* timer = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const its = qobject_cast<QTimer*>(watched);
        if (its && event->type() == QEvent::Timer && IsBlank()) timer = its;
        return false;
    }

private:
    PageView& m_view;
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

TEST_F(GameSharingTest, TheBoardIsSavedAsThePictureThatItsNameSays) {
    StartWithGame();
    window->View().SetZoom(3);
    const QImage before = window->View().Board().Image();
    const struct {
        const char* name;
        const char* start;
    } rows[] = {{"b.png", "\x89PNG"}, {"b.svg", "<?xml"}, {"b.PDF", "%PDF-"}};
    for (const auto& row : rows) {
        const QString path = PathOf(QString::fromLatin1(row.name));
        AnswerDialog(path);
        ChooseMenu("mnuFile_31");
        EXPECT_TRUE(ReadFile(path).startsWith(row.start)) << row.name;
        EXPECT_EQ(asked.sFileName, QStringLiteral("Mine board.png"));
        EXPECT_EQ(window->View().Board().Image(), before) << row.name;
    }
    EXPECT_EQ(QImage(PathOf(QStringLiteral("b.png"))).size(), QSize(3000, 3000));
    AnswerDialog(PathOf(QStringLiteral("nowhere/b.pdf")));
    ChooseMenu("mnuFile_31");
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.Texts()[0].startsWith(QStringLiteral("'b.pdf' could not be written: ")));
}

TEST_F(GameSharingTest, ADialogThatCantBeShownIsToldAndOneThatIsClosedIsNot) {
    StartWithGame();
    for (const char* trouble : {"There is no such folder.", ""}) {
        desktop.onDialog = [trouble](CommonDialog& dialog) {
            dialog.sError = QString::fromLatin1(trouble);
            return false;
        };
        ChooseMenu("mnuFile_31");
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("There is no such folder.")});
    }
}

TEST_F(GameSharingTest, APictureOfAPieceIsSavedFromItsWindow) {
    StartWithGame();
    const QImage before = window->View().Board().Image();
    const QString path = PathOf(QStringLiteral("piece.svg"));
    AnswerDialog(path);
    ModalSteps person;
    person.In("frmPieces", [](QWidget& shown) {
        auto& list = ::Find<QListWidget>(shown, "lstPieces");
        list.setCurrentRow(4);
        Click(shown, "cmdSaveAs");
        Click(shown, "cmdClose");
    });
    ChooseMenu("mnuFile_32");
    EXPECT_TRUE(ReadFile(path).contains("<svg"));
    EXPECT_EQ(asked.sFileName, QStringLiteral("Mine space-4.png"));
    EXPECT_EQ(window->View().Board().Image(), before);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(GameSharingTest, APieceIsDrawnOnceWhereTheListStopsAndNotAgainAndAgain) {
    StartWithGame();
    ModalSteps person;
    person.In("frmPieces", [](QWidget& shown) {
        WhatShows shows(::Find<PageView>(shown, "view"));
        EXPECT_TRUE(shows.IsBlank());
        EXPECT_TRUE(Comes([&] { return !shows.IsBlank(); }));
        ASSERT_TRUE(shows.timer);
        EXPECT_FALSE(shows.timer->isActive());
        Click(shown, "cmdClose");
    });
    ChooseMenu("mnuFile_32");
}

TEST_F(GameSharingTest, TheBoardIsCopiedAsAPicture) {
    StartWithGame();
    const QImage before = window->View().Board().Image();
    ChooseMenu("mnuEdit_31");
    const QImage copied = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), QSize(1200, 1200));
    EXPECT_EQ(copied.pixelColor(552, 552), QColor(0, 176, 255)) << "the panel in the middle";
    EXPECT_EQ(window->View().Board().Image(), before);
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
