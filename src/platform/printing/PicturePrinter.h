// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"
#include "platform/printing/Printer.h"

/// A printer whose page is a picture: what is painted comes out as it would on paper, ready to be looked at.
/// The picture is the printable area of a US Letter page.
class PicturePrinter : public Printer {
public:
    static constexpr int kDefaultDpi = 300;

    explicit PicturePrinter(int dpi = kDefaultDpi) : m_dpi(dpi) {}

    double DotsPerInch() const override { return m_dpi; }
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override;
    void SetOrientation(PageOrientation orientation) override { m_orientation = orientation; }
    PageOrientation Orientation() const override { return m_orientation; }
    /// The page painted so far becomes the picture that Page gives.
    void EndDoc() override;
    void KillDoc() override;
    QSizeF PrintableInches() const override;

    /// The page ended last; nothing before the first.
    const Picture& Page() const { return m_page; }
    /// The same with so many pixels on its longer side, at most as many as it has.
    Picture SmallPage(int longerSide) const;

private:
    int m_dpi;
    PageOrientation m_orientation = PageOrientation::Portrait;
    QImage m_image;
    std::unique_ptr<DeviceContext> m_context;
    Picture m_page;
};
