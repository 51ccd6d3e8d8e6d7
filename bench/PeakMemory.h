// SPDX-License-Identifier: MIT
#pragma once

/// Peak memory of this process so far; 0 where the system doesn't tell.
double PeakMegabytes();
