// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Lets the Tab key go through a window, or a part of one, the way its layouts lay it out, which is the order of the
/// eye: controls are often made in another order than they stand. Once all is in the layouts.
void TabAlongTheLayout(QWidget& window);
