// SPDX-License-Identifier: MIT
// What the name of the program decides: kit, sizes of stickers and colours.
#include "kit/GameKit.h"

#include "document/basTAVL.h"
#include "services/basCommon.h"
#include "support/GameFixture.h"

namespace {

class GameKitTest : public GameTest {
protected:
    GameKitTest() { basCommon::InitIniPath(); }
    ~GameKitTest() override { basCommon::ResetForTest(); }
};

struct ToldSize {
    int index;
    double inches;
    double inKit8;
};
constexpr ToldSize kToldSizes[] = {{0, 0.06, 0.06}, {1, 1.65, 1.65}, {2, 2.8125, 2.8125}, {3, 0.4375, 0.4375},
                                   {4, 0.25, 0.25}, {5, 1.65, 1.36}, {6, 1.83, 2.125},    {7, 2.125, 2.125}};

// Red, green and blue.
constexpr Color kToldMoney[] = {Color::Rgb(0xC7, 0xC7, 0xE8), Color::Rgb(0xFA, 0xD3, 0xD8),
                                Color::Rgb(0xC7, 0xE4, 0xC8), Color::Rgb(0xFA, 0xD0, 0x85)};
constexpr Color kToldTokens[] = {Color::Rgb(0xDA, 0x25, 0x1D), Color::Rgb(0x00, 0x93, 0xDD),
                                 Color::Rgb(0x00, 0x92, 0x3F), Color::Rgb(0xFF, 0xF5, 0x00),
                                 Color::Rgb(0xE7, 0x78, 0x17), Color::Rgb(0xFF, 0xFF, 0xFF)};

TEST_F(GameKitTest, SizesOfStickersAreTold) {
    for (const char* name : {"tavlora", "tavlora5", "tavlora2"}) {
        GameKit::SetUp(QString::fromLatin1(name));
        for (const ToldSize& told : kToldSizes)
            EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(told.index),
                             QByteArray(name) == "tavlora" ? told.inKit8 : told.inches)
                << name << ", size " << told.index;
    }
}

TEST_F(GameKitTest, ColoursAreTold) {
    for (const char* name : {"tavlora", "tavlora5"}) {
        GameKit::SetUp(QString::fromLatin1(name));
        for (int i = 0; i < basTAVL::kMoney; ++i)
            EXPECT_EQ(basTAVL::g_oMoney(i).BackColor, kToldMoney[i]) << name << ", note " << i;
        for (int i = 0; i < basTAVL::kTokens; ++i)
            EXPECT_EQ(basTAVL::g_oTokens(i).BackColor, kToldTokens[i]) << name << ", token " << i;
        EXPECT_EQ(basTAVL::g_lPrintYellow(), Color::Rgb(255, 255, 0)) << name;
        EXPECT_EQ(basTAVL::g_lPrintRed(), Color::Rgb(255, 0, 0)) << name;
        EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Rgb(0, 0, 0)) << name;
        EXPECT_EQ(basTAVL::g_lPrintBack(), Color::Rgb(0xB6, 0xDD, 0xC7)) << name;
        for (int set = 0; set < basTAVL::kNewsSets; ++set)
            EXPECT_EQ(basTAVL::g_lNewsColor(set), Color::White()) << name << ", deck " << set;
    }
}

TEST_F(GameKitTest, PlainKitsAreWhiteWithABlackOfTheirOwn) {
    GameKit::SetUp(QStringLiteral("tavlora2a"));
    for (int i = 0; i < basTAVL::kMoney; ++i)
        EXPECT_EQ(basTAVL::g_oMoney(i).BackColor, Color::White()) << i;
    EXPECT_EQ(basTAVL::g_lPrintYellow(), Color::White());
    EXPECT_EQ(basTAVL::g_lPrintRed(), Color::White());
    EXPECT_EQ(basTAVL::g_lPrintBack(), Color::White());
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Rgb(10, 10, 10));
    EXPECT_EQ(basTAVL::g_lNewsColor(1), Color::White());
}

TEST_F(GameKitTest, SettingsGiveTheInksAndTheColourOfBothDecks) {
    const struct {
        const char* key;
        const char* value;
    } rows[] = {{"PrintYellowColor", "00010203"},
                {"PrintRedColor", "00040506"},
                {"PrintBlackColor", "00070809"},
                {"GoodNewsColor", "000A0B0C"}};
    for (const auto& row : rows)
        basCommon::WriteIniString(QString::fromLatin1(row.key), QString::fromLatin1(row.value));
    GameKit::SetUp(QStringLiteral("tavlora"));
    EXPECT_EQ(basTAVL::g_lPrintYellow(), Color::Rgb(1, 2, 3));
    EXPECT_EQ(basTAVL::g_lPrintRed(), Color::Rgb(4, 5, 6));
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Rgb(7, 8, 9));
    EXPECT_EQ(basTAVL::g_lNewsColor(0), Color::Rgb(10, 11, 12));
    EXPECT_EQ(basTAVL::g_lNewsColor(1), Color::Rgb(10, 11, 12));
}

} // namespace
