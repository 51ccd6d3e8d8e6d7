// SPDX-License-Identifier: MIT
#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/frmEditCenter.h"

#include <QLabel>

#include <algorithm>

using namespace basDraw;

namespace {

// The board's face as these pictures show it, whatever colour the board itself has.
constexpr Color kFace = Color::FromValue(0xE0FFE0);
constexpr Color kSubtitleFace = Color::Rgb(255, 0, 0);

const QString kArial = QStringLiteral("Arial");
const QString kTimes = QStringLiteral("Times New Roman");
constexpr int kWord = 0; // record of the fixed word

// The two texts of the title box, in parts of its width and height.
struct NamePlace {
    double dblLimit;
    double dblX;
};
constexpr NamePlace kWordPlace{0.35, 0.7619};
constexpr NamePlace kGamePlace{0.4952, 0.3167};
constexpr double kNameHeight = 0.5;
constexpr double kNameTop = 0.25;
// As thick as in the other editors.
constexpr int kCaretPen = 3;

// A one-line text at a width of its own.
int FittedWidth(const QString& sText, int lHeight, const QRect& area, const NamePlace& place) {
    if (sText.isEmpty()) return CLng(lHeight * 0.5);
    const int limit = -CLng(area.width() * place.dblLimit);
    // A width of 0 would mean the font's own, wide letters.
    return std::max(basPosit::Pos_ComputeSetWidth(kArial, false, false, lHeight, sText, limit), 1);
}

int NameHeight(const QRect& area) { return CLng(area.height() * kNameHeight); }

QPoint NameAnchor(const QRect& area, const NamePlace& place) {
    return {CLng(area.width() * place.dblX + area.left()), CLng(area.height() * kNameTop + area.top())};
}

void FillArea(const QRect& area, Color lBrush) {
    Draw_SetPen(PenStyle::Solid, 1, Color::Black());
    Draw_SetBrush(lBrush);
    Draw_Rect(area.left(), area.top(), area.left() + area.width(), area.top() + area.height());
}

// The decoration of the board's title box.
void DrawTitleBox(const QRect& area) {
    FillArea(area, kFace);
    basPosit::DrawTitleDecoration(area);
}

} // namespace

void frmEditCenter::TextPlace::SelectFont() const {
    Draw_SetFont(sFamily, lHeight, lWidth, 0, 0, false, bItalic, false);
}

frmEditCenter::TextPlace frmEditCenter::PlaceOf(int iArea) const {
    return iArea == kGameName ? PlaceOfName() : PlaceOfLines(iArea);
}

frmEditCenter::TextPlace frmEditCenter::PlaceOfName() const {
    const QRect area = m_area[kGameName];
    TextPlace place;
    place.sTextLines = QStringList{basTAVL::CRLF2Space(m_titles.Text(kGameName).sText)};
    place.sFamily = kArial;
    place.lHeight = NameHeight(area);
    place.lWidth = FittedWidth(place.sTextLines.first(), place.lHeight, area, kGamePlace);
    place.anchor = NameAnchor(area, kGamePlace);
    return place;
}

// The size serves this picture alone; what the board shows is fitted when the record is set.
frmEditCenter::TextPlace frmEditCenter::PlaceOfLines(int iArea) const {
    const QRect area = m_area[size_t(iArea)];
    const int height = area.height() - 2;
    const int width = area.width() - 4;
    const QStringList lines = m_titles.Text(iArea).Lines();
    TextPlace place;
    place.sFamily = kTimes;
    place.bItalic = true;
    place.lHeight = basPosit::Pos_ComputeSize(kTimes, false, true, lines, int(lines.size()), width, height);
    place.lWidth = std::max(CLng(place.lHeight / 2.0 - 1), 1);
    place.sTextLines = lines.isEmpty() ? QStringList{QString()} : lines;
    const int top =
        lines.isEmpty() ? area.top() : CLng((height - double(lines.size()) * place.lHeight) / 2 + area.top());
    place.anchor = {CLng(area.left() + area.width() / 2.0), top};
    return place;
}

