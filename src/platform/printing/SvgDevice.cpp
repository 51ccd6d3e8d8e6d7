// SPDX-License-Identifier: MIT
#include "platform/printing/SvgDevice.h"

#include "platform/paint/DeviceMetric.h"

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr int kDotsPerInch = 96;

QString Number(double value) { return QString::number(value, 'g', 8); }

QString Color(const char* sWhat, const QColor& color) {
    QString text = QStringLiteral(" %1=\"%2\"").arg(QLatin1String(sWhat), color.name());
    if (color.alpha() < 255)
        text += QStringLiteral(" %1-opacity=\"%2\"").arg(QLatin1String(sWhat), Number(color.alphaF()));
    return text;
}

QString OutlineOf(const QPainterPath& path) {
    QString d;
    const auto add = [&d](const char* sCommand, const QPainterPath::Element& e) {
        d += QLatin1String(sCommand) + Number(e.x) + u' ' + Number(e.y);
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        switch (e.type) {
            case QPainterPath::MoveToElement:
                add("M", e);
                break;
            case QPainterPath::LineToElement:
                add("L", e);
                break;
            case QPainterPath::CurveToElement:
                add("C", e);
                break;
            default:
                add(" ", e);
        }
    }
    return d;
}

QString MatrixOf(const QTransform& t) {
    if (t.isIdentity()) return {};
    return QStringLiteral(" transform=\"matrix(%1 %2 %3 %4 %5 %6)\"")
        .arg(Number(t.m11()), Number(t.m12()), Number(t.m21()), Number(t.m22()), Number(t.dx()), Number(t.dy()));
}

// Photographs as they came, small; what has see-through places or few colours without a loss.
QString DataOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    constexpr int kJpegQuality = 92;
    constexpr int kSmall = 64 * 64;
    const bool png = image.hasAlphaChannel() || image.width() * image.height() < kSmall;
    image.save(&buffer, png ? "PNG" : "JPEG", png ? -1 : kJpegQuality);
    return QStringLiteral("data:image/%1;base64,").arg(png ? QStringLiteral("png") : QStringLiteral("jpeg")) +
           QString::fromLatin1(bytes.toBase64());
}

} // namespace

class SvgDevice::Engine : public QPaintEngine {
public:
    explicit Engine(QSize size) : QPaintEngine(QPaintEngine::AllFeatures), m_page(QPointF(), size) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState& now) override {
        if (now.state() & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled | DirtyTransform)) UpdateClip();
    }
    void drawPath(const QPainterPath& path) override { Add(path, PenLook() + BrushLook(path.fillRule())); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
        if (mode == PolylineMode) {
            Add(path, PenLook() + QStringLiteral(" fill=\"none\""));
            return;
        }
        path.closeSubpath();
        Add(path, PenLook() + BrushLook(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill));
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source, Qt::ImageConversionFlags) override {
        const QRect part = source.toAlignedRect().intersected(image.rect());
        if (part.isEmpty() || source.isEmpty()) return;
        // What of the box the pixels fill that there are.
        const double fX = target.width() / source.width();
        const double fY = target.height() / source.height();
        const QRectF box(target.x() + (part.x() - source.x()) * fX, target.y() + (part.y() - source.y()) * fY,
                         part.width() * fX, part.height() * fY);
        Write(QStringLiteral("<image x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" preserveAspectRatio=\"none\" "
                             "xlink:href=\"%5\"")
                  .arg(Number(box.x()), Number(box.y()), Number(box.width()), Number(box.height()),
                       DataOf(image.copy(part))));
    }
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override {
        drawImage(target, pixmap.toImage(), source, Qt::AutoColor);
    }
    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        path.addText(point, item.font(), item.text());
        if (path.isEmpty() && !item.text().trimmed().isEmpty()) return DrawAsPicture(point, item);
        Add(path, Color("fill", painter()->pen().color()));
    }

    QString sBody;

