// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"

#include "drawing/basDraw_state.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

namespace basDraw {
namespace {

constexpr int kSmallestPitch = 2;

// Selects an object; the first one that it replaces is kept to be given back.
template <typename Handle>
void Select(Handle (DeviceContext::*select)(Handle), Handle object, std::optional<Handle>& old) {
    Handle replaced = (Module().m_hDC->*select)(std::move(object));
    if (!old) old = std::move(replaced);
}

template <typename Handle>
void GiveBack(Handle (DeviceContext::*select)(Handle), std::optional<Handle>& old) {
    if (!old) return;
    (Module().m_hDC->*select)(*old);
    old.reset();
}

} // namespace

State& Module() {
    static State state;
    return state;
}

void Draw_SetHdc(DeviceContext* hDC) { Module().m_hDC = hDC; }

void Draw_SetPen(PenStyle lStyle, int lWidth, Color lColor) try {
    State& module = Module();
    Select(&DeviceContext::SelectPen, Context().CreatePen(lStyle, lWidth, lColor), module.m_hOldPen);
} catch (...) {
    ErrTail("basDraw!", "Draw_SetPen", lStyle, lWidth, lColor);
}

void Draw_SetBrush(Color lColor) try {
    State& module = Module();
    if (module.m_lBrushColor == lColor) return;
    module.m_lBrushColor = lColor;
    BrushHandle brush = lColor.IsNone() ? DeviceContext::HollowBrush() : Context().CreateSolidBrush(lColor);
    Select(&DeviceContext::SelectBrush, std::move(brush), module.m_hOldBrush);
} catch (...) {
    ErrTail("basDraw!", "Draw_SetBrush", lColor);
}

void Draw_SetFont(const QString& sFamily, int lHeight, int lWidth, int lEscapement, int lOrientation, bool bBold,
                  bool bItalic, bool bUnderline) try {
    State& module = Module();
    module.m_lEscapement = lEscapement;
    module.m_lFontHeight = std::max(lHeight, kSmallestPitch);
    FontHandle font = Context().CreateFont({sFamily, lHeight, lWidth, lEscapement, bBold, bItalic, bUnderline});
    const bool made = font != nullptr;
    Select(&DeviceContext::SelectFont, std::move(font), module.m_hOldFont);
    basErrLog::ErrAssert(made, QStringLiteral("Unable to create font"));
} catch (...) {
    ErrTail("basDraw!", "Draw_SetFont", sFamily, lHeight, lWidth, lEscapement, lOrientation, bBold, bItalic,
            bUnderline);
}

void Draw_ReleaseObjects() try {
    State& module = Module();
    if (!module.m_hDC) return;
    GiveBack(&DeviceContext::SelectPen, module.m_hOldPen);
    GiveBack(&DeviceContext::SelectBrush, module.m_hOldBrush);
    GiveBack(&DeviceContext::SelectFont, module.m_hOldFont);
    module.m_lBrushColor.reset();
    if (module.m_lBkColorOld) module.m_hDC->SetBkColor(*std::exchange(module.m_lBkColorOld, std::nullopt));
    if (module.m_lTextColorOld) module.m_hDC->SetTextColor(*std::exchange(module.m_lTextColorOld, std::nullopt));
    if (module.m_lBkModeOld) module.m_hDC->SetBkMode(*std::exchange(module.m_lBkModeOld, std::nullopt));
    module.m_lTextColorSet.reset();
} catch (...) {
    ErrTail("basDraw!", "Draw_ReleaseObjects");
}

DeviceContext* Draw_Hdc() { return Module().m_hDC; }

void Draw_Abandon(DeviceContext* hDC) {
    Module() = State{};
    Module().m_hDC = hDC;
}

void Draw_Line(int x1, int y1, int x2, int y2) try {
    Context().MoveTo(x1, y1);
    Context().LineTo(x2, y2);
} catch (...) {
    ErrTail("basDraw!", "Draw_Line", x1, y1, x2, y2);
}

void Draw_Rect(int x1, int y1, int x2, int y2) try { Context().Rectangle(x1, y1, x2, y2); } catch (...) {
    ErrTail("basDraw!", "Draw_Rect", x1, y1, x2, y2);
}

void Draw_Polygon(std::span<const QPoint> points) try { Context().Polygon(points); } catch (...) {
    ErrTail("basDraw!", "Draw_Polygon", points.size());
}

int Draw_GetWidth(const QString& sText) try {
    QSize size;
    if (Context().GetTextExtentPoint(sText, size)) return size.width();
    // The routine that the message names is long gone; the text is kept as users have reported it.
    MsgBox(QStringLiteral("Unable to Compute Width of '") + sText + QStringLiteral("' in 'clsFontString!ComputeWidth'"),
           vbCritical);
    EndProgram(1);
} catch (...) {
    ErrTail("basDraw!", "Draw_GetWidth", sText);
}

Color Draw_ReverseColor(Color lColor) { return lColor.Reversed(); }

} // namespace basDraw
