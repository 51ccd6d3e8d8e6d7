// SPDX-License-Identifier: MIT
#include "drawing/clsBMP.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "services/TavloraError.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QFile>
#include <QtEndian>

namespace {

using namespace PictureFiles;

constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kBlack = 0xFF000000;

class clsBMPTest : public TavloraTest {
protected:
    clsBMPTest() { ForgetPictures(); }
    ~clsBMPTest() override { ScratchForm::SetLargestSize(QSize(3840, 2160)); }

    QImage Loaded(const QString& sPath) {
        QString error;
        QImage image = LoadPicture(sPath, error).Image();
        EXPECT_FALSE(image.isNull()) << qPrintable(error);
        return image;
    }
    QImage TextFile(const QString& sText, int bits, int size = 40) {
        bmp.SetFontInfo(QStringLiteral("Arial"), size, false, false);
        bmp.Let_BitsPerPixel(bits);
        bmp.Let_FullPathToBmpFile(PathOf(QStringLiteral("text.temp")));
        EXPECT_TRUE(bmp.CreateFileHoldingText(sText, Color::Rgb(200, 0, 0), Color::Rgb(255, 255, 0)));
        return Loaded(bmp.FullPathToBmpFile());
    }

    clsBMP bmp;
    ScratchForm form{QSize(100, 100)};
};

template <typename T>
T Field(const QByteArray& bytes, int offset) {
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

bool HasColor(const QImage& image, QRgb color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color) return true;
        }
    }
    return false;
}

TEST_F(clsBMPTest, Edge_RowsAsWideAsThePictureAreNotUnfolded) {
    form.Line(0, 0, 49, 29, Color::Rgb(255, 0, 0), LineForm::FilledBox);
    form.Line(0, 30, 99, 99, Color::Rgb(0, 0, 255), LineForm::FilledBox);
    const QString path = PathOf(QStringLiteral("out.bmp"));
    EXPECT_TRUE(bmp.CreateFileHoldingImage(path, form.hDC(), 50, 30, 50, 30, 24));
    QImage red(50, 30, QImage::Format_RGB32);
    red.fill(Qt::red);
    EXPECT_EQ(Loaded(path), red);
}

TEST_F(clsBMPTest, Edge_TextOfOneLineWithoutTheSeparatorIsOneLine) {
    EXPECT_EQ(TextFile(QStringLiteral("Tavlo"), 24).height(), 40);
    EXPECT_EQ(TextFile(QStringLiteral("Tavlo") + QChar(0) + QStringLiteral("Town"), 24).height(), 80);
}

TEST_F(clsBMPTest, Edge_OnlyWholeGroupsOfEightPixelsAreWrittenAtOneBit) {
    form.SetBackColor(Color::White());
    const QString path = PathOf(QStringLiteral("out.bmp"));
    EXPECT_TRUE(bmp.CreateFileHoldingImage(path, form.hDC(), 100, 1, 100, 1, 1));
    const QByteArray narrow = ReadFile(path).mid(62);
    EXPECT_EQ(narrow, QByteArray(12, '\xFF') + QByteArray(4, '\0'));
    EXPECT_TRUE(bmp.CreateFileHoldingImage(path, form.hDC(), 104, 1, 104, 1, 1));
    EXPECT_EQ(ReadFile(path).mid(62), QByteArray(13, '\xFF') + QByteArray(3, '\0'));
}

TEST_F(clsBMPTest, Edge_EmptyTextGivesAPictureOfThePaperAlone) {
    const QImage image = TextFile(QString(), 24);
    ASSERT_EQ(image.height(), 40);
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(qRgb(255, 255, 0));
    EXPECT_EQ(image.convertToFormat(QImage::Format_RGB32), paper);
}

TEST_F(clsBMPTest, BandsUnderEachOtherAreUnfoldedIntoOneRow) {
    form.Line(0, 0, 99, 9, Color::Rgb(255, 0, 0), LineForm::FilledBox);
    form.Line(0, 10, 99, 19, Color::Rgb(0, 255, 0), LineForm::FilledBox);
    form.Line(0, 20, 99, 29, Color::Rgb(0, 0, 255), LineForm::FilledBox);
    const QString path = PathOf(QStringLiteral("out.bmp"));
    EXPECT_TRUE(bmp.CreateFileHoldingImage(path, form.hDC(), 250, 10, 100, 10, 24));
    const QImage image = Loaded(path);
    EXPECT_EQ(image.size(), QSize(250, 10));
    EXPECT_EQ(image.pixel(99, 5), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(100, 5), qRgb(0, 255, 0));
    EXPECT_EQ(image.pixel(200, 5), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(249, 5), qRgb(0, 0, 255));
}

