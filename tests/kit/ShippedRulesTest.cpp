// SPDX-License-Identifier: MIT
// The rules page that ships, with the names of the games that ship.
#include "document/GameText.h"
#include "platform/files/TextFile.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "render/RulesText.h"
#include "services/RecordText.h"
#include "support/SheetFixture.h"

#include <QDir>

namespace {

class ShippedRulesTest : public SheetTest {
protected:
    // What a printer leaves of a page, and how wide a column is, in inches.
    static constexpr double kPageEnd = 10.5;
    static constexpr double kColumnWidth = 2.75;
    static constexpr double kColumnTop = 1.375;
    // Other fonts and other printers shall have so much room: twelve of the pixels of a screen.
    static constexpr double kRoom = 12.0 / 96;

    static QString Shipped(const QString& name) { return QStringLiteral(TAVLORA_DATA_DIR "/") + name; }
    static QStringList LinesOf(const QString& name) {
        return TextFile::SplitLines(TextFile::Decode(ReadFile(Shipped(name))));
    }
    // A field of a line, in one line.
    static QString Field(const QString& line, int field) {
        QString rest = line;
        for (int skipped = 0; skipped < field; ++skipped)
            basTAVL::GetQuotedField(rest);
        return basTAVL::GetQuotedField(rest).simplified();
    }
    static void KeepLonger(QString& name, const QString& other) {
        if (other.size() > name.size()) name = other;
    }
    // Of each name the longest that any of the games has.
    static InstructionNames LongestNames() {
        InstructionNames names;
        for (const QString& game :
             QDir(Shipped({})).entryList({QStringLiteral("*_US.gam"), QStringLiteral("Default_US.dat")})) {
            const QStringList lines = LinesOf(game);
            KeepLonger(names.sTavlora, Field(lines[GameLines::kTitles], 0) + QStringLiteral("TAVLO"));
            KeepLonger(names.sGoodNews, Field(lines[GameLines::kSpaces + 3], 1));
            KeepLonger(names.sBadNews, Field(lines[GameLines::kSpaces + 17], 1));
            KeepLonger(names.sStart, Field(lines[GameLines::kCorners], 1));
            KeepLonger(names.sDetention, Field(lines[GameLines::kCorners + 1], 1));
            KeepLonger(names.sRestStop, Field(lines[GameLines::kCorners + 2], 1));
            KeepLonger(names.sFate, Field(lines[GameLines::kCorners + 3], 1));
        }
        return names;
    }
    static RulesReading Rules() {
        return ReadRules(ReadFile(Shipped(QStringLiteral("GamePlay_US.dat"))), LongestNames());
    }

    // Where the blocks end, in inches, with columns that are so much narrower.
    std::vector<double> EndsOfBlocks(double narrower) {
        std::vector<double> ends;
        Print([&](SheetJob& job) {
            clsRenderDestination page;
            page.Init(job.printer, 1.0);
            const double dpi = page.DPI();
            int y = 0;
            for (const auto& item : Rules().items) {
                if (std::holds_alternative<RulesBlock>(item)) {
                    if (y > 0) ends.push_back(y / dpi);
                    y = CLng(kColumnTop * dpi);
                    continue;
                }
                const RulesLine& line = std::get<RulesLine>(item);
                QString text = line.sText;
                page.TextBlock(text, 0, y, CLng((kColumnWidth - narrower) * dpi), line.sFont,
                               CLng(line.lSize * dpi / 72), line.bBold, line.bItalic, line.sAlign);
            }
            ends.push_back(y / dpi);
            return true;
        });
        return ends;
    }
};

TEST_F(ShippedRulesTest, FitTheirPageWithTheLongestNamesAndRoomToSpare) {
    for (const double narrower : {0.0, kRoom}) {
        const std::vector<double> ends = EndsOfBlocks(narrower);
        ASSERT_EQ(ends.size(), 3U);
        EXPECT_LE(ends[1], kPageEnd - kRoom) << "the first column, narrower by " << narrower;
        EXPECT_LE(ends[2], kPageEnd - kRoom) << "the second column, narrower by " << narrower;
    }
}

} // namespace
