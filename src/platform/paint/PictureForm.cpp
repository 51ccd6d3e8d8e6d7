// SPDX-License-Identifier: MIT
#include "platform/paint/PictureForm.h"

#include <utility>

PictureForm::PictureForm(QSizeF inches, double dotsPerInch)
    : m_dpi(dotsPerInch), m_image((inches * dotsPerInch).toSize(), QImage::Format_RGB32), m_context(m_image) {
    constexpr double kInchesPerMetre = 100 / 2.54;
    m_image.setDotsPerMeterX(qRound(dotsPerInch * kInchesPerMetre));
    m_image.setDotsPerMeterY(qRound(dotsPerInch * kInchesPerMetre));
    m_image.fill(Qt::white);
}

Picture PictureForm::Take() {
    m_context.Flush();
    return Picture(std::exchange(m_image, QImage()));
}
