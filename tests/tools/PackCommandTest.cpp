// SPDX-License-Identifier: MIT
// A game goes out as one file and is printed by somebody else, each with the real program and a home of its own.
#include "services/RecordText.h"
#include "support/FontMaker.h"
#include "support/PdfReader.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>

namespace {

constexpr int kFirstSpace = 3;
constexpr int kFirstNews = 35;
constexpr int kFirstMoney = 59;
constexpr int kLines = 69;

class PackCommandTest : public TavloraTest {
protected:
    PackCommandTest() {
        for (const char* name : {"hers", "his", "hers/Pictures", "post", "out", "hers/tmp", "his/tmp"})
            QDir(folder.path()).mkdir(QString::fromLatin1(name));
    }

    /// At home in one of the two folders.
    int Run(const char* home, const QStringList& words) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), PathOf(QString::fromLatin1(home)));
        environment.insert(QStringLiteral("TMPDIR"), PathOf(QString::fromLatin1(home) + QStringLiteral("/tmp")));
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DOCUMENTS_DIR"})
            environment.remove(QString::fromLatin1(name));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TAVLORA_BIN_DIR "/tavlora-print"),
                      words + QStringList{QStringLiteral("--data"), QStringLiteral(TAVLORA_DATA_DIR)});
        if (!process.waitForFinished(100'000)) return -1;
        errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    QStringList Left(const char* home) const {
        QStringList left;
        QDirIterator files(PathOf(QString::fromLatin1(home)), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            left.append(files.next());
        return left.filter(QRegularExpression(QStringLiteral("^(?!.*/(\\.cache|\\.config)/)")));
    }
    static QStringList LinesOf(const char* sample) {
        QString text = QString::fromUtf8(ReadFile(QStringLiteral(TAVLORA_DATA_DIR "/") + QLatin1String(sample)));
        return text.remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    }
    /// The record with another picture, which stands behind so many fields; and another text, unless that is empty.
    static QString Record(const QString& line, int fields, const QString& picture, const QString& part,
                          const QString& text) {
        QString rest = line;
        QStringList ahead;
        for (int i = 0; i < fields; ++i)
            ahead.append(basTAVL::GetQuotedField(rest));
        for (int i = 1; i < fields; ++i)
            ahead[i] = basTAVL::Quote(text.isEmpty() ? ahead[i] : text);
        for (int i = 0; i < 4; ++i)
            basTAVL::GetQuotedField(rest);
        return ahead.join(u',') + u',' + basTAVL::Quote(picture) + u',' + part +
               (rest.isEmpty() ? QString() : u',' + rest);
    }
    static bool HasPicture(int line) { return line >= kFirstSpace && (line < kFirstNews || line >= kFirstMoney); }
    static int FieldsAhead(int line) {
        return (line >= 31 && line < kFirstNews) || (line >= kFirstMoney && line < 63) ? 3 : 2;
    }
    QString WriteHers(const QString& name, const QByteArray& bytes) const {
        QDir(folder.path()).mkpath(QFileInfo(PathOf(QStringLiteral("hers/") + name)).path());
        return WriteFile(QStringLiteral("hers/") + name, bytes);
    }
    /// Nothing was told but what could be better about the game.
    void ExpectNothingButAdvice() const {
        static const QRegularExpression kAdvice(QStringLiteral("^tavlora-print: (must|should): "));
        for (const QString& line : errors.split(u'\n', Qt::SkipEmptyParts))
            EXPECT_TRUE(line.contains(kAdvice)) << line.toStdString();
    }
    /// Packs her game, takes it to him without anything else of hers, and prints it at both places.
    void ExpectTheSameKit(const QString& game) {
        const QString packed = PathOf(QStringLiteral("post/game.tavlora"));
        const QString hers = PathOf(QStringLiteral("out/hers.pdf"));
        const QString his = PathOf(QStringLiteral("out/his.pdf"));
        ASSERT_EQ(Run("hers", {game, QStringLiteral("-o"), hers, QStringLiteral("--pack"), packed}), 0)
            << errors.toStdString();
        ExpectNothingButAdvice();
        const QByteArray bytes = ReadFile(packed);
        ASSERT_EQ(Run("hers", {game, QStringLiteral("--pack"), packed}), 0);
        EXPECT_TRUE(bytes == ReadFile(packed)) << "packing twice gives equal bytes";
        ASSERT_TRUE(QDir(PathOf(QStringLiteral("hers"))).removeRecursively());
        ASSERT_EQ(Run("his", {packed, QStringLiteral("-o"), his}), 0) << errors.toStdString();
        // The same advice, but of pictures by the names that they have inside.
        ExpectNothingButAdvice();
        EXPECT_EQ(Left("his").join(u'\n').toStdString(), "") << "nothing is left behind";
        EXPECT_EQ(QDir(PathOf(QStringLiteral("his/tmp"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 0);
        const PdfReader one(hers);
        const PdfReader other(his);
        ASSERT_EQ(one.Pages(), 12);
        ASSERT_EQ(other.Pages(), 12);
        constexpr int kDpi = 150;
        for (int page = 1; page <= 12; ++page) {
            const QImage pixels = one.Pixels(page, kDpi);
            ASSERT_FALSE(pixels.isNull());
            EXPECT_TRUE(pixels == other.Pixels(page, kDpi)) << "page " << page;
        }
    }
    QString errors;
};

/// A picture that no other equals, with all four quarters to be told apart.
QImage Photo(int number, int width, int height) {
    QImage photo = PictureFiles::Quarters(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; x += 3)
            photo.setPixelColor(x, y, QColor::fromHsv((number * 37 + x / 4) % 360, 200, 255 - y % 200));
    }
    return photo;
}

} // namespace

TEST_F(PackCommandTest, AGameOfPhotosPrintsTheSameAtTheCousins) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    QStringList lines = LinesOf("Blank_US.gam");
    ASSERT_EQ(lines.size(), kLines);
    for (int line = kFirstSpace; line < kLines; ++line) {
        if (!HasPicture(line)) continue;
        const QByteArray jpeg = PictureFiles::Encoded(Photo(line, 600 + line, 450), "JPEG");
        const QString path = WriteHers(QStringLiteral("Pictures/Holiday/DSC_%1.JPG").arg(line),
                                       PictureFiles::WithOrientation(jpeg, 1 + line % 8, line % 2 == 0));
        // Some centred by nobody.
        const QString part =
            line % 4 == 0 ? QStringLiteral("0,0,0") : QStringLiteral("%1,200,%2").arg(line * 5).arg(line % 10);
        lines[line] = Record(lines[line], FieldsAhead(line), path, part, QString());
    }
    ExpectTheSameKit(WriteHers(QStringLiteral("Our holiday.gam"), lines.join(QStringLiteral("\r\n")).toUtf8()));
}

TEST_F(PackCommandTest, PicturesOfOneNameAndTextsInTwelveScriptsPrintTheSame) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    const QStringList scripts{QStringLiteral("Großmütter"), QStringLiteral("Бабушка"),    QStringLiteral("Γιαγιά"),
                              QStringLiteral("סבתא"),       QStringLiteral("جدتي"),       QStringLiteral("दादीजी"),
                              QStringLiteral("คุณยาย"),      QStringLiteral("おばあさん"), QStringLiteral("奶奶家"),
                              QStringLiteral("할머니"),     QStringLiteral("տատիկ"),      QStringLiteral("ბებია")};
    QStringList lines = LinesOf("Family_US.gam");
    ASSERT_EQ(lines.size(), kLines);
    for (int line = kFirstSpace; line < kLines; ++line) {
        if (!HasPicture(line)) continue;
        const QString script = scripts[line % scripts.size()];
        const QString path = WriteHers(QStringLiteral("Pictures/%1 %2/%3.png").arg(script).arg(line).arg(scripts[2]),
                                       PictureFiles::Encoded(Photo(line, 90, 60 + line), "PNG"));
        lines[line] = Record(lines[line], FieldsAhead(line), path, QStringLiteral("40,40,2"), script);
    }
    ExpectTheSameKit(
        WriteHers(scripts.join(u' ') + QStringLiteral(".gam"), lines.join(QStringLiteral("\r\n")).toUtf8()));
}

// A sample whose spaces are in a font of hers.
QStringList InHerFont(QStringList lines) {
    for (int line = kFirstSpace; line < 31; ++line)
        lines[line].replace(QStringLiteral("\"Arial\""), basTAVL::Quote(FontMaker::kFamily));
    return lines;
}

TEST_F(PackCommandTest, AFreeFontGoesAlongAndIsUsedWithoutBeingInstalled) {
    const QByteArray font = FontMaker::Font();
    if (font.isEmpty() || !PdfReader::IsInstalled()) GTEST_SKIP() << "DejaVu Serif or poppler's tools aren't installed";
    WriteHers(QStringLiteral(".local/share/fonts/quill.ttf"), font);
    const QString game = WriteHers(QStringLiteral("Quill.gam"),
                                   InHerFont(LinesOf("Family_US.gam")).join(QStringLiteral("\r\n")).toUtf8());
    ExpectTheSameKit(game);
    EXPECT_TRUE(PdfReader(PathOf(QStringLiteral("out/his.pdf"))).Pages() == 12 &&
                ReadFile(PathOf(QStringLiteral("out/his.pdf"))).contains("QuillLetter"));
}

TEST_F(PackCommandTest, AFontThatMayNotBePassedOnStaysAndIsTold) {
    const QString packed = PathOf(QStringLiteral("post/x.tavlora"));
    const QString game =
        WriteHers(QStringLiteral("x.gam"), InHerFont(LinesOf("Blank_US.gam")).join(QStringLiteral("\r\n")).toUtf8());
    EXPECT_EQ(Run("hers", {game, QStringLiteral("--pack"), packed}), 0);
    EXPECT_EQ(errors,
              QStringLiteral("tavlora-print: the font 'Quill Letter' isn't on this computer and doesn't go along\n"));
    if (FontMaker::Font().isEmpty()) GTEST_SKIP() << "DejaVu Serif isn't installed";
    for (const QByteArray& font : {FontMaker::Font(2), FontMaker::Font(0, false)}) {
        WriteHers(QStringLiteral(".local/share/fonts/quill.ttf"), font);
        EXPECT_EQ(Run("hers", {game, QStringLiteral("--pack"), packed}), 0);
        EXPECT_EQ(errors, QStringLiteral(
                              "tavlora-print: the font 'Quill Letter' doesn't go along, as it may not be passed on\n"));
        EXPECT_FALSE(ReadFile(packed).contains("Fonts/"));
        EXPECT_TRUE(ReadFile(packed).contains("Fonts.txt"));
    }
}

TEST_F(PackCommandTest, EveryCommandTakesAPackedGame) {
    const QString packed = PathOf(QStringLiteral("post/Family.tavlora"));
    ASSERT_EQ(Run("hers", {QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"), QStringLiteral("--pack"), packed}), 0)
        << errors.toStdString();
    const QString again = PathOf(QStringLiteral("post/again.tavlora"));
    const QString board = PathOf(QStringLiteral("out/board.png"));
    const QString hers = PathOf(QStringLiteral("out/hers.png"));
    EXPECT_EQ(Run("his", {packed, QStringLiteral("--board"), board, QStringLiteral("--pieces"),
                          PathOf(QStringLiteral("out/pieces")), QStringLiteral("--pack"), again}),
              0)
        << errors.toStdString();
    EXPECT_TRUE(ReadFile(again) == ReadFile(packed)) << "what is packed anew is the same";
    EXPECT_EQ(Run("hers", {QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"), QStringLiteral("--board"), hers}), 0);
    EXPECT_EQ(QImage(board), QImage(hers));
    EXPECT_FALSE(QImage(PathOf(QStringLiteral("out/pieces/TokenBMP0.png"))).isNull());
    EXPECT_TRUE(Left("his").isEmpty());
}

TEST_F(PackCommandTest, APackedGameKeepsAPictureOfItsBoard) {
    const QString packed = PathOf(QStringLiteral("post/Family.tavlora"));
    const QString hers = PathOf(QStringLiteral("out/hers.png"));
    ASSERT_EQ(Run("hers", {QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"), QStringLiteral("--pack"), packed,
                           QStringLiteral("--board"), hers}),
              0);
    const QByteArray png = ReadFile(hers);
    ASSERT_FALSE(png.isEmpty());
    EXPECT_TRUE(ReadFile(packed).contains(png)) << "it is stored as it is";
}

TEST_F(PackCommandTest, WhatCannotBeUnpackedGivesOneLineAndStatusOne) {
    const QString packed = WriteFile(QStringLiteral("post/x.tavlora"), "no zip at all");
    EXPECT_EQ(Run("his", {packed, QStringLiteral("--board"), PathOf(QStringLiteral("out/b.png"))}), 1);
    EXPECT_EQ(errors, QStringLiteral("tavlora-print: 'x.tavlora' can't be opened: a part of it is missing or was "
                                     "changed on its way.\n"));
    EXPECT_EQ(Run("his", {PathOf(QStringLiteral("none.tavlora")), QStringLiteral("--board"), QStringLiteral("b.png")}),
              1);
    EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
    EXPECT_TRUE(Left("his").isEmpty());
}

TEST_F(PackCommandTest, AMissingPictureIsAWarningAndTheGameIsNeverOverwritten) {
    QStringList lines = LinesOf("Blank_US.gam");
    lines[kFirstSpace] = Record(lines[kFirstSpace], 2, PathOf(QStringLiteral("gone.png")), QStringLiteral("0,0,0"), {});
    const QString game = WriteHers(QStringLiteral("x.gam"), lines.join(QStringLiteral("\r\n")).toUtf8());
    const QString packed = PathOf(QStringLiteral("post/x.tavlora"));
    EXPECT_EQ(Run("hers", {game, QStringLiteral("--pack"), packed}), 0);
    EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
    EXPECT_TRUE(errors.contains(PathOf(QStringLiteral("gone.png"))));
    EXPECT_FALSE(ReadFile(packed).isEmpty());
    EXPECT_EQ(Run("hers", {game, QStringLiteral("--pack"), game}), 2);
    EXPECT_EQ(Run("hers", {packed, QStringLiteral("--pack"), packed}), 2);
    EXPECT_EQ(Run("hers", {game, QStringLiteral("--pack"), PathOf(QStringLiteral("nowhere/x.tavlora"))}), 1);
    EXPECT_TRUE(errors.contains(QStringLiteral("nowhere/x.tavlora' could not be written: "))) << errors.toStdString();
}
