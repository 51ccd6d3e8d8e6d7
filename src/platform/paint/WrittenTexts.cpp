// SPDX-License-Identifier: MIT
#include "platform/paint/WrittenTexts.h"

#include "platform/paint/DeviceMetric.h"
#include "platform/paint/Recording.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kDegrees = 180 / std::numbers::pi;

/// Takes the texts out of what is painted and lets all else go.
class TextEngine : public QPaintEngine {
public:
    TextEngine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawLines(const QLineF*, int) override {}
    void drawRects(const QRectF*, int) override {}
    void drawEllipse(const QRectF&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}

    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        const QTransform& transform = painter()->deviceTransform();
        const double across = std::hypot(transform.m11(), transform.m12());
        const double down = std::hypot(transform.m21(), transform.m22());
        const QRectF box = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(point);
        const QRectF inPoints = transform.mapRect(box);
        const QRectF inInches(inPoints.topLeft() / kPointsPerInch, inPoints.size() / kPointsPerInch);
        const QFont font = item.font();
        texts.append({item.text(), font.family(), font.bold(), font.italic(), down * font.pixelSize(),
                      down > 0 ? across / down : 1, inInches, std::atan2(transform.m12(), transform.m11()) * kDegrees});
    }

    QList<WrittenText> texts;
};

/// A page whose units are points.
class TextPage : public QPaintDevice {
public:
    explicit TextPage(QSizeF inches) : m_size((inches * kPointsPerInch).toSize().expandedTo(QSize(1, 1))) {}
    QPaintEngine* paintEngine() const override { return &m_engine; }
    QList<WrittenText> Texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override { return DeviceMetric(metric, m_size, kPointsPerInch); }

private:
    QSize m_size;
    mutable TextEngine m_engine;
};

} // namespace

QList<WrittenText> WrittenTextsOf(const Recording& recording, QSizeF inches) {
    TextPage page(inches);
    QPainter painter(&page);
    recording.Play(painter, QRectF(QPointF(), inches * kPointsPerInch));
    painter.end();
    return page.Texts();
}
