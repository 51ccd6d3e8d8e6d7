// SPDX-License-Identifier: MIT
#include "drawing/DrawingAside.h"

#include "drawing/basDraw_state.h"

#include <utility>

DrawingAside::DrawingAside()
    : m_before(std::make_unique<basDraw::State>(std::exchange(basDraw::Module(), basDraw::State{}))) {}

DrawingAside::~DrawingAside() { basDraw::Module() = std::move(*m_before); }
