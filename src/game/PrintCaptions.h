// SPDX-License-Identifier: MIT
#pragma once

/// Sets the special texts 6 to 16: what every printed sheet says about itself and how it is to be cut.
void SetSpecialTextStringsForPrinting();
