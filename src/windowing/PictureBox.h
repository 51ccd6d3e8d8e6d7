// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"

#include <QElapsedTimer>
#include <QWidget>

#include <memory>

/// A window's drawing area. What is drawn on it lies in a backing picture and stays: a paint event of the
/// toolkit only copies that picture, so nothing is ever drawn while the window is being painted. The backing
/// picture has the dots of the screen, while all coordinates are device-independent pixels.
class PictureBox : public QWidget, public Surface {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);
    ~PictureBox() override;

    double DotsPerInch() const override;
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override { return size(); }
    /// What is drawn on it so far, in the dots of the screen.
    const QImage& Image();
    /// The same, side pixels square.
    Picture Reduced(int side);
    /// Asks the toolkit to show what was drawn.
    void Refresh() { update(); }

    /// The dots of a pixel; 0 takes those of the screen. For tests.
    static void PretendPixelRatio(double ratio);

    /// Mouse buttons as the old platform numbers them.
    static constexpr int kLeftButton = 1;
    static constexpr int kRightButton = 2;
    static constexpr int kMiddleButton = 4;
    static constexpr int kShift = 1;

    /// Of the last press: 1, or 2 or 3 where it follows others of the same button at the same place.
    int Clicks() const { return m_clicks; }

Q_SIGNALS:
    // Coordinates are twips. iButton is the button pressed or released; for a move the sum of all that are
    // down. iShift: 1 Shift, 2 Ctrl, 4 Alt.
    void MouseDown(int iButton, int iShift, float X, float Y);
    void MouseMove(int iButton, int iShift, float X, float Y);
    void MouseUp(int iButton, int iShift, float X, float Y);
    void MouseLeft();
    /// The backing picture was made anew for another kind of screen; what it showed has been enlarged.
    void BackingChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void MakeBacking();
    void KeepBackingFitting();
    double WantedRatio() const;
    QSize WantedSize() const;

    void TellPress(const QMouseEvent& event);

    int m_clicks = 0;
    /// Since a double click, and where it was.
    QElapsedTimer m_sinceDouble;
    QPoint m_doubleAt;
    QImage m_image;
    std::unique_ptr<DeviceContext> m_context;
};
