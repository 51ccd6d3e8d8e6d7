// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DeviceContext.h"

#include <QRect>

/// As long as it lives, nothing is painted outside a rectangle of device units. The context mustn't be
/// flushed meanwhile.
class ClipScope {
public:
    ClipScope(DeviceContext& context, const QRect& inside) : m_context(context) {
        m_context.Painter().save();
        m_context.Painter().setClipRect(inside, Qt::IntersectClip);
    }
    ~ClipScope() { m_context.Painter().restore(); }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;

private:
    DeviceContext& m_context;
};
