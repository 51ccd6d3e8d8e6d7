// SPDX-License-Identifier: MIT
#pragma once

#include "AppFixture.h"

#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QWheelEvent>

using Strings = QStringList;

// The middle of a space, in fractions of the board.
inline QPointF MiddleOf(int space) {
    const basPosit::BoardRect& rect = basPosit::m_SpaceRect(space, basPosit::SpacePart::Whole);
    return {double(rect.x1 + rect.x2) / 2, double(rect.y1 + rect.y2) / 2};
}

inline QPointF MiddleOfBox(int box) {
    const basPosit::BoardRect& rect = basPosit::m_CenterRect(box);
    return {double(rect.x1 + rect.x2) / 2, double(rect.y1 + rect.y2) / 2};
}

constexpr struct { double x, y; } kCornerMiddles[] = {{0.89, 0.89}, {0.11, 0.89}, {0.11, 0.11}, {0.89, 0.11}};

/// The main window after a plain start, and ways to act on its board and toolbar.
class MainWindowTest : public AppTest {
protected:
    MainWindowTest() { Start(); }
    /// Twips of a place in the middle of a toolbar button.
    static float ButtonX(int button) { return float((ToolBarTable::kRows[size_t(button)].iLeft + 11) * 15); }
    static constexpr float kButtonY = 12 * 15;
    PictureBox& ToolBar() const { return Find<PictureBox>("imgToolBar"); }
    QPoint OnToolBar(int button) const { return {ToolBarTable::kRows[size_t(button)].iLeft + 11, 12}; }
    void ClickToolBar(int button) const {
        QTest::mousePress(&ToolBar(), Qt::LeftButton, {}, OnToolBar(button));
        QTest::mouseRelease(&ToolBar(), Qt::LeftButton, {}, OnToolBar(button));
    }
    QString BoardTip() const { return window->View().Board().toolTip(); }
    void Wheel(int notches, Qt::KeyboardModifiers modifiers, QPoint at) const {
        // Only turns of a real wheel climb from the board to its window.
        const PictureBox& board = window->View().Board();
        QWheelEvent event(board.mapTo(window.get(), QPointF(at)), board.mapToGlobal(QPointF(at)), QPoint(),
                          QPoint(0, notches * 120), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window.get(), &event);
    }
    Color SeenAt(double fX, double fY) const {
        const QPoint at = PointOnBoard(fX, fY);
        return window->View().Board().hDC().GetPixel(at.x(), at.y());
    }
};
