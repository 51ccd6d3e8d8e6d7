// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/RecordingForm.h"
#include "platform/printing/Printer.h"

#include <memory>

/// A printer whose page is a drawing, so that a sheet can be laid on a page of another make. The page is as large as
/// it is told, whatever the orientation.
class RecordingPrinter : public Printer {
public:
    explicit RecordingPrinter(QSizeF printableInches) : m_inches(printableInches) {}

    double DotsPerInch() const override { return RecordingPage::kDotsPerInch; }
    DeviceContext& hDC() override { return Page().hDC(); }
    QSize SizeInPixels() const override { return (m_inches * RecordingPage::kDotsPerInch).toSize(); }
    void SetOrientation(PageOrientation orientation) override { m_orientation = orientation; }
    PageOrientation Orientation() const override { return m_orientation; }
    void EndDoc() override { Page(); }
    void KillDoc() override { m_page.reset(); }
    QSizeF PrintableInches() const override { return m_inches; }

    /// What was painted; the next page begins empty.
    std::shared_ptr<const Recording> Take();

private:
    RecordingPage& Page();

    QSizeF m_inches;
    PageOrientation m_orientation = PageOrientation::Portrait;
    std::unique_ptr<RecordingPage> m_page;
};
