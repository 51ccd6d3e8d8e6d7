// SPDX-License-Identifier: MIT
// A game file that somebody made large: it costs neither time nor memory nor the file itself.
#include "support/FileFixture.h"
#include "support/Work.h"

#include "document/GameBounds.h"
#include "document/GameText.h"
#include "pictures/ThumbnailStore.h"

#include <chrono>
#include <thread>

#include <QRegularExpression>

namespace {

using GameBounds::kMostLetters;

constexpr double kTwoSeconds = 2 * Work::kASecond;

// Plays each drawing for longer than a load waits.
class SlowMaker : public ThumbnailMaker {
public:
    static ThumbnailMaker& AsMaker() { return Instance(); }
    static SlowMaker& Instance() {
        static SlowMaker maker;
        return maker;
    }
    int Made() const { return m_made; }
    void CreateThumbRotatedTo90(const OwnedPicture&) override { Make(); }
    void CreateThumbRotatedTo45(const OwnedPicture&) override { Make(); }
    void CreateThumbElliptical(const OwnedPicture&, bool) override { Make(); }
    Picture RenderRotated(const OwnedPicture&, int) override { return {}; }

private:
    void Make() {
        ++m_made;
        std::this_thread::sleep_for(std::chrono::milliseconds(160));
    }
    int m_made = 0;
};

class LargeGameTest : public GameFileTest {
protected:
    static double WorkToLoad(const QString& path, int expected) {
        return Work::Of([&] { EXPECT_EQ(Load(QString(path)), expected); });
    }
    /// The next start knows nothing of what this one has read.
    void EditAndCrash() {
        C_Space space = session.InHand().spaces[0];
        space.SetText(QStringLiteral("Oak"));
        session.Do(Edits::OfSpace(session.InHand(), 0, space));
        Autosave::ResetForTest();
        desktop.boxes.clear();
    }
    const QString rescued = InGames(QStringLiteral("Rescued Plain.gam"));
};

TEST_F(LargeGameTest, ATitleOfTenMillionLettersIsCutAndTold) {
    QStringList lines = PlainLines();
    lines[1] = u'"' + QString(10'000'000, u'x') + QStringLiteral("\", \"Sub\", \"Day\"");
    const QString game = WriteGame(lines);
    EXPECT_LT(WorkToLoad(game, 0), kTwoSeconds);
    EXPECT_EQ(TheGame().titles.Text(1).sText.size(), kMostLetters);
    EXPECT_EQ(TheGame().titles.Text(2).sText, QStringLiteral("Sub"));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("A text in this game is longer than 10,000 letters, and the rest of it was left out. When "
                             "you save the game, the file as it is now is kept beside your games."));
}

TEST_F(LargeGameTest, TheWholeFileIsKeptByTheFirstSave) {
    QStringList lines = PlainLines();
    lines[1] = u'"' + QString(20'000, u'x') + QStringLiteral("\", \"Sub\", \"Day\"");
    QString game = WriteGame(lines);
    const QByteArray before = ReadFile(game);
    session.SetGameName(game);
    ASSERT_EQ(session.Load(game), 0);
    ASSERT_TRUE(session.Save());
    EXPECT_NE(ReadFile(game), before);
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued Plain.gam"))), before);
}

TEST_F(LargeGameTest, AFileThatCouldNotBeReadWholeIsKeptByTheFirstSaveAfterACrash) {
    QStringList cut = PlainLines();
    cut[1] = u'"' + QString(20'000, u'x') + QStringLiteral("\", \"Sub\", \"Day\"");
    QStringList damaged = PlainLines();
    damaged[9] = QStringLiteral("torn");
    for (const QStringList& lines : {cut, damaged}) {
        QString game = WriteGame(lines);
        const QByteArray before = ReadFile(game);
        session.SetGameName(game);
        session.Load(game);
        EditAndCrash();
        Session next;
        ASSERT_EQ(next.Recover(autosave), 0);
        ASSERT_EQ(next.GameName(), game);
        ASSERT_TRUE(next.Save());
        EXPECT_NE(ReadFile(game), before);
        EXPECT_EQ(ReadFile(rescued), before);
        QFile::remove(rescued);
    }
}

TEST_F(LargeGameTest, AWholeFileIsNotKeptAgainAfterACrash) {
    QString game = WriteGame(PlainLines());
    session.SetGameName(game);
    ASSERT_EQ(session.Load(game), 0);
    EditAndCrash();
    Session next;
    ASSERT_EQ(next.Recover(autosave), 0);
    ASSERT_TRUE(next.Save());
    EXPECT_FALSE(QFile::exists(rescued));
}

TEST_F(LargeGameTest, AGameFullOfLongTextsIsLittleWork) {
    QStringList lines = PlainLines();
    const QString longText = QString(qsizetype(2) * kMostLetters, u'W');
    for (QString& line : lines)
        line.replace(QRegularExpression(QStringLiteral("\"[^\"]*\\w[^\"]*\"")), u'"' + longText + u'"');
    lines[0] = PlainLines()[0];
    EXPECT_LT(WorkToLoad(WriteGame(lines), 0), kTwoSeconds);
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(LargeGameTest, SixtyMegabytesOfAnythingAreLittleWork) {
    const auto ofSize = [](const QByteArray& piece) { return piece.repeated((60 << 20) / piece.size()); };
    const QByteArray header = "\"TavloraGameBoard\", 8.0.0, ";
    for (const QByteArray& bytes : {header + ofSize("x"), header + ofSize("a, "), header + "\r\n" + ofSize("\""),
                                    header + "\r\n" + ofSize("\r\n"), header + "\r\n" + ofSize("\"\\n\","),
                                    header + "\r\n" + ofSize("\xE5\xAD\x97"), ofSize(" ")}) {
        const QString path = WriteFile(QStringLiteral("games/Large.gam"), bytes);
        EXPECT_LT(WorkToLoad(path, -1), kTwoSeconds) << bytes.left(40).toStdString();
    }
}

// Each may keep the machine busy for a quarter of a second, and nobody wants to wait for ten of them.
TEST_F(LargeGameTest, DrawingsThatTakeLongToPlayAreLeftForWhenTheyAreWanted) {
    const ThumbnailMaker::Creator before = ThumbnailMaker::Install(&SlowMaker::AsMaker);
    QStringList lines = PlainLines();
    for (int i = GameLines::kMoney; i < GameLines::kAll; ++i) {
        WriteFile(QStringLiteral("games/drawing%1.wmf").arg(i), "drawing");
        lines[i].replace(QStringLiteral("\"\",0,0,0"), QStringLiteral("\"drawing%1.wmf\",0,0,0").arg(i));
    }
    EXPECT_EQ(Load(WriteGame(lines)), 0);
    EXPECT_GE(SlowMaker::Instance().Made(), 1);
    EXPECT_LE(SlowMaker::Instance().Made(), 2);
    ThumbnailMaker::Install(before);
}

} // namespace
