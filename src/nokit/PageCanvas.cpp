// SPDX-License-Identifier: MIT
#include "nokit/PageCanvas.h"

#include "platform/paint/ClipScope.h"
#include "platform/paint/Recording.h"
#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr Color kCutColor = Color::Rgb(64, 64, 64);
constexpr Color kFoldColor = Color::Rgb(96, 96, 96);
constexpr double kThinPen = 0.006;
constexpr double kDash = 0.09;
constexpr double kGap = 0.05;

// From what is cut to the marks beside it, and their length.
constexpr double kMarkGap = 0.04;
constexpr double kMarkLength = 0.14;

constexpr int kQuarterTurn = 900;
constexpr int kFullTurn = 3600;

/// A box as whoever reads its text sees it: u runs along the lines, v down them.
struct ReadingBox {
    ReadingBox(const QRectF& box, int iQuarterTurns) : turns((iQuarterTurns % 4 + 4) % 4) {
        const QPointF starts[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
        start = starts[turns];
        along = turns % 2 == 0 ? box.width() : box.height();
        across = turns % 2 == 0 ? box.height() : box.width();
    }
    QPointF At(double u, double v) const {
        switch (turns) {
            case 1:
                return start + QPointF(-v, u);
            case 2:
                return start + QPointF(-u, -v);
            case 3:
                return start + QPointF(v, -u);
            default:
                return start + QPointF(u, v);
        }
    }
    int Escapement() const { return (kFullTurn - turns * kQuarterTurn) % kFullTurn; }

    int turns;
    QPointF start;
    double along = 0;
    double across = 0;
};

double StartOf(TextLook::Align align, double room) {
    switch (align) {
        case TextLook::Align::Left:
            return 0;
        case TextLook::Align::Center:
            return room / 2;
        default:
            return room;
    }
}

} // namespace

PageCanvas::PageCanvas(Surface& page, QSizeF inches) : m_page(page), m_inches(inches), m_dpi(page.DotsPerInch()) {
    m_page.ScaleMode = ScaleModeKind::Pixels;
}

int PageCanvas::Pixels(double inches) const { return CLng(inches * m_dpi); }

void PageCanvas::UsePen(Color color, double dblPen) {
    DeviceContext& context = m_page.hDC();
    const PenStyle style = dblPen > 0 ? PenStyle::Solid : PenStyle::Null;
    context.SelectPen(context.CreatePen(style, std::max(Pixels(dblPen), 1), color));
}

void PageCanvas::Stroke(const QLineF& line, Color color, double dblPen) {
    UsePen(color, dblPen);
    m_page.hDC().MoveTo(Pixels(line.x1()), Pixels(line.y1()));
    m_page.hDC().LineTo(Pixels(line.x2()), Pixels(line.y2()));
}

void PageCanvas::Dashes(const QLineF& line) {
    // A whole number of them, so that both ends of a fold are seen.
    const int dashes = std::max(CLng((line.length() + kGap) / (kDash + kGap)), 1);
    const double step = (line.length() + kGap) / dashes;
    for (int i = 0; i < dashes; ++i) {
        const double from = i * step / line.length();
        const double to = (i * step + step - kGap) / line.length();
        Stroke({line.pointAt(from), line.pointAt(to)}, kFoldColor, kThinPen);
    }
}

void PageCanvas::Line(LineKind kind, const QLineF& line) {
    m_lines.push_back({kind, line});
    Sketch(kind, line);
}

void PageCanvas::Sketch(LineKind kind, const QLineF& line) {
    if (kind == LineKind::Fold) {
        Dashes(line);
    } else {
        Stroke(line, kCutColor, kThinPen);
    }
}

void PageCanvas::Edges(LineKind kind, const QPolygonF& shape) {
    for (qsizetype i = 0; i < shape.size(); ++i) {
        const QLineF edge(shape[i], shape[(i + 1) % shape.size()]);
        if (edge.length() > 0) Line(kind, edge);
    }
}

