// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <vector>

class Recording;
class Surface;
struct LaidDrawing;

/// What is done along a line of a page.
enum class LineKind { Cut, Fold };

/// In inches from the page's printable origin.
struct PageLine {
    LineKind kind;
    QLineF line;
};

struct TextLook {
    enum class Align { Left, Center, Right };
    /// Height of a line, in inches; less where it doesn't fit.
    double dblHeight = 0.16;
    bool bBold = false;
    Align align = Align::Center;
    Color color = Color::Black();
    /// Clockwise.
    int iQuarterTurns = 0;
};

/// A page of a game without a kit while it is painted. All places and lengths are inches from the printable origin.
/// It remembers where the page is cut and folded, so that a machine can do it.
class PageCanvas {
public:
    /// How far cuts keep from the edge of what can be printed: there stand marks and what the page is.
    static constexpr double kBorder = 0.24;

    PageCanvas(Surface& page, QSizeF inches);

    /// What can be printed.
    QSizeF Inches() const { return m_inches; }
    QRectF Whole() const { return {QPointF(0, 0), m_inches}; }

    /// A cut is a thin line, a fold a dashed one.
    void Line(LineKind kind, const QLineF& line);
    /// The edges of a shape, all of a kind.
    void Edges(LineKind kind, const QPolygonF& shape);
    /// A box to be cut out, shown by marks outside its corners only, so that no line stays on what is cut.
    void CutBox(const QRectF& box);
    /// The circle in a square, to be cut out.
    void CutCircle(const QRectF& square);
    /// Pieces that lie edge to edge, to be cut apart, so many across and down.
    void CutGrid(const QRectF& grid, int iColumns, int iRows);
    /// A line of a drawing that shows how it is done; nothing is cut or folded there.
    void Sketch(LineKind kind, const QLineF& line);
    /// A mark that isn't cut.
    void Tick(const QLineF& line, Color color = Color::Black());

    /// Without outline where the pen has no width.
    void Shape(const QPolygonF& shape, Color fill, Color pen = Color::Black(), double dblPen = 0);
    void Box(const QRectF& box, Color fill, Color pen = Color::Black(), double dblPen = 0);
    void Circle(const QRectF& box, Color fill, Color pen = Color::Black(), double dblPen = 0);

    /// Lines between line breaks, centred across the box and made smaller until they fit it.
    void Text(const QRectF& box, const QString& sText, const TextLook& look);
    /// Text broken at blanks into the box's width; gives the height that it takes.
    double Paragraph(const QRectF& box, const QString& sText, const TextLook& look);

    /// The target in inches.
    void Drawing(const Recording& drawing, const LaidDrawing& laid);
    /// Only what lies in the circle of the target.
    void DrawingInCircle(const Recording& drawing, const LaidDrawing& laid);

    const std::vector<PageLine>& Lines() const { return m_lines; }

private:
    int Pixels(double inches) const;
    void Stroke(const QLineF& line, Color color, double dblPen);
    void Dashes(const QLineF& line);
    void UsePen(Color color, double dblPen);
    int SetTextFont(const TextLook& look, double dblHeight);
    double WidthOf(const QString& sText) const;

    Surface& m_page;
    QSizeF m_inches;
    double m_dpi;
    std::vector<PageLine> m_lines;
};
