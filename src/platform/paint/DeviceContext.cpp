// SPDX-License-Identifier: MIT
#include "platform/paint/DeviceContext.h"

#include "platform/paint/DeviceContext_text.h"
#include "platform/paint/FontFace.h"
#include "platform/paint/PaintImage.h"
#include "platform/paint/Painting.h"
#include "platform/text/Numbers.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

// The painter draws nothing of a line without length; this much is too little to be seen.
constexpr double kSpeck = 0.001;

int PenWidth(const Pen& pen) { return std::max(pen.width, 1); }

// A pen of odd width is centred on the middle of the outline's pixels, one of even width on their top left.
double PenOffset(const Pen& pen) { return PenWidth(pen) % 2 == 1 ? 0.5 : 0.0; }

Qt::PenStyle ToQtStyle(const Pen& pen) {
    // A broken line wider than one unit comes out solid, as it always did.
    if (PenWidth(pen) > 1) return Qt::SolidLine;
    switch (pen.style) {
        case PenStyle::Dash:
            return Qt::DashLine;
        case PenStyle::Dot:
            return Qt::DotLine;
        case PenStyle::DashDot:
            return Qt::DashDotLine;
        case PenStyle::DashDotDot:
            return Qt::DashDotDotLine;
        default:
            return Qt::SolidLine;
    }
}

QPen ToQPen(const Pen& pen) {
    const int width = PenWidth(pen);
    const bool round = width > 2;
    return QPen(ToQColor(pen.color), width, ToQtStyle(pen), round ? Qt::RoundCap : Qt::FlatCap,
                round ? Qt::RoundJoin : Qt::MiterJoin);
}

QPainter::CompositionMode ToCompositionMode(RasterOp operation) {
    switch (operation) {
        // Bit operations make odd colours out of the greys that smooth scaling puts between black and white.
        // These two agree with them wherever one side is black or white, and blend in between.
        case RasterOp::SourceAnd:
            return QPainter::CompositionMode_Multiply;
        case RasterOp::SourcePaint:
            return QPainter::CompositionMode_Screen;
        case RasterOp::SourceInvert:
            return QPainter::RasterOp_SourceXorDestination;
        case RasterOp::SourceCopy:
            break;
    }
    return QPainter::CompositionMode_SourceOver;
}

// What a wide pen with round joins leaves of a rectangle, from bars and dots: several times faster than a
// stroke, which a board of many frames feels.
void FillRoundedFrame(QPainter& painter, const QRectF& outline, int penWidth) {
    const double half = penWidth / 2.0;
    const QColor color = painter.pen().color();
    if (painter.brush().style() != Qt::NoBrush) painter.fillRect(outline, painter.brush());
    painter.fillRect(outline.adjusted(0, -half, 0, half - outline.height()), color);
    painter.fillRect(outline.adjusted(0, outline.height() - half, 0, half), color);
    painter.fillRect(outline.adjusted(-half, 0, half - outline.width(), 0), color);
    painter.fillRect(outline.adjusted(outline.width() - half, 0, half, 0), color);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (const QPointF& corner : {outline.topLeft(), outline.topRight(), outline.bottomLeft(), outline.bottomRight()})
        painter.drawEllipse(corner, half, half);
}

} // namespace

Font::Font(const FontRequest& request)
    : m_request(request), m_face(&FontFace::Get(request.sFamily, request.bBold, request.bItalic)) {
    const double height = request.lHeight == 0 ? 16 : request.lHeight;
    m_em = height > 0 ? height * FontFace::kUnitsPerEm / m_face->CellHeight() : -height;
    const double average = m_face->AverageWidth() * m_em / FontFace::kUnitsPerEm;
    m_stretch = request.lWidth > 0 && average > 0 ? request.lWidth / average : 1.0;
}

double Font::Ascent() const { return m_face->Ascent() * m_em / FontFace::kUnitsPerEm; }
double Font::CellHeight() const { return m_face->CellHeight() * m_em / FontFace::kUnitsPerEm; }
double Font::Width(const QString& sText) const {
    return m_face->Advance(sText) * m_em / FontFace::kUnitsPerEm * m_stretch;
}

DeviceContext::DeviceContext(QImage& image) : m_image(&image) {}
DeviceContext::DeviceContext(QPainter& painter) : m_painter(&painter) {}
DeviceContext::~DeviceContext() = default;

PenHandle DeviceContext::CreatePen(PenStyle style, int width, Color color) {
    ++m_created.pens;
    return std::make_shared<const Pen>(Pen{style, width, color});
}

BrushHandle DeviceContext::CreateSolidBrush(Color color) {
    ++m_created.brushes;
    return std::make_shared<const Brush>(Brush{color});
}

FontHandle DeviceContext::CreateFont(const FontRequest& request) {
    ++m_created.fonts;
    return std::make_shared<const Font>(request);
}

BrushHandle DeviceContext::HollowBrush() {
    static const BrushHandle hollow = std::make_shared<const Brush>(Brush{Color::None()});
    return hollow;
}

