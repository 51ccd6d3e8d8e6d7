// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QRectF>
#include <QSize>

#include <memory>

class RecordingEngine;
class QPainter;

/// How a drawing is laid on a page.
struct LaidDrawing {
    /// Of the drawing, in its own units: only this is painted.
    QRectF part;
    /// Of the page: what the part is stretched to, once it is turned.
    QRectF target;
    /// Clockwise.
    int iQuarterTurns = 0;
    /// Left and right exchanged, ahead of the turn.
    bool bMirrored = false;
};

/// Remembers what is painted on it and plays it into a rectangle of another painter, where text is text
/// again, lines are lines, and photographs have all their pixels. A picture made in this run carries one, so
/// that it prints as sharp as the paper allows.
class Recording : public QPaintDevice {
public:
    /// The size in units of what will be painted, and how many of them make an inch where the piece is printed
    /// at the size it is made for: no photograph is kept larger than paper shows it.
    Recording(QSize size, double unitsPerInch);
    ~Recording() override;

    QSize Size() const { return m_size; }
    double UnitsPerInch() const { return m_unitsPerInch; }
    /// Stretches everything painted so far to the target. The painter is left as it was.
    void Play(QPainter& painter, const QRectF& target) const;
    void Play(QPainter& painter, const LaidDrawing& laid) const;
    /// All of it.
    QRectF Whole() const { return {QPointF(0, 0), m_size}; }

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    double m_unitsPerInch;
    std::unique_ptr<RecordingEngine> m_engine;
};
