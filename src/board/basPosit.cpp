// SPDX-License-Identifier: MIT
#include "board/basPosit.h"

#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace basPosit {
namespace {

struct View {
    float m_fScale = 1.0F;
    int m_lOffsetX = 0;
    int m_lOffsetY = 0;
    int m_lViewWidth = 0;
};

View& Module() {
    static View view;
    return view;
}

} // namespace

void PosInit() try {
    Module().m_fScale = 1.0F;
    ReadRents();
    PosInitColor();
    PosInitCenter();
    PosInitSpace();
    PosInitSide();
    PosInitCorn();
} catch (...) {
    ErrTail("basPosit!", "PosInit");
}

void PosSetScale(float fScale) { Module().m_fScale = fScale; }
void PosSetWidth(int lWidth) { Module().m_lViewWidth = lWidth; }
void PosSetOffsetX(int lOffset) { Module().m_lOffsetX = lOffset; }
void PosSetOffsetY(int lOffset) { Module().m_lOffsetY = lOffset; }
float GetScale() { return Module().m_fScale; }
int GetViewWidth() { return Module().m_lViewWidth; }
int GetOffsetX() { return Module().m_lOffsetX; }
int GetOffsetY() { return Module().m_lOffsetY; }

void PosSethDC(DeviceContext* hDC) { basDraw::Draw_SetHdc(hDC); }

// The product is rounded to single precision ahead of the offset; places that should meet then do.
int PosX(float fx, int lFurther) { return CLng(double(Module().m_fScale * fx) + Module().m_lOffsetX + lFurther); }
int PosY(float fy, int lFurther) { return CLng(double(Module().m_fScale * fy) + Module().m_lOffsetY + lFurther); }
double PosLength(float fLength) { return Module().m_fScale * fLength; }

int PosSide(int iSpace) {
    const int iSide = Int(double(iSpace) / BoardFacts::kSpacesPerSide);
    basErrLog::ErrAssert(iSide >= 0 && iSide < kSidesOfBoard, QStringLiteral("Unexpected Case"));
    return iSide;
}

void ResetForTest() {
    Module() = View{};
    ResetTablesForTest();
    ResetRentsForTest();
}

} // namespace basPosit
