// SPDX-License-Identifier: MIT
#include "platform/printing/SaveHtml.h"

#include "platform/files/Files.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

namespace {

constexpr int kDpi = 600;
constexpr double kMarginInches = 0.6;
constexpr double kFootInches = 0.3;

QString PathOf(const HtmlBook& book, const QString& sFile) { return book.sFolder + u'/' + sFile; }

/// A text whose pictures lie in the book's folder, and nowhere else.
class BookText : public QTextDocument {
public:
    explicit BookText(const HtmlBook& book) : m_book(book) {}

    /// Name of a picture that wasn't there.
    const QString& Missing() const { return m_missing; }

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) return {};
        QString error;
        const auto bytes = Files::ReadAll(PathOf(m_book, name.path()), error);
        const QImage image = bytes ? QImage::fromData(*bytes) : QImage();
        if (image.isNull()) m_missing = name.path();
        return image;
    }

private:
    const HtmlBook& m_book;
    QString m_missing;
};

// What stands between <main> and </main>.
QString PrintedPart(const QString& sHtml) {
    const QString begin = QStringLiteral("<main>");
    const qsizetype from = sHtml.indexOf(begin);
    const qsizetype to = sHtml.indexOf(QStringLiteral("</main>"));
    return from < 0 || to < 0 ? QString() : sHtml.mid(from + begin.size(), to - from - begin.size());
}

bool Read(const HtmlBook& book, BookText& text, QString& sError) {
    const auto style = Files::ReadAll(PathOf(book, QStringLiteral("paper.css")), sError);
    if (!style) return false;
    QString body;
    for (const QString& page : book.pages) {
        const auto bytes = Files::ReadAll(PathOf(book, page), sError);
        if (!bytes) return false;
        body += PrintedPart(QString::fromUtf8(*bytes));
    }
    text.setDefaultStyleSheet(QString::fromUtf8(*style));
    text.setMetaInformation(QTextDocument::DocumentTitle, book.sTitle);
    text.setHtml(QStringLiteral("<html><body>") + body + QStringLiteral("</body></html>"));
    return true;
}

void PaintFoot(QPainter& painter, const HtmlBook& book, const BookText& text, int number) {
    const QSizeF page = text.pageSize();
    const QRectF foot(0, page.height(), page.width(), kFootInches * kDpi);
    painter.setFont(text.defaultFont());
    painter.setPen(Qt::darkGray);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, book.sTitle);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString::number(number));
}

void PaintPages(QPdfWriter& writer, QPainter& painter, const HtmlBook& book, const BookText& text) {
    const QSizeF page = text.pageSize();
    for (int number = 1; number <= text.pageCount(); ++number) {
        if (number > 1) writer.newPage();
        const QRectF shown(0, (number - 1) * page.height(), page.width(), page.height());
        painter.save();
        painter.translate(0, -shown.top());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = shown;
        painter.setClipRect(shown);
        text.documentLayout()->draw(&painter, context);
        painter.restore();
        PaintFoot(painter, book, text, number);
    }
}

} // namespace

bool SaveHtmlAsPdf(const HtmlBook& book, QPageSize::PageSizeId paper, const QString& sPath, QString& sError) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kDpi);
    writer.setTitle(book.sTitle);
    writer.setCreator(QStringLiteral("Tavlora"));
    const QMarginsF margins(kMarginInches, kMarginInches, kMarginInches, kMarginInches);
    writer.setPageLayout(QPageLayout(QPageSize(paper), QPageLayout::Portrait, margins, QPageLayout::Inch));
    BookText text(book);
    if (!Read(book, text, sError)) return false;
    text.documentLayout()->setPaintDevice(&writer);
    text.setDocumentMargin(0);
    text.setPageSize(QSizeF(writer.width(), writer.height() - kFootInches * kDpi));
    QPainter painter(&writer);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    PaintPages(writer, painter, book, text);
    painter.end();
    if (!text.Missing().isEmpty()) {
        sError = QStringLiteral("the picture '%1' can't be read").arg(text.Missing());
        return false;
    }
    return Files::WriteWhole(sPath, bytes, sError);
}
