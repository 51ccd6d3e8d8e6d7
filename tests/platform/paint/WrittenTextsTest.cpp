// SPDX-License-Identifier: MIT
#include "platform/paint/WrittenTexts.h"

#include "platform/paint/FontFace.h"
#include "platform/paint/RecordingForm.h"
#include "support/Ink.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

// Letters of 36 points on a form of 4 by 1 inches, at 96 dots an inch.
std::shared_ptr<const Recording> Drawn(const QString& sText) {
    RecordingForm form(QSize(384, 96), 96);
    form.FontName = QStringLiteral("Times New Roman");
    form.FontBold = true;
    form.SetFontSize(36);
    form.Line(0, 0, 384, 96, Color::Black(), LineForm::FilledBox);
    form.CurrentX = 96;
    form.Print(sText);
    return form.Take();
}

} // namespace

TEST(WrittenTexts, AreReadAtTheSizeThatPaperShows) {
    const QList<WrittenText> texts = WrittenTextsOf(*Drawn(QStringLiteral("HIM")), QSizeF(4, 1));
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts[0].sText, QStringLiteral("HIM"));
    EXPECT_EQ(texts[0].sFamily, QStringLiteral("Times New Roman"));
    EXPECT_TRUE(texts[0].bBold);
    EXPECT_FALSE(texts[0].bItalic);
    EXPECT_NEAR(texts[0].dblPoints, 36, 0.01);
    EXPECT_NEAR(texts[0].dblSqueeze, 1, 0.001);
    EXPECT_NEAR(texts[0].box.left(), 1, 0.03) << "ink begins a little behind where the letter does";
    EXPECT_NEAR(texts[0].box.height(), 0.33, 0.03) << "capitals";
}

TEST(WrittenTexts, AreSqueezedAndShrunkWithTheirPiece) {
    const QList<WrittenText> texts = WrittenTextsOf(*Drawn(QStringLiteral("HIM")), QSizeF(1, 0.5));
    ASSERT_EQ(texts.size(), 1);
    EXPECT_NEAR(texts[0].dblPoints, 18, 0.01);
    EXPECT_NEAR(texts[0].dblSqueeze, 0.5, 0.001);
    EXPECT_NEAR(texts[0].box.left(), 0.25, 0.01);
}

TEST(WrittenTexts, OfAPageAreInItsDots) {
    RecordingPage page(QSize(1200, 600));
    EXPECT_TRUE(page.IsPrinter());
    page.SetFontSize(10);
    page.Print(QStringLiteral("Acorn Lane"));
    const QList<WrittenText> texts = WrittenTextsOf(*page.Take(), QSizeF(2, 1));
    ASSERT_EQ(texts.size(), 1);
    EXPECT_NEAR(texts[0].dblPoints, 10, 0.01);
}

TEST(FontFaceLetters, ThatNoFontHasCantBePrinted) {
    const FontFace& face = FontFace::Get(QStringLiteral("Arial"), false, false);
    EXPECT_EQ(face.Unprintable(QStringLiteral("Acorn Lane, Łódź, Zürich, e\u0301\r\n\t ")), QStringList());
    const QString unknown(QChar(0xF8F0));
    EXPECT_EQ(face.Unprintable(u'a' + unknown + u'b' + unknown), QStringList{unknown});
    EXPECT_EQ(face.Unprintable(QString()), QStringList());
}

TEST(FontFaceLetters, OfALineThatNobodyCouldReadTheFirstFillTheWidthOfAll) {
    constexpr QSize kSize(800, 40);
    const FontFace& face = FontFace::Get(QStringLiteral("Arial"), false, false);
    const auto inkOf = [&](const QString& sText) {
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(20, 30);
        painter.scale(700 / face.Advance(sText), 20 / FontFace::kUnitsPerEm);
        face.Draw(painter, sText, false);
        return DarkBox(image, image.rect(), 250);
    };
    const QString readable(1000, u'i');
    const QRect ink = inkOf(readable);
    EXPECT_NEAR(ink.left(), 20, 1);
    EXPECT_NEAR(ink.right(), 719, 1);
    EXPECT_EQ(inkOf(readable + QString(9000, u'i')), ink);
    // What isn't among the first can't be seen: nothing of the high letter, and none of its work.
    EXPECT_EQ(inkOf(QString(1000, u'x') + u'H').height(), inkOf(QString(1000, u'x')).height());
    EXPECT_GT(inkOf(QString(999, u'x') + u'H').height(), inkOf(QString(1000, u'x')).height());
}

TEST(FontFaceLetters, StandInsAreNamed) {
    const QString away = FontFace::Get(QStringLiteral("No Such Font"), false, false).FamilyInUse();
    EXPECT_FALSE(away.isEmpty());
    EXPECT_NE(away, QStringLiteral("No Such Font"));
    EXPECT_EQ(FontFace::Get(away, false, false).FamilyInUse(), away);
}