TEST_F(clsBMPTest, SizesInTheHeadsAreTrue) {
    const QString path = PathOf(QStringLiteral("out.bmp"));
    for (const int bits : {1, 24}) {
        ASSERT_TRUE(bmp.CreateFileHoldingImage(path, form.hDC(), 33, 7, 33, 7, bits));
        const QByteArray bytes = ReadFile(path);
        const int heads = bits == 1 ? 62 : 54;
        const int rowBytes = bits == 1 ? 8 : 100;
        EXPECT_EQ(bytes.size(), heads + rowBytes * 7) << bits;
        EXPECT_EQ(Field<quint32>(bytes, 2), quint32(bytes.size())) << bits;
        EXPECT_EQ(Field<quint32>(bytes, 10), quint32(heads)) << bits;
        EXPECT_EQ(Field<quint32>(bytes, 34), quint32(rowBytes * 7)) << bits;
        EXPECT_EQ(Field<qint32>(bytes, 38), 3780);
        EXPECT_EQ(Field<quint32>(bytes, 46), 0U);
    }
}

TEST_F(clsBMPTest, TableHoldsTheTwoColoursBlueFirst) {
    const QString path = PathOf(QStringLiteral("out.bmp"));
    {
        clsBMP other;
        other.Let_FullPathToBmpFile(path);
        EXPECT_TRUE(other.OpenFileAndSaveHeaders(8, 1, 1, Color::Rgb(1, 2, 3), Color::Rgb(4, 5, 6)));
    }
    EXPECT_EQ(ReadFile(path).mid(54), QByteArray("\x06\x05\x04\x00\x03\x02\x01\x00", 8));
}

TEST_F(clsBMPTest, TextIsInkOnPaperAtBothDepths) {
    for (const int bits : {1, 24}) {
        const QImage image = TextFile(QStringLiteral("HHH"), bits);
        EXPECT_EQ(image.width() % 8, 0);
        EXPECT_TRUE(HasColor(image, qRgb(200, 0, 0))) << bits;
        EXPECT_EQ(image.pixel(0, 0), qRgb(255, 255, 0)) << bits;
    }
}

TEST_F(clsBMPTest, SmoothEdgesAreMixedToTheNearestShade) {
    const auto text = [this](Color ink, Color paper) {
        bmp.SetFontInfo(QStringLiteral("Arial"), 60, false, false);
        bmp.Let_BitsPerPixel(24);
        bmp.Let_FullPathToBmpFile(PathOf(QStringLiteral("text.temp")));
        EXPECT_TRUE(bmp.CreateFileHoldingText(QStringLiteral("SOCQ8369&%@sxwvz"), ink, paper));
        return Loaded(bmp.FullPathToBmpFile());
    };
    // In black on white a value is the share of the paper, in parts of 255. Of paper of 1, 2 and 4 it is 0.502 of a
    // shade at a share of 128, 64 and 32, which is nearer to the next.
    const QImage shares = text(Color::Black(), Color::White());
    const QImage mixed = text(Color::Black(), Color::Rgb(1, 2, 4));
    ASSERT_EQ(mixed.size(), shares.size());
    int barely = 0;
    for (int y = 0; y < shares.height(); ++y) {
        for (int x = 0; x < shares.width(); ++x) {
            const int share = qRed(shares.pixel(x, y));
            const auto nearest = [share](int paper) { return qRound(share * paper / 255.0); };
            ASSERT_EQ(mixed.pixel(x, y), qRgb(nearest(1), nearest(2), nearest(4))) << share;
            if (share == 128 || share == 64 || share == 32) ++barely;
        }
    }
    EXPECT_GT(barely, 0);
}

TEST_F(clsBMPTest, TextWiderThanASurfaceMayBeComesSmaller) {
    const int wide = TextFile(QStringLiteral("A rather long line"), 24).width();
    ScratchForm::SetLargestSize(QSize(160, 100));
    const QImage image = TextFile(QStringLiteral("A rather long line"), 24);
    EXPECT_EQ(image.width(), 160);
    EXPECT_EQ(image.height(), int(40 * 160.0 / wide));
}

