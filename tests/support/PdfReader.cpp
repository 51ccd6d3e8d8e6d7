// SPDX-License-Identifier: MIT
#include "support/PdfReader.h"

#include "platform/printing/Printer.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cmath>

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMargin = PdfPrinter::kMarginInches;
// Smoothing at an edge is neither ink nor colour.
constexpr int kInkBelow = 200;
constexpr int kColorWithin = 8;

QByteArray OutputOf(const QString& program, const QStringList& words) {
    QProcess process;
    process.start(program, words);
    process.waitForFinished(120000);
    return process.readAllStandardOutput();
}

QStringList OnPage(int iPage) {
    const QString page = QString::number(iPage);
    return {QStringLiteral("-f"), page, QStringLiteral("-l"), page};
}

QString WithoutEntities(QString text) {
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
        .replace(QStringLiteral("&#39;"), QStringLiteral("'"))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

bool IsNear(QRgb pixel, QRgb color) {
    return std::abs(qRed(pixel) - qRed(color)) < kColorWithin &&
           std::abs(qGreen(pixel) - qGreen(color)) < kColorWithin &&
           std::abs(qBlue(pixel) - qBlue(color)) < kColorWithin;
}

} // namespace

bool PdfReader::IsInstalled() {
    for (const char* tool : {"pdftotext", "pdftoppm", "pdfimages", "pdfinfo"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) return false;
    }
    return true;
}

int PdfReader::Pages() const {
    static const QRegularExpression pages(QStringLiteral("Pages:\\s+(\\d+)"));
    return pages.match(QString::fromUtf8(OutputOf(QStringLiteral("pdfinfo"), {m_path}))).captured(1).toInt();
}

QSizeF PdfReader::PaperInches(int iPage) const {
    static const QRegularExpression size(QStringLiteral("Page\\s+\\d+ size:\\s+([\\d.]+) x ([\\d.]+) pts"));
    const auto match = size.match(QString::fromUtf8(OutputOf(QStringLiteral("pdfinfo"), OnPage(iPage) << m_path)));
    return {match.captured(1).toDouble() / kPointsPerInch, match.captured(2).toDouble() / kPointsPerInch};
}

QString PdfReader::Text(int iPage) const {
    return QString::fromUtf8(OutputOf(QStringLiteral("pdftotext"),
                                      OnPage(iPage) << QStringLiteral("-layout") << m_path << QStringLiteral("-")));
}

QList<PdfReader::Word> PdfReader::Words(int iPage) const {
    static const QRegularExpression word(QStringLiteral(
        "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">(.*)</word>"));
    const QString output = QString::fromUtf8(OutputOf(
        QStringLiteral("pdftotext"), OnPage(iPage) << QStringLiteral("-bbox") << m_path << QStringLiteral("-")));
    const auto inches = [](const QString& points) { return points.toDouble() / kPointsPerInch - kMargin; };
    QList<Word> words;
    for (auto matches = word.globalMatch(output); matches.hasNext();) {
        const auto match = matches.next();
        const QPointF topLeft(inches(match.captured(1)), inches(match.captured(2)));
        const QPointF bottomRight(inches(match.captured(3)), inches(match.captured(4)));
        words.append({WithoutEntities(match.captured(5)), QRectF(topLeft, bottomRight)});
    }
    return words;
}

QList<QRectF> PdfReader::BoxesOf(int iPage, const QString& sWords) const {
    const QStringList wanted = sWords.split(u' ', Qt::SkipEmptyParts);
    const QList<Word> words = Words(iPage);
    QList<QRectF> boxes;
    for (qsizetype start = 0; start + wanted.size() <= words.size(); ++start) {
        QRectF box;
        qsizetype same = 0;
        while (same < wanted.size() && words[start + same].sText == wanted[same])
            box |= words[start + same++].box;
        if (same == wanted.size()) boxes.append(box);
    }
    return boxes;
}

QRectF PdfReader::BoxOf(int iPage, const QString& sWords) const {
    const QList<QRectF> boxes = BoxesOf(iPage, sWords);
    return boxes.size() == 1 ? boxes.first() : QRectF();
}

QList<PdfReader::StoredImage> PdfReader::Images(int iPage) const {
    enum Column { kType = 2, kWidth, kHeight, kEncoding = 8, kObject = 10, kDpiX = 12, kDpiY, kColumns };
    QList<StoredImage> images;
    const QString output =
        QString::fromUtf8(OutputOf(QStringLiteral("pdfimages"), OnPage(iPage) << QStringLiteral("-list") << m_path));
    for (const QString& line : output.split(u'\n').mid(2)) {
        const QStringList columns = line.simplified().split(u' ');
        if (columns.size() < kColumns) continue;
        images.append({columns[kWidth].toInt(), columns[kHeight].toInt(), columns[kType] == QStringLiteral("smask"),
                       columns[kEncoding], columns[kObject].toInt(), columns[kDpiX].toDouble(),
                       columns[kDpiY].toDouble()});
    }
    return images;
}

QImage PdfReader::Pixels(int iPage, int iDpi) const {
    const QByteArray picture =
        OutputOf(QStringLiteral("pdftoppm"), OnPage(iPage) << QStringLiteral("-r") << QString::number(iDpi) << m_path);
    return QImage::fromData(picture, "PPM").convertToFormat(QImage::Format_RGB32);
}

QRectF PdfReader::BoxOfPixels(int iPage, const QRectF& within, const std::function<bool(QRgb)>& wanted) const {
    if (m_pageOfPixels != iPage) {
        m_pixels = Pixels(iPage);
        m_pageOfPixels = iPage;
    }
    const QRectF part((within.left() + kMargin) * kDpi, (within.top() + kMargin) * kDpi, within.width() * kDpi,
                      within.height() * kDpi);
    const QRect pixels = part.toRect() & m_pixels.rect();
    QRect box;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(m_pixels.constScanLine(y));
        int first = pixels.left();
        int last = pixels.right();
        while (first <= last && !wanted(row[first]))
            ++first;
        while (last > first && !wanted(row[last]))
            --last;
        if (first <= last) box |= QRect(QPoint(first, y), QPoint(last, y));
    }
    if (box.isNull()) return {};
    return {double(box.left()) / kDpi - kMargin, double(box.top()) / kDpi - kMargin, double(box.width()) / kDpi,
            double(box.height()) / kDpi};
}

QRectF PdfReader::InkBox(int iPage, const QRectF& within) const {
    return BoxOfPixels(iPage, within, [](QRgb pixel) {
        return std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) < kInkBelow;
    });
}

QRectF PdfReader::ColorBox(int iPage, const QRectF& within, QColor color) const {
    const QRgb rgb = color.rgb();
    return BoxOfPixels(iPage, within, [rgb](QRgb pixel) { return IsNear(pixel, rgb); });
}

QColor PdfReader::ColorAt(int iPage, double dblX, double dblY) const {
    constexpr double kPixel = 1.0 / kDpi;
    QColor color;
    BoxOfPixels(iPage, QRectF(dblX, dblY, kPixel, kPixel), [&color](QRgb pixel) {
        color = QColor(pixel);
        return true;
    });
    return color;
}
