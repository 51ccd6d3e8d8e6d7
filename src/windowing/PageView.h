// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/PreviewPrinter.h"

#include <QAbstractScrollArea>

#include <optional>

/// Shows a page on its paper, as large as on paper or up to four times that, with a dashed line as far as the printer
/// reaches. What is in view is drawn by what prints it, at the size it is seen in.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    static constexpr double kLeastZoom = 0.1;
    static constexpr double kMostZoom = 4;

    explicit PageView(QWidget* parent = nullptr);

    void ShowPage(const PreviewPage& page);
    /// How many times as large as on paper the page shows.
    double Zoom() const;
    /// Out of bounds counts as the bound. What was in the middle stays there.
    void SetZoom(double zoom);
    /// The whole page, whatever size the window has.
    void ShowWholePage();
    bool ShowsWholePage() const { return !m_zoom; }
    /// What shows, in the dots of the screen.
    const QImage& Image();

    /// A thumbnail for a list: the whole page, at most this side.
    static QIcon IconOf(const PreviewPage& page, int side);

Q_SIGNALS:
    /// By Ctrl and the wheel, or by a change of the window's size.
    void ZoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    double ZoomOfWholePage() const;
    double DotsPerInch() const;
    /// The page and the room round it, and where the page's corner lies in the window.
    QSize Extent() const;
    QPoint Corner() const;
    void LayOut();
    void Forget();
    QImage PaintPart(const QRect& part) const;
    void Scroll(QPoint by);

    PreviewPage m_page;
    /// Nothing: the whole page.
    std::optional<double> m_zoom;
    /// What lies in the middle of the window, in parts of the page and its room.
    QPointF m_middle{0.5, 0.5};
    bool m_bLayingOut = false;
    QImage m_shown;
    QPoint m_dragged;
};
