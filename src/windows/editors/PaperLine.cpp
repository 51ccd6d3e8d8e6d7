// SPDX-License-Identifier: MIT
#include "windows/editors/PaperLine.h"

#include "check/PaperHint.h"

PaperLine::PaperLine(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("lblPaper"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void PaperLine::KeepRoom(int iWidth) {
    constexpr int kAnyHeight = 10000;
    setFixedWidth(iWidth);
    setMinimumHeight(
        fontMetrics().boundingRect(QRect(0, 0, iWidth, kAnyHeight), Qt::TextWordWrap, LongestPaperHint()).height());
}

void PaperLine::Tell(const QString& sOnPaper) {
    m_sOnPaper = sOnPaper;
    ShowWords();
}

void PaperLine::TellLoss(const QString& sLoss) {
    m_sLoss = sLoss;
    ShowWords();
}

void PaperLine::ShowWords() {
    const QString& words = m_sLoss.isEmpty() ? m_sOnPaper : m_sLoss;
    if (words != text()) setText(words);
}
