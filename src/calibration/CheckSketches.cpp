// SPDX-License-Identifier: MIT
#include "calibration/CheckSketches.h"

#include "calibration/CheckPage.h"

#include <QPolygonF>

#include <cmath>
#include <numbers>

namespace CheckSketches {
namespace {

constexpr Color kPaper = Color::White();
constexpr Color kGround = Color::Rgb(232, 236, 242);
constexpr Color kMachine = Color::Rgb(120, 130, 145);
constexpr Color kArrow = Color::Rgb(20, 90, 160);
constexpr Color kFaint = Color::Rgb(150, 150, 150);
constexpr double kPen = 0.01;
constexpr QSizeF kSheet(0.42, 0.56);

// A triangle at the end of its line.
void DrawArrow(PageCanvas& page, const QPointF& from, const QPointF& to) {
    constexpr double kHead = 0.09;
    const QPointF way = (to - from) / QLineF(from, to).length() * kHead;
    const QPointF side(way.y() / 2, -way.x() / 2);
    page.Shape(QPolygonF({from, to - way}), Color::None(), kArrow, 2 * kPen);
    page.Shape(QPolygonF({to, to - way + side, to - way - side}), kArrow, kArrow, kPen);
}

// A sheet with its head marked, and the print on it.
void DrawSheet(PageCanvas& page, const QPointF& at, bool bTurned) {
    const QRectF sheet(at, kSheet);
    page.Box(sheet, kPaper, Color::Black(), kPen);
    constexpr double kHead = 0.16;
    const double y = bTurned ? sheet.bottom() - kHead : sheet.top();
    page.Text({sheet.left(), y, sheet.width(), kHead}, QStringLiteral("1"),
              {.dblHeight = kHead, .bBold = true, .iQuarterTurns = bTurned ? 2 : 0});
    constexpr int kSide = 2;
    constexpr double kStep = 0.05;
    for (int i = -kSide; i <= kSide; ++i) {
        const double x = sheet.center().x() + i * kStep;
        page.Tick({x, sheet.center().y() - 0.1, x, sheet.center().y() + 0.04});
    }
}

void DrawPrinter(PageCanvas& page, bool bSecond) {
    const QPointF at(0.54, 0.06);
    page.Box({0.3, 0.62, 0.9, 0.34}, kMachine, Color::Black(), kPen);
    page.Box({0.42, 0.8, 0.66, 0.05}, Color::Black(), Color::Black(), kPen);
    if (bSecond) {
        DrawSheet(page, at, true);
        DrawArrow(page, {1.2, 0.2}, {1.2, 0.52});
    } else {
        DrawSheet(page, at, false);
        DrawArrow(page, {1.2, 0.52}, {1.2, 0.2});
    }
}

void DrawTurning(PageCanvas& page) {
    const double y = (kInches.height() - kSheet.height()) / 2;
    DrawSheet(page, {0.12, y}, false);
    DrawSheet(page, {kInches.width() - 0.12 - kSheet.width(), y}, true);
    const double middle = kInches.width() / 2;
    constexpr int kCorners = 9;
    const QRectF round(middle - 0.15, y + 0.16, 0.3, 0.36);
    // Half a turn, as the sheet goes.
    QPolygonF way;
    for (int i = 0; i < kCorners; ++i) {
        const double turn = std::numbers::pi * i / kCorners;
        way << round.center() - QPointF(std::cos(turn) * round.width(), std::sin(turn) * round.height()) / 2;
    }
    for (qsizetype i = 0; i + 1 < way.size(); ++i)
        page.Shape(QPolygonF(QList<QPointF>{way[i], way[i + 1]}), Color::None(), kArrow, 2 * kPen);
    DrawArrow(page, way.last(), QPointF(round.right(), round.center().y() + 0.05));
}

// A few lines of the scales where two of them meet.
void DrawReading(PageCanvas& page) {
    constexpr int kSide = 2;
    constexpr double kPitch = 0.26;
    constexpr double kLess = 0.035;
    constexpr double kName = 0.15;
    constexpr int kNumber = 12;
    constexpr int kLetter = -3;
    const double middle = kInches.width() / 2;
    for (int i = -kSide; i <= kSide; ++i) {
        const bool meets = i == 0;
        const Color color = meets ? kArrow : kFaint;
        const double pen = meets ? 2.4 * kPen : kPen;
        const double number = middle + i * kPitch;
        const double letter = middle + i * (kPitch - kLess);
        page.Shape(QPolygonF(QList<QPointF>{{number, 0.24}, {number, 0.6}}), Color::None(), color, pen);
        page.Shape(QPolygonF(QList<QPointF>{{letter, 0.5}, {letter, 0.86}}), Color::None(), color, pen);
        const TextLook look{.dblHeight = kName, .bBold = meets, .color = meets ? kArrow : Color::Black()};
        page.Text({number - kPitch / 2, 0.07, kPitch, kName}, CheckPage::NumberOf(kNumber + i), look);
        page.Text({letter - kPitch / 2, 0.88, kPitch, kName}, CheckPage::LetterOf(kLetter + i), look);
    }
}

} // namespace

void Draw(PageCanvas& page, Step step) {
    page.Box(QRectF(QPointF(0, 0), kInches), kGround, kGround, kPen);
    switch (step) {
        case Step::Print:
            return DrawPrinter(page, false);
        case Step::Turn:
            return DrawTurning(page);
        case Step::PrintAgain:
            return DrawPrinter(page, true);
        case Step::Read:
            return DrawReading(page);
    }
}

} // namespace CheckSketches