void PageCanvas::CutBox(const QRectF& box) {
    const QPointF corners[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    for (int i = 0; i < 4; ++i) {
        const QPointF corner = corners[i];
        m_lines.push_back({LineKind::Cut, {corner, corners[(i + 1) % 4]}});
        const double right = i == 1 || i == 2 ? 1 : -1;
        const double down = i > 1 ? 1 : -1;
        Stroke({corner + QPointF(right * kMarkGap, 0), corner + QPointF(right * (kMarkGap + kMarkLength), 0)},
               Color::Black(), kThinPen);
        Stroke({corner + QPointF(0, down * kMarkGap), corner + QPointF(0, down * (kMarkGap + kMarkLength))},
               Color::Black(), kThinPen);
    }
}

void PageCanvas::CutCircle(const QRectF& square) {
    // As a machine cuts it: so many straight cuts that nobody sees them.
    constexpr int kCuts = 72;
    const auto at = [&](int i) {
        const double turn = 2 * std::numbers::pi * i / kCuts;
        const QPointF off(std::cos(turn) * square.width() / 2, std::sin(turn) * square.height() / 2);
        return square.center() + off;
    };
    for (int i = 0; i < kCuts; ++i)
        m_lines.push_back({LineKind::Cut, {at(i), at(i + 1)}});
    Circle(square, Color::None(), kCutColor, kThinPen);
}

void PageCanvas::CutGrid(const QRectF& grid, int iColumns, int iRows) {
    for (int column = 0; column <= iColumns; ++column) {
        const double x = grid.left() + grid.width() * column / iColumns;
        Line(LineKind::Cut, {x, grid.top(), x, grid.bottom()});
    }
    for (int row = 0; row <= iRows; ++row) {
        const double y = grid.top() + grid.height() * row / iRows;
        Line(LineKind::Cut, {grid.left(), y, grid.right(), y});
    }
}

void PageCanvas::Tick(const QLineF& line, Color color) { Stroke(line, color, kThinPen); }

void PageCanvas::Shape(const QPolygonF& shape, Color fill, Color pen, double dblPen) {
    std::vector<QPoint> points;
    for (const QPointF& point : shape)
        points.emplace_back(Pixels(point.x()), Pixels(point.y()));
    UsePen(pen, dblPen);
    DeviceContext& context = m_page.hDC();
    context.SelectBrush(context.CreateSolidBrush(fill));
    context.Polygon(points);
}

void PageCanvas::Box(const QRectF& box, Color fill, Color pen, double dblPen) {
    Shape(QPolygonF(box), fill, pen, dblPen);
}

void PageCanvas::Circle(const QRectF& box, Color fill, Color pen, double dblPen) {
    UsePen(pen, dblPen);
    DeviceContext& context = m_page.hDC();
    context.SelectBrush(context.CreateSolidBrush(fill));
    context.Ellipse(Pixels(box.left()), Pixels(box.top()), Pixels(box.right()), Pixels(box.bottom()));
}

int PageCanvas::SetTextFont(const TextLook& look, double dblHeight) {
    DeviceContext& context = m_page.hDC();
    const int height = std::max(Pixels(dblHeight), 1);
    const int escapement = ReadingBox({}, look.iQuarterTurns).Escapement();
    context.SelectFont(context.CreateFont({QStringLiteral("Arial"), height, 0, escapement, look.bBold, false, false}));
    context.SetTextColor(look.color);
    context.SetBkMode(BkMode::Transparent);
    return height;
}

double PageCanvas::WidthOf(const QString& sText) const {
    QSize size;
    m_page.hDC().GetTextExtentPoint(sText, size);
    return size.width() / m_dpi;
}

void PageCanvas::Text(const QRectF& box, const QString& sText, const TextLook& look) {
    const ReadingBox reading(box, look.iQuarterTurns);
    const QStringList lines = sText.split(u'\n');
    double height = std::min(look.dblHeight, reading.across / double(lines.size()));
    SetTextFont(look, height);
    double widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, WidthOf(line));
    if (widest > reading.along) {
        height *= reading.along / widest;
        SetTextFont(look, height);
    }
    double v = (reading.across - height * double(lines.size())) / 2;
    for (const QString& line : lines) {
        const QPointF at = reading.At(StartOf(look.align, reading.along - WidthOf(line)), v);
        m_page.hDC().TextOut(Pixels(at.x()), Pixels(at.y()), line);
        v += height;
    }
}

double PageCanvas::Paragraph(const QRectF& box, const QString& sText, const TextLook& look) {
    SetTextFont(look, look.dblHeight);
    double top = box.top();
    QString line;
    const auto write = [&] {
        const QRectF place(box.left(), top, box.width(), look.dblHeight);
        Text(place, line, look);
        top += look.dblHeight;
    };
    for (const QString& word : sText.split(u' ')) {
        const QString longer = line.isEmpty() ? word : line + u' ' + word;
        if (WidthOf(longer) <= box.width() || line.isEmpty()) {
            line = longer;
            continue;
        }
        write();
        line = word;
    }
    if (!line.isEmpty()) write();
    return top - box.top();
}

void PageCanvas::DrawingInCircle(const Recording& drawing, const LaidDrawing& laid) {
    const QRect box(QPoint(Pixels(laid.target.left()), Pixels(laid.target.top())),
                    QSize(Pixels(laid.target.width()), Pixels(laid.target.height())));
    const ClipScope round(m_page.hDC(), box, ClipShape::Ellipse);
    Drawing(drawing, laid);
}

void PageCanvas::Drawing(const Recording& drawing, const LaidDrawing& laid) {
    LaidDrawing inPixels = laid;
    inPixels.target = QRectF(laid.target.topLeft() * m_dpi, laid.target.size() * m_dpi);
    m_page.PaintDrawing(drawing, inPixels);
}
