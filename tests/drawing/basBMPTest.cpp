// SPDX-License-Identifier: MIT
#include "drawing/basBMP.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QStandardPaths>

namespace {

using namespace basBMP;
using namespace PictureFiles;

class basBMPTest : public TavloraTest {
protected:
    // A program begins its log before anything else; without one the log's own box would come between.
    basBMPTest() { basErrLog::ErrInit(0); }
    ~basBMPTest() override { basErrLog::ResetForTest(); }
    qint16 HeadsOf(const QString& sPath, BitmapInfo& info) {
        BinaryFile file;
        QString error;
        FileHead head;
        EXPECT_TRUE(file.OpenForReading(sPath, error)) << qPrintable(error);
        const qint16 result = ReadFileHead(file, sPath, head);
        return result != 0 ? result : ReadInfoHead(file, sPath, info);
    }

    QByteArray Indexed(int bits, int width = 5, int height = 3) {
        QImage image(width, height, QImage::Format_Indexed8);
        image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        image.fill(1);
        return Bmp(image, {.bits = bits});
    }
};

TEST_F(basBMPTest, Edge_FourEightAnd24BitHeadsAreValidAndNotMonochrome) {
    for (const int bits : {4, 8, 24}) {
        const QString path = WriteFile(QStringLiteral("%1.bmp").arg(bits), Indexed(bits));
        BitmapInfo info;
        EXPECT_EQ(HeadsOf(path, info), 0) << bits;
        EXPECT_EQ(info.bmiHeader.biBitCount, bits);
        EXPECT_EQ(info.bmiHeader.biWidth, 5);
        EXPECT_EQ(info.bmiHeader.biHeight, 3);
        EXPECT_FALSE(IsMonochromeBMP(path)) << bits;
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(IsMonochromeBMP(WriteFile(QStringLiteral("1.bmp"), Indexed(1))));
}

TEST_F(basBMPTest, Edge_SixteenBitsAndRunLengthsAreRefusedWithTheirReasons) {
    BitmapInfo info;
    const QString deep = WriteFile(QStringLiteral("deep.bmp"), Bmp(Quarters(4, 4), {.bits = 16}));
    EXPECT_EQ(HeadsOf(deep, info), kBadBitCount);
    const QString packed = WriteFile(QStringLiteral("packed.bmp"), Bmp(Quarters(4, 4), {.bits = 24, .compression = 1}));
    EXPECT_EQ(HeadsOf(packed, info), kIsCompressed);
    const QString start = QStringLiteral("Sorry, but Tavlora is unable to interpret the file named '");
    EXPECT_EQ(desktop.Texts(), (QStringList{start + deep + QStringLiteral("'. Pits per pixel = 16. "),
                                            start + packed + QStringLiteral("'. Compression is turned on.")}));
    EXPECT_EQ(desktop.boxes[0].iStyle, vbExclamation);
    EXPECT_TRUE(Files::Exists(deep));
}

TEST_F(basBMPTest, Edge_TextNamedAsABitmapIsDeletedAfterTheBoxEvenWhenOnlyAskedForColours) {
    const QString path = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    desktop.onBox = [&path] { EXPECT_EQ(ReadFile(path), "Dear Anna,") << "whoever reads the box still has the file"; };
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("File '") + path +
                          QStringLiteral("' is not a valid '.BMP' file. Click OK to delete this file. ")});
    EXPECT_EQ(desktop.boxes[0].iStyle, vbQuestion | vbOKOnly);
    EXPECT_FALSE(Files::Exists(path));
}

TEST_F(basBMPTest, AFalseBitmapStaysUntilItsBoxIsShownWithTheQueueOpenToo) {
    const QString path = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    basMsgQueue::MsgQueue_Init();
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_TRUE(Files::Exists(path));
    desktop.onBox = [&] { EXPECT_TRUE(Files::Exists(path)); };
    basMsgQueue::MsgQueue_Display();
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_FALSE(Files::Exists(path));
}

TEST_F(basBMPTest, WhatWasPutInPlaceOfAFalseBitmapMeanwhileStays) {
    const QString path = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    desktop.onBox = [&] { WriteFile(QStringLiteral("letter.bmp"), Indexed(24)); };
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_EQ(ReadFile(path), Indexed(24));
}

