// SPDX-License-Identifier: MIT
#include "platform/paint/Recording.h"

#include "platform/paint/DeviceMetric.h"
#include "platform/paint/PaintImage.h"
#include "platform/paint/PaintText.h"

#include <QFont>
#include <QPaintEngine>
#include <QPainterPath>

#include <functional>
#include <vector>

namespace {

/// All of a painter that decides how the next thing looks.
struct Look {
    QPen pen;
    QBrush brush;
    QTransform transform;
    QPainterPath clip;
    bool clips = false;
    double opacity = 1;
    QPainter::CompositionMode mode = QPainter::CompositionMode_SourceOver;
    QPainter::RenderHints hints;
};

using Act = std::function<void(QPainter&)>;

struct Step {
    std::shared_ptr<const Look> look;
    Act act;
};

} // namespace

class RecordingEngine : public QPaintEngine {
public:
    RecordingEngine() : QPaintEngine(QPaintEngine::AllFeatures), m_look(std::make_shared<Look>()) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState& now) override {
        auto look = std::make_shared<Look>(*m_look);
        const DirtyFlags dirty = now.state();
        if (dirty & DirtyPen) look->pen = now.pen();
        if (dirty & DirtyBrush) look->brush = now.brush();
        if (dirty & DirtyTransform) look->transform = now.transform();
        if (dirty & DirtyOpacity) look->opacity = now.opacity();
        if (dirty & DirtyCompositionMode) look->mode = now.compositionMode();
        if (dirty & DirtyHints) look->hints = now.renderHints();
        if (dirty & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled)) UpdateClip(*look);
        m_look = std::move(look);
    }

    void drawPath(const QPainterPath& path) override {
        Keep([path](QPainter& painter) { painter.drawPath(path); });
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        const QPolygonF polygon(QList<QPointF>(points, points + count));
        Keep([polygon, mode](QPainter& painter) {
            if (mode == PolylineMode) {
                painter.drawPolyline(polygon);
            } else {
                painter.drawPolygon(polygon, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
            }
        });
    }
    void drawLines(const QLineF* lines, int count) override {
        const QList<QLineF> kept(lines, lines + count);
        Keep([kept](QPainter& painter) { painter.drawLines(kept); });
    }
    void drawRects(const QRectF* rects, int count) override {
        const QList<QRectF> kept(rects, rects + count);
        Keep([kept](QPainter& painter) { painter.drawRects(kept); });
    }
    void drawEllipse(const QRectF& rect) override {
        Keep([rect](QPainter& painter) { painter.drawEllipse(rect); });
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source, Qt::ImageConversionFlags) override {
        Keep([target, image, source](QPainter& painter) {
            // Of a page that shows a part, what lies beyond it costs neither time nor room in the file.
            if (painter.hasClipping() && !painter.clipBoundingRect().intersects(target)) return;
            PaintImage(painter, target, image, source, painter.compositionMode());
        });
    }
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override {
        drawImage(target, pixmap.toImage(), source, Qt::AutoColor);
    }
    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        QFont font = item.font();
        // The painter that is recorded draws these by itself.
        font.setUnderline(false);
        const QString text = item.text();
        Keep([point, font, text](QPainter& painter) { PaintText(painter, point, font, text); });
    }

    const std::vector<Step>& Steps() const { return m_steps; }

private:
    // A clip is kept in device units, as the transform may have changed since it was set.
    void UpdateClip(Look& look) const {
        const QPainter* from = painter();
        look.clips = from->hasClipping();
        if (look.clips) look.clip = look.transform.map(from->clipPath());
    }
    void Keep(Act act) { m_steps.push_back({m_look, std::move(act)}); }

    std::shared_ptr<const Look> m_look;
    std::vector<Step> m_steps;
};

namespace {

// Clips are set only where they change: a page would otherwise hold thousands of them.
void Apply(const Look& look, const Look* before, QPainter& painter, const QTransform& base, const QPainterPath& frame) {
    if (!before || before->clips || look.clips) {
        painter.setWorldTransform(base);
        painter.setClipPath(look.clips ? frame.intersected(look.clip) : frame);
    }
    painter.setWorldTransform(look.transform * base);
    painter.setPen(look.pen);
    painter.setBrush(look.brush);
    painter.setOpacity(look.opacity);
    painter.setCompositionMode(look.mode);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(look.hints);
}

// From the drawing's units to the page's.
QTransform TransformOf(const LaidDrawing& laid) {
    const bool upright = laid.iQuarterTurns % 2 == 0;
    const QSizeF size = upright ? laid.target.size() : laid.target.size().transposed();
    QTransform transform;
    if (laid.iQuarterTurns == 0 && !laid.bMirrored) {
        transform.translate(laid.target.x(), laid.target.y());
    } else {
        constexpr double kQuarter = 90;
        transform.translate(laid.target.center().x(), laid.target.center().y());
        transform.rotate(kQuarter * laid.iQuarterTurns);
        if (laid.bMirrored) transform.scale(-1, 1);
        transform.translate(-size.width() / 2, -size.height() / 2);
    }
    transform.scale(size.width() / laid.part.width(), size.height() / laid.part.height());
    transform.translate(-laid.part.x(), -laid.part.y());
    return transform;
}

} // namespace

Recording::Recording(QSize size, double unitsPerInch)
    : m_size(size), m_unitsPerInch(unitsPerInch), m_engine(std::make_unique<RecordingEngine>()) {}
Recording::~Recording() = default;

QPaintEngine* Recording::paintEngine() const { return m_engine.get(); }

void Recording::Play(QPainter& painter, const QRectF& target) const { Play(painter, LaidDrawing{Whole(), target}); }

void Recording::Play(QPainter& painter, const LaidDrawing& laid) const {
    if (laid.part.isEmpty() || laid.target.isEmpty()) return;
    painter.save();
    const QTransform toPage = TransformOf(laid);
    const QTransform base = toPage * painter.worldTransform();
    QPainterPath frame;
    frame.addRect(laid.part);
    // The clips of the drawing take the place of the painter's own, which holds all the same.
    if (painter.hasClipping()) frame = frame.intersected(toPage.inverted().map(painter.clipPath()));
    const Look* shown = nullptr;
    for (const Step& step : m_engine->Steps()) {
        if (step.look.get() != shown) Apply(*step.look, shown, painter, base, frame);
        shown = step.look.get();
        step.act(painter);
    }
    painter.restore();
}

int Recording::metric(PaintDeviceMetric metric) const { return DeviceMetric(metric, m_size, m_unitsPerInch); }