PenHandle DeviceContext::SelectPen(PenHandle pen) { return std::exchange(m_state.pen, std::move(pen)); }
BrushHandle DeviceContext::SelectBrush(BrushHandle brush) { return std::exchange(m_state.brush, std::move(brush)); }
FontHandle DeviceContext::SelectFont(FontHandle font) { return std::exchange(m_state.font, std::move(font)); }
Color DeviceContext::SetTextColor(Color color) { return std::exchange(m_state.textColor, color); }
Color DeviceContext::SetBkColor(Color color) { return std::exchange(m_state.bkColor, color); }
BkMode DeviceContext::SetBkMode(BkMode mode) { return std::exchange(m_state.bkMode, mode); }

int DeviceContext::SaveDC() {
    m_saved.push_back(m_state);
    return int(m_saved.size());
}

bool DeviceContext::RestoreDC(int depth) {
    if (depth < 1 || size_t(depth) > m_saved.size()) return false;
    m_state = m_saved[size_t(depth) - 1];
    m_saved.resize(size_t(depth) - 1);
    return true;
}

QPainter& DeviceContext::Painter() {
    if (m_painter) return *m_painter;
    if (!m_ownPainter) {
        m_ownPainter = std::make_unique<QPainter>(m_image);
        m_ownPainter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                     QPainter::SmoothPixmapTransform);
    }
    return *m_ownPainter;
}

void DeviceContext::Flush() { m_ownPainter.reset(); }

void DeviceContext::ApplyPenAndBrush() {
    QPainter& painter = Painter();
    painter.setPen(HasPen() ? ToQPen(*m_state.pen) : QPen(Qt::NoPen));
    const bool fills = m_state.brush && !m_state.brush->color.IsNone();
    painter.setBrush(fills ? QBrush(ToQColor(m_state.brush->color)) : QBrush(Qt::NoBrush));
}

void DeviceContext::LineTo(int x, int y) {
    const QPoint from = std::exchange(m_state.position, QPoint(x, y));
    const QPoint to = m_state.position;
    if (!HasPen()) return;
    const Pen& pen = *m_state.pen;
    QPainter& painter = Painter();
    if (PenWidth(pen) > 1) {
        QPen wide = ToQPen(pen);
        wide.setCapStyle(PenWidth(pen) > 2 ? Qt::RoundCap : Qt::SquareCap);
        painter.setPen(wide);
        const QPointF offset(PenOffset(pen), PenOffset(pen));
        if (from == to) {
            painter.drawPoint(QPointF(from) + offset);
        } else {
            painter.drawLine(QPointF(from) + offset, QPointF(to) + offset);
        }
        return;
    }
    if (from == to) return;
    const bool straight = from.x() == to.x() || from.y() == to.y();
    painter.setPen(ToQPen(pen));
    if (!straight) {
        painter.drawLine(QPointF(from) + QPointF(0.5, 0.5), QPointF(to) + QPointF(0.5, 0.5));
        return;
    }
    // From the outer edge of the first pixel to the inner edge of the last, which stays unpainted.
    const QPointF along(to.x() > from.x()   ? 1
                        : to.x() < from.x() ? -1
                                            : 0,
                        to.y() > from.y()   ? 1
                        : to.y() < from.y() ? -1
                                            : 0);
    const QPointF middle(0.5, 0.5);
    painter.drawLine(QPointF(from) + middle - along * 0.5, QPointF(to) + middle - along * 0.5);
}

// The line that the pen follows round a rectangle or an ellipse given by its excluded right and bottom edges.
QRectF DeviceContext::OutlineRect(const QRect& shape) const {
    const Pen& pen = *m_state.pen;
    if (pen.style == PenStyle::InsideFrame && PenWidth(pen) > 1) {
        const double half = PenWidth(pen) / 2.0;
        return QRectF(shape).adjusted(half, half, -half, -half);
    }
    const double offset = PenOffset(pen);
    return QRectF(shape.left() + offset, shape.top() + offset, shape.width() - 1, shape.height() - 1);
}

void DeviceContext::Rectangle(int left, int top, int right, int bottom) {
    const QRect shape(QPoint(std::min(left, right), std::min(top, bottom)),
                      QSize(std::abs(right - left), std::abs(bottom - top)));
    if (shape.isEmpty()) return;
    ApplyPenAndBrush();
    QPainter& painter = Painter();
    if (!HasPen()) {
        painter.drawRect(QRectF(shape).adjusted(0, 0, -1, -1));
        return;
    }
    // The measured platform draws nothing of a thin-penned shape of a single pixel.
    if (PenWidth(*m_state.pen) == 1 && shape.size() == QSize(1, 1)) return;
    StrokeRectangle(OutlineRect(shape));
}

