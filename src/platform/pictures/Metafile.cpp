// SPDX-License-Identifier: MIT
#include "platform/pictures/Metafile.h"

#include "platform/pictures/metafile/MetafilePlayer.h"
#include "platform/pictures/metafile/MetafileSurvey.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr quint32 kPlaceableKey = 0x9AC6CDD7;
constexpr qsizetype kPlaceableSize = 22;
constexpr int kHeadWords = 9;
// A picture that the file is played into is never larger; it is stretched where the destination is.
constexpr double kMostPicturePixels = 4'000'000;
constexpr double kDotsPerInch = 96;
// A flood finds its way as in a picture of about so many pixels a side: in a small one it would escape from a shape
// that is hardly a pixel wide, or not get in.
constexpr int kSideForFloods = 1400;

// The scale of the painter's device: how many of its pixels a unit covers along x and y.
QSizeF PixelsPerUnit(const QTransform& transform) {
    return QSizeF(std::hypot(transform.m11(), transform.m12()), std::hypot(transform.m21(), transform.m22()));
}

double DotsPerInch(const QPainter& painter) {
    const QPaintDevice* device = painter.device();
    // A picture in memory says the dots of its file, if anything; it is a piece of screen here.
    if (!device || device->devType() == QInternal::Image) return kDotsPerInch;
    return qMax(1, device->logicalDpiX());
}

// The picture that the painter paints on; nullptr for any other destination, which can't be read back.
const QImage* PictureOf(const QPainter& painter) {
    const QPaintDevice* device = painter.device();
    const bool readable =
        device && device->devType() == QInternal::Image && painter.deviceTransform().type() <= QTransform::TxTranslate;
    const auto* picture = readable ? static_cast<const QImage*>(device) : nullptr;
    return picture && !picture->hasAlphaChannel() ? picture : nullptr;
}

// What was painted, from one playing on white and one on black: where both agree the picture is opaque,
// where each kept its ground it is clear.
QImage Unground(const QImage& onWhite, const QImage& onBlack) {
    QImage picture(onWhite.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* white = reinterpret_cast<const QRgb*>(onWhite.constScanLine(y));
        const auto* black = reinterpret_cast<const QRgb*>(onBlack.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int kept = qMax(0, qGreen(white[x]) - qGreen(black[x]));
            // A ground that comes out inverted is taken to be white paper.
            to[x] = kept == 0 ? white[x] | 0xFF000000
                              : qRgba(qMin(qRed(black[x]), 255 - kept), qMin(qGreen(black[x]), 255 - kept),
                                      qMin(qBlue(black[x]), 255 - kept), 255 - kept);
        }
    }
    return picture;
}

QImage Ground(QSize size, Qt::GlobalColor colour) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

struct Playing {
    QByteArrayView orders;
    bool smooth;
    double dotsPerInch;
    /// How many times as wide and high a picture is made as it is asked for.
    int finer = 1;
    qint64 budget = MetafileBudget::kWhole;

    /// Plays into a copy that is so many times as large, which is then made small again.
    void Into(QImage& picture, const QRectF& viewport) const {
        if (finer == 1) return IntoAsLarge(picture, viewport);
        QImage large = picture.scaled(picture.size() * finer);
        IntoAsLarge(large, QRectF(viewport.topLeft() * finer, viewport.size() * finer));
        picture = large.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(picture.format());
    }
    void IntoAsLarge(QImage& picture, const QRectF& viewport) const {
        MetafileBudget units(budget);
        MetafileCanvas canvas(picture, dotsPerInch * finer, units);
        canvas.SetSmooth(smooth);
        canvas.SetThinnest(finer);
        MetafilePlayer(canvas, viewport).Play(orders);
    }
    void Onto(QPainter& painter, const QRectF& target) const {
        MetafileBudget units(budget);
        MetafileCanvas canvas(painter, target, dotsPerInch, units);
        canvas.SetSmooth(smooth);
        MetafilePlayer(canvas, target).Play(orders);
    }
};

