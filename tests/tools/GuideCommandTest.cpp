// SPDX-License-Identifier: MIT
// The guide that ships, and the pictures of the sheets that it shows.
#include "kit/Sheets.h"
#include "platform/files/Folders.h"
#include "services/Guide.h"
#include "support/FileFixture.h"
#include "support/PdfReader.h"
#include "tools/PrintCommand.h"

#include <QRegularExpression>

#include <sstream>

namespace {

class GuideCommandTest : public GameFileTest {
protected:
    GuideCommandTest() { Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR)); }

    int Run(const QStringList& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int status = PrintCommand(outStream, errStream, false).Run(words);
        errors = QString::fromStdString(errStream.str());
        return status;
    }
    static QString Page(const QString& page) { return QString::fromUtf8(ReadFile(Guide::PathOf(page))); }
    // The words of all such attributes of a page.
    static QStringList Attributes(const QString& html, const char* sName) {
        QStringList values;
        const QRegularExpression attribute(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(QString::fromLatin1(sName)));
        for (auto match = attribute.globalMatch(html); match.hasNext();)
            values.append(match.next().captured(1));
        return values;
    }

    const QString pdf = PathOf(QStringLiteral("guide.pdf"));
    QString errors;
};

} // namespace

TEST_F(GuideCommandTest, EveryPictureAndEveryPageThatThePagesNameIsThere) {
    for (const QString& page : Guide::Pages()) {
        const QString html = Page(page);
        ASSERT_TRUE(html.contains(QStringLiteral("<main>"))) << page.toStdString();
        for (const QString& name : Attributes(html, "src") + Attributes(html, "href"))
            EXPECT_TRUE(QFile::exists(Guide::PathOf(name))) << page.toStdString() << ": " << name.toStdString();
        EXPECT_FALSE(html.contains(QStringLiteral("@GUIDE"))) << page.toStdString();
    }
}

TEST_F(GuideCommandTest, EveryPageIsReachedFromEveryOther) {
    QStringList pages = Guide::Pages();
    pages.sort();
    for (const QString& page : Guide::Pages()) {
        const QString html = Page(page);
        const QString head = html.section(QStringLiteral("<nav>"), 1).section(QStringLiteral("</nav>"), 0, 0);
        QStringList linked = Attributes(head, "href");
        linked.sort();
        EXPECT_EQ(linked, pages) << page.toStdString();
    }
}

TEST_F(GuideCommandTest, TheStepsShowEverySheetButTheRules) {
    const QStringList shown = Attributes(Page(QString::fromLatin1(Guide::kStepsPage)), "src");
    for (const Sheet& sheet : Sheets()) {
        const QString name = QString::fromLatin1(sheet.sName);
        if (name == QStringLiteral("rules")) continue;
        EXPECT_TRUE(shown.contains(name + QStringLiteral(".png"))) << name.toStdString();
    }
}

TEST_F(GuideCommandTest, GuideIsPrintedWithItsTenStepsInTheirOrder) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils isn't installed";
    ASSERT_EQ(Run({QStringLiteral("--guide"), QStringLiteral("-o"), pdf}), 0) << errors.toStdString();
    const PdfReader reader(pdf);
    QString text;
    for (int page = 1; page <= reader.Pages(); ++page)
        text += reader.Text(page);
    qsizetype at = 0;
    for (const char* step : {"1. Buy the paper", "2. Make the game yours", "3. Find your photos", "4. Look it over",
                             "5. Print at actual size", "6. Print the sheets", "7. Cut", "8. Stick the board",
                             "9. The box", "10. Play", "The board", "Spaces and corners", "Sending a game"}) {
        const qsizetype found = text.indexOf(QString::fromLatin1(step), at);
        ASSERT_GE(found, at) << step;
        at = found;
    }
    EXPECT_FALSE(text.contains(QStringLiteral("Ten steps\n"))) << "what leads from page to page stays on the screen";
    EXPECT_EQ(reader.Images(3).size(), 11) << "the sheets of the step that tells of them";
}

TEST_F(GuideCommandTest, GuideFillsThePaperAskedFor) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils isn't installed";
    for (const bool a4 : {false, true}) {
        const QString paper = a4 ? QStringLiteral("a4") : QStringLiteral("letter");
        ASSERT_EQ(Run({QStringLiteral("--guide"), QStringLiteral("--paper"), paper, QStringLiteral("-o"), pdf}), 0);
        const PdfReader reader(pdf);
        EXPECT_NEAR(reader.PaperInches(1).height(), a4 ? 11.69 : 11.0, 0.01);
        EXPECT_TRUE(reader.Text(6).startsWith(QStringLiteral("The board"))) << "the steps take five pages";
        EXPECT_LE(reader.Pages(), 11);
    }
}

TEST_F(GuideCommandTest, GuideWantsAFileAndNoGame) {
    EXPECT_EQ(Run({QStringLiteral("--guide")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("the guide needs a file to go to"))) << errors.toStdString();
    EXPECT_EQ(Run({QStringLiteral("--guide"), QStringLiteral("My.gam"), QStringLiteral("-o"), pdf}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("the same for every game"))) << errors.toStdString();
    EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(GuideCommandTest, GuideThatLacksAPageSaysSoAndLeavesTheFileOfBefore) {
    WriteFile(QStringLiteral("guide.pdf"), "before");
    const QString data = PathOf(QStringLiteral("program"));
    EXPECT_EQ(Run({QStringLiteral("--guide"), QStringLiteral("--data"), data, QStringLiteral("-o"), pdf}), 1);
    EXPECT_TRUE(errors.contains(pdf)) << errors.toStdString();
    EXPECT_EQ(ReadFile(pdf), "before");
}

TEST_F(GuideCommandTest, SheetsBecomePicturesOfTheSizeAskedFor) {
    const QString game = QStringLiteral(TAVLORA_DATA_DIR "/Blank_US.gam");
    ASSERT_EQ(Run({game, QStringLiteral("--pages"), PathOf(QStringLiteral("pages")), QStringLiteral("--size"),
                   QStringLiteral("210"), QStringLiteral("--sheet"), QStringLiteral("west"), QStringLiteral("rules")}),
              0)
        << errors.toStdString();
    EXPECT_EQ(QDir(PathOf(QStringLiteral("pages"))).entryList(QDir::Files),
              (QStringList{QStringLiteral("rules.png"), QStringLiteral("west.png")}));
    EXPECT_EQ(QImage(PathOf(QStringLiteral("pages/rules.png"))).size(), QSize(160, 210));
    const QImage west(PathOf(QStringLiteral("pages/west.png")));
    ASSERT_EQ(west.size(), QSize(210, 160));
    EXPECT_NE(west.pixelColor(10, 5), QColor(Qt::white)) << "the first sticker's price";
    EXPECT_EQ(west.pixelColor(205, 80), QColor(Qt::white)) << "right of all stickers";
}
