// SPDX-License-Identifier: MIT
#pragma once

struct CommonDialog;

/// Lets the user choose the printer for what is printed from now on. Once printing has begun in this run it only
/// tells that the printer can't be changed any more.
void ChangePrinter(CommonDialog& dlgCommon, bool bPrintStarted);