TEST_F(basBMPTest, PicturesOfOtherKindsAndFilesStillBeingCopiedAreNeverThrownAway) {
    const QImage art = Quarters(40, 40);
    const QByteArray png = Encoded(art, "png");
    for (const QByteArray& bytes : {png, Encoded(art, "jpg"), png.left(png.size() / 2), QByteArray()}) {
        const QString path = WriteFile(QStringLiteral("photo.bmp"), bytes);
        EXPECT_FALSE(IsMonochromeBMP(path));
        EXPECT_FALSE(ChangeMonoBmpBackColor(path, PathOf(QStringLiteral("out.bmp")), Color::White()));
        EXPECT_EQ(ReadFile(path), bytes);
        QFile::remove(path);
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(basBMPTest, ADiskThatCannotBeReadSaysNothingOfAFile) {
    basErrLog::ErrInit(0);
    const QByteArray bytes = Indexed(1);
    const QString path = WriteFile(QStringLiteral("stick.bmp"), bytes);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Read) return QStringLiteral("Input/output error");
        return {};
    });
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath()).contains("stick.bmp' could not be read: Input/output error"));
    EXPECT_THROW(ChangeMonoBmpBackColor(path, PathOf(QStringLiteral("out.bmp")), Color::White()), TavloraError);
    Files::SetFaultHook({});
    EXPECT_EQ(ReadFile(path), bytes);
    EXPECT_TRUE(IsMonochromeBMP(path)) << "asked again when the stick is back";
}

TEST_F(basBMPTest, NothingIsThrownAwayWhereNobodyCanAnswer) {
    Settings().bKeepUserFiles = true;
    const QString path = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("File '") + path + QStringLiteral("' is not a valid '.BMP' file. ")});
    EXPECT_EQ(ReadFile(path), QByteArray("Dear Anna,"));
}

