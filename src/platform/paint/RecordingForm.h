// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Recording.h"
#include "platform/paint/Surface.h"

/// A drawing surface that keeps no pixels but what was drawn, in the units of a form of the same size.
class RecordingForm : public Surface {
public:
    /// The size in units, and how many of them make an inch on paper.
    RecordingForm(QSize size, double unitsPerInch);
    ~RecordingForm() override;

    double DotsPerInch() const override { return kScreenDotsPerInch; }
    DeviceContext& hDC() override { return m_context; }
    QSize SizeInPixels() const override { return m_recording->Size(); }
    int PicturePixels(double length) override;
    /// Ends the drawing.
    std::shared_ptr<const Recording> Take();

private:
    std::shared_ptr<Recording> m_recording;
    QPainter m_painter;
    DeviceContext m_context;
};

/// A page of a printer that keeps what was drawn, so that what will be printed can be looked at without a printer. In
/// dots of the page; its size is in dots, too.
class RecordingPage : public RecordingForm {
public:
    static constexpr double kDotsPerInch = 600;

    explicit RecordingPage(QSize size) : RecordingForm(size, kDotsPerInch) {}
    double DotsPerInch() const override { return kDotsPerInch; }
    bool IsPrinter() const override { return true; }
};
