// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

#include <optional>

/// A small light that can be clicked: green with a tick for none, or a number on red. Dark as long as nobody knows.
class CountLight : public QAbstractButton {
    Q_OBJECT

public:
    explicit CountLight(QWidget* parent = nullptr);

    /// With what it says to whoever rests the mouse on it, or doesn't see it.
    void Show(int iCount, const QString& sMeaning);
    std::optional<int> Count() const { return m_count; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<int> m_count;
};