void frmEditCenter::Redraw(int iArea) try {
    if (m_bLoading) return;
    DeviceContext& hDC = picForm->hDC();
    const int depth = hDC.SaveDC();
    if (iArea == 0) picForm->SetBackColor(WidgetLook::FillOf(*this));
    Draw_SetHdc(&hDC);
    basErrLog::ErrAssert(iArea >= 0 && iArea <= kAreas, QStringLiteral("UnexpectedCase"));
    if (iArea == 0) DrawLogo();
    if (iArea == 0 || iArea == 1) DrawName();
    if (iArea == 0 || iArea == 2) DrawSubtitle();
    if (iArea == 0 || iArea == 3) DrawOccasion();
    Draw_ReleaseObjects();
    hDC.RestoreDC(depth);
    picForm->Refresh();
    TellOnPaper();
} catch (...) {
    ErrTail("frmEditCenter!", "Redraw", iArea);
}

void frmEditCenter::RedrawAll() try { Redraw(0); } catch (...) {
    ErrTop("frmEditCenter!", "RedrawAll");
}

void frmEditCenter::DrawLogo() try { DrawTitleBox(cmdLogo->geometry()); } catch (...) {
    ErrTail("frmEditCenter!", "DrawLogo");
}

void frmEditCenter::DrawName() try {
    const QRect area = m_area[kGameName];
    DrawTitleBox(area);
    const QString word = basTAVL::CRLF2Space(basPosit::m_CenterText(kWord).sText);
    const int height = NameHeight(area);
    Draw_SetFont(kArial, height, FittedWidth(word, height, area, kWordPlace), 0, 0, false, false, false);
    const QPoint anchor = NameAnchor(area, kWordPlace);
    Draw_Text(word, QStringLiteral("C"), anchor.x(), anchor.y(), Color::Black());
    DrawTextOf(kGameName);
} catch (...) {
    ErrTail("frmEditCenter!", "DrawName");
}

void frmEditCenter::DrawSubtitle() try { DrawLines(2, kSubtitleFace); } catch (...) {
    ErrTail("frmEditCenter!", "DrawSubtitle");
}

void frmEditCenter::DrawOccasion() try { DrawLines(3, kFace); } catch (...) {
    ErrTail("frmEditCenter!", "DrawOccasion");
}

void frmEditCenter::DrawLines(int iArea, Color lBrush) {
    FillArea(m_area[size_t(iArea)], lBrush);
    DrawTextOf(iArea);
}

void frmEditCenter::DrawTextOf(int iArea) {
    const TextPlace place = PlaceOf(iArea);
    place.SelectFont();
    const TextSelection shown = m_iTextArea == iArea ? m_selection : TextSelection{};
    Draw_SetPen(PenStyle::Solid, kCaretPen, Color::Black());
    Draw_SetSelection(shown.m_iCol, shown.m_iRow, shown.m_iColEnd, shown.m_iRowEnd);
    Draw_TextArrayShowingSelection(place.sTextLines, QStringLiteral("C"), place.anchor.x(), place.anchor.y(),
                                   Color::Black());
}

frmEditCenter::Spot frmEditCenter::WhereIsMouse(float X, float Y) try {
    Spot spot{};
    for (int i = 1; i <= kAreas; ++i)
        CheckMouseInArea(i, X, Y, spot);
    return spot;
} catch (...) {
    ErrTail("frmEditCenter!", "WhereIsMouse", X, Y);
}

void frmEditCenter::CheckMouseInArea(int iArea, float X, float Y, Spot& spot) try {
    const QPoint point(CLng(double(X) / kTwipsPerPixel), CLng(double(Y) / kTwipsPerPixel));
    spot.bInArea[size_t(iArea)] = m_area[size_t(iArea)].contains(point);
    if (!spot.bInArea[size_t(iArea)]) return;
    DeviceContext& hDC = picForm->hDC();
    const int depth = hDC.SaveDC();
    Draw_SetHdc(&hDC);
    const TextPlace place = PlaceOf(iArea);
    place.SelectFont();
    Draw_FindInsertPoint(place.sTextLines, QStringLiteral("C"), place.anchor.x(), place.anchor.y(), point.x(),
                         point.y(), spot.iCol, spot.iRow);
    Draw_ReleaseObjects();
    hDC.RestoreDC(depth);
} catch (...) {
    ErrTail("frmEditCenter!", "CheckMouseInArea", iArea, X, Y);
}
