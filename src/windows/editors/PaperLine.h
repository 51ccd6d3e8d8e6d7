// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// The line of words under a likeness: how large its text comes out on paper, or what of the last key was not taken.
class PaperLine : public QLabel {
    Q_OBJECT

public:
    explicit PaperLine(QWidget* parent);

    /// Room for the longest words at a width in pixels, so that the window keeps its size whatever is told.
    void KeepRoom(int iWidth);
    /// What PaperHint says of what is typed.
    void Tell(const QString& sOnPaper);
    /// Stands ahead of the size until it is told anew; empty where all was taken.
    void TellLoss(const QString& sLoss);

private:
    void ShowWords();

    QString m_sOnPaper;
    QString m_sLoss;
};
