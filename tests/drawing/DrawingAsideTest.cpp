// SPDX-License-Identifier: MIT
#include "drawing/DrawingAside.h"

#include "drawing/basDraw.h"
#include "platform/paint/Surface.h"

#include <gtest/gtest.h>

TEST(DrawingAside, GivesBackTheContextAndItsFont) {
    basDraw::Draw_Abandon();
    ScratchForm mine(QSize(10, 10));
    basDraw::Draw_SetHdc(&mine.hDC());
    basDraw::Draw_SetFont(QStringLiteral("Arial"), 40, 20, 0, 0, false, false, false);
    const int width = basDraw::Draw_GetWidth(QStringLiteral("Acorn"));
    {
        const DrawingAside aside;
        ScratchForm other(QSize(10, 10));
        basDraw::Draw_SetHdc(&other.hDC());
        basDraw::Draw_SetFont(QStringLiteral("Arial"), 10, 5, 0, 0, false, false, false);
        EXPECT_LT(basDraw::Draw_GetWidth(QStringLiteral("Acorn")), width);
    }
    EXPECT_EQ(basDraw::Draw_GetWidth(QStringLiteral("Acorn")), width);
    basDraw::Draw_ReleaseObjects();
    basDraw::Draw_Abandon();
}
