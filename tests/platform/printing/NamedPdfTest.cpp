// SPDX-License-Identifier: MIT
#include "platform/printing/NamedPdf.h"

#include "platform/printing/Printer.h"

#include "support/PdfReader.h"
#include "support/TestFixture.h"

#include <QBuffer>
#include <QProcess>
#include <QRegularExpression>

namespace {

QString Read(const char* sTool, const QStringList& words) {
    QProcess reader;
    reader.start(QString::fromLatin1(sTool), words);
    if (!reader.waitForFinished() || reader.exitCode() != 0) return {};
    return QString::fromUtf8(reader.readAllStandardOutput());
}

class NamedPdfTest : public TavloraTest {
protected:
    void Print(const QStringList& names) {
        PdfPrinter printer(pdf, QStringLiteral("Whole Kit"));
        for (const QString& name : names) {
            printer.SetPageName(name);
            printer.SetFontSize(12);
            printer.Print(QStringLiteral("page ") + name);
            printer.EndDoc();
        }
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
    }

    QString pdf = PathOf(QStringLiteral("kit.pdf"));
};

} // namespace

TEST_F(NamedPdfTest, PagesAreNamedInAListOfContents) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    const QStringList names{QStringLiteral("Box Top & Token Stickers"), QStringLiteral("Łódź (\"1\")"),
                            QStringLiteral("$ 5,000")};
    Print(names);
    EXPECT_EQ(PdfReader(pdf).Pages(), 3);
    EXPECT_TRUE(PdfReader(pdf).Text(2).contains(names[1])) << "the pages are where they were";
    const QString read =
        Read("pdftohtml", {QStringLiteral("-xml"), QStringLiteral("-stdout"), QStringLiteral("-i"), pdf});
    if (read.isEmpty()) GTEST_SKIP() << "no reader that tells the contents is installed";
    EXPECT_TRUE(read.contains(QStringLiteral("<item page=\"1\">Box Top &amp; Token Stickers</item>")))
        << qPrintable(read);
    EXPECT_TRUE(read.contains(QStringLiteral("<item page=\"2\">Łódź"))) << qPrintable(read);
    EXPECT_TRUE(read.contains(QStringLiteral("<item page=\"3\">$ 5,000</item>"))) << qPrintable(read);
    EXPECT_TRUE(Read("pdfinfo", {pdf}).contains(QRegularExpression(QStringLiteral("Title: +Whole Kit"))));
    EXPECT_TRUE(ReadFile(pdf).contains("/PageLabels << /Nums [ 0 << /P <FEFF0042"));
}

TEST_F(NamedPdfTest, PagesWithoutNamesNeedNone) {
    Print({QString(), QString()});
    EXPECT_FALSE(ReadFile(pdf).contains("/Outlines"));
}

TEST_F(NamedPdfTest, WhatIsNotUnderstoodIsPassedOnAsItIs) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("no PDF"), QByteArray("trailer\n/Root 2 0 R\nstartxref\n9\n%%EOF"),
          QByteArray("\n2 0 obj\n<<\n/Type /Catalog\n>>\nendobj\ntrailer\n/Root 2 0 R\n/Size 3\n"
                     "startxref\n9\n%%EOF\n")}) {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        NamedPdf named(file);
        EXPECT_EQ(named.write(bytes), bytes.size());
        named.NamePages({QStringLiteral("Rules")});
        EXPECT_EQ(file.data(), bytes);
    }
}
