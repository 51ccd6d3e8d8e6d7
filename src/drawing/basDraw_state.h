// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/DeviceContext.h"

#include <optional>

/// What the drawing layer remembers between calls. For its own sources only.
namespace basDraw {

struct State {
    DeviceContext* m_hDC = nullptr;
    /// Colour of the current brush; nothing when none is cached.
    std::optional<Color> m_lBrushColor;
    int m_lEscapement = 0;
    int m_lFontHeight = 2;

    // What was selected before this layer's first object of the kind; nothing when none is held.
    std::optional<PenHandle> m_hOldPen;
    std::optional<BrushHandle> m_hOldBrush;
    std::optional<FontHandle> m_hOldFont;

    /// Text colour in force, and what to restore; nothing when untouched.
    std::optional<Color> m_lTextColorSet;
    std::optional<Color> m_lTextColorOld;
    std::optional<Color> m_lBkColorOld;
    std::optional<BkMode> m_lBkModeOld;

    // The text selection, in reading order.
    int m_iColStart = -1;
    int m_iRowStart = -1;
    int m_iColEnd = -1;
    int m_iRowEnd = -1;
};

State& Module();

/// The current context; raises when none is set.
DeviceContext& Context();

} // namespace basDraw
