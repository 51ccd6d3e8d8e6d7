// SPDX-License-Identifier: MIT
// The PDF file of a whole kit as others read it: what is in it, and that nothing is in it twice.
#include "PrintCommandFixture.h"

#include "support/PdfReader.h"

#include <QCryptographicHash>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

namespace {

QString Read(const char* sTool, const QStringList& words) {
    QProcess reader;
    reader.start(QString::fromLatin1(sTool), words);
    if (!reader.waitForFinished() || reader.exitCode() != 0) return {};
    return QString::fromUtf8(reader.readAllStandardOutput());
}

// No two pixels alike beside each other, as in a photograph.
QImage Photo(int seed) {
    QImage photo(900, 700, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb((x * 7 + y * seed) % 256, (x + y * 5) % 256, (x * y / 90 + seed) % 256));
    }
    return photo;
}

class KitFileTest : public PrintCommandTest {
protected:
    // The sample with a cropped photograph on places of two sheets, one of them twice, and another on one place.
    void PrintKitWithPhotos() {
        EXPECT_TRUE(Photo(3).save(PathOf(QStringLiteral("beach.jpg"))));
        EXPECT_TRUE(Photo(11).save(PathOf(QStringLiteral("garden.jpg"))));
        QByteArray lines = ReadFile(kFamily);
        Show(lines, "0", "beach.jpg");
        Show(lines, "2", "beach.jpg");
        Show(lines, "20", "beach.jpg");
        Show(lines, "21", "garden.jpg");
        const QString photos = WriteFile(QStringLiteral("Photos.gam"), lines);
        ASSERT_EQ(Run({photos, QStringLiteral("-o"), pdf, QStringLiteral("--data"), kData}), PrintCommand::kDone)
            << qPrintable(errors.join(u'\n'));
    }
    void Show(QByteArray& lines, const QByteArray& space, const char* photo) const {
        const qsizetype line = lines.indexOf("\r\n" + space + ", \"") + 2;
        const qsizetype end = lines.indexOf("\r\n", line);
        const QRegularExpression picture(QStringLiteral(R"("family/[^"]*", \d+, \d+, 0)"));
        QString text = QString::fromUtf8(lines.mid(line, end - line));
        EXPECT_TRUE(text.contains(picture)) << qPrintable(text);
        text.replace(picture, QStringLiteral("\"%1\", 400, 300, 4").arg(PathOf(QString::fromLatin1(photo))));
        lines.replace(line, end - line, text.toUtf8());
    }
    // The pixels of each picture that is stored, by its number in the file.
    QMap<int, QByteArray> StoredPictures() const {
        QMap<int, QByteArray> stored;
        for (int page = 1; page <= PdfReader(pdf).Pages(); ++page) {
            const QString number = QString::number(page);
            const QString prefix = PathOf(QStringLiteral("out/page%1").arg(page));
            Read("pdfimages",
                 {QStringLiteral("-f"), number, QStringLiteral("-l"), number, QStringLiteral("-png"), pdf, prefix});
            int picture = 0;
            for (const PdfReader::StoredImage& image : PdfReader(pdf).Images(page)) {
                const QString file = QStringLiteral("%1-%2.png").arg(prefix).arg(picture++, 3, 10, QLatin1Char('0'));
                const QImage pixels(file);
                EXPECT_FALSE(pixels.isNull()) << qPrintable(file);
                if (image.bMask) continue;
                QCryptographicHash hash(QCryptographicHash::Sha256);
                hash.addData(QByteArray::number(pixels.width()));
                const QImage plain = pixels.convertToFormat(QImage::Format_RGB32);
                hash.addData(QByteArray(reinterpret_cast<const char*>(plain.constBits()), plain.sizeInBytes()));
                stored[image.iObject] = hash.result();
            }
        }
        return stored;
    }
};

} // namespace

TEST_F(KitFileTest, NoPictureIsStoredTwiceThoughItStandsOnTwoSheets) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    PrintKitWithPhotos();
    const QMap<int, QByteArray> stored = StoredPictures();
    EXPECT_GT(stored.size(), 20);
    const QSet<QByteArray> different(stored.cbegin(), stored.cend());
    EXPECT_EQ(different.size(), stored.size());
}

TEST_F(KitFileTest, PhotographsArePackedAsSuchAndDrawingsWithoutLoss) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    PrintKitWithPhotos();
    QSet<int> photos;
    QSet<int> drawings;
    for (int page = 1; page <= PdfReader(pdf).Pages(); ++page) {
        for (const PdfReader::StoredImage& image : PdfReader(pdf).Images(page)) {
            if (image.bMask) continue;
            if (image.sEncoding == QStringLiteral("jpeg")) {
                photos.insert(image.iObject);
                EXPECT_LE(page, 3) << "there are photographs on label sheets only";
                EXPECT_LT(image.dblDpiX, 310);
            } else {
                drawings.insert(image.iObject);
            }
        }
    }
    EXPECT_GE(photos.size(), 2);
    EXPECT_GE(drawings.size(), 20);
}

TEST_F(KitFileTest, ItHasATitleNamedPagesAndFontsWithTheirLettersOnly) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_EQ(PrintKit(), PrintCommand::kDone);
    EXPECT_TRUE(Read("pdfinfo", {pdf}).contains(QRegularExpression(QStringLiteral("Title: +Family_US"))));
    const QString contents =
        Read("pdftohtml", {QStringLiteral("-xml"), QStringLiteral("-stdout"), QStringLiteral("-i"), pdf});
    const char* const names[] = {"Box Top",       "West, South", "East, North", "Deed Sheet #1",
                                 "Deed Sheet #2", "Good News",   "Bad News",    "$ 100",
                                 "$ 500",         "$ 1,000",     "$ 5,000",     "Instruction"};
    int page = 0;
    for (const char* name : names) {
        const QRegularExpression item(QStringLiteral("<item page=\"%1\">[^<]*%2")
                                          .arg(++page)
                                          .arg(QRegularExpression::escape(QString::fromLatin1(name))));
        EXPECT_TRUE(contents.contains(item)) << name;
    }
    // The toolkit doesn't say of a font that it has the letters in use only; it shows by how long it is.
    const QByteArray file = ReadFile(pdf);
    const QRegularExpression length(QStringLiteral("/Length1 (\\d+)"));
    constexpr int kWholeFont = 130000;
    int fonts = 0;
    for (const auto& match : length.globalMatch(QString::fromLatin1(file))) {
        ++fonts;
        EXPECT_LT(match.captured(1).toInt(), kWholeFont / 2);
    }
    EXPECT_GE(fonts, 2);
    const QStringList rows = Read("pdffonts", {pdf}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_GE(rows.size(), 2);
    for (const QString& row : rows)
        EXPECT_TRUE(row.contains(QRegularExpression(QStringLiteral(R"( yes (yes|no) +yes +\d+ +\d+$)"))))
            << qPrintable(row);
}
