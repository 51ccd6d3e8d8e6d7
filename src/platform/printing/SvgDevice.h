// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QPaintDevice>
#include <QSize>
#include <QString>

#include <memory>

/// Writes what is painted on it as an SVG file of so many inches. Letters become outlines, so that it looks the same
/// where their font is away; of photographs only the part that shows goes in. Raster operations are painted plainly.
class SvgDevice : public QPaintDevice {
public:
    /// The size in units of what will be painted.
    SvgDevice(QSize size, QSizeF inches, const QString& sTitle);
    ~SvgDevice() override;

    /// The file, once the painter has ended.
    QByteArray Bytes() const;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize m_size;
    QSizeF m_inches;
    QString m_title;
    std::unique_ptr<Engine> m_engine;
};