TEST_F(clsBMPTest, OtherDepthsAreRefused) {
    EXPECT_THROW(bmp.CreateFileHoldingImage(PathOf(QStringLiteral("o.bmp")), form.hDC(), 8, 8, 8, 8, 8), TavloraError);
    bmp.Let_FullPathToBmpFile(PathOf(QStringLiteral("o.bmp")));
    EXPECT_THROW(bmp.OpenFileAndSaveHeaders(8, 8, 4, Color(), Color()), TavloraError);
}

TEST_F(clsBMPTest, OldFileInTheWayIsToldAndNothingIsWritten) {
    const QString path = WriteFile(QStringLiteral("out.bmp"), "old");
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove) return QStringLiteral("Locked");
        return std::nullopt;
    });
    EXPECT_FALSE(bmp.CreateFileHoldingImage(path, form.hDC(), 8, 8, 8, 8, 24));
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Unable to delete file named '") + path +
                                           QStringLiteral("\r\n\r\nThe following error was reported: \r\n\r\nLocked")});
    EXPECT_EQ(ReadFile(path), "old");
}

TEST_F(clsBMPTest, FullDiskRaises) {
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Write) return QStringLiteral("Disk full");
        return std::nullopt;
    });
    EXPECT_THROW(bmp.CreateFileHoldingImage(PathOf(QStringLiteral("o.bmp")), form.hDC(), 8, 8, 8, 8, 24), TavloraError);
}

TEST_F(clsBMPTest, WritersMarkTheObjectChangedOnlyForAnotherValue) {
    bmp.Let_Margin(0);
    bmp.Let_BitsPerPixel(24);
    EXPECT_FALSE(bmp.IsChanged());
    bmp.Let_FullPathToSrcFile(QStringLiteral("a"));
    EXPECT_TRUE(bmp.IsChanged());
    EXPECT_EQ(bmp.FullPathToSrceFile(), QStringLiteral("a"));
}

TEST_F(clsBMPTest, OvalMaskIsWhiteInsideAndBlackOutside) {
    const QImage mask = bmp.GetEllipticalWhite().Image();
    EXPECT_EQ(mask.size(), QSize(164, 190));
    EXPECT_EQ(mask.pixel(82, 95), kWhite);
    EXPECT_EQ(mask.pixel(0, 0), kBlack);
    EXPECT_EQ(mask.pixel(82, 0), kBlack);
    EXPECT_TRUE(Files::Exists(PathOf(QStringLiteral("WhiteEllipse.dat"))));
    EXPECT_EQ(Files::Size(PathOf(QStringLiteral("WhiteEllipse.dat"))), 54 + 492 * 190);
    EXPECT_FALSE(bmp.Picture().IsNull());
    bmp.ClearPicture();
    EXPECT_TRUE(bmp.Picture().IsNull());
}

TEST_F(clsBMPTest, AFinerMaskIsTheSameOvalInFinerSteps) {
    const QImage coarse = bmp.GetEllipticalWhite().Image();
    const QImage fine = bmp.GetEllipticalWhite(clsBMP::kOval * 4).Image();
    ASSERT_EQ(fine.size(), clsBMP::kOval * 4);
    int different = 0;
    for (int y = 0; y < fine.height(); ++y) {
        for (int x = 0; x < fine.width(); ++x)
            different += fine.pixel(x, y) != coarse.pixel(x / 4, y / 4) ? 1 : 0;
    }
    EXPECT_LT(different, fine.width() * fine.height() / 100) << "the same shape";
    const auto firstWhite = [&fine](int y) {
        int x = 0;
        while (qGreen(fine.pixel(x, y)) == 0)
            ++x;
        return x;
    };
    for (int y = 60; y < 700; ++y)
        EXPECT_LE(std::abs(firstWhite(y) - firstWhite(y + 1)), 3) << y << ": a step of the coarse one is four or more";
}

