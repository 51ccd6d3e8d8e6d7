// SPDX-License-Identifier: MIT
#include "platform/paint/DeviceContext_text.h"

#include "platform/paint/DeviceContext.h"
#include "platform/paint/FontFace.h"

#include <QCache>

#include <algorithm>
#include <cmath>
#include <memory>

namespace TextStamps {
namespace {

// Room for the words of a board four times as wide as a screen. A line that would take a good part of it is
// painted straight away.
constexpr int kMaxKilobytes = 24 * 1024;
constexpr int kMaxKilobytesOfOne = 2 * 1024;

struct Key {
    QString sText;
    const FontFace* face;
    double em;
    double stretch;
    int escapement;
    bool underline;
    QRgb color;
    double ratio;
    /// Where within a pixel the text starts; not 0 on screens of one and a half pixels a unit.
    QPointF within;
    friend bool operator==(const Key& a, const Key& b) {
        return a.sText == b.sText && a.face == b.face && a.em == b.em && a.stretch == b.stretch &&
               a.escapement == b.escapement && a.underline == b.underline && a.color == b.color && a.ratio == b.ratio &&
               a.within.x() == b.within.x() && a.within.y() == b.within.y();
    }
    friend size_t qHash(const Key& key, size_t seed) {
        return qHashMulti(seed, key.sText, quintptr(key.face), key.em, key.stretch, key.escapement, key.color,
                          key.within.x(), key.within.y());
    }
};

struct Stamp {
    QImage image;
    /// Of the image's top left, from the pixel that the text starts in.
    QPoint offset;
};

QCache<Key, Stamp>& Kept() {
    static QCache<Key, Stamp> kept(kMaxKilobytes);
    return kept;
}

int Kilobytes(qint64 pixels) { return int(std::min<qint64>(pixels * 4 / 1024 + 1, kMaxKilobytes)); }

// All pixels that the letters may touch, from the pixel that the text starts in.
QRect Bounds(const Font& font, const Key& key) {
    // Italic letters lean out of their box, and accents of strange fonts above it.
    const double margin = font.CellHeight() / 2;
    const QRectF box =
        QRectF(0, 0, font.Width(key.sText), font.CellHeight()).adjusted(-margin, -margin, margin, margin);
    QTransform turn;
    turn.translate(key.within.x(), key.within.y());
    turn.scale(key.ratio, key.ratio);
    turn.rotate(-key.escapement / 10.0);
    return turn.mapRect(box).toAlignedRect();
}

bool IsClear(const QRgb* pixels, int count) {
    return std::all_of(pixels, pixels + count, [](QRgb pixel) { return pixel == 0; });
}

// The part of an image that isn't clear.
QRect InkOf(const QImage& image) {
    int top = 0;
    int bottom = image.height() - 1;
    const auto row = [&image](int y) { return reinterpret_cast<const QRgb*>(image.constScanLine(y)); };
    while (top <= bottom && IsClear(row(top), image.width()))
        ++top;
    while (bottom > top && IsClear(row(bottom), image.width()))
        --bottom;
    int left = image.width();
    int right = -1;
    for (int y = top; y <= bottom; ++y) {
        for (int x = 0; x < left; ++x) {
            if (row(y)[x] != 0) left = x;
        }
        for (int x = image.width() - 1; x > right; --x) {
            if (row(y)[x] != 0) right = x;
        }
    }
    return {QPoint(left, top), QPoint(right, bottom)};
}

std::unique_ptr<Stamp> MakeStamp(const Font& font, const Key& key, const QRect& bounds) {
    QImage image(bounds.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(key.within - QPointF(bounds.topLeft()));
    painter.scale(key.ratio, key.ratio);
    PaintLetters(painter, font, key.color, QPointF(0, 0), key.sText);
    painter.end();
    const QRect ink = InkOf(image);
    if (ink.isEmpty()) return std::make_unique<Stamp>();
    return std::make_unique<Stamp>(Stamp{image.copy(ink), bounds.topLeft() + ink.topLeft()});
}

} // namespace

void PaintLetters(QPainter& painter, const Font& font, QRgb color, QPointF at, const QString& sText) {
    const double unit = font.Em() / FontFace::kUnitsPerEm;
    painter.save();
    painter.translate(at);
    painter.rotate(-font.Request().lEscapement / 10.0);
    painter.translate(0, font.Ascent());
    painter.scale(unit * font.Stretch(), unit);
    painter.setPen(QColor::fromRgb(color));
    font.Face().Draw(painter, sText, font.Request().bUnderline);
    painter.restore();
}

void Paint(QPainter& painter, const Font& font, QRgb color, QPointF at, const QString& sText, double ratio) {
    const QPointF start = at * ratio;
    const QPoint pixel(int(std::floor(start.x())), int(std::floor(start.y())));
    const Key key{sText,
                  &font.Face(),
                  font.Em(),
                  font.Stretch(),
                  font.Request().lEscapement,
                  font.Request().bUnderline,
                  color,
                  ratio,
                  start - QPointF(pixel)};
    const Stamp* stamp = Kept().object(key);
    if (!stamp) {
        const QRect bounds = Bounds(font, key);
        if (Kilobytes(qint64(bounds.width()) * bounds.height()) > kMaxKilobytesOfOne) {
            PaintLetters(painter, font, color, at, sText);
            return;
        }
        std::unique_ptr<Stamp> made = MakeStamp(font, key, bounds);
        const int cost = Kilobytes(qint64(made->image.width()) * made->image.height());
        stamp = made.get();
        Kept().insert(key, made.release(), cost);
    }
    if (stamp->image.isNull()) return;
    const QPointF topLeft(pixel + stamp->offset);
    if (ratio == 1.0) {
        painter.drawImage(topLeft, stamp->image);
        return;
    }
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawImage(topLeft, stamp->image);
    painter.restore();
}

void Forget() { Kept().clear(); }

} // namespace TextStamps
