// SPDX-License-Identifier: MIT
#include "support/SheetMarks.h"

namespace {

class RulesSheetTest : public SheetMarksTest {
protected:
    RulesSheetTest() {
        basPosit::SetSpecialText(0, QStringLiteral("TAVLO"));
        basPosit::SetSpecialText(1, QStringLiteral("Our\r\nTown "));
        for (int i = 0; i < basTAVL::kSpaces; ++i)
            basTAVL::g_oSpaces(i).SetText(QStringLiteral("Space\r\n%1").arg(i));
        for (int i = 0; i < basTAVL::kCorners; ++i) {
            basTAVL::g_oCorners(i).SetText(0, QStringLiteral("Corner\r\n%1").arg(i));
            basTAVL::g_oCorners(i).SetText(1, QStringLiteral("Other block %1").arg(i));
        }
    }
    QStringList Texts() const {
        QStringList texts;
        for (const PageMark& text : Only(PageMark::Kind::Text))
            texts.append(text.sText);
        return texts;
    }
};

TEST_F(RulesSheetTest, RulesAreBlackWhateverWasPrintedBefore) {
    WriteFile(QStringLiteral("program/GamePlay.dat"), "<Head>\r\ntimes,10,L,R:Rules\r\n");
    basTAVL::g_lPrintBlack() = Color::Rgb(20, 40, 90);
    const Sheet& rules = *FindSheet(QStringLiteral("rules"));
    ASSERT_TRUE(Print([&](SheetJob& job) {
        job.printer.ForeColor = Color::Rgb(0, 255, 0);
        return rules.Print(job);
    }));
    marks = ReadPageMarks(pdf, 1, kDotsPerInch);
    ASSERT_EQ(Texts(), QStringList{QStringLiteral("Rules")});
    EXPECT_TRUE(IsNear(Only(PageMark::Kind::Text).first().color, QColor(20, 40, 90)));
}

TEST_F(RulesSheetTest, EveryTagBecomesItsNameOfTheGame) {
    WriteFile(QStringLiteral("program/GamePlay.dat"), "<Head>\r\n"
                                                      "times,10,L,R:a <TAVLORA> b\r\n"
                                                      "times,10,L,R:c <GOOD NEWS> d\r\n"
                                                      "times,10,L,R:e <BAD NEWS> f\r\n"
                                                      "times,10,L,R:g <START> h\r\n"
                                                      "times,10,L,R:i <DETENTION> j\r\n"
                                                      "times,10,L,R:k <REST STOP> l\r\n"
                                                      "times,10,L,R:m <FATE> n\r\n"
                                                      "times,10,L,R:o <Start> p\r\n");
    ASSERT_TRUE(PrintSheetNamed("rules"));
    EXPECT_EQ(Texts(), (QStringList{QStringLiteral("a Our Town TAVLO b"), QStringLiteral("c Space 3 d"),
                                    QStringLiteral("e Space 17 f"), QStringLiteral("g Corner 0 h"),
                                    QStringLiteral("i Corner 1 j"), QStringLiteral("k Corner 2 l"),
                                    QStringLiteral("m Corner 3 n"), QStringLiteral("o <Start> p")}));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

} // namespace
