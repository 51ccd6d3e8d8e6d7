// SPDX-License-Identifier: MIT
#include "windowing/PageView.h"

#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Pixels round the page.
constexpr int kRoom = 16;
constexpr int kShadow = 3;
constexpr double kWheelStep = 1.25;
constexpr int kLineStep = 24;
constexpr int kDash = 5;
constexpr int kDashStep = 8;

const QColor kDesk(0x80, 0x80, 0x80);
const QColor kShade(0x50, 0x50, 0x50);
const QColor kMargin(0x30, 0x60, 0xC0);

void PaintMargins(QPainter& painter, const PaperOfPage& paper, double perInch) {
    const QRect box = QRectF(paper.printable.topLeft() * perInch, paper.printable.size() * perInch).toRect();
    // Dash by dash: those of the painter begin where its picture does, so that parts of a page wouldn't join.
    for (int x = box.left(); x < box.right(); x += kDashStep) {
        painter.fillRect(x, box.top(), kDash, 1, kMargin);
        painter.fillRect(x, box.bottom(), kDash, 1, kMargin);
    }
    for (int y = box.top(); y < box.bottom(); y += kDashStep) {
        painter.fillRect(box.left(), y, 1, kDash, kMargin);
        painter.fillRect(box.right(), y, 1, kDash, kMargin);
    }
}

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    horizontalScrollBar()->setSingleStep(kLineStep);
    verticalScrollBar()->setSingleStep(kLineStep);
    setFocusPolicy(Qt::StrongFocus);
}

void PageView::ShowPage(const PreviewPage& page) {
    m_page = page;
    m_middle = QPointF(0.5, 0.5);
    LayOut();
}

double PageView::ZoomOfWholePage() const {
    if (m_page.IsNull()) return 1;
    const QSizeF inches = m_page.paper.size;
    const double across = (viewport()->width() - 2 * kRoom) / (inches.width() * logicalDpiX());
    const double down = (viewport()->height() - 2 * kRoom) / (inches.height() * logicalDpiX());
    return std::clamp(std::min(across, down), kLeastZoom, kMostZoom);
}

double PageView::Zoom() const { return m_zoom.value_or(ZoomOfWholePage()); }

double PageView::DotsPerInch() const { return Zoom() * logicalDpiX(); }

QSize PageView::Extent() const { return (m_page.paper.size * DotsPerInch()).toSize() + QSize(2 * kRoom, 2 * kRoom); }

QPoint PageView::Corner() const {
    const QSize extent = Extent();
    const QSize view = viewport()->size();
    const auto place = [](int whole, int seen, const QScrollBar& bar) {
        return whole <= seen ? (seen - whole) / 2 : -bar.value();
    };
    return QPoint(place(extent.width(), view.width(), *horizontalScrollBar()),
                  place(extent.height(), view.height(), *verticalScrollBar())) +
           QPoint(kRoom, kRoom);
}

void PageView::SetZoom(double zoom) {
    m_zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
    LayOut();
    Q_EMIT ZoomChanged();
}

void PageView::ShowWholePage() {
    m_zoom.reset();
    m_middle = QPointF(0.5, 0.5);
    LayOut();
    Q_EMIT ZoomChanged();
}

void PageView::LayOut() {
    if (std::exchange(m_bLayingOut, true)) return;
    const auto set = [](QScrollBar& bar, int whole, int seen, double at) {
        bar.setPageStep(seen);
        bar.setRange(0, std::max(whole - seen, 0));
        bar.setValue(int(std::lround(at * whole - seen / 2.0)));
    };
    const auto scrolled = m_zoom ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(scrolled);
    setVerticalScrollBarPolicy(scrolled);
    // A bar that comes or goes changes the room that the other one has.
    constexpr int kMostRounds = 3;
    QSize view;
    for (int round = 0; round < kMostRounds && view != viewport()->size(); ++round) {
        view = viewport()->size();
        const QSize extent = Extent();
        set(*horizontalScrollBar(), extent.width(), view.width(), m_middle.x());
        set(*verticalScrollBar(), extent.height(), view.height(), m_middle.y());
    }
    m_bLayingOut = false;
    Forget();
}

void PageView::Forget() {
    m_shown = QImage();
    viewport()->update();
}

QImage PageView::PaintPart(const QRect& part) const {
    const double ratio = viewport()->devicePixelRatioF();
    QImage image((QSizeF(part.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.fill(kDesk);
    if (m_page.IsNull()) return image;
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(QPointF(Corner() - part.topLeft()) * ratio);
    const double perInch = DotsPerInch() * ratio;
    const QRectF sheet(QPointF(0, 0), m_page.paper.size * perInch);
    painter.fillRect(sheet.translated(kShadow * ratio, kShadow * ratio), kShade);
    painter.save();
    m_page.Paint(painter, perInch);
    painter.restore();
    const bool reachesAll = m_page.paper.printable == QRectF(QPointF(0, 0), m_page.paper.size);
    if (!reachesAll) PaintMargins(painter, m_page.paper, perInch);
    return image;
}

const QImage& PageView::Image() {
    const double ratio = viewport()->devicePixelRatioF();
    if (m_shown.size() != (QSizeF(viewport()->size()) * ratio).toSize()) m_shown = PaintPart(viewport()->rect());
    return m_shown;
}

void PageView::paintEvent(QPaintEvent* event) {
    QImage image = Image();
    image.setDevicePixelRatio(viewport()->devicePixelRatioF());
    QPainter painter(viewport());
    painter.setClipRegion(event->region());
    painter.drawImage(QPointF(0, 0), image);
}

void PageView::resizeEvent(QResizeEvent*) {
    LayOut();
    if (ShowsWholePage()) Q_EMIT ZoomChanged();
}

// Only what comes into view is drawn, as a page of photographs in four times its size takes its time.
void PageView::scrollContentsBy(int dx, int dy) {
    if (m_bLayingOut) return;
    const QSizeF extent(Extent());
    const QPoint middle = viewport()->rect().center() - Corner() + QPoint(kRoom, kRoom);
    m_middle = QPointF(middle.x() / extent.width(), middle.y() / extent.height());
    const double ratio = viewport()->devicePixelRatioF();
    if (m_shown.isNull() || ratio != std::floor(ratio)) return Forget();
    QImage moved(m_shown.size(), m_shown.format());
    const QRect view = viewport()->rect();
    const QRegion stays = QRegion(view.translated(dx, dy)) & view;
    {
        QPainter painter(&moved);
        painter.drawImage(QPoint(dx, dy) * ratio, m_shown);
        for (const QRect& part : QRegion(view) - stays)
            painter.drawImage(part.topLeft() * ratio, PaintPart(part));
    }
    m_shown = moved;
    viewport()->update();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) SetZoom(event->angleDelta().y() > 0 ? Zoom() * kWheelStep : Zoom() / kWheelStep);
    event->accept();
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_dragged = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    Scroll(m_dragged - event->pos());
    m_dragged = event->pos();
}

void PageView::mouseReleaseEvent(QMouseEvent*) { viewport()->unsetCursor(); }

void PageView::Scroll(QPoint by) {
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + by.y());
}

QIcon PageView::IconOf(const PreviewPage& page, int side) {
    QImage image = page.Image(QSize(side, side));
    {
        QPainter painter(&image);
        painter.setPen(kShade);
        painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
    }
    return QPixmap::fromImage(image);
}
