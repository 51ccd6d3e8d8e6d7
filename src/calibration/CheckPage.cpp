// SPDX-License-Identifier: MIT
#include "calibration/CheckPage.h"

#include "nokit/Millimetres.h"
#include "nokit/PageCanvas.h"
#include "platform/printing/Printer.h"

#include <algorithm>

namespace CheckPage {
namespace {

// All lengths are millimetres from the middle of the sheet.

// As much as the kit's own sheets want.
constexpr QSizeF kPageInches(8.0, 10.5);

// Of a scale, from where its lines meet those of the other: how far they stand out towards their names, which the other
// scale's lines never reach, and how far beyond, so that both still meet where the sheet was moved along them.
constexpr double kNear = 8.7;
constexpr double kFar = 26;
constexpr double kNameHigh = 2.5;
constexpr double kNameWide = 3.4;
constexpr double kNameGap = 0.4;
constexpr double kTitleHigh = 4;

// Where the scales' middles stand.
constexpr double kSidewaysDown = -78;
constexpr double kUpAndDownRight = -58;

constexpr double kRulerAcrossDown = 116;
constexpr double kRulerDownRight = -97;
constexpr double kRulerTick = 2.5;

constexpr double kLeftOfWords = -100;
constexpr double kTopOfWords = -131;
constexpr double kWidthOfWords = 92;
constexpr QRectF kSteps(-25, -45, 50, 42);

// The sheet as it lies for one of its two prints; marks are given as they lie on the upright one.
class Sheet {
public:
    Sheet(PageCanvas& page, QPointF middleInches, bool bTurned)
        : m_page(page), m_middle(middleInches), m_turned(bTurned) {}

    void Line(const QLineF& line) const { m_page.Tick({At(line.p1()), At(line.p2())}); }
    void Text(const QRectF& box, const QString& sText, TextLook look) const {
        look.dblHeight = Inches(look.dblHeight);
        if (m_turned) look.iQuarterTurns += 2;
        m_page.Text(QRectF(At(box.topLeft()), At(box.bottomRight())).normalized(), sText, look);
    }
    // Only upright.
    double Paragraph(const QRectF& box, const QString& sText, TextLook look) const {
        look.dblHeight = Inches(look.dblHeight);
        const double inches = m_page.Paragraph(QRectF(At(box.topLeft()), At(box.bottomRight())), sText, look);
        return inches / Inches(1);
    }

private:
    QPointF At(const QPointF& mm) const { return m_middle + (m_turned ? -1 : 1) * Inches(1) * mm; }

    PageCanvas& m_page;
    QPointF m_middle;
    bool m_turned;
};

// A scale by u, along it, and v, along its lines and away from their names.
class Scale {
public:
    Scale(const Sheet& sheet, bool bDown) : m_sheet(sheet), m_down(bDown) {}

    void Numbers() const {
        for (int i = kFirstNumber; i <= kLastNumber; ++i) {
            // Two figures are wider than the way to the next line.
            const double behind = !m_down && i % 2 != 0 ? kNameHigh : 0;
            Line(i * kPitchMm, -kFar - behind, kNear);
            Name(i * kPitchMm, -kFar - behind - kNameGap - Extent(), NumberOf(i), i == 0);
        }
        const double beyond = kFar + 2 * Extent() + kTitleHigh;
        const double half = kLastNumber * kPitchMm;
        TextLook look{.dblHeight = kTitleHigh, .bBold = true};
        if (m_down) look.iQuarterTurns = 3;
        const QString title = m_down ? QStringLiteral("Up and down") : QStringLiteral("Sideways");
        m_sheet.Text(Box({-half, -beyond}, {half, kTitleHigh - beyond}), title, look);
    }

    void Letters() const {
        for (int i = kFirstLetter; i <= kLastLetter; ++i) {
            const double u = i * (kPitchMm - kStepMm);
            Line(u, -kNear, kFar);
            Name(u, kFar + kNameGap, LetterOf(i), i == 0);
        }
    }

private:
    // Names are read upright on both, and so take less room above their lines than beside them.
    double Extent() const { return m_down ? kNameWide : kNameHigh; }
    QPointF Middle() const { return m_down ? QPointF(kUpAndDownRight, 0) : QPointF(0, kSidewaysDown); }
    QPointF At(const QPointF& place) const { return Middle() + (m_down ? place.transposed() : place); }
    QRectF Box(const QPointF& from, const QPointF& to) const { return QRectF(At(from), At(to)).normalized(); }
    void Line(double u, double from, double to) const { m_sheet.Line({At({u, from}), At({u, to})}); }
    void Name(double u, double v, const QString& sName, bool bBold) const {
        const double half = (m_down ? kNameHigh : kNameWide) / 2;
        m_sheet.Text(Box({u - half, v}, {u + half, v + Extent()}), sName, {.dblHeight = kNameHigh, .bBold = bBold});
    }

