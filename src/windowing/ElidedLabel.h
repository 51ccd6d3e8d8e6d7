// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A line of plain text that may be longer than its place: the middle is then left out of what is painted,
/// and the tool tip shows it whole. Its text never makes a window wider.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    /// The label's text() stays whole.
    void SetWholeText(const QString& sText);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
