// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

#include "platform/pictures/metafile/MetafileCharset.h"
#include "platform/pictures/metafile/MetafileObjects.h"

namespace {

constexpr int kUpdatePosition = 1;
constexpr int kRight = 2;
constexpr int kCenter = 6;
constexpr int kBottom = 8;
constexpr int kBaseline = 24;

QString Decoded(const QByteArray& bytes, int charset, const QByteArray& face = "Arial") {
    MetafileFont font;
    font.charset = quint8(charset);
    font.face = face;
    QString text;
    for (const MetafileCharset::Character& character : MetafileCharset::Decode(bytes, font))
        text += character.text;
    return text;
}

MetafileBuilder Clear(int width, int height) {
    MetafileBuilder builder(width, height);
    builder.Add(MetafileOrder::SetBkMode, {1});
    return builder;
}

} // namespace

class MetafileTextTest : public MetafileTest {};

TEST_F(MetafileTextTest, TextHangsFromItsPoint) {
    const QRect ink = Ink(Played(Clear(200, 100).Font(40).Text(20, 30, "HHH").Plain(), 200, 100));
    EXPECT_GE(ink.left(), 20);
    EXPECT_LE(ink.left(), 26);
    EXPECT_GE(ink.top(), 30);
    EXPECT_LE(ink.bottom(), 70);
    EXPECT_NEAR(ink.height(), 25, 4);
}

TEST_F(MetafileTextTest, AlignmentMovesTheTextAboutItsPoint) {
    const auto ink = [&](int align) {
        MetafileBuilder builder = Clear(200, 100);
        builder.Add(MetafileOrder::SetTextAlign, {align}).Font(30).Text(100, 50, "HHH");
        return Ink(Played(builder.Plain(), 200, 100));
    };
    const QRect plain = ink(0);
    EXPECT_GE(plain.left(), 100);
    EXPECT_LE(ink(kRight).right(), 100);
    EXPECT_NEAR(ink(kCenter).center().x(), 100, 2);
    EXPECT_NEAR(ink(kBaseline).bottom(), 49, 1);
    EXPECT_LT(ink(kBottom).bottom(), 49);
    EXPECT_GT(ink(kBottom).bottom(), 38);
    EXPECT_NEAR(plain.width(), ink(kRight).width(), 1);
}

TEST_F(MetafileTextTest, TextCanStartAtTheCurrentPositionAndMoveIt) {
    MetafileBuilder builder = Clear(300, 60);
    builder.Add(MetafileOrder::SetTextAlign, {kUpdatePosition}).Font(30);
    builder.Add(MetafileOrder::MoveTo, {10, 40}).Text(0, 0, "HH").Text(0, 0, "HH");
    const QRect ink = Ink(Played(builder.Plain(), 300, 60));
    EXPECT_NEAR(ink.left(), 42, 3);
    MetafileBuilder whole = Clear(300, 60);
    whole.Font(30).Text(40, 10, "HHHH");
    EXPECT_NEAR(ink.width(), Ink(Played(whole.Plain(), 300, 60)).width(), 3);
}

TEST_F(MetafileTextTest, LettersKeepTheirProportionsWhenThePictureIsStretched) {
    MetafileBuilder builder = Clear(100, 100);
    builder.Font(40).Text(5, 5, "H");
    const QRect square = Ink(Played(builder.Plain(), 100, 100));
    const QRect wide = Ink(Played(builder.Plain(), 400, 100));
    EXPECT_EQ(wide.size(), square.size());
    const QRect tall = Ink(Played(builder.Plain(), 100, 200));
    EXPECT_NEAR(tall.height(), 2 * square.height(), 2);
    EXPECT_NEAR(tall.width(), 2 * square.width(), 2);
}

TEST_F(MetafileTextTest, GivenDistancesStretch) {
    MetafileBuilder builder = Clear(100, 50);
    builder.Font(20).ExtText(5, 5, "II", 0, {}, {40, 40});
    EXPECT_NEAR(Ink(Played(builder.Plain(), 100, 50)).width(), 43, 4);
    EXPECT_NEAR(Ink(Played(builder.Plain(), 400, 50)).width(), 163, 4);
}

TEST_F(MetafileTextTest, OfDistancesInPairsTheFirstCounts) {
    MetafileBuilder builder = Clear(100, 50);
    builder.Font(20).ExtText(5, 5, "II", MetafileText::kDistancesInPairs, {}, {40, 7, 40, 7});
    EXPECT_NEAR(Ink(Played(builder.Plain(), 100, 50)).width(), 43, 4);
    // Only as many as there are letters: these are no pairs.
    MetafileBuilder tooFew = Clear(100, 50);
    tooFew.Font(20).ExtText(5, 5, "II", MetafileText::kDistancesInPairs, {}, {40, 40});
    EXPECT_LT(Ink(Played(tooFew.Plain(), 100, 50)).width(), 20);
}

