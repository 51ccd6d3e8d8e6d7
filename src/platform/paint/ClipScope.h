// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/DeviceContext.h"

#include <QPainterPath>
#include <QRect>

enum class ClipShape { Rectangle, Ellipse };

/// As long as it lives, nothing is painted outside a rectangle of device units, or outside the ellipse in it.
/// The context mustn't be flushed meanwhile.
class ClipScope {
public:
    ClipScope(DeviceContext& context, const QRect& inside, ClipShape shape = ClipShape::Rectangle)
        : m_context(context) {
        m_context.Painter().save();
        if (shape == ClipShape::Rectangle) {
            m_context.Painter().setClipRect(inside, Qt::IntersectClip);
        } else {
            QPainterPath ellipse;
            ellipse.addEllipse(inside);
            m_context.Painter().setClipPath(ellipse, Qt::IntersectClip);
        }
    }
    ~ClipScope() { m_context.Painter().restore(); }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;

private:
    DeviceContext& m_context;
};
