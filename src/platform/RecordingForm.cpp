// SPDX-License-Identifier: MIT
#include "platform/RecordingForm.h"

RecordingForm::RecordingForm(QSize size)
    : m_recording(std::make_shared<Recording>(size)), m_painter(m_recording.get()), m_context(m_painter) {
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

RecordingForm::~RecordingForm() = default;

std::shared_ptr<const Recording> RecordingForm::Take() {
    m_painter.end();
    return m_recording;
}