TEST_F(MetafileTextTest, AnOpaqueBoxIsFilledAlsoWithoutText) {
    MetafileBuilder builder(60, 60);
    builder.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
    builder.ExtText(0, 0, "", 2, QRect(10, 20, 30, 10), {});
    const QImage picture = Played(builder.Plain(), 60, 60);
    EXPECT_EQ(Count(picture, kGreen), 300);
    EXPECT_EQ(At(picture, 39, 29), kGreen);
}

TEST_F(MetafileTextTest, TextIsCutToItsBox) {
    MetafileBuilder builder = Clear(100, 60);
    builder.Font(40).ExtText(0, 0, "HHHHH", 4, QRect(10, 10, 30, 20), {});
    const QRect ink = Ink(Played(builder.Plain(), 100, 60));
    EXPECT_TRUE(QRect(10, 10, 30, 20).contains(ink));
    EXPECT_GT(ink.width(), 20);
}

TEST_F(MetafileTextTest, AnOpaqueBackgroundLiesUnderTheLetters) {
    MetafileBuilder builder(120, 60);
    builder.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
    builder.Add(MetafileOrder::SetTextColor, MetafileBuilder::ColorWords(Red())).Font(40).Text(10, 10, "H H");
    const QImage picture = Played(builder.Plain(), 120, 60);
    EXPECT_EQ(At(picture, 11, 11), kGreen);
    EXPECT_GT(Count(picture, kRed), 50);
    EXPECT_EQ(Ink(picture).height(), 40);
}

TEST_F(MetafileTextTest, ExtraSpaceIsAdded) {
    MetafileBuilder plain = Clear(300, 60);
    plain.Font(30).Text(5, 5, "HH HH");
    const int width = Ink(Played(plain.Plain(), 300, 60)).width();
    MetafileBuilder extra = Clear(300, 60);
    extra.Add(MetafileOrder::SetTextCharExtra, {10}).Font(30).Text(5, 5, "HH HH");
    EXPECT_NEAR(Ink(Played(extra.Plain(), 300, 60)).width(), width + 40, 2);
    MetafileBuilder justified = Clear(300, 60);
    justified.Add(MetafileOrder::SetTextJustification, {1, 50}).Font(30).Text(5, 5, "HH HH");
    EXPECT_NEAR(Ink(Played(justified.Plain(), 300, 60)).width(), width + 50, 2);
}

TEST_F(MetafileTextTest, ALineCanBeTurned) {
    MetafileBuilder builder = Clear(200, 200);
    builder.Font(30, "Arial", 0, 900).Text(100, 180, "HHHH");
    const QRect ink = Ink(Played(builder.Plain(), 200, 200));
    EXPECT_GT(ink.height(), ink.width() * 3);
    EXPECT_LE(ink.bottom(), 180);
    EXPECT_GE(ink.left(), 100);
}

TEST_F(MetafileTextTest, BytesFollowTheCharset) {
    EXPECT_EQ(Decoded("\xE4\x80", 0), QStringLiteral("ä€"));
    EXPECT_EQ(Decoded("\xD0", 204), QStringLiteral("Р"));
    EXPECT_EQ(Decoded("\xD0", 161), QStringLiteral("Π"));
    EXPECT_EQ(Decoded("\xD0", 238), QStringLiteral("Đ"));
    EXPECT_EQ(Decoded("\x93\xFA\xB1", 128), QStringLiteral("日ｱ"));
    EXPECT_EQ(Decoded("a\x01z", 0), QStringLiteral("az"));
    EXPECT_EQ(Decoded("abp\xA5", 2, "Symbol"), QStringLiteral("αβπ∞"));
}

TEST_F(MetafileTextTest, ATypefaceThatIsNotHereIsReplacedByOneOfItsKind) {
    MetafileFont font;
    font.face = "No Such Face Anywhere";
    EXPECT_EQ(MetafileCharset::FamilyFor(font), QStringLiteral("Arial"));
    font.pitchAndFamily = 0x12;
    EXPECT_EQ(MetafileCharset::FamilyFor(font), QStringLiteral("Times New Roman"));
    font.pitchAndFamily = 0x31;
    EXPECT_EQ(MetafileCharset::FamilyFor(font), QStringLiteral("Courier New"));
    font.face = "helv";
    EXPECT_EQ(MetafileCharset::FamilyFor(font), QStringLiteral("Arial"));
}