    const Sheet& m_sheet;
    bool m_down;
};

void PaintRulers(const Sheet& sheet, QSizeF rulers) {
    const double half = rulers.width() / 2;
    sheet.Line({-half, kRulerAcrossDown, half, kRulerAcrossDown});
    const double high = rulers.height() / 2;
    sheet.Line({kRulerDownRight, -high, kRulerDownRight, high});
    for (const double side : {-1, 1}) {
        sheet.Line({side * half, kRulerAcrossDown - kRulerTick, side * half, kRulerAcrossDown + kRulerTick});
        sheet.Line({kRulerDownRight - kRulerTick, side * high, kRulerDownRight + kRulerTick, side * high});
    }
    const QString length = QStringLiteral("This line is %1 mm long.");
    constexpr double kHigh = 3;
    constexpr double kLong = 60;
    sheet.Text({half - kRulerTick - kLong, kRulerAcrossDown - kHigh - 1, kLong, kHigh}, length.arg(rulers.width()),
               {.dblHeight = kHigh, .align = TextLook::Align::Right});
    sheet.Text({kRulerDownRight + 1, -high + kRulerTick, kHigh, kLong}, length.arg(rulers.height()),
               {.dblHeight = kHigh, .align = TextLook::Align::Right, .iQuarterTurns = 3});
}

void PaintWords(const Sheet& sheet, const QString& sSmall) {
    constexpr double kHead = 6;
    constexpr double kSmall = 2.6;
    sheet.Text({kLeftOfWords, kTopOfWords, kWidthOfWords, kHead}, QStringLiteral("Tavlora printer check"),
               {.dblHeight = kHead, .bBold = true, .align = TextLook::Align::Left});
    sheet.Paragraph({kLeftOfWords, kTopOfWords + kHead, kWidthOfWords, kHead}, sSmall,
                    {.dblHeight = kSmall, .align = TextLook::Align::Left});
    constexpr double kLine = 3.4;
    const QString steps[] = {
        QStringLiteral("1. Print this page."),
        QStringLiteral("2. Turn the sheet round, so that its head becomes its foot, and put it back: the same side is "
                       "printed once more."),
        QStringLiteral("3. Print this page again, onto it."),
        QStringLiteral(
            "4. Where a line from a number runs straight on into a line from a letter, read both. Do that on "
            "both scales.")};
    QRectF box = kSteps;
    for (const QString& step : steps)
        box.setTop(box.top() + sheet.Paragraph(box, step, {.dblHeight = kLine, .align = TextLook::Align::Left}) + 1);
}

} // namespace

QSizeF RulersMm(const PaperOfPage& paper) {
    constexpr double kLeft = 1;
    const double half =
        std::min(paper.size.width() / 2 - paper.printable.left(), paper.printable.right() - paper.size.width() / 2);
    return {2 * half >= Inches(kRulerMm + kLeft) ? kRulerMm : kShortRulerMm, kRulerMm};
}

void LayOn(Printer& printer) {
    printer.CentreSheet(kPageInches);
    printer.SetOrientation(PageOrientation::Portrait);
}

void Paint(Printer& printer, const QString& sSmall) {
    LayOn(printer);
    printer.ForgetSettings();
    const PaperOfPage paper = printer.PagePaper();
    PageCanvas canvas(printer, paper.printable.size());
    const QPointF middle = QPointF(paper.size.width(), paper.size.height()) / 2 - paper.origin;
    const Sheet upright(canvas, middle, false);
    PaintWords(upright, sSmall);
    PaintRulers(upright, RulersMm(paper));
    // What the numbers of this print meet are the letters of the other, for which the sheet lies turned.
    const Sheet turned(canvas, middle, true);
    for (const bool down : {false, true}) {
        Scale(upright, down).Numbers();
        Scale(turned, down).Letters();
    }
}

} // namespace CheckPage
