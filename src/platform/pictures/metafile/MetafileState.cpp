// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileState.h"

#include <cmath>

namespace {

// Beyond this no pixel is ever seen, and sums of two stay whole numbers.
constexpr double kFarthest = 1 << 24;

int ToPixel(double value) { return int(qBound(-kFarthest, std::floor(value + 0.5), kFarthest)); }

double NotZero(double value) { return value == 0 ? 1 : qBound(-1e9, value, 1e9); }

// How many units the five metric modes count to an inch.
double UnitsPerInch(int mode) {
    switch (mode) {
        case 2:
            return 254;
        case 3:
            return 2540;
        case 4:
            return 100;
        case 5:
            return 1000;
        case 6:
            return 1440;
        default:
            return 0;
    }
}

double Scaled(double value, int numerator, int denominator) {
    return denominator == 0 || numerator == 0 ? value : NotZero(value * numerator / denominator);
}

} // namespace

void MetafileMapping::SetMode(int mode) {
    if (mode == kText) {
        m_windowExt = m_viewportExt = QSizeF(1, 1);
    } else if (const double units = UnitsPerInch(mode); units > 0) {
        // y goes upwards in the metric modes.
        m_windowExt = QSizeF(units, units);
        m_viewportExt = QSizeF(m_dotsPerInch, -m_dotsPerInch);
    } else if (mode != kIsotropic && mode != kAnisotropic) {
        return;
    } else if (!HasFreeExtents()) {
        // Coming back from a fixed mode the picture shall fill its rectangle again.
        m_viewportExt = m_available;
    }
    m_mode = mode;
}

void MetafileMapping::SetWindowExt(QPoint extent) {
    if (!HasFreeExtents() || extent.x() == 0 || extent.y() == 0) return;
    m_windowExt = QSizeF(extent.x(), extent.y());
    KeepProportions();
}

void MetafileMapping::ScaleWindowExt(QPoint numerator, QPoint denominator) {
    if (!HasFreeExtents()) return;
    m_windowExt = QSizeF(Scaled(m_windowExt.width(), numerator.x(), denominator.x()),
                         Scaled(m_windowExt.height(), numerator.y(), denominator.y()));
    KeepProportions();
}

void MetafileMapping::SetViewportExt(QPoint extent) {
    if (!HasFreeExtents() || extent.x() == 0 || extent.y() == 0) return;
    m_viewportExt = m_available = QSizeF(extent.x(), extent.y());
    KeepProportions();
}

void MetafileMapping::ScaleViewportExt(QPoint numerator, QPoint denominator) {
    if (!HasFreeExtents()) return;
    m_viewportExt = QSizeF(Scaled(m_viewportExt.width(), numerator.x(), denominator.x()),
                           Scaled(m_viewportExt.height(), numerator.y(), denominator.y()));
    m_available = m_viewportExt;
    KeepProportions();
}

void MetafileMapping::KeepProportions() {
    if (m_mode != kIsotropic) return;
    const double scaleX = qAbs(m_available.width() / m_windowExt.width());
    const double scaleY = qAbs(m_available.height() / m_windowExt.height());
    const double scale = qMin(scaleX, scaleY);
    m_viewportExt = QSizeF(std::copysign(scale * m_windowExt.width(), m_available.width()),
                           std::copysign(scale * m_windowExt.height(), m_available.height()));
}

QPoint MetafileMapping::ToDevice(QPoint logical) const {
    return QPoint(ToPixel((logical.x() - m_windowOrg.x()) * ScaleX() + m_viewportOrg.x()),
                  ToPixel((logical.y() - m_windowOrg.y()) * ScaleY() + m_viewportOrg.y()));
}
