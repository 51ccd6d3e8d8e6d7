// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace basDraw {
struct State;
}

/// While it lives, the drawing layer can be used for something else; afterwards its context and all that it held are
/// as they were. For what is measured between two steps of somebody's drawing.
class DrawingAside {
public:
    DrawingAside();
    ~DrawingAside();
    DrawingAside(const DrawingAside&) = delete;
    DrawingAside& operator=(const DrawingAside&) = delete;

private:
    std::unique_ptr<basDraw::State> m_before;
};
