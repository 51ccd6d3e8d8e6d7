// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPositFit.h"
#include "board/basPositRents.h"
#include "board/basPositTables.h"

class DeviceContext;

/// The board: its tables, and the view that turns their fractions into device units.
namespace basPosit {

/// Sets geometry, colours and default fonts, reads the rents, and puts the scale to 1. Texts, and the letter
/// widths fitted to them, are kept. Runs at every repaint, and once before the first game is loaded. Ends
/// the program when the rents can't be had.
void PosInit();
// Its parts. The colours come first, as the others copy from them.
void PosInitColor();
void PosInitCenter();
void PosInitSpace();
void PosInitSide();
void PosInitCorn();

/// Device units of the whole board.
void PosSetScale(float fScale);
/// Width of the visible view in device units.
void PosSetWidth(int lWidth);
/// Device units added to every place; 0 or, in a scrolled view, negative.
void PosSetOffsetX(int lOffset);
void PosSetOffsetY(int lOffset);
float GetScale();
int GetViewWidth();
int GetOffsetX();
int GetOffsetY();
/// The context that the board is measured and drawn on.
void PosSethDC(DeviceContext* hDC);

/// Device coordinate of a fraction, and so many device units further out.
int PosX(float fx, int lFurther = 0);
int PosY(float fy, int lFurther = 0);
/// Device units of a length, before any rounding.
double PosLength(float fLength);

/// The side a space lies on: 0 bottom, 1 left, 2 top, 3 right. Raises for what is no space.
int PosSide(int iSpace);

/// For tests: tables, rents and view as at the start of the program.
void ResetForTest();

} // namespace basPosit
