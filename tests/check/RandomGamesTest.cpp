// SPDX-License-Identifier: MIT
// Games that nobody would make: none ends the checker, and each gives the same findings twice.
#include "check/Checks.h"

#include "CheckFixture.h"

#include <ctime>
#include <iostream>
#include <random>

namespace {

constexpr int kGamesInUsualRun = 60;

/// Makes a game of what may stand in one, and of what may not.
class RandomGame {
public:
    RandomGame(quint32 seed, const QStringList& pictures) : m_random(seed), m_pictures(pictures) {}

    void Fill(Game& game) {
        game.kit = Kit(Below(5));
        for (C_Space& space : game.spaces) {
            space.Font = Font();
            Give(space.Image);
            space.SetText(Text());
        }
        for (C_Corner& corner : game.corners) {
            corner.Font = Font();
            Give(corner.Image);
            corner.SetText(0, Text());
            corner.SetText(1, Text());
        }
        for (auto& deck : game.news) {
            for (C_News& card : deck) {
                card.Let_Text(Text());
                card.FontBody = Font();
                card.FontHead = Font();
            }
        }
        for (C_Money& note : game.money) {
            Give(note.FaceImage);
            note.Let_Text(Below(2), Text());
            note.BackColor = Color::FromValue(qint32(m_random() & 0xFFFFFF));
        }
        for (C_Token& token : game.tokens) {
            token.Font = Font();
            Give(token.Image);
            token.SetText(Text());
        }
        for (int title = Titles::kFirst; title <= Titles::kLast; ++title)
            basPosit::SetSpecialText(game.titles.Text(title), title, Text());
    }

private:
    int Below(int most) { return int(m_random() % quint32(most)); }

    QString Text() {
        static const QStringList pieces{
            QStringLiteral("Acorn"),   QStringLiteral(" "),          QStringLiteral("\r\n"),   QStringLiteral("$1,000"),
            QStringLiteral("Żółć"),    QStringLiteral("\U0001F3B2"), QString(QChar(0xD83D)),   QString(QChar(0xF8F0)),
            QStringLiteral("e\u0301"), QStringLiteral("שלום"),       QStringLiteral("\"%1\""), QString(90, u'W'),
            QString(QChar(0x0001)),    QStringLiteral("<b>"),        QStringLiteral("Lane")};
        QString text;
        for (int left = Below(Below(8) == 0 ? 60 : 6); left > 0; --left)
            text += pieces[Below(int(pieces.size()))];
        return text == QStringLiteral("UseExistingString") ? QString() : text;
    }
    C_FontInfo Font() {
        static const QStringList families{QStringLiteral("Arial"), QStringLiteral("Times New Roman"), QString(),
                                          QStringLiteral("No Such Font"), QStringLiteral("Courier New")};
        C_FontInfo font;
        font.Load(families[Below(int(families.size()))], Below(2) == 0, Below(2) == 0, float(1 + Below(72)));
        return font;
    }
    void Give(C_Image& image) {
        if (m_pictures.isEmpty() || Below(3) != 0) return;
        image.Let_FullPath(m_pictures[Below(int(m_pictures.size()))]);
        image.Let_Zoom(qint16(Below(60) - 5));
        image.Let_XCenter(float(Below(2000) - 500));
        image.Let_YCenter(float(Below(2000) - 500));
    }

    std::mt19937 m_random;
    QStringList m_pictures;
};

/// What the checker takes of the processor, as a window does it: slice by slice.
class CheckTime {
public:
    void Measure(const Game& game, PictureFacts& facts) {
        CheckRun run(game, facts);
        const std::clock_t start = std::clock();
        std::clock_t step = start;
        for (bool more = true; more;) {
            more = run.Step();
            const std::clock_t now = std::clock();
            m_longestStep = std::max(m_longestStep, now - step);
            step = now;
        }
        m_longest = std::max(m_longest, step - start);
        m_all += step - start;
        ++m_games;
    }
    void Print() const {
        constexpr double kMs = CLOCKS_PER_SEC / 1000.0;
        std::cout << m_games << " games without pictures: " << double(m_all) / m_games / kMs << " ms each, the longest "
                  << double(m_longest) / kMs << " ms, the longest step " << double(m_longestStep) / kMs << " ms\n";
    }

private:
    std::clock_t m_all = 0;
    std::clock_t m_longest = 0;
    std::clock_t m_longestStep = 0;
    int m_games = 0;
};

} // namespace

TEST_F(CheckTest, RandomGamesEndNothingAndGiveTheSameTwice) {
    const int told = qEnvironmentVariableIntValue("TAVLORA_RANDOM_GAMES");
    const int games = told > 0 ? told : kGamesInUsualRun;
    const QStringList pictures{Photo({300, 200}), Photo({2000, 40}, QStringLiteral("thin.png")),
                               WriteFile(QStringLiteral("letter.png"), "Dear Anna,"),
                               PathOf(QStringLiteral("away.png")), folder.path()};
    size_t findings = 0;
    CheckTime time;
    for (int seed = 0; seed < games; ++seed) {
        Game random;
        const bool without = seed % 2 == 1;
        RandomGame(quint32(seed), without ? QStringList() : pictures).Fill(random);
        if (without) time.Measure(random, facts);
        const std::vector<Finding> once = CheckGame(random, facts);
        ASSERT_EQ(once, CheckGame(random, facts)) << "seed " << seed;
        findings += once.size();
        desktop.boxes.clear();
    }
    EXPECT_GT(findings, size_t(games) * 20);
    time.Print();
}
