// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Reads a size such as "4.78x0.78", in inches. The text is put into lower case. Of a part that isn't a number
/// its leading digits count; a text without an "x" gives 0 for both.
void FactorDimensionString(QString& sDimensions, double& dblWidth, double& dblHeight);
