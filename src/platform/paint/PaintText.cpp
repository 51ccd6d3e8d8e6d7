// SPDX-License-Identifier: MIT
#include "platform/paint/PaintText.h"

#include "platform/paint/PaintImage.h"

#include <QByteArray>
#include <QCache>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QPaintEngine>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

// A drawing that is recorded keeps its text, and is asked again where it is played.
bool TakesOutlinesOnly(const QPainter& painter) {
    const QPaintEngine::Type type = painter.paintEngine()->type();
    return type != QPaintEngine::Raster && type != QPaintEngine::User;
}

/// Which letter, and in which size it was painted: pixels to the em.
struct LetterKey {
    QString font;
    quint32 glyph;
    int pixels;
    QRgb color;
    friend bool operator==(const LetterKey&, const LetterKey&) = default;
    friend size_t qHash(const LetterKey& key, size_t seed) {
        return qHashMulti(seed, key.font, key.glyph, key.pixels, key.color);
    }
};

// What a letter may cover from its origin, in ems: pictures are larger than letters, and their font doesn't tell how
// much.
constexpr QRectF kLetterBox(-0.5, -1.5, 2.5, 2.5);

QImage MakePicture(const QRawFont& font, const LetterKey& key) {
    QImage image((kLetterBox.size() * key.pixels).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(QColor::fromRgb(key.color));
    painter.scale(key.pixels / font.pixelSize(), key.pixels / font.pixelSize());
    QGlyphRun letter;
    letter.setRawFont(font);
    letter.setGlyphIndexes({key.glyph});
    letter.setPositions({QPointF(0, 0)});
    painter.drawGlyphRun(-kLetterBox.topLeft() * font.pixelSize(), letter);
    return image;
}

// A page that shows one emoji often stores it once only when it is handed the same picture each time.
QImage PictureOf(const QRawFont& font, const LetterKey& key) {
    constexpr int kMaxKilobytes = 8 * 1024;
    static QCache<LetterKey, QImage> kept(kMaxKilobytes);
    if (const QImage* known = kept.object(key)) return *known;
    const QImage made = MakePicture(font, key);
    kept.insert(key, new QImage(made), int(made.sizeInBytes() / 1024) + 1);
    return made;
}

// As many as paper shows, in steps, so that the same letter in nearly the same size is stored once.
int PixelsOfEm(const QPainter& painter, double em) {
    constexpr int kStep = 16;
    constexpr int kMost = 1024;
    const QTransform& transform = painter.deviceTransform();
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    const double dots = em * std::max(across, down) * kPaperDotsPerInch / std::max(painter.device()->logicalDpiX(), 1);
    return std::clamp((int(std::ceil(dots)) + kStep - 1) / kStep * kStep, kStep, kMost);
}

void PaintPictures(QPainter& painter, QPointF at, const QGlyphRun& run) {
    const QRawFont font = run.rawFont();
    const double em = font.pixelSize();
    const QString name = font.familyName() + u'/' + font.styleName();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const LetterKey key{name, glyphs[i], PixelsOfEm(painter, em), painter.pen().color().rgb()};
        const QImage picture = PictureOf(font, key);
        const QRectF box(at + places[i] + kLetterBox.topLeft() * em, kLetterBox.size() * em);
        PaintImage(painter, box, picture, picture.rect());
    }
}

// Laying a text out takes its time, and hardly any has such letters: emoji and other signs have high numbers, and a
// font is asked once whether it has pictures even for plain letters.
bool MayHavePictures(const QFont& font, const QString& sText) {
    constexpr ushort kFirstSign = 0x2000;
    return std::ranges::any_of(sText, [](QChar c) { return c.unicode() >= kFirstSign; }) ||
           HoldsPictures(QRawFont::fromFont(font));
}

} // namespace

bool HoldsPictures(const QRawFont& font) {
    static QHash<QByteArray, bool> known;
    // By what no two fonts have alike: its date and checksum. The boxes that stand for letters which no font has come
    // from a font without a head, and without a family: asking for that ends the program.
    const QByteArray head = font.fontTable("head");
    if (head.isEmpty()) return false;
    const auto found = known.constFind(head);
    if (found != known.constEnd()) return *found;
    const auto has = [&font](const char* table) { return !font.fontTable(table).isEmpty(); };
    const bool outlines = has("loca") || has("CFF ") || has("CFF2");
    return *known.insert(head, !outlines || has("COLR") || has("sbix"));
}

void PaintText(QPainter& painter, QPointF at, const QFont& font, const QString& sText) {
    painter.setFont(font);
    if (!TakesOutlinesOnly(painter) || !MayHavePictures(font, sText)) return painter.drawText(at, sText);
    QTextLayout layout(sText, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QPointF origin = at - QPointF(0, line.y() + line.ascent());
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (HoldsPictures(run.rawFont())) {
            PaintPictures(painter, origin, run);
        } else {
            painter.drawGlyphRun(origin, run);
        }
    }
    if (!font.underline()) return;
    const QFontMetricsF metrics(font);
    painter.fillRect(QRectF(at.x(), at.y() + metrics.underlinePos(), line.naturalTextWidth(), metrics.lineWidth()),
                     painter.pen().color());
}