TEST_F(clsBMPTest, OvalPictureIsKeptUntilThePictureIsYounger) {
    const QString path = WriteFile(QStringLiteral("cat.png"), Encoded(Quarters(400, 300), "png"));
    const QImage oval = bmp.GetEllipticalPicture(path, QString(), false).Image();
    EXPECT_EQ(oval.size(), QSize(164, 190));
    EXPECT_EQ(oval.pixel(40, 50), qRgb(255, 0, 0));
    EXPECT_EQ(oval.pixel(0, 0), kWhite);
    const QString copy = PathOf(QStringLiteral("cat.8png"));
    ASSERT_TRUE(Files::Exists(copy));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
    file.close();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove) return QStringLiteral("Locked");
        return std::nullopt;
    });
    EXPECT_FALSE(bmp.GetEllipticalPicture(path, QString(), true).IsNull());
    EXPECT_EQ(
        desktop.Texts(),
        QStringList{QStringLiteral("Unable to delete old file named '") + copy +
                    QStringLiteral("'.\r\n\r\nThe following error was reported: Locked\r\n\r\nThis obsolete version of "
                                   "the file will be used.")});
    Files::SetFaultHook({});
    EXPECT_EQ(bmp.GetEllipticalPicture(path, QString(), true).Image().pixel(40, 50), qRgb(85, 85, 85));
}

TEST_F(clsBMPTest, MissingOvalPictureIsToldUnlessItWasTold) {
    const QString path = PathOf(QStringLiteral("none.png"));
    EXPECT_TRUE(bmp.GetEllipticalPicture(path, QString(), false).IsNull());
    EXPECT_TRUE(bmp.GetEllipticalPicture(path, path, false).IsNull());
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("The file named '") + path +
                                           QStringLiteral("'does not exist.\r\nArea will be left empty.")});
    const QString broken = WriteFile(QStringLiteral("broken.png"), "nothing");
    EXPECT_TRUE(bmp.GetEllipticalPicture(broken, QString(), false).IsNull());
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_TRUE(desktop.Texts().last().endsWith(QStringLiteral("Area will be left blank.")));
    desktop.boxes.clear();
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::OpenRead) return QStringLiteral("The cable was pulled");
        return std::nullopt;
    });
    const QString away = WriteFile(QStringLiteral("away.png"), Encoded(Quarters(8, 8), "png"));
    EXPECT_TRUE(bmp.GetEllipticalPicture(away, QString(), false).IsNull());
    EXPECT_TRUE(bmp.GetEllipticalPicture(away, away, false).IsNull());
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Unable to load picture named '") + away +
                                           QStringLiteral("'.\r\nThe cable was pulled\r\nArea will be left blank.")});
}

TEST_F(clsBMPTest, AnImageOfOtherThan1Or24BitsAPixelIsRefused) {
    const QString path = PathOf(QStringLiteral("image.bmp"));
    for (const int bits : {4, 8, 16}) {
        try {
            bmp.CreateFileHoldingImage(path, form.hDC(), 8, 8, 8, 8, bits);
            FAIL() << bits;
        } catch (const TavloraError& error) {
            EXPECT_EQ(error.Number(), 0x80040003U);
            EXPECT_TRUE(
                error.Description().endsWith(QStringLiteral("\r\nAssertion Failure: Bits per pixel must be 1 or 24")))
                << error.Description().toStdString();
        }
        EXPECT_FALSE(Files::Exists(path));
    }
}

TEST_F(clsBMPTest, TextFileCarriesItsDrawingUntilTheFileChanges) {
    TextFile(QStringLiteral("Tavlo"), 24);
    QString error;
    const Picture drawn = LoadPicture(bmp.FullPathToBmpFile(), error);
    ASSERT_NE(drawn.Recording(), nullptr);
    // Played eight times as large, the letters' edges stay sharp: hardly anything between ink and paper.
    QImage large(drawn.Width() * 8, drawn.Height() * 8, QImage::Format_RGB32);
    large.fill(Qt::gray);
    {
        QPainter painter(&large);
        drawn.Recording()->Play(painter, QRectF(large.rect()));
    }
    qint64 between = 0;
    qint64 ink = 0;
    for (int y = 0; y < large.height(); ++y) {
        for (int x = 0; x < large.width(); ++x) {
            const QRgb color = large.pixel(x, y);
            ink += color == qRgb(200, 0, 0) ? 1 : 0;
            between += color != qRgb(200, 0, 0) && color != qRgb(255, 255, 0) ? 1 : 0;
        }
    }
    EXPECT_GT(ink, 1000);
    EXPECT_LT(between, ink / 4);
    WriteFile(QStringLiteral("text.temp"), Encoded(Quarters(8, 8), "bmp"));
    EXPECT_EQ(LoadPicture(bmp.FullPathToBmpFile(), error).Recording(), nullptr);
}

} // namespace
