// SPDX-License-Identifier: MIT
#include "nokit/GuideSketches.h"

#include "kit/DeedCards.h"
#include "kit/MoneySheet.h"
#include "kit/NewsSheet.h"
#include "nokit/BoardPages.h"
#include "nokit/BoxWrap.h"
#include "nokit/FoldNet.h"
#include "nokit/Standee.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace GuideSketches {
namespace {

constexpr Color kPaper = Color::Rgb(250, 250, 250);
constexpr double kPen = 0.008;

using Lines = std::vector<PageLine>;
using Place = std::function<QPointF(const QPointF&)>;

// Of what fits into a box, without being stretched.
Place Fitted(const QRectF& what, const QRectF& box) {
    const double scale = std::min(box.width() / what.width(), box.height() / what.height());
    return [=](const QPointF& p) { return box.center() + (p - what.center()) * scale; };
}

QRectF BoundsOf(const Lines& lines) {
    QPolygonF points;
    for (const PageLine& line : lines)
        points << line.line.p1() << line.line.p2();
    return points.boundingRect();
}

void DrawLines(PageCanvas& page, const Lines& lines, const QRectF& box) {
    const Place at = Fitted(BoundsOf(lines), box);
    for (const PageLine& line : lines)
        page.Sketch(line.kind, {at(line.line.p1()), at(line.line.p2())});
}

Lines GridLines(int iColumns, int iRows, QSizeF cell) {
    Lines lines;
    for (int column = 0; column <= iColumns; ++column)
        lines.push_back({LineKind::Cut, {column * cell.width(), 0, column * cell.width(), iRows * cell.height()}});
    for (int row = 0; row <= iRows; ++row)
        lines.push_back({LineKind::Cut, {0, row * cell.height(), iColumns * cell.width(), row * cell.height()}});
    return lines;
}

Lines LinesOf(const CardGrid& grid) { return GridLines(grid.iColumns, grid.iRows, grid.card); }

// As seen from above, from the right and from the front.
QPointF Seen(const Folded::Point& p) {
    constexpr double kAcross = 0.866;
    return {(p.x + p.y) * kAcross, (p.x - p.y) * 0.5 - p.z};
}

// A body that a net has been folded to, its lying face up.
void DrawFolded(PageCanvas& page, const FoldNet& net, const QRectF& box) {
    const std::vector<Folded::Plane> planes = Folded::PlanesOf(net);
    std::vector<QPolygonF> seen;
    QRectF bounds;
    for (size_t i = 0; i < net.faces.size(); ++i) {
        QPolygonF face;
        for (const QPointF& corner : QPolygonF(net.faces[i].box))
            face << Seen(planes[i].At(corner));
        const QPointF a = face[1] - face[0];
        const QPointF b = face[2] - face[1];
        // Those that look away are hidden by the others.
        if (a.x() * b.y() - a.y() * b.x() <= 0) continue;
        face.removeLast();
        seen.push_back(face);
        bounds |= face.boundingRect();
    }
    const Place at = Fitted(bounds, box);
    for (QPolygonF& face : seen) {
        for (QPointF& corner : face)
            corner = at(corner);
        page.Shape(face, kPaper, Color::Black(), kPen);
    }
}

void DrawArrow(PageCanvas& page, const QRectF& box) {
    const QPointF tip = box.center() + QPointF(0.1, 0);
    page.Tick({tip - QPointF(0.2, 0), tip});
    page.Tick({tip, tip + QPointF(-0.06, -0.04)});
    page.Tick({tip, tip + QPointF(-0.06, 0.04)});
}

Lines StandeeLines() {
    Lines lines = GridLines(1, 1, Standee::Size());
    for (const QLineF& fold : Standee::Folds())
        lines.push_back({LineKind::Fold, fold});
    return lines;
}

// A slanted front with its feet before and behind it.
void DrawStanding(PageCanvas& page, const QRectF& box) {
    const double w = box.height() * 0.5;
    const double h = box.height() * 0.8;
    const QPointF foot = box.center() + QPointF(-w / 2, h / 2);
    const QPointF back(0.1, -0.07);
    page.Shape({{foot, foot + QPointF(w, 0), foot + QPointF(w, 0) + back, foot + back}}, kPaper, Color::Black(), kPen);
    page.Shape({{foot, foot + QPointF(w, 0), foot + QPointF(w, -h), foot + QPointF(0, -h)}}, kPaper, Color::Black(),
               kPen);
    page.Shape({{foot, foot + QPointF(w, 0), foot + QPointF(w, 0) - back, foot - back}}, kPaper, Color::Black(), kPen);
    const double head = w * 0.6;
    page.Circle({foot.x() + (w - head) / 2, foot.y() - h + 0.06, head, head}, Color::White(), Color::Black(), kPen);
}

void DrawTent(PageCanvas& page, const QRectF& box) {
    const double w = box.height() * 0.55;
    const double h = box.height() * 0.5;
    const QPointF foot = box.center() + QPointF(-w / 2, h / 2);
    const QPointF along(w * 0.9, -0.12);
    const QPointF top = foot + QPointF(w * 0.25, -h);
    page.Shape({{foot, top, foot + QPointF(w * 0.5, 0)}}, Color::White(), Color::Black(), kPen);
    page.Shape({{foot + QPointF(w * 0.5, 0), top, top + along, foot + QPointF(w * 0.5, 0) + along}}, kPaper,
               Color::Black(), kPen);
}

// A tile lies on its neighbour's edge; a board that folds has three edges taped.
void DrawBoard(PageCanvas& page, const QRectF& left, const QRectF& right, const NoKitChoices& choices) {
    const QRectF square(right.center() - QPointF(0.28, 0.28), QSizeF(0.56, 0.56));
    const QSizeF tile(square.width() / 2, square.height() / 2);
    const QRectF one(left.center() - QPointF(0.3, 0.2), QSizeF(0.34, 0.42));
    page.Box(one, kPaper, Color::Black(), kPen);
    if (choices.way != BoardWay::OnePage) page.Box(one.translated(0.27, 0.04), kPaper, Color::Black(), kPen);
    page.Box(square, kPaper, Color::Black(), kPen);
    page.Box(square.adjusted(0.1, 0.1, -0.1, -0.1), Color::White(), Color::Black(), kPen);
    if (choices.way != BoardWay::Quarters) return;
    const QPointF c = square.center();
    page.Sketch(LineKind::Fold, {c - QPointF(tile.width(), 0), c + QPointF(tile.width(), 0)});
    page.Sketch(LineKind::Fold, {c - QPointF(0, tile.height()), c});
    page.Sketch(LineKind::Cut, {c, c + QPointF(0, tile.height())});
}

Lines LinesOfText() {
    Lines lines = GridLines(1, 1, {8, 10.5});
    for (int i = 0; i < 9; ++i)
        lines.push_back({LineKind::Cut, {1, 1.0 + i, 7, 1.0 + i}});
    return lines;
}

} // namespace

