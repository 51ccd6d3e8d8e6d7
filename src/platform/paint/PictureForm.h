// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"

/// A hidden drawing surface that becomes a picture of so many dots an inch, as paper would show it.
class PictureForm : public Surface {
public:
    PictureForm(QSizeF inches, double dotsPerInch);

    double DotsPerInch() const override { return m_dpi; }
    DeviceContext& hDC() override { return m_context; }
    QSize SizeInPixels() const override { return m_image.size(); }
    /// Nothing where there was too little memory for it.
    Picture Take();

private:
    double m_dpi;
    QImage m_image;
    DeviceContext m_context;
};