TEST_F(basBMPTest, ABitmapThatIsShownAllTheSameIsNotTold) {
    QImage indexed(40, 40, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    indexed.fill(1);
    for (const QByteArray& bytes : {Bmp(Quarters(40, 40), {.bits = 16}), RunLengthBmp(indexed)}) {
        const QString path = WriteFile(QStringLiteral("photo.bmp"), bytes);
        EXPECT_FALSE(IsMonochromeBMP(path));
        QFile::remove(path);
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << qPrintable(desktop.Texts().value(0));
}

TEST_F(basBMPTest, Edge_UpperCaseEndingsCount) {
    EXPECT_TRUE(IsMonochromeBMP(WriteFile(QStringLiteral("UPPER.BMP"), Indexed(1))));
    EXPECT_TRUE(IsWMF(QStringLiteral("C:\\ART.WMF")));
    EXPECT_TRUE(IsWMF(QStringLiteral("art.wmf")));
    EXPECT_FALSE(IsWMF(QStringLiteral("artwmf")));
    EXPECT_FALSE(IsMonochromeBMP(WriteFile(QStringLiteral("one.dat"), Indexed(1))));
}

TEST_F(basBMPTest, Edge_OneBitRowsArePaddedToFourBytes) {
    EXPECT_EQ(RowBytes1(3), 4);
    EXPECT_EQ(RowBytes1(32), 4);
    EXPECT_EQ(RowBytes1(33), 8);
}

TEST_F(basBMPTest, Edge_OneBitFilesReadTwoEntriesWhetherTheHeadTellsOrNot) {
    for (const quint32 told : {2U, 0U}) {
        const QString path = WriteFile(QStringLiteral("%1.bmp").arg(told), MonochromeBmp(Quarters(8, 8), told));
        BinaryFile file;
        QString error;
        BitmapInfo info;
        ASSERT_TRUE(file.OpenForReading(path, error));
        ASSERT_EQ(ReadInfoHead(file, path, info), 0);
        info.bmiColors.fill({9, 9, 9, 9});
        EXPECT_EQ(ReadColorTable(file, path, info, Color::Black(), false), 0);
        EXPECT_EQ(info.bmiColors[0], (RgbQuad{0, 0, 0, 0}));
        EXPECT_EQ(info.bmiColors[1], (RgbQuad{255, 255, 255, 0}));
        EXPECT_EQ(info.bmiColors[2], (RgbQuad{9, 9, 9, 9}));
    }
}

TEST_F(basBMPTest, AnEntryOfZeroBecomesTheBlackGivenInTheOrderOfTheFile) {
    const QString path = WriteFile(QStringLiteral("m.bmp"), MonochromeBmp(Quarters(8, 8)));
    BinaryFile file;
    QString error;
    BitmapInfo info;
    ASSERT_TRUE(file.OpenForReading(path, error));
    ReadInfoHead(file, path, info);
    ReadColorTable(file, path, info, Color::Rgb(1, 2, 3), false);
    EXPECT_EQ(info.bmiColors[0], (RgbQuad{3, 2, 1, 0}));
}

TEST_F(basBMPTest, PlanesOtherThanOneAreRefused) {
    BitmapInfo info;
    const QString path = WriteFile(QStringLiteral("p.bmp"), Bmp(Quarters(4, 4), {.planes = 3}));
    EXPECT_EQ(HeadsOf(path, info), kBadPlanes);
    EXPECT_TRUE(desktop.Texts().value(0).endsWith(QStringLiteral("'. Planes not set to 1")));
}

TEST_F(basBMPTest, AFileThatCannotBeReadIsToldOnceForEachStateOfIt) {
    const QString path = WriteFile(QStringLiteral("deep.bmp"), Bmp(Quarters(4, 4), {.bits = 16}).left(60));
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_FALSE(IsMonochromeBMP(path));
    EXPECT_EQ(desktop.boxes.size(), 1);
    WriteFile(QStringLiteral("deep.bmp"), Indexed(1));
    EXPECT_TRUE(IsMonochromeBMP(path));
}

TEST_F(basBMPTest, HeadsCutShortAreRefusedPolitely) {
    const QByteArray whole = MonochromeBmp(Quarters(8, 8));
    for (const int length : {0, 1, 2, 13, 20}) {
        const QString path = WriteFile(QStringLiteral("cut%1.bmp").arg(length), whole.left(length));
        EXPECT_FALSE(IsMonochromeBMP(path)) << length;
        EXPECT_FALSE(ChangeMonoBmpBackColor(path, PathOf(QStringLiteral("out.bmp")), Color::White())) << length;
    }
}

TEST_F(basBMPTest, MissingFileIsNotMonochrome) {
    EXPECT_FALSE(IsMonochromeBMP(PathOf(QStringLiteral("none.bmp"))));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(basBMPTest, CopyInAnotherColourKeepsItsPixelsAndExchangesRedAndBlue) {
    QImage art(33, 9, QImage::Format_RGB32);
    art.fill(Qt::white);
    art.setPixel(32, 8, qRgb(0, 0, 0));
    const QString from = WriteFile(QStringLiteral("art.bmp"), MonochromeBmp(art));
    const QString to = PathOf(QStringLiteral("TempImage.bmp"));
    ASSERT_TRUE(ChangeMonoBmpBackColor(from, to, Color::Rgb(10, 20, 30)));
    EXPECT_EQ(Files::Size(to), Files::Size(from));
    QString error;
    const QImage copy = LoadPicture(to, error).Image();
    EXPECT_EQ(copy.pixel(0, 0), qRgb(30, 20, 10));
    EXPECT_EQ(copy.pixel(32, 8), qRgb(0, 0, 0));
}

TEST_F(basBMPTest, OnlyOneBitFilesAreCopied) {
    const QString from = WriteFile(QStringLiteral("c.bmp"), Indexed(4));
    const QString to = PathOf(QStringLiteral("out.bmp"));
    EXPECT_FALSE(ChangeMonoBmpBackColor(from, to, Color::White()));
    EXPECT_FALSE(Files::Exists(to));
}

TEST_F(basBMPTest, RowsThatRunTopDownAreNotCopied) {
    QImage art(8, 4, QImage::Format_Indexed8);
    art.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    art.fill(1);
    const QString from = WriteFile(QStringLiteral("down.bmp"), Bmp(art, {.bits = 1, .topDown = true}));
    const QString to = PathOf(QStringLiteral("out.bmp"));
    EXPECT_TRUE(ChangeMonoBmpBackColor(from, to, Color::White()));
    EXPECT_EQ(Files::Size(to), 62);
}

TEST_F(basBMPTest, EndlessRowsOfNothingAreNotCopied) {
    for (const char first : {'\0', '\xF0'}) {
        QByteArray bytes = MonochromeBmp(Quarters(8, 8));
        bytes.replace(18, 4, QByteArray(3, first) + (first ? "\xFF" : QByteArray(1, '\0')));
        bytes.replace(22, 4, "\xFF\xFF\xFF\x7F");
        const QString from = WriteFile(QStringLiteral("none%1.bmp").arg(int(quint8(first))), bytes);
        EXPECT_TRUE(ChangeMonoBmpBackColor(from, PathOf(QStringLiteral("out.bmp")), Color::White()));
    }
}

TEST_F(basBMPTest, CopyThatCannotBeWrittenRaises) {
    const QString from = WriteFile(QStringLiteral("art.bmp"), Indexed(1));
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Write) return QStringLiteral("Disk full");
        return std::nullopt;
    });
    EXPECT_THROW(ChangeMonoBmpBackColor(from, PathOf(QStringLiteral("out.bmp")), Color::White()), TavloraError);
}

} // namespace