void Draw(PageCanvas& page, const QString& sSheet, const QRectF& box, const NoKitChoices& choices) {
    const QRectF left(box.left(), box.top(), box.width() * 0.42, box.height());
    const QRectF right(box.right() - left.width(), box.top(), left.width(), box.height());
    const auto folded = [&](const Lines& flat, const std::function<void()>& body) {
        DrawLines(page, flat, left);
        DrawArrow(page, box);
        body();
    };
    if (sSheet == QStringLiteral("board")) {
        DrawArrow(page, box);
        DrawBoard(page, left, right, choices);
    } else if (sSheet == QStringLiteral("standees")) {
        folded(StandeeLines(), [&] { DrawStanding(page, right); });
    } else if (sSheet == QStringLiteral("dice")) {
        folded(DieNet(1).Lines(), [&] { DrawFolded(page, DieNet(1), right.adjusted(0.08, 0.1, -0.08, -0.1)); });
    } else if (sSheet == QStringLiteral("stories")) {
        Lines flat = GridLines(1, 1, {0.62, 1.3});
        flat.push_back({LineKind::Fold, {0, 0.65, 0.62, 0.65}});
        folded(flat, [&] { DrawTent(page, right); });
    } else if (sSheet == QStringLiteral("box-wrap")) {
        folded(BoxWrap::Lid().Lines(), [&] { DrawFolded(page, BoxWrap::Lid(), right); });
    } else if (sSheet == QStringLiteral("deeds")) {
        folded(LinesOf(DeedGrid()), [&] { DrawLines(page, GridLines(1, 1, {1, 1}), right.adjusted(0, 0.2, 0, -0.2)); });
    } else if (sSheet == QStringLiteral("news")) {
        folded(LinesOf(NewsGrid()), [&] {
            DrawLines(page, GridLines(1, 1, {3, 1.62}), right.adjusted(0, 0.2, 0, -0.2));
        });
    } else if (sSheet == QStringLiteral("money")) {
        folded(LinesOf(MoneyGrid()), [&] {
            DrawLines(page, GridLines(1, 1, {3.75, 2}), right.adjusted(0, 0.2, 0, -0.2));
        });
    } else {
        DrawLines(page, LinesOfText(), box);
    }
}

} // namespace GuideSketches