// For orders that combine with what was painted before: plays into a picture and paints that.
void PlayThroughPicture(const Playing& playing, QPainter& painter, const QRectF& target) {
    if (const QImage* picture = PictureOf(painter)) {
        // No more than the picture has: a target may be many times as large.
        const QRect area = target.toAlignedRect() & picture->rect();
        if (area.isEmpty()) return;
        QImage under = picture->copy(area).convertToFormat(QImage::Format_RGB32);
        playing.Into(under, target.translated(-area.topLeft()));
        painter.drawImage(area, under);
        return;
    }
    const double pixels = target.width() * target.height();
    const double scale = pixels > kMostPicturePixels ? std::sqrt(kMostPicturePixels / pixels) : 1;
    const QSize size = (target.size() * scale).toSize().expandedTo(QSize(1, 1));
    QImage onWhite = Ground(size, Qt::white);
    QImage onBlack = Ground(size, Qt::black);
    const Playing scaled{playing.orders, playing.smooth, playing.dotsPerInch * scale, playing.finer,
                         playing.budget / 2};
    scaled.Into(onWhite, onWhite.rect());
    scaled.Into(onBlack, onBlack.rect());
    painter.drawImage(target, Unground(onWhite, onBlack));
}

// How many times as large a file with floods is played as it will be seen, which leaves half of the budget. An even
// number, so that the middle of a pixel lies between two of the larger picture.
int FinerForFloods(const MetafileSurvey& survey, QSizeF size) {
    const double side = qMax(size.width(), size.height());
    if (survey.floodFills == 0 || survey.countsPixels || side <= 0) return 1;
    const double eachFlood = size.width() * size.height() * MetafileBudget::kFloodedPixel;
    const double most = std::sqrt(double(MetafileBudget::kWhole) / 2 / (eachFlood * survey.floodFills));
    return qMax(1, int(qMin(kSideForFloods / side, most)) / 2 * 2);
}

} // namespace

std::optional<Metafile> Metafile::FromBytes(const QByteArray& bytes, QString& sError) {
    Metafile metafile;
    MetafileReader reader(bytes);
    if (MetafileReader(bytes).U32() == kPlaceableKey) {
        reader.Skip(6); // Key and handle.
        const QPoint from = reader.PointXY();
        const QPoint to = reader.PointXY();
        metafile.m_placeableSize = QSize(to.x() - from.x(), to.y() - from.y());
        reader.Skip(kPlaceableSize - 14);
    }
    const int type = reader.U16();
    const int headWords = reader.U16();
    reader.Skip(2 * kHeadWords - 4);
    if (reader.Failed()) {
        sError = QStringLiteral("The file is too short for a metafile.");
        return {};
    }
    if ((type != 1 && type != 2) || headWords != kHeadWords) {
        sError = QStringLiteral("The file does not begin like a metafile.");
        return {};
    }
    metafile.m_orders = bytes.last(reader.Left());
    return metafile;
}

bool Metafile::Play(QPainter& painter, const QRectF& target) const {
    const MetafileSurvey survey = MetafileSurvey::Of(m_orders);
    if (survey.orders == 0) return false;
    const QTransform device = painter.deviceTransform();
    const QSizeF scale = PixelsPerUnit(device);
    if (target.isEmpty() || scale.isEmpty()) return true;
    painter.save();
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    QRectF pixels;
    if (device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0) {
        // Edges fall on whole pixels.
        painter.setTransform(device.inverted(), true);
        pixels = device.mapRect(target);
    } else {
        painter.scale(1 / scale.width(), 1 / scale.height());
        pixels = QRectF(target.x() * scale.width(), target.y() * scale.height(), target.width() * scale.width(),
                        target.height() * scale.height());
    }
    const Playing playing{m_orders, survey.floodFills == 0, DotsPerInch(painter),
                          FinerForFloods(survey, pixels.size())};
    if (survey.readsBack) {
        PlayThroughPicture(playing, painter, pixels);
    } else {
        playing.Onto(painter, pixels);
    }
    painter.restore();
    return true;
}