void DeviceContext::StrokeRectangle(const QRectF& outline) {
    QPainter& painter = Painter();
    const int width = PenWidth(*m_state.pen);
    if (width > 2 && (outline.width() == 0 || outline.height() == 0)) {
        painter.drawLine(outline.topLeft(), outline.bottomRight() + QPointF(kSpeck, 0));
        return;
    }
    if (painter.pen().style() != Qt::SolidLine) {
        painter.drawRect(outline);
        return;
    }
    if (width > 2) {
        FillRoundedFrame(painter, outline, width);
        return;
    }
    // Thin frames are filled between their edges: stroked, their corners would come out grey.
    const double half = width / 2.0;
    const QRectF inner = outline.adjusted(half, half, -half, -half);
    const QColor penColor = painter.pen().color();
    painter.setPen(Qt::NoPen);
    painter.drawRect(outline);
    QPainterPath frame;
    frame.addRect(outline.adjusted(-half, -half, half, half));
    if (inner.width() > 0 && inner.height() > 0) frame.addRect(inner);
    painter.fillPath(frame, penColor);
}

void DeviceContext::Ellipse(int left, int top, int right, int bottom) {
    const QRect shape(QPoint(std::min(left, right), std::min(top, bottom)),
                      QSize(std::abs(right - left), std::abs(bottom - top)));
    if (shape.isEmpty()) return;
    ApplyPenAndBrush();
    if (!HasPen()) {
        Painter().drawEllipse(QRectF(shape));
        return;
    }
    if (PenWidth(*m_state.pen) == 1 && shape.size() == QSize(1, 1)) return;
    const QRectF outline = OutlineRect(shape);
    const double half = PenWidth(*m_state.pen) / 2.0;
    if (std::min(outline.width(), outline.height()) > 2 * half) {
        Painter().drawEllipse(outline);
        return;
    }
    // The pen covers all of it; stroked, so small a ring would show a hole.
    QPainter& painter = Painter();
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(outline.adjusted(-half, -half, half, half));
}

void DeviceContext::Polygon(std::span<const QPoint> points) {
    if (points.size() < 2) return;
    const double offset = HasPen() ? PenOffset(*m_state.pen) : 0.0;
    QPolygonF outline;
    outline.reserve(qsizetype(points.size()));
    for (const QPoint& point : points)
        outline << QPointF(point) + QPointF(offset, offset);
    ApplyPenAndBrush();
    Painter().drawPolygon(outline);
}

void DeviceContext::FillRect(int left, int top, int right, int bottom, Color color) {
    if (right <= left || bottom <= top || color.IsNone()) return;
    Painter().fillRect(QRectF(left, top, right - left, bottom - top), ToQColor(color));
}

bool DeviceContext::GetTextExtentPoint(const QString& sText, QSize& size) {
    if (!m_state.font) return false;
    size = sText.isEmpty() ? QSize(0, 0) : QSize(CLng(m_state.font->Width(sText)), CLng(m_state.font->CellHeight()));
    return true;
}

void DeviceContext::TextOut(int x, int y, const QString& sText) {
    if (!m_state.font || sText.isEmpty()) return;
    const Font& font = *m_state.font;
    QPainter& painter = Painter();
    if (m_state.bkMode == BkMode::Opaque) {
        painter.save();
        painter.translate(x, y);
        painter.rotate(-font.Request().lEscapement / 10.0);
        painter.fillRect(QRectF(0, 0, CLng(font.Width(sText)), font.CellHeight()), ToQColor(m_state.bkColor));
        painter.restore();
    }
    const QRgb color = ToQColor(m_state.textColor).rgb();
    if (m_image && painter.worldTransform().isIdentity()) {
        TextStamps::Paint(painter, font, color, QPointF(x, y), sText, m_image->devicePixelRatio());
    } else {
        TextStamps::PaintLetters(painter, font, color, QPointF(x, y), sText);
    }
}

void DeviceContext::DrawImage(const QRectF& destination, const QImage& image, const QRectF& source,
                              RasterOp operation) {
    PaintImage(Painter(), destination, image, source, ToCompositionMode(operation));
}

Color DeviceContext::GetPixel(int x, int y) const {
    if (!m_image) return Color::None();
    const double ratio = m_image->devicePixelRatio();
    const QPoint at(int(x * ratio), int(y * ratio));
    return m_image->valid(at) ? FromQRgb(m_image->pixel(at)) : Color::None();
}

bool DeviceContext::GetPixels(int x, int y, std::span<QRgb> row) {
    if (!m_image) return false;
    Flush();
    constexpr QRgb kOpaque = 0xFF000000U;
    const double ratio = m_image->devicePixelRatio();
    const int line = int(std::floor(y * ratio));
    const bool seen = line >= 0 && line < m_image->height();
    const QRgb* pixels = seen ? reinterpret_cast<const QRgb*>(m_image->constScanLine(line)) : nullptr;
    // Whoever writes files asks for whole rows, millions of pixels.
    if (seen && ratio == 1.0 && x >= 0 && x + int(row.size()) <= m_image->width()) {
        std::transform(pixels + x, pixels + x + row.size(), row.begin(), [](QRgb pixel) { return pixel | kOpaque; });
        return true;
    }
    std::fill(row.begin(), row.end(), qRgb(255, 255, 255));
    if (!seen) return true;
    for (size_t i = 0; i < row.size(); ++i) {
        const int at = int(std::floor((x + int(i)) * ratio));
        if (at >= 0 && at < m_image->width()) row[i] = pixels[at] | kOpaque;
    }
    return true;
}
