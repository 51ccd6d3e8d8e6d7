// SPDX-License-Identifier: MIT
#include "drawing/basBMP_metafile.h"
#include "drawing/basBMP.h"
#include "platform/paint/DeviceContext.h"
#include "support/MetafileBuilder.h"
#include "support/TestFixture.h"

class basBMP_metafileTest : public TavloraTest {
protected:
    basBMP_metafileTest() : picture(40, 30, QImage::Format_RGB32), context(picture) { picture.fill(Qt::white); }

    static MetafileBuilder BluePicture() {
        MetafileBuilder builder(100, 100);
        builder.NullPen().Brush(Color::Rgb(0, 0, 255)).Polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
        return builder;
    }
    bool IsBlue(int x, int y) {
        context.Flush();
        return picture.pixel(x, y) == qRgb(0, 0, 255);
    }

    QImage picture;
    DeviceContext context;
};

TEST_F(basBMP_metafileTest, AMetafileFillsItsRectangle) {
    const QString path = WriteFile(QStringLiteral("a.WMF"), BluePicture().Placeable());
    QString bad;
    basBMP::BMP_DrawWMF(context, path, bad, 5, 6, 20, 10);
    EXPECT_TRUE(IsBlue(5, 6));
    EXPECT_TRUE(IsBlue(24, 15));
    EXPECT_FALSE(IsBlue(25, 15));
    EXPECT_FALSE(IsBlue(24, 16));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(bad.isEmpty());
}

TEST_F(basBMP_metafileTest, TheContextIsLeftAsItWas) {
    const PenHandle pen = context.CreatePen(PenStyle::Solid, 3, Color::Rgb(1, 2, 3));
    context.SelectPen(pen);
    context.SetTextColor(Color::Rgb(4, 5, 6));
    MetafileBuilder builder = BluePicture();
    builder.Pen(0, 9, Color::White()).Box(MetafileOrder::IntersectClipRect, 0, 0, 1, 1);
    QString bad;
    basBMP::BMP_DrawWMF(context, WriteFile(QStringLiteral("a.wmf"), builder.Plain()), bad, 5, 6, 20, 10);
    EXPECT_EQ(context.CurrentPen(), pen);
    EXPECT_EQ(context.TextColor(), Color::Rgb(4, 5, 6));
    EXPECT_FALSE(context.Painter().hasClipping());
    context.FillRect(0, 0, 40, 30, Color::Rgb(0, 0, 255));
    EXPECT_TRUE(IsBlue(39, 29));
}

TEST_F(basBMP_metafileTest, TheSizeInAPlaceableHeaderIsKept) {
    basBMP::Module().m_lImageWidth = 7;
    EXPECT_TRUE(basBMP::LoadTheMetafile(WriteFile(QStringLiteral("plain.wmf"), BluePicture().Plain())));
    EXPECT_EQ(basBMP::Module().m_lImageWidth, 7);
    EXPECT_TRUE(basBMP::LoadTheMetafile(WriteFile(QStringLiteral("placeable.wmf"), BluePicture().Placeable())));
    EXPECT_EQ(basBMP::Module().m_lImageWidth, 100);
    EXPECT_EQ(basBMP::Module().m_lImageHeight, 50);
}

TEST_F(basBMP_metafileTest, NoNameIsNoPictureAndNoMessage) {
    QString bad = QStringLiteral("before");
    basBMP::BMP_DrawWMF(context, QString(), bad, 0, 0, 10, 10);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(bad, QStringLiteral("before"));
}

TEST_F(basBMP_metafileTest, Edge_AMetafileDrawnTwiceIntoTheSameMissingPathShowsOneBox) {
    const QString path = PathOf(QStringLiteral("none.wmf"));
    QString bad;
    basBMP::BMP_DrawWMF(context, path, bad, 0, 0, 10, 10);
    basBMP::BMP_DrawWMF(context, path, bad, 0, 0, 10, 10);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Could not find file named '%1'. \nArea will be left empty. ").arg(path));
    EXPECT_EQ(desktop.boxes[0].iStyle, int(vbExclamation));
    EXPECT_EQ(bad, path);
    QString forgotten;
    basBMP::BMP_DrawWMF(context, path, forgotten, 0, 0, 10, 10);
    EXPECT_EQ(desktop.boxes.size(), 2);
}

TEST_F(basBMP_metafileTest, AFileThatIsNoMetafileIsToldOnce) {
    const QString path = WriteFile(QStringLiteral("text.wmf"), "this is only text, and quite a lot of it");
    EXPECT_FALSE(basBMP::LoadTheMetafile(path));
    QString bad;
    basBMP::BMP_DrawWMF(context, path, bad, 0, 0, 10, 10);
    basBMP::BMP_DrawWMF(context, path, bad, 0, 0, 10, 10);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("Unable to read the file named '%1'.").arg(path));
    EXPECT_EQ(desktop.boxes[0].iStyle, int(vbOKOnly));
    EXPECT_EQ(bad, path);
}

TEST_F(basBMP_metafileTest, AMetafileWithoutOrdersIsToldToo) {
    const QString path = WriteFile(QStringLiteral("empty.wmf"), MetafileBuilder().Plain());
    QString bad;
    basBMP::BMP_DrawWMF(context, path, bad, 0, 0, 10, 10);
    EXPECT_EQ(desktop.boxes.size(), 1);
}
