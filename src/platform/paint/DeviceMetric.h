// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QSize>

/// What the toolkit asks a paint device that isn't one of its own: of a size in units of which so many make an inch.
int DeviceMetric(QPaintDevice::PaintDeviceMetric metric, QSize size, double unitsPerInch);
