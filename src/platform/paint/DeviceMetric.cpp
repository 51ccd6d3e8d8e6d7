// SPDX-License-Identifier: MIT
#include "platform/paint/DeviceMetric.h"

#include "platform/text/Numbers.h"

int DeviceMetric(QPaintDevice::PaintDeviceMetric metric, QSize size, double unitsPerInch) {
    constexpr double kMillimetresPerInch = 25.4;
    constexpr int kBitsOfColor = 32;
    switch (metric) {
        case QPaintDevice::PdmWidth:
            return size.width();
        case QPaintDevice::PdmHeight:
            return size.height();
        case QPaintDevice::PdmWidthMM:
            return int(size.width() * kMillimetresPerInch / unitsPerInch);
        case QPaintDevice::PdmHeightMM:
            return int(size.height() * kMillimetresPerInch / unitsPerInch);
        case QPaintDevice::PdmDepth:
            return kBitsOfColor;
        case QPaintDevice::PdmDpiX:
        case QPaintDevice::PdmDpiY:
        case QPaintDevice::PdmPhysicalDpiX:
        case QPaintDevice::PdmPhysicalDpiY:
            return CLng(unitsPerInch);
        case QPaintDevice::PdmDevicePixelRatio:
            return 1;
        case QPaintDevice::PdmDevicePixelRatioScaled:
            return int(QPaintDevice::devicePixelRatioFScale());
        default:
            return 0;
    }
}
