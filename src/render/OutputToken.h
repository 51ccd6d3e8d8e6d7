// SPDX-License-Identifier: MIT
#pragma once

class clsRenderDestination;

/// Draws a token's round face into a square of dblSize inches with its top left at (dblX, dblY), on a surface in
/// pixels; what lies beyond the circle stays as it is. A picture that can't be had is told, and the token's text
/// stands in its place.
void OutputToken(clsRenderDestination& destination, int iToken, double dblX, double dblY, double dblSize);
