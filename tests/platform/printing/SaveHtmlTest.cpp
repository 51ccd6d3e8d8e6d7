// SPDX-License-Identifier: MIT
#include "platform/printing/SaveHtml.h"

#include "support/PdfReader.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

namespace {

class SaveHtmlTest : public TavloraTest {
protected:
    SaveHtmlTest() {
        WriteFile(QStringLiteral("paper.css"), "h1 { page-break-before: always; }");
        WriteFile(QStringLiteral("a.html"), "<html><nav>elsewhere</nav><main><p>First words</p></main></html>");
        WriteFile(QStringLiteral("b.html"), "<main><h1>Next page</h1><p><img src=\"dot.png\" width=\"96\"></p></main>");
        WriteFile(QStringLiteral("dot.png"), PictureFiles::Encoded(PictureFiles::Quarters(40, 40), "png"));
    }
    bool Save(const QStringList& pages) {
        return SaveHtmlAsPdf({folder.path(), pages, QStringLiteral("A Book")}, QPageSize::Letter, pdf, error);
    }
    const QString pdf = PathOf(QStringLiteral("book.pdf"));
    QString error;
};

} // namespace

TEST_F(SaveHtmlTest, PrintsWhatStandsInMainPageAfterPage) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler-utils isn't installed";
    ASSERT_TRUE(Save({QStringLiteral("a.html"), QStringLiteral("b.html")})) << error.toStdString();
    const PdfReader reader(pdf);
    ASSERT_EQ(reader.Pages(), 2);
    EXPECT_TRUE(reader.Text(1).contains(QStringLiteral("First words")));
    EXPECT_FALSE(reader.Text(1).contains(QStringLiteral("elsewhere")));
    EXPECT_TRUE(reader.Text(2).contains(QStringLiteral("Next page")));
    EXPECT_TRUE(reader.Text(2).contains(QStringLiteral("A Book"))) << "at the foot";
    ASSERT_EQ(reader.Images(2).size(), 1);
    EXPECT_NEAR(reader.Images(2).front().dblDpiX, 40, 1) << "96 dots of a page are an inch";
}

TEST_F(SaveHtmlTest, TellsWhichPictureOrPageIsMissingAndLeavesTheFileOfBefore) {
    WriteFile(QStringLiteral("book.pdf"), "before");
    QFile::remove(PathOf(QStringLiteral("dot.png")));
    EXPECT_FALSE(Save({QStringLiteral("b.html")}));
    EXPECT_TRUE(error.contains(QStringLiteral("'dot.png'"))) << error.toStdString();
    error.clear();
    EXPECT_FALSE(Save({QStringLiteral("a.html"), QStringLiteral("c.html")}));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(ReadFile(pdf), "before");
}