private:
    // Letters without outlines, as those of coloured signs are.
    void DrawAsPicture(const QPointF& point, const QTextItem& item) {
        constexpr double kFine = 4;
        const QRectF box(point.x(), point.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        QImage image((box.size() * kFine).toSize(), QImage::Format_ARGB32_Premultiplied);
        if (image.isNull()) return;
        image.fill(Qt::transparent);
        QPainter letters(&image);
        letters.scale(kFine, kFine);
        letters.setFont(item.font());
        letters.setPen(painter()->pen());
        letters.drawText(QPointF(0, item.ascent()), item.text());
        letters.end();
        drawImage(box, image, image.rect(), Qt::AutoColor);
    }
    void UpdateClip() {
        m_clip.clear();
        if (!painter()->hasClipping()) return;
        const QPainterPath clip = painter()->transform().map(painter()->clipPath());
        if (clip.contains(m_page)) return;
        const QString outline = OutlineOf(clip);
        const auto known = m_clips.constFind(outline);
        const qsizetype number = known == m_clips.constEnd() ? m_clips.size() : *known;
        m_clip = QStringLiteral(" clip-path=\"url(#c%1)\"").arg(number);
        if (known != m_clips.constEnd()) return;
        m_clips.insert(outline, number);
        sBody +=
            QStringLiteral("<defs><clipPath id=\"c%1\"><path d=\"%2\"/></clipPath></defs>\n").arg(number).arg(outline);
    }
    QString PenLook() const {
        const QPen& pen = painter()->pen();
        if (pen.style() == Qt::NoPen) return QStringLiteral(" stroke=\"none\"");
        const double width = pen.widthF() > 0 ? pen.widthF() : 1;
        QString look = Color("stroke", pen.color()) + QStringLiteral(" stroke-width=\"%1\"").arg(Number(width));
        if (pen.isCosmetic()) look += QStringLiteral(" vector-effect=\"non-scaling-stroke\"");
        if (pen.style() != Qt::SolidLine) {
            QStringList dashes;
            for (const double dash : pen.dashPattern())
                dashes.append(Number(dash * width));
            look += QStringLiteral(" stroke-dasharray=\"%1\"").arg(dashes.join(u' '));
        }
        if (pen.capStyle() == Qt::RoundCap) look += QStringLiteral(" stroke-linecap=\"round\"");
        if (pen.capStyle() == Qt::SquareCap) look += QStringLiteral(" stroke-linecap=\"square\"");
        return look;
    }
    QString BrushLook(Qt::FillRule rule) const {
        const QBrush& brush = painter()->brush();
        if (brush.style() == Qt::NoBrush) return QStringLiteral(" fill=\"none\"");
        return Color("fill", brush.color()) +
               (rule == Qt::OddEvenFill ? QStringLiteral(" fill-rule=\"evenodd\"") : QString());
    }
    void Add(const QPainterPath& path, const QString& sLook) {
        if (!path.isEmpty()) Write(QStringLiteral("<path d=\"%1\"%2").arg(OutlineOf(path), sLook));
    }
    // The clip is in units of the page, the thing itself in its own.
    void Write(const QString& sThing) {
        const QString opacity =
            painter()->opacity() < 1 ? QStringLiteral(" opacity=\"%1\"").arg(Number(painter()->opacity())) : QString();
        const QString thing = sThing + opacity + MatrixOf(painter()->combinedTransform()) + QStringLiteral("/>");
        sBody += m_clip.isEmpty() ? thing + u'\n' : QStringLiteral("<g%1>%2</g>\n").arg(m_clip, thing);
    }

    QString m_clip;
    /// Numbers of those that were written, by their outlines.
    QHash<QString, qsizetype> m_clips;
    QRectF m_page;
};

SvgDevice::SvgDevice(QSize size, QSizeF inches, const QString& sTitle)
    : m_size(size), m_inches(inches), m_title(sTitle), m_engine(std::make_unique<Engine>(size)) {}
SvgDevice::~SvgDevice() = default;

QByteArray SvgDevice::Bytes() const {
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                          "version=\"1.1\" width=\"%1in\" height=\"%2in\" viewBox=\"0 0 %3 "
                          "%4\">\n<title>%5</title>\n<rect width=\"%3\" height=\"%4\" fill=\"#ffffff\"/>\n")
               .arg(Number(m_inches.width()), Number(m_inches.height()))
               .arg(m_size.width())
               .arg(m_size.height())
               .arg(m_title.toHtmlEscaped())
               .toUtf8() +
           m_engine->sBody.toUtf8() + "</svg>\n";
}

QPaintEngine* SvgDevice::paintEngine() const { return m_engine.get(); }

int SvgDevice::metric(PaintDeviceMetric metric) const { return DeviceMetric(metric, m_size, kDotsPerInch); }
