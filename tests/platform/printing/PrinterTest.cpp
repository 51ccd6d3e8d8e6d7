// SPDX-License-Identifier: MIT
#include "platform/printing/Printer.h"

#include "support/TestFixture.h"

#ifdef Q_OS_UNIX
#include "support/SmallDisk.h"
#endif

#include <QDir>
#include <QProcess>

namespace {

// What an independent reader says of a PDF file.
QString PdfInfo(const QString& sPath, const QStringList& options = {}) {
    QProcess reader;
    reader.start(QStringLiteral("pdfinfo"), options + QStringList{sPath});
    if (!reader.waitForFinished() || reader.exitCode() != 0) return {};
    return QString::fromUtf8(reader.readAllStandardOutput());
}

} // namespace

using PrinterTest = TavloraTest;

TEST_F(PrinterTest, EachEndDocIsAPageAndOrientationsMix) {
    const QString path = PathOf(QStringLiteral("kit.pdf"));
    PdfPrinter printer(path, QStringLiteral("Kit"));
    for (const PageOrientation orientation : {PageOrientation::Landscape, PageOrientation::Portrait}) {
        printer.SetOrientation(orientation);
        printer.hDC().FillRect(0, 0, 600, 600, Color::Rgb(255, 0, 0));
        printer.EndDoc();
    }
    QString error;
    ASSERT_TRUE(printer.Close(error)) << qPrintable(error);
    const QString info = PdfInfo(path, {QStringLiteral("-l"), QStringLiteral("2")});
    if (info.isEmpty()) GTEST_SKIP() << "no reader of PDF files is installed";
    EXPECT_TRUE(info.contains(QStringLiteral("Page    1 size:  792 x 612 pts"))) << qPrintable(info);
    EXPECT_TRUE(info.contains(QStringLiteral("Page    2 size:  612 x 792 pts"))) << qPrintable(info);
}

TEST_F(PrinterTest, ThePrintableAreaIsAQuarterInchInsideThePaper) {
    PdfPrinter printer(PathOf(QStringLiteral("x.pdf")), QStringLiteral("x"));
    EXPECT_EQ(printer.PrintableInches(), QSizeF(8.0, 10.5));
    EXPECT_EQ(printer.SizeInPixels(), QSize(4800, 6300));
    printer.SetOrientation(PageOrientation::Landscape);
    EXPECT_EQ(printer.PrintableInches(), QSizeF(10.5, 8.0));
}

TEST_F(PrinterTest, AFileThatCannotBeWrittenIsToldByCloseAndLeavesNothing) {
    PdfPrinter printer(PathOf(QStringLiteral("no such folder/x.pdf")), QStringLiteral("x"));
    printer.SetFontSize(12);
    printer.Print(QStringLiteral("lost"));
    QString error;
    EXPECT_FALSE(printer.Close(error));
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(PrinterTest, ManyPagesIntoAFileThatCannotBeWrittenAreToldOnce) {
    PdfPrinter printer(PathOf(QStringLiteral("no such folder/x.pdf")), QStringLiteral("x"));
    for (int page = 0; page < 3; ++page) {
        printer.hDC().FillRect(0, 0, 600, 600, Color::Black());
        printer.EndDoc();
    }
    QString error;
    EXPECT_FALSE(printer.Close(error));
    EXPECT_FALSE(error.isEmpty());
}

#ifdef Q_OS_UNIX
TEST_F(PrinterTest, ADiskThatFillsUpInTheMiddleOfAPageLeavesTheOldFileAndSaysWhy) {
    const QString path = WriteFile(QStringLiteral("x.pdf"), "old");
    // Noise, which nothing makes smaller.
    QImage noise(300, 300, QImage::Format_ARGB32_Premultiplied);
    quint32 random = 1;
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, (random = random * 1664525U + 1013904223U) | 0xFF000000U);
    }
    QString error;
    bool closed = true;
    {
        const SmallDisk disk(100'000);
        PdfPrinter printer(path, QStringLiteral("x"));
        for (int picture = 0; picture < 3; ++picture)
            printer.hDC().Painter().drawImage(QRectF(picture * 500, 0, 400, 400), noise);
        closed = printer.Close(error);
    }
    EXPECT_FALSE(closed);
    EXPECT_FALSE(error.isEmpty() || error.startsWith(QStringLiteral("Unknown"))) << qPrintable(error);
    EXPECT_EQ(ReadFile(path), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("x.pdf")});
}
#endif

TEST_F(PrinterTest, AKilledDocumentLeavesTheOldFile) {
    const QString path = WriteFile(QStringLiteral("x.pdf"), "old");
    {
        PdfPrinter printer(path, QStringLiteral("x"));
        printer.SetFontSize(12);
        printer.Print(QStringLiteral("thrown away"));
        printer.KillDoc();
    }
    EXPECT_EQ(ReadFile(path), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("x.pdf")});
}
