// SPDX-License-Identifier: MIT
// Whatever a game from somebody else holds, the window that opens it is back before a person notices.
#include "EveryWindow.h"
#include "support/MetafileBuilder.h"
#include "support/PictureFiles.h"
#include "support/Work.h"

#include "board/basPositPaint.h"
#include "document/GameBounds.h"

#include <QDeadlineTimer>
#include <QThread>

namespace {

const QString kStranger = QStringLiteral("Stranger.gam");
// A fifth of a second, behind which a window seems to stand still.
constexpr double kNotNoticed = Work::kASecond / 5;

// Two seconds, under the hourglass.
constexpr double kOpening = 2 * Work::kASecond;

class HostileGameTest : public EveryWindowTest {
protected:
    HostileGameTest() { Start(); }
    /// The lines of a good game without pictures, each changed.
    void WriteStranger(const std::function<QString(const QString& sLine)>& change) const {
        WriteGame(kStranger, QStringLiteral("Feed Store"));
        QStringList lines = QString::fromLatin1(ReadFile(InGames(kStranger))).split(QStringLiteral("\r\n"));
        for (qsizetype i = 1; i < lines.size(); ++i)
            lines[i] = change(lines[i]);
        WriteFile(QStringLiteral("games/") + kStranger, lines.join(QStringLiteral("\r\n")).toUtf8());
    }
    /// Each text of the game.
    void WriteTexts(const QString& sText) const {
        static const QRegularExpression text(QStringLiteral("\"[^\"]*\""));
        WriteStranger([&](QString line) { return line.replace(text, u'"' + sText + u'"'); });
    }
    /// The picture of each piece that has one.
    void WritePictures(const QString& sName, const QByteArray& bytes) const {
        WriteFile(QStringLiteral("games/") + sName, bytes);
        WriteStranger([&](QString line) {
            return line.replace(QStringLiteral("\"\", 0, 0, 0"), u'"' + sName + QStringLiteral("\", 0, 0, 0"));
        });
    }
    static QString LettersOfScripts() {
        QString letters;
        for (char16_t letter = 0x100; letters.size() < GameBounds::kMostLetters; ++letter)
            letters.append(QChar(letter));
        return letters;
    }
    /// Opens it, under the hourglass, and looks at it; the most work that the window then does in one go, in pieces of
    /// the fixed one.
    double LongestGap() {
        desktop.onDialog = [this](CommonDialog& dialog) {
            dialog.sFileName = InGames(kStranger);
            return true;
        };
        EXPECT_LT(Work::Of([this] { ChooseMenu("mnuFile_2"); }), kOpening);
        EXPECT_EQ(window->Commands().InHand().GameName(), InGames(kStranger));
        double longest = 0;
        const QDeadlineTimer patience(kPatience);
        for (int quiet = 0; (quiet < kQuietTurns || basPosit::PosDrawAwaited() > 0) && !patience.hasExpired();
             ++quiet) {
            const double took = Work::Milliseconds([] { QCoreApplication::processEvents(); });
            longest = std::max(longest, took);
            if (took > kNothing) quiet = 0;
            QThread::msleep(kBetweenTurns);
        }
        EXPECT_FALSE(patience.hasExpired()) << "the board stands, and the check has told what it found";
        return longest / Work::Piece();
    }
    // Milliseconds; the check begins a moment after the game is there.
    static constexpr int kPatience = 120'000;
    static constexpr double kNothing = 5;
    static constexpr int kBetweenTurns = 5;
    static constexpr int kQuietTurns = 200;
};

TEST_F(HostileGameTest, TextsOfOneWordHoldTheWindowUpForNoTime) {
    WriteTexts(QString(GameBounds::kMostLetters, u'W'));
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, TextsOfThousandsOfLinesHoldItUpForNoTime) {
    WriteTexts(QStringLiteral("\\nW").repeated(GameBounds::kMostLetters / 3));
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, TextsOfThousandsOfWordsHoldItUpForNoTime) {
    WriteTexts(QStringLiteral("W ").repeated(GameBounds::kMostLetters / 2));
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, LettersOfEveryScriptHoldItUpForNoTime) {
    WriteTexts(LettersOfScripts());
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, DrawingsOfAMegabyteOfLinesHoldItUpForNoTime) {
    MetafileBuilder drawing(1000, 1000);
    drawing.Pen(0, 30, Color::Black());
    for (int i = 0; i < 50'000; ++i)
        drawing.Line(-30000, -30000, 30000, 31000);
    WritePictures(QStringLiteral("lines.wmf"), drawing.Plain());
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, PicturesOfMillionsOfPixelsHoldItUpForNoTime) {
    QImage white(8000, 8000, QImage::Format_Mono);
    white.fill(1);
    WritePictures(QStringLiteral("white.png"), PictureFiles::Encoded(white, "PNG"));
    EXPECT_LT(LongestGap(), kNotNoticed);
}

TEST_F(HostileGameTest, EveryWindowOpensWithItAsSoonAsTheGameDid) {
    WriteTexts(LettersOfScripts());
    LongestGap();
    double longest = 0;
    double before = ThreadMilliseconds();
    QString slowest;
    InEach([&](QWidget& opened) {
        const double took = ThreadMilliseconds() - before;
        if (took > longest) slowest = opened.objectName();
        longest = std::max(longest, took);
        before = ThreadMilliseconds();
    });
    EXPECT_LT(longest / Work::Piece(), kOpening) << slowest.toStdString();
}

} // namespace
