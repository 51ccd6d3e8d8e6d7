// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"

#include "drawing/basDraw_state.h"
#include "drawing/TwoWayLine.h"
#include "platform/paint/ClipScope.h"
#include "platform/text/Numbers.h"
#include "platform/text/TextColumns.h"
#include "services/basErrLog.h"

#include <cmath>

namespace basDraw {
namespace {

// Not a better pi on purpose: the layout of every rotated text was made with this one.
constexpr double kPi = 3.14159;

// The direction in which the text of the current font runs, y downwards.
struct Direction {
    double c;
    double s;

    static Direction OfCurrentFont() {
        const double angle = Module().m_lEscapement * kPi / 1800;
        return {std::cos(angle), -std::sin(angle)};
    }
    QPoint Along(QPoint from, double distance) const {
        return {CLng(from.x() + c * distance), CLng(from.y() + s * distance)};
    }
    QPoint OneLineOn(QPoint from) const {
        const int h = Module().m_lFontHeight;
        return {CLng(from.x() - s * h), CLng(from.y() + c * h)};
    }
};

bool IsAlignment(const QString& sAlign) {
    return sAlign == QStringLiteral("L") || sAlign == QStringLiteral("C") || sAlign == QStringLiteral("R");
}

void ReportAlignment(const QString& sAlign) {
    basErrLog::ErrAssert(IsAlignment(sAlign), QStringLiteral("Unexpected Alignment"));
}

QPoint StartPoint(const QString& sText, const QString& sAlign, QPoint anchor, const Direction& direction) {
    if (sAlign == QStringLiteral("C")) return direction.Along(anchor, -Draw_GetWidth(sText) / 2.0);
    if (sAlign == QStringLiteral("R")) return direction.Along(anchor, -Draw_GetWidth(sText));
    return anchor;
}

void UseTextColor(Color lColor) {
    State& module = Module();
    if (module.m_lTextColorSet == lColor) return;
    const Color before = Context().SetTextColor(lColor);
    if (!module.m_lTextColorOld) module.m_lTextColorOld = before;
    module.m_lTextColorSet = lColor;
}

void UseReversedColors(Color lColor) {
    State& module = Module();
    DeviceContext& context = Context();
    context.SetTextColor(lColor.Complement());
    module.m_lTextColorSet = lColor.Complement();
    module.m_lBkColorOld = context.SetBkColor(lColor);
    module.m_lBkModeOld = context.SetBkMode(BkMode::Opaque);
}

void UsePlainColors(Color lColor) {
    State& module = Module();
    DeviceContext& context = Context();
    context.SetTextColor(lColor);
    module.m_lTextColorSet = lColor;
    if (module.m_lBkColorOld) context.SetBkColor(*std::exchange(module.m_lBkColorOld, std::nullopt));
    if (module.m_lBkModeOld) context.SetBkMode(*std::exchange(module.m_lBkModeOld, std::nullopt));
}

void Write(QPoint at, const QString& sText) { Context().TextOut(at.x(), at.y(), sText); }

// Writes a piece of a line and gives the point at which the next piece starts.
QPoint WriteOn(QPoint at, const QString& sText, const Direction& direction) {
    if (sText.isEmpty()) return at;
    Write(at, sText);
    return direction.Along(at, Draw_GetWidth(sText));
}

int CaretPlace(const QString& sLine, int iCol) {
    if (!TwoWayLine::Is(sLine)) return Draw_GetWidth(LeftStr(sLine, iCol));
    return TwoWayLine::CaretAt(*Context().CurrentFont(), sLine, iCol);
}

void DrawCaret(QPoint lineStart, const QString& sLine, const Direction& direction) {
    const QPoint top = direction.Along(lineStart, CaretPlace(sLine, Module().m_iColStart));
    const QPoint bottom = direction.OneLineOn(top);
    Draw_Line(top.x(), top.y(), bottom.x(), bottom.y());
}

// The line with what lies between two columns in reversed colours.
void WriteTwoWayLine(const QString& sLine, QPoint start, int iCol, int iColEnd, Color lColor) {
    UsePlainColors(lColor);
    Write(start, sLine);
    const auto covered = TwoWayLine::Covered(*Context().CurrentFont(), sLine, iCol, iColEnd);
    for (const TwoWayLine::Stretch& stretch : covered) {
        const QRect place(start.x() + stretch.iLeft, start.y(), stretch.iRight - stretch.iLeft, Module().m_lFontHeight);
        UseReversedColors(lColor);
        {
            // The whole line each time: letters that are cut out of it would take other shapes and places.
            const ClipScope only(Context(), place);
            Write(start, sLine);
        }
        UsePlainColors(lColor);
    }
}

bool ShowsPartTwoWay(const QString& sLine, int row) {
    const State& module = Module();
    const bool caret = module.m_iRowStart == module.m_iRowEnd && module.m_iColStart == module.m_iColEnd;
    const bool touched = row >= module.m_iRowStart && row <= module.m_iRowEnd;
    return touched && !caret && module.m_lEscapement == 0 && TwoWayLine::Is(sLine);
}

void WriteLineShowingSelection(const QString& sLine, int row, QPoint start, const Direction& direction, Color lColor) {
    const State& module = Module();
    const bool atStart = row == module.m_iRowStart;
    const bool atEnd = row == module.m_iRowEnd;
    if (ShowsPartTwoWay(sLine, row)) {
        WriteTwoWayLine(sLine, start, atStart ? module.m_iColStart : 0, atEnd ? module.m_iColEnd : int(sLine.size()),
                        lColor);
        // The rows below go on as they would behind any other.
        if (!atEnd) UseReversedColors(lColor);
    } else if (atStart && atEnd && module.m_iColStart == module.m_iColEnd) {
        Write(start, sLine);
        DrawCaret(start, sLine, direction);
    } else if (atStart && atEnd) {
        QPoint at = WriteOn(start, LeftStr(sLine, module.m_iColStart), direction);
        UseReversedColors(lColor);
        at = WriteOn(at, sLine.mid(module.m_iColStart, module.m_iColEnd - module.m_iColStart), direction);
        UsePlainColors(lColor);
        Write(at, sLine.mid(module.m_iColEnd));
    } else if (atStart) {
        const QPoint at = WriteOn(start, LeftStr(sLine, module.m_iColStart), direction);
        UseReversedColors(lColor);
        Write(at, sLine.mid(module.m_iColStart));
    } else if (atEnd) {
        const QPoint at = WriteOn(start, LeftStr(sLine, module.m_iColEnd), direction);
        UsePlainColors(lColor);
        Write(at, sLine.mid(module.m_iColEnd));
    } else {
        Write(start, sLine);
    }
}

// The column whose boundary is nearest to a distance from the line's start; a tie goes to the left.
int NearestColumn(const QString& sLine, int distance) {
    int before = 0;
    int column = TextColumns::Behind(sLine, before);
    int previous = distance;
    int rest = distance - Draw_GetWidth(LeftStr(sLine, column));
    while (rest > 0 && column < sLine.size()) {
        previous = rest;
        before = column;
        column = TextColumns::Behind(sLine, column);
        rest = distance - Draw_GetWidth(LeftStr(sLine, column));
    }
    return previous > -rest ? column : before;
}

} // namespace

DeviceContext& Context() {
    if (!Module().m_hDC) ErrRaise(ErrNumber::kInvalidCall, QStringLiteral("No device context is set"));
    return *Module().m_hDC;
}

void Draw_Text(const QString& sText, const QString& sAlign, int x, int y, Color lColor) try {
    UseTextColor(lColor);
    Write(StartPoint(sText, sAlign, {x, y}, Direction::OfCurrentFont()), sText);
    ReportAlignment(sAlign);
} catch (...) {
    ErrTail("basDraw!", "Draw_Text", sText, sAlign, x, y, lColor);
}

void Draw_TextArray(const QStringList& sTextLines, const QString& sAlign, int x, int y, Color lColor) try {
    UseTextColor(lColor);
    const Direction direction = Direction::OfCurrentFont();
    QPoint anchor(x, y);
    for (const QString& line : sTextLines) {
        Write(StartPoint(line, sAlign, anchor, direction), line);
        ReportAlignment(sAlign);
        anchor = direction.OneLineOn(anchor);
    }
} catch (...) {
    ErrTail("basDraw!", "Draw_TextArray", sTextLines, sAlign, x, y, lColor);
}

void Draw_SetSelection(int iCol1, int iRow1, int iCol2, int iRow2) {
    State& module = Module();
    const bool inOrder = iRow1 < iRow2 || (iRow1 == iRow2 && iCol1 <= iCol2);
    module.m_iColStart = inOrder ? iCol1 : iCol2;
    module.m_iRowStart = inOrder ? iRow1 : iRow2;
    module.m_iColEnd = inOrder ? iCol2 : iCol1;
    module.m_iRowEnd = inOrder ? iRow2 : iRow1;
}

void Draw_TextArrayShowingSelection(const QStringList& sTextLines, const QString& sAlign, int x, int y,
                                    Color lColor) try {
    UseTextColor(lColor);
    const Direction direction = Direction::OfCurrentFont();
    QPoint anchor(x, y);
    int row = 0;
    for (const QString& line : sTextLines) {
        WriteLineShowingSelection(line, row++, StartPoint(line, sAlign, anchor, direction), direction, lColor);
        ReportAlignment(sAlign);
        anchor = direction.OneLineOn(anchor);
    }
    const int last = int(sTextLines.size()) - 1;
    if (Module().m_iRowEnd > last && Module().m_iRowStart <= last) UsePlainColors(lColor);
} catch (...) {
    ErrTail("basDraw!", "Draw_TextArrayShowingSelection", sTextLines, sAlign, x, y, lColor);
}

void Draw_FindInsertPoint(const QStringList& sTextLines, const QString& sAlign, int x0, int y0, int x, int y, int& iCol,
                          int& iRow) try {
    const Direction direction = Direction::OfCurrentFont();
    const double dx = x - x0;
    const double dy = y - y0;
    int u = CLng(direction.c * dx - direction.s * dy);
    const int v = CLng(direction.s * dx + direction.c * dy);
    iRow = Int(double(v) / Module().m_lFontHeight);
    iCol = 0;
    if (iRow < 0 || sTextLines.isEmpty()) {
        iRow = 0;
        return;
    }
    if (iRow >= sTextLines.size()) {
        iRow = int(sTextLines.size()) - 1;
        iCol = int(sTextLines.last().size());
        return;
    }
    const QString& line = sTextLines[iRow];
    const int width = Draw_GetWidth(line);
    // The factor c is kept although a strictly turned reading would have 1: editors draw unrotated text.
    if (sAlign == QStringLiteral("C")) u = CLng(u + direction.c * width / 2);
    if (sAlign == QStringLiteral("R")) u = CLng(u + direction.c * width);
    ReportAlignment(sAlign);
    if (TwoWayLine::Is(line)) {
        iCol = TwoWayLine::ColumnAt(*Context().CurrentFont(), line, u);
    } else if (u >= width) {
        iCol = int(line.size());
    } else if (u > 0) {
        iCol = NearestColumn(line, u);
    }
} catch (...) {
    ErrTail("basDraw!", "Draw_FindInsertPoint", sTextLines, sAlign, x0, y0, x, y, iCol, iRow);
}

} // namespace basDraw
