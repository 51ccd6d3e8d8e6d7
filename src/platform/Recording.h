// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QRectF>
#include <QSize>

#include <memory>

class RecordingEngine;
class QPainter;

/// Remembers what is painted on it and plays it into a rectangle of another painter, where text is text
/// again, lines are lines, and photographs have all their pixels. A picture made in this run carries one, so
/// that it prints as sharp as the paper allows.
class Recording : public QPaintDevice {
public:
    /// The size in units of what will be painted; 96 of them make an inch for fonts.
    explicit Recording(QSize size);
    ~Recording() override;

    QSize Size() const { return m_size; }
    /// Stretches everything painted so far to the target. The painter is left as it was.
    void Play(QPainter& painter, const QRectF& target) const;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    std::unique_ptr<RecordingEngine> m_engine;
};
