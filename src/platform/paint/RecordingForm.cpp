// SPDX-License-Identifier: MIT
#include "platform/paint/RecordingForm.h"

#include "platform/paint/PaintImage.h"
#include "platform/text/Numbers.h"

RecordingForm::RecordingForm(QSize size, double unitsPerInch)
    : m_recording(std::make_shared<Recording>(size, unitsPerInch)), m_painter(m_recording.get()), m_context(m_painter) {
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

RecordingForm::~RecordingForm() = default;

int RecordingForm::PicturePixels(double length) {
    return CLng(std::abs(ToPixels(length)) * kPaperDotsPerInch / m_recording->UnitsPerInch());
}

std::shared_ptr<const Recording> RecordingForm::Take() {
    m_painter.end();
    return m_recording;
}
